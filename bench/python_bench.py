#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Speed and memory of the module for Python.

    PYTHONPATH=SITE python_bench.py [calculate] [table] [memory] [growth] [dask]

SITE: a folder where the wheel is installed. Without a word all but memory, which designs ten
million rows in chunks and takes minutes.
"""

import os
import resource
import sys
import time

import numpy
import pandas

import korvane

SECTIONS = ["IPE300", "HEA200", "HEB240", "RHS 100x100x5", "UB 457x191x67", "I 600x300x12x20"]


def members(rows, seed=1):
    """Twelve inputs a row, as a frame analysis and a person give them."""
    random = numpy.random.default_rng(seed)
    return pandas.DataFrame(
        {
            "section": random.choice(SECTIONS, rows),
            "material": random.choice(["S355", "S235"], rows),
            "L": random.uniform(2, 10, rows),
            "q1": random.uniform(0, 25, rows),
            "q2": random.uniform(0, 5, rows),
            "NP": random.uniform(0, 200, rows),
            "bly": random.uniform(0.7, 1, rows),
            "blz": random.uniform(0.5, 1, rows),
            "SupportType": random.integers(0, 3, rows),
            "lfp_uls": numpy.full(rows, 1.2),
            "iufa": numpy.ones(rows),
            "DeflectionLimit": numpy.full(rows, 300),
        }
    )


def clock(work):
    """Seconds on the clock, and of all processors."""
    clock, busy = time.perf_counter(), time.process_time()
    work()
    return time.perf_counter() - clock, time.process_time() - busy


def calculate():
    design = korvane.Design()
    best = 1e9
    for _ in range(20):
        seconds, busy = clock(lambda: [design.calculate().max_ir for _ in range(5000)])
        best = min(best, busy / 5000)
    print(f"calculate and max_ir: {best * 1e6:.2f} us of processor time (best of 20)")


def table():
    frame = members(1_000_000)
    for jobs in (1, 2):
        seconds, busy = clock(lambda: korvane.table(frame, jobs=jobs))
        print(
            f"table, 1,000,000 rows of 12 inputs and 13 results, {jobs} jobs: {seconds:.2f} s,"
            f" {busy:.2f} s of processor time"
        )
    values = dict(L=numpy.linspace(2, 12, 1000), q1=numpy.linspace(1, 30, 1000))
    seconds, busy = clock(lambda: korvane.vary(korvane.Design(), values, frame=False))
    print(f"vary, 1,000,000 designs: {seconds:.2f} s, {busy:.2f} s of processor time")


def growth():
    for rows in (1_000, 10_000, 100_000, 1_000_000):
        frame = members(rows)
        seconds, busy = clock(lambda: korvane.table(frame))
        print(f"table, {rows} rows: {busy / rows * 1e6:.2f} us of processor time a row")


def memory():
    """Ten million rows in chunks; the peak after each million."""
    rows = 100_000
    for chunk in range(100):
        korvane.table(members(rows, chunk), columns=["MaxIR", "standing", "notes"])
        if (chunk + 1) % 10 == 0:
            peak = resource.getrusage(resource.RUSAGE_SELF).ru_maxrss / 1024
            with open("/proc/self/statm") as statm:
                now = int(statm.read().split()[1]) * os.sysconf("SC_PAGE_SIZE") / 2**20
            print(f"{(chunk + 1) * rows} rows: {now:.0f} MiB, at most {peak:.0f} MiB", flush=True)


def dask():
    import dask.dataframe
    import distributed

    base = korvane.Design()
    for workers in (1, 2):
        cluster = distributed.LocalCluster(
            n_workers=workers, threads_per_worker=1, host="127.0.0.1", dashboard_address=None
        )
        with cluster, distributed.Client(cluster) as client:
            client.run(__import__, "korvane")
            for rows in (100_000, 400_000):
                parts = dask.dataframe.from_pandas(members(rows), npartitions=20).persist()
                distributed.wait(parts)

                def timed(part):
                    begun = time.process_time()
                    made = korvane.table(part, base, jobs=1)
                    return pandas.DataFrame({"rows": [len(made)], "s": [time.process_time() - begun]})

                meta = pandas.DataFrame({"rows": [0], "s": [0.0]})
                begun = time.perf_counter()
                counts = parts.map_partitions(timed, meta=meta).compute()
                seconds = time.perf_counter() - begun
                busy = counts["s"].sum()
                print(
                    f"Dask, {workers} workers, {rows} rows: {rows / seconds:.0f} rows a second,"
                    f" {1 - busy / workers / seconds:.0%} of the time not designing"
                )


if __name__ == "__main__":
    for word in sys.argv[1:] or ["calculate", "table", "growth", "dask"]:
        {"calculate": calculate, "table": table, "growth": growth, "memory": memory, "dask": dask}[word]()
