# SPDX-License-Identifier: GPL-3.0-or-later
"""A design: its fields, limits, files, pictures, pickles and threads."""

import copy
import json
import os
import pathlib
import pickle
import re
import subprocess
import sys
import threading

import numpy
import pytest

import korvane


def test_a_beam_gives_the_moment_of_the_text_book():
    # q L^2 / 8 with q = 1.2 * 10 kN/m and L = 6 m; deflection 5 q L^4 / (384 E I), SLS factor 1.
    design = korvane.Design(L=6, q1=10, NP=0, lfp_uls=1.2, lfp_sls=1.0)
    design.section = "IPE300"
    result = design.calculate()
    assert result.stations["My"].max() == pytest.approx(1.2 * 10 * 6**2 / 8, rel=1e-6)
    assert result.stations["x"][-1] == 6 and len(result.stations["x"]) == 51
    inertia = result.section.Iy  # mm4
    deflection = 5 * 10 * 6000**4 / (384 * 210000 * inertia)
    assert result.deflection.DeflZ_max == pytest.approx(deflection, rel=1e-4)
    assert result.L_over_z == pytest.approx(6000 / deflection, rel=1e-4)
    assert result.L_over_y is None


def test_fields_are_read_as_they_were_typed(beam):
    beam["q1"] = 12.1
    assert beam["q1"] == 12.1
    beam["SupportType"] = 1
    assert beam["SupportType"] == 1 and isinstance(beam["SupportType"], int)
    beam["iproj"] = "Bjørvika"
    assert beam["iproj"] == "Bjørvika"
    beam["iproj"] = ""
    assert beam["iproj"] == ""
    beam["L"] = "6.25"
    assert beam["L"] == 6.25
    beam["L"] = numpy.float32(7.5)
    assert beam["L"] == 7.5
    assert "L" in beam and "My_end[1]" in beam and "section" in beam and "Q" not in beam
    assert set(dict(beam)) == set(beam.keys()) and len(beam) == len(beam.keys()) > 100


def test_elements_of_a_field_are_set_one_by_one_or_together(beam):
    beam["pm[3]"] = 25
    assert beam["pm"] == (0, 0, 25, 0, 0, 0, 0, 0)
    beam.update(AnalysisMode=0, Ne=100, My_end=(10, -20))
    assert beam["My_end"] == (10, -20) and beam["My_end[2]"] == -20
    with pytest.raises(korvane.InputRefused, match="2 values are wanted"):
        beam["My_end"] = (1, 2, 3)


def test_words_bring_what_a_form_brings(beam):
    beam.support = "pinned - fixed"
    assert (beam["SupportType"], beam["BucklingCaseY"], beam["bly"]) == (1, 3, pytest.approx(0.7))
    beam["bly"] = 0.85
    assert beam["BucklingCaseY"] == 6
    beam.section = "rhs 50*100*5"
    assert beam.section == "RHS 50x100x5" and beam["RhsOrientation"] == 0
    # What a calculation works out is that of one: 40 mm and more of S355 has another yield stress.
    beam.material = "S235"
    assert beam["fyk"] == 235


def test_every_name_of_a_section_is_taken_back():
    design = korvane.Design()
    names = list(korvane.sections(design, frame=False)["section"])
    assert len(names) == len(set(names)) == 1231  # 957, hollow rectangles in both orientations
    for name in names:
        if name.startswith("Plate"):
            continue  # takes the plate's dimensions too
        design.section = name
        assert design.section == name


@pytest.mark.parametrize(
    "field, value, message",
    [
        ("L", 0, " L >= 0.050 "),
        ("L", float("nan"), "invalid operation"),
        ("L", float("inf"), "single precision overflow"),
        ("L", "six", "Input string mismatch "),
        ("L", "", "an empty text"),
        ("p24_load", 30, " 50% <= Load on one flange <= 90% "),
        ("Ne", 5, "end forces count with AnalysisMode 0 alone"),
        ("SupportType", 1.5, "a whole number is wanted"),
        ("SupportType", 9, "no such support"),
        ("section", "IPE301", "no such section - IPE301"),
        ("material", "S999", "no such material - S999"),
        ("support", "hinged", "no such support - hinged"),
        ("fyk", 300, 'counts with the material "- other -" alone'),
    ],
)
def test_a_value_beyond_its_limits_does_not_get_in(beam, field, value, message):
    before = beam.copy()
    if "other" in message:
        message = None  # the list's last word
    with pytest.raises(ValueError) as refused:
        beam[field] = value
    assert refused.value.field == field
    assert message is None or str(refused.value) == message
    assert beam == before


def test_several_fields_are_set_all_or_none(beam):
    before = beam.copy()
    with pytest.raises(korvane.InputRefused):
        beam.update(L=7, q1=5, section="HEA 205")
    assert beam == before
    with pytest.raises(TypeError):
        beam.update(L=7, q1=None)
    with pytest.raises(TypeError):
        beam["section"] = 300
    assert beam == before


