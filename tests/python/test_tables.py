# SPDX-License-Identifier: GPL-3.0-or-later
"""Tables and grids of members in arrays and frames."""

import csv
import io
import os
import resource
import signal
import subprocess
import threading
import time

import numpy
import pandas
import pytest

import korvane

NUMBERS = ["weight", "MaxIR", "IR_section", "IR_Vz", "IR_Vy", "IR_lateral", "IR_buckling", "L_over_z", "L_over_y"]
TEXTS = ["section", "standing", "governing", "sls", "notes"]


def members(rows, seed=1):
    """Random members of six kinds of sections; some values are missing, some are refused."""
    random = numpy.random.default_rng(seed)
    frame = pandas.DataFrame(
        {
            "mark": [f"M{i}" for i in range(rows)],
            "L": random.uniform(2, 12, rows).round(2),
            "q1": random.uniform(0, 30, rows).round(1),
            "NP": random.integers(-50, 400, rows),
            "profile": random.choice(
                ["IPE 300", "hea200", "RHS 100x50x5", "UB 457x191x67", "I 600x300x12x20", "IPE301"], rows
            ),
            "material": random.choice(["S355", "S235"], rows),
            "support": random.choice(["pinned - pinned", "pinned-fixed", "fixed - fixed"], rows),
        }
    ).rename(columns={"profile": "section"})
    frame.loc[3, "q1"] = numpy.nan
    frame.loc[4, "section"] = None
    frame.loc[5, "L"] = -1.0
    return frame


def console_table(cli, frame, tmp_path, *options):
    frame.to_csv(tmp_path / "members.csv", index=False)
    run = subprocess.run(
        [cli, "table", tmp_path / "members.csv", *options], capture_output=True, text=True, check=False
    )
    return list(csv.DictReader(io.StringIO(run.stdout)))


def test_rows_are_those_of_the_console(cli, beam, tmp_path):
    frame = members(400)
    beam.save(tmp_path / "base.kvn")
    expected = console_table(cli, frame, tmp_path, "--base", tmp_path / "base.kvn")
    columns = TEXTS + NUMBERS
    got = korvane.table(frame.drop(columns="section").assign(Section=frame["section"]), base=beam, columns=columns)
    assert len(expected) == len(got) == 400
    for i, row in enumerate(expected):
        # Rows of a file are counted from 1 with its headings, those of a frame from 0.
        told = row.pop("notes").replace(f", row {i + 2}:", f", row {i}:")
        assert got["notes"][i] == told
        for name in TEXTS[:-1]:
            assert got[name][i] == row[name], (i, name)
        for name in NUMBERS:
            value = got[name][i]
            assert ("" if numpy.isnan(value) else str(value)) == row[name].removesuffix(".0") or numpy.float32(
                row[name] or "nan"
            ) == value, (i, name)
    assert (got["standing"] == "refused").sum() > 20  # IPE301, and L = -1
    assert got["notes"][5] == "column L, row 5: L >= 0.050"


def test_rows_are_those_of_single_designs(beam):
    frame = members(100, seed=2)
    got = korvane.table(frame, base=beam)
    assert list(got.columns) == [*frame.columns, *(n for n in korvane.results() if n != "section")]
    passed = 0
    for i, row in frame.iterrows():
        design = beam.copy()
        try:
            design.update({k: v for k, v in row.items() if k != "mark" and v is not None and v == v})
        except korvane.InputRefused as refused:
            assert got["standing"][i] == "refused"
            assert got["notes"][i] == f"column {refused.field}, row {i}: {str(refused).strip()}"
            assert numpy.isnan(got["MaxIR"][i])
            continue
        result = design.calculate()
        assert got["MaxIR"][i] == numpy.float32(result.max_ir)
        assert got["governing"][i] == result.governing
        assert got["standing"][i] == str(result.verdict)
        passed += result.passes
    assert 5 < passed < 95


def test_frames_and_dicts_give_the_same(beam):
    frame = members(300, seed=3)
    from_frame = korvane.table(frame, base=beam, jobs=1)
    arrays = {name: frame[name].to_numpy() for name in frame}
    from_dict = korvane.table(arrays, base=beam, jobs=2)
    pandas.testing.assert_frame_equal(pandas.DataFrame(from_dict), from_frame)
    lists = {name: frame[name].tolist() for name in frame}
    pandas.testing.assert_frame_equal(pandas.DataFrame(korvane.table(lists, base=beam)), from_frame)
    # A column of shared words, of strings of fixed width, of whole numbers that may be missing.
    other = frame.assign(
        section=frame["section"].astype("category"), NP=frame["NP"].astype("Int64"), L=frame["L"].astype("float32")
    )
    assert (korvane.table(other, base=beam)["standing"] == from_frame["standing"]).all()
    fixed = {"L": arrays["L"], "material": arrays["material"].astype(str)}
    assert (korvane.table(fixed, beam)["MaxIR"] == korvane.table(frame[["L", "material"]], beam)["MaxIR"])[6:].all()
    # The frame given is as it was, and an index stays.
    assert list(frame.columns) == list(members(3, seed=3).columns)
    assert list(korvane.table(frame.iloc[10:13], beam).index) == [10, 11, 12]


def test_an_empty_cell_keeps_the_value_of_the_base(beam):
    got = korvane.table({"L": [numpy.nan, 6.0, 7.0], "section": ["", None, float("nan")]}, base=beam)
    assert got["MaxIR"][0] == got["MaxIR"][1] == numpy.float32(beam.calculate().max_ir)
    assert got["MaxIR"][2] > got["MaxIR"][1]


