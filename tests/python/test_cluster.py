# SPDX-License-Identifier: GPL-3.0-or-later
"""Tables on a Dask cluster of two worker processes, one of which is killed on the way."""

import importlib.util
import os
import signal
import sys
import time

import numpy
import pandas
import pytest

import korvane

ROWS = 200_000
PARTS = 40


def load_example(source):
    spec = importlib.util.spec_from_file_location("dask_table", source / "examples/python/dask_table.py")
    example = importlib.util.module_from_spec(spec)
    sys.modules["dask_table"] = example
    spec.loader.exec_module(example)
    return example


def members():
    random = numpy.random.default_rng(11)
    return pandas.DataFrame(
        {
            "mark": numpy.arange(ROWS),
            "L": random.uniform(2, 12, ROWS),
            "q1": random.uniform(0, 30, ROWS),
            "NP": random.uniform(-50, 300, ROWS),
            "section": random.choice(["IPE300", "HEA200", "RHS 100x100x5", "IPE301"], ROWS),
        }
    )


def stamped(part):
    """The part with the process that designed it."""
    return part.assign(process=os.getpid())


@pytest.fixture
def client():
    distributed = pytest.importorskip("distributed")
    import dask

    dask.config.set({"distributed.nanny.pre-spawn-environ.PYTHONPATH": os.environ.get("PYTHONPATH", "")})
    cluster = distributed.LocalCluster(
        n_workers=2, threads_per_worker=1, host="127.0.0.1", dashboard_address=None, silence_logs=50
    )
    with cluster, distributed.Client(cluster) as client:
        yield client


def test_a_table_on_two_processes_is_that_of_one_though_a_worker_is_killed(client, source):
    import dask.dataframe
    import distributed

    example = load_example(source)
    base = korvane.Design(NP=20)
    frame = members()
    whole = korvane.table(frame, base)
    assert set(whole["standing"]) == {"passes", "fails", "refused"}

    table = example.design(dask.dataframe.from_pandas(frame, npartitions=PARTS), base)
    assert list(table.columns) == list(whole.columns) and (table.dtypes == whole.dtypes).all()
    # The counts of the run say where each part was designed.
    parts = client.compute(table.map_partitions(stamped, meta=stamped(table._meta)).to_delayed())
    workers = client.run(os.getpid)
    while sum(part.done() for part in parts) < PARTS // 4:
        time.sleep(0.005)
    killed = next(
        workers[holders[0]] for holders in client.who_has(parts).values() if holders and holders[0] in workers
    )
    left = sum(not part.done() for part in parts)
    os.kill(killed, signal.SIGKILL)
    assert left > 0
    distributed.wait(parts, timeout=120)
    together = pandas.concat(client.gather(parts))

    processes = set(together.pop("process"))
    assert killed not in processes and processes & set(workers.values())
    notes, expected = together.pop("notes"), whole.pop("notes")
    pandas.testing.assert_frame_equal(together, whole)
    # A refused row is counted in its part.
    row = r", row \d+:"
    assert (notes.str.replace(row, ":", regex=True) == expected.str.replace(row, ":", regex=True)).all()