@pytest.mark.parametrize(
    "call, nearest",
    [
        (lambda d: d["Lx"], "L"),
        (lambda d: d.__setitem__("My_ned[1]", 1), "My_end[1]"),
        (lambda d: d.svg("mmy"), "my"),
        (lambda d: d.report("x.svg", "contol"), "control"),
        (lambda d: korvane.solve(d, "q11"), "q1"),
        (lambda d: korvane.sections(d, "HEX"), "HEA"),
        (lambda d: korvane.table({"Q1": [1], "LL": [2]}, d), "L"),
        (lambda d: korvane.table({"L": [1]}, d, columns=["MaxR"]), "MaxIR"),
        (lambda d: korvane.vary(d, qq1=[1]), "q1"),
        (lambda d: korvane.interaction(d, "N-Mx"), "N-My"),
    ],
)
def test_an_unknown_name_is_told_with_the_nearest(beam, call, nearest):
    with pytest.raises(KeyError) as unknown:
        call(beam)
    assert f"(nearest: {nearest})" in str(unknown.value)


def test_loads_are_a_factor(beam):
    with pytest.raises(KeyError, match="scale_loads"):
        beam["loads"] = 2
    with pytest.raises(KeyError, match="scale_loads"):
        beam["loads"]
    beam.scale_loads(1.5)
    assert (beam["q1"], beam["NP"]) == (18, 30)


def test_a_calculation_that_stops_tells_where(beam):
    beam["gammam1"] = 1.1
    state = beam.__getstate__()
    state[0]["gammam1"] = 0.0  # as only a file can hold it
    stopped = korvane.Design.__new__(korvane.Design)
    stopped.__setstate__(state)
    with pytest.raises(korvane.ArithmeticFault) as fault:
        stopped.calculate()
    assert fault.value.step == "SetMaterial"
    assert "SetMaterial" in str(fault.value) and fault.value.input == stopped
    assert repr(stopped).endswith("stopped in SetMaterial>")
    again = pickle.loads(pickle.dumps(fault.value))
    assert (str(again), again.step, again.input) == (str(fault.value), "SetMaterial", stopped)
    assert isinstance(fault.value, ArithmeticError)
    refused = korvane.InputRefused("no", "L")
    assert pickle.loads(pickle.dumps(refused)).field == "L"


def test_results_do_not_change_with_the_design(beam):
    result = beam.calculate()
    ratio, moment = result.max_ir, result.analysis.My_max
    beam["q1"] = 24
    assert result.max_ir == ratio and result.analysis.My_max == moment
    assert result.design["q1"] == 12
    assert beam.calculate().max_ir > ratio


def test_a_verdict_is_true_where_the_member_passes(beam):
    good = beam.calculate()
    assert good.verdict and good.passes and good.verdict.standing == "passes"
    assert good.max_ir == pytest.approx(good.verdict.IR, rel=1e-6) and good.max_ir < 1
    beam["q1"] = 80
    bad = beam.calculate()
    assert not bad.verdict and not bad.passes and str(bad.verdict) == "fails"
    assert bad.max_ir > 1 and bad.governing == bad.verdict.governing
    assert max(bad.ratios.values()) == pytest.approx(bad.max_ir, rel=1e-6)
    assert {n.severity for n in bad.verdict.notes} >= {"fails"}
    assert all(n.text and n.code for n in bad.verdict.notes)


def test_checks_are_those_that_were_done(beam):
    checks = beam.calculate().checks
    assert list(checks) == ["section", "Vz", "lateral", "buckling_y", "buckling_z"]
    assert checks["lateral"].label == "Lateral:"
    assert float(checks["lateral"].value) == pytest.approx(beam.calculate().ratios["lateral"], abs=0.005)
    beam["NP"] = 0
    beam["LateralTorsionalBuckling"] = 0
    assert "lateral" not in beam.calculate().checks


def test_a_result_reads_as_json_of_the_console(beam, tmp_path, cli):
    file = tmp_path / "beam.kvn"
    beam.save(file)
    run = subprocess.run([cli, "design", "--json", file], capture_output=True, check=False)
    expected = json.loads(run.stdout)
    got = korvane.Design(file).calculate()
    everything = got.to_dict()
    del everything["state"]["CurrentDir"], expected["state"]["CurrentDir"]  # of the data
    assert everything == expected
    assert got.section.Wply == pytest.approx(expected["section"]["Wply"], rel=1e-7)
    assert got.section["name"] == got.section.name == "IPE330"
    with pytest.raises(AttributeError):
        got.section.nothing
    assert isinstance(got.deflection.DeflZ, numpy.ndarray)