def test_columns_are_found_and_handed_through(beam):
    frame = pandas.DataFrame({"ID": [7, 8], "L [m]": [5, 6], "Storey": [1, 2], "Q1": [1, 2]})
    got = korvane.table(frame, beam, keep="Storey", columns=["MaxIR", "standing"])
    assert list(got.columns) == ["ID", "L [m]", "Storey", "Q1", "MaxIR", "standing"]
    assert list(got["ID"]) == [7, 8]
    with pytest.raises(KeyError, match=r"unknown column Storey \(nearest: "):
        korvane.table(frame, beam)
    with pytest.raises(ValueError, match="column q1 stands twice"):
        korvane.table(frame.assign(q1=1), beam, keep="Storey")
    with pytest.raises(ValueError, match="different lengths"):
        korvane.table({"L": [1, 2], "q1": [1]}, beam)
    with pytest.raises(TypeError, match="holds no numbers"):
        korvane.table({"L": numpy.array(["2026-01-01"], dtype="datetime64[D]")}, beam)
    # A table of results is designed again, its results replaced.
    again = korvane.table(got.assign(L=[9.0, 10.0]).drop(columns="L [m]"), beam, keep="Storey")
    assert (again["MaxIR"] > got["MaxIR"]).all() and list(again.columns).count("MaxIR") == 1


def test_words_in_columns_of_numbers_are_refused_by_their_rows(beam):
    got = korvane.table({"L": ["5", "5,5", "five", 6, None]}, base=beam)
    assert list(got["standing"]) == ["passes", "refused", "refused", "passes", "passes"]
    assert got["notes"][1] == "column L, row 1: Input string mismatch"
    assert got["MaxIR"][3] == got["MaxIR"][4]
    assert korvane.table({"material": [355]}, base=beam)["notes"][0] == "column material, row 0: no such material - 355"


def test_a_table_without_rows_has_its_columns(beam):
    empty = members(10).iloc[:0]
    got = korvane.table(empty, beam)
    full = korvane.table(members(10), beam)
    assert len(got) == 0 and list(got.columns) == list(full.columns)
    # Types as of a table with rows, which whoever works on parts of a table asks for.
    assert list(got.dtypes[7:]) == list(full.dtypes[7:])
    assert len(korvane.table({}, beam)["standing"]) == 0


def test_the_lightest_size_is_searched(beam, cli, tmp_path):
    frame = members(40, seed=4)
    beam.save(tmp_path / "base.kvn")
    expected = console_table(cli, frame, tmp_path, "--base", tmp_path / "base.kvn", "--optimise")
    got = korvane.table(frame, base=beam, optimise=True)
    assert list(got["optimised_section"]) == [row["optimised_section"] for row in expected]
    weights = [numpy.float32(row["optimised_weight"] or "nan") for row in expected]
    numpy.testing.assert_array_equal(got["optimised_weight"], weights)
    assert 5 < (got["optimised_section"] != "").sum() < 40


def test_a_grid_is_all_values_the_last_fastest(beam):
    grid = korvane.vary(beam, {"My_end[1]": [0]}, L=range(4, 8), section="family:HEA", columns="MaxIR")
    assert list(grid.columns) == ["My_end[1]", "L", "section", "MaxIR"]
    names = korvane.catalogue("HEA")
    assert len(grid) == 4 * len(names) and list(grid["section"][: len(names)]) == names
    assert list(grid["L"].unique()) == [4, 5, 6, 7]
    for i in (0, 17, 50, len(grid) - 1):
        design = beam.copy()
        design.update(L=grid["L"][i], section=grid["section"][i])
        assert grid["MaxIR"][i] == numpy.float32(design.calculate().max_ir)
    factors = korvane.vary(beam, loads=[0.5, 1.0], q1=12.0, frame=False)
    assert isinstance(factors, dict) and list(factors["q1"]) == [12, 12]
    beam.scale_loads(0.5)
    assert factors["MaxIR"][0] == numpy.float32(beam.calculate().max_ir)
    for wrong in ({}, {"L": []}):
        with pytest.raises(ValueError):
            korvane.vary(beam, wrong)


def test_all_threads_give_the_same_and_leave_python_free(beam):
    frame = members(20000, seed=5)
    one = korvane.table(frame, beam, jobs=1)
    ticks = 0
    done = threading.Event()

    def count():
        nonlocal ticks
        while not done.is_set():
            ticks += 1
            time.sleep(0.002)

    other = threading.Thread(target=count)
    other.start()
    before = ticks
    many = korvane.table(frame, beam, jobs=3)
    during = ticks - before
    done.set()
    other.join()
    pandas.testing.assert_frame_equal(one, many)
    assert during > 2  # another thread ran meanwhile


def test_a_table_is_stopped_by_the_keyboard(beam):
    lengths = numpy.full(3_000_000, 6.0)
    for jobs in (1, 2):
        timer = threading.Timer(0.3, lambda: os.kill(os.getpid(), signal.SIGINT))
        timer.start()
        with pytest.raises(KeyboardInterrupt):
            korvane.table({"L": lengths}, beam, jobs=jobs)


def test_memory_is_that_of_the_chunk(beam):
    def chunk(i):
        frame = members(10000, seed=i)
        return korvane.table(frame, beam, columns=["MaxIR", "standing", "notes"])["MaxIR"].sum()

    for i in range(4):
        chunk(i)
    before = resource.getrusage(resource.RUSAGE_SELF).ru_maxrss
    for i in range(4, 20):
        chunk(i)
    grown = resource.getrusage(resource.RUSAGE_SELF).ru_maxrss - before
    assert grown < 8000, f"{grown} kB more after 160,000 rows"  # a chunk's own columns are 3 MB