def test_projects_are_saved_and_opened(beam, tmp_path):
    file = tmp_path / "bjælke.kvn"
    with pytest.raises(ValueError, match="a name"):
        beam.save()
    beam.save(file)
    opened = korvane.Design(str(file))
    assert opened == beam and opened.file == str(file)
    opened["L"] = 7
    opened.save()
    assert korvane.Design(file)["L"] == 7
    with pytest.raises(FileNotFoundError, match="can't find file - "):
        korvane.Design(tmp_path / "none.kvn")
    with pytest.raises(OSError, match="can't write file - "):
        beam.save(tmp_path / "none" / "beam.kvn")
    (tmp_path / "short.kvn").write_text("390\n")
    with pytest.raises(ValueError, match="Input file not compatible with this version "):
        korvane.Design(tmp_path / "short.kvn")


def test_designs_are_pickled_and_copied(beam):
    beam["iproj"] = "Bjørvika"
    beam["pm"] = (1, 2, 3, 4, 5, 6, 7, 8)
    for other in (pickle.loads(pickle.dumps(beam)), beam.copy(), copy.copy(beam), copy.deepcopy(beam)):
        assert other == beam and other.calculate().to_json() == beam.calculate().to_json()
        other["L"] = 3
        assert other != beam and beam["L"] == 6
    with pytest.raises(TypeError):
        hash(beam)


def test_repr_reads_well(beam):
    assert re.fullmatch(
        r"<Design IPE330 L=6 m: passes 0\.\d\d \([a-zA-Z +]+\)>", repr(beam)
    ), repr(beam)
    assert repr(beam.calculate()) == repr(beam).replace("Design", "Result")


def test_notebooks_show_designs_and_drawings(beam):
    html = beam._repr_html_()
    assert html.startswith("<svg") and "<table>" in html and "IPE330" in html
    for check in beam.calculate().checks.values():
        assert check.label in html
    svg = beam.svg("my")
    assert svg._repr_svg_() == svg and "<svg" in svg
    assert svg == beam.calculate().svg("my")
    assert svg != beam.svg("mz")
    beam.update(AnalysisMode=0, Ne=10)
    with pytest.raises(ValueError, match="no deflections to draw"):
        beam.svg("dz")


def test_reports_are_written(beam, tmp_path, monkeypatch):
    assert beam.report(tmp_path / "one.svg", "control") == [str(tmp_path / "one.svg")]
    assert "<svg" in (tmp_path / "one.svg").read_text()
    assert [os.path.basename(f) for f in beam.report(tmp_path / "two.svg")] == ["two-1.svg", "two-2.svg"]
    with pytest.raises(ValueError, match="must end in .pdf or .svg"):
        beam.report(tmp_path / "three.txt")
    if not os.environ.get("KORVANE_MODULES"):
        pytest.skip("the painter is not built")
    beam.report(tmp_path / "beam.pdf")
    assert (tmp_path / "beam.pdf").read_bytes().startswith(b"%PDF")
    # Without the painter nothing is written, and a word says what to do.
    monkeypatch.setattr(korvane, "_painter_folders", lambda: [str(tmp_path)])
    with pytest.raises(RuntimeError, match="is not installed; a report that ends in .svg needs none"):
        beam.report(tmp_path / "none.pdf")
    assert not (tmp_path / "none.pdf").exists()


def test_threads_have_designs_of_their_own():
    sizes = ["IPE200", "IPE300", "HEA200", "RHS 100x100x5", "UB 457x191x67", "I 600x300x12x20"]
    expected = {}
    for size in sizes:
        design = korvane.Design(L=5)
        design.section = size
        expected[size] = [design.calculate().max_ir]
        design["q1"] = 20
        expected[size].append(design.calculate().max_ir)
    wrong = []

    def work(size):
        design = korvane.Design(L=5)
        design.section = size
        for i in range(400):
            design["q1"] = 10 if i % 2 == 0 else 20
            if design.calculate().max_ir != expected[size][i % 2]:
                wrong.append(size)

    threads = [threading.Thread(target=work, args=(size,)) for size in sizes]
    for thread in threads:
        thread.start()
    for thread in threads:
        thread.join()
    assert not wrong and len({tuple(e) for e in expected.values()}) == len(sizes)


def test_the_data_may_stand_elsewhere(tmp_path):
    code = "import korvane"
    env = {**os.environ, "KORVANE_DATA": str(tmp_path)}
    run = subprocess.run([sys.executable, "-c", code], env=env, capture_output=True, text=True)
    assert run.returncode != 0 and "lacks" in run.stderr


def test_the_installed_wheel_is_tested():
    place = pathlib.Path(korvane.__file__).parent
    assert (place / "data" / "hea.dat").is_file() and (place / "py.typed").is_file()
    assert "python/site-" in str(place) or "KORVANE_ANY_SITE" in os.environ
    assert re.fullmatch(r"\d+\.\d+\.\d+", korvane.__version__)
