# SPDX-License-Identifier: GPL-3.0-or-later
"""All sections, how far a value can go, interaction; names and stubs of the module."""

import ast
import inspect
import pathlib

import numpy
import pytest

import korvane


def test_every_size_is_a_design_of_its_own(beam):
    sizes = korvane.sections(beam)
    assert len(sizes) == 1231 and sizes["kg_m"].is_monotonic_increasing
    for name in ("IPE330", "HEA200", "RHS 50x100x5", "UB 457x191x67"):
        row = sizes[sizes["section"] == name].iloc[0]
        design = beam.copy()
        design.section = name
        result = design.calculate()
        assert row["MaxIR"] == numpy.float32(result.max_ir)
        assert row["kg_m"] == numpy.float32(result.section.S)
        assert row["kg"] == pytest.approx(result.section.S * 6, rel=1e-6)
        assert (row["standing"], row["governing"]) == (str(result.verdict), result.governing)
    passing = korvane.sections(beam, ["IPE", "hea"], passing=True, frame=False)
    assert set(passing["standing"]) == {"passes"}
    assert {name[:3] for name in passing["section"]} == {"IPE", "HEA"}
    # The lightest IPE that passes, found one by one.
    for name in korvane.catalogue("IPE"):
        beam.section = name
        if beam.calculate().passes:
            break
    assert [n for n in passing["section"] if n.startswith("IPE")][0] == name
    beam.update(q1=4, NP=0, L=10, LateralTorsionalBuckling=0)
    all_that_pass = korvane.sections(beam, "IPE", passing=True)
    good = korvane.sections(beam, "IPE", passing=True, sls=True)
    assert 0 < len(good) < len(all_that_pass) and (good["sls"] == "passes").all()


def test_how_far_a_length_can_go(beam):
    answer = korvane.solve(beam, "L")
    length = answer.interval.high
    beam["L"] = length
    assert beam.calculate().passes
    beam["L"] = answer.interval.above.failing.value
    assert not beam.calculate().passes
    assert beam["L"] - length < 1e-4
    assert str(answer) == f"L up to {length:g} m: {answer.interval.above.failing.check}"
    assert (answer.input, answer.unit, answer.present.value, answer.present.passes) == ("L", "m", 6, True)
    assert repr(answer) == f"<Answer {answer}>"


def test_answers_without_a_border(beam):
    assert str(korvane.solve(beam, "L", between=(1, 2))) == "L = 6 m passes, from 1 to 2 m passes"
    assert str(korvane.solve(beam, "L", between=(5, 6.25))) == "L: everything passes from 5 to 6.25 m"
    assert "nothing passes from 30 to 40 m" in str(korvane.solve(beam, "L", between=(30, 40)))
    beam["q1"] = 90
    loads = korvane.solve(beam, "loads")
    assert loads.interval is None and loads.intervals[0].high < 1
    assert str(loads) == f"loads = 1 does not pass, from 0 to {loads.intervals[0].high:g} passes"
    for wrong in ((7, 3), (1, float("inf"))):
        with pytest.raises(ValueError, match="A less than B"):
            korvane.solve(beam, "L", between=wrong)


def test_the_deflection_may_be_what_stops(beam):
    beam["NP"] = 0
    beam["LateralTorsionalBuckling"] = 0
    beam["q1"] = 5
    stress, stiffness = korvane.solve(beam, "L"), korvane.solve(beam, "L", sls=True)
    assert stiffness.interval.high < stress.interval.high
    assert stiffness.interval.above.failing.check == "deflection"


def test_an_envelope_goes_through_the_capacities(beam):
    points = korvane.interaction(beam, "My-Mz", 72)
    assert points.shape == (72, 2)
    beam.update(AnalysisMode=0, LateralTorsionalBuckling=0, Ne=0, My_end=(points[0, 0],) * 2)
    at = korvane.interaction(beam, "My-Mz", 4)
    assert at[0, 0] == pytest.approx(beam.calculate().section.Mdy, rel=1e-4)
    with pytest.raises(ValueError):
        korvane.interaction(beam, "N-My", 2)


def test_fields_and_results_have_units():
    fields = korvane.fields()
    assert fields["L"] == ("m", "at least 0.05") and fields["q1"][0] == "kN/m"
    assert korvane.results()["weight"] == ("kg/m", "weight of the section")
    assert len(korvane.catalogue()) == 21 and korvane.catalogue("ipe")[0] == "IPE80"
    with pytest.raises(KeyError, match="nearest: IPE"):
        korvane.catalogue("IPEE")


def public(holder):
    """Names that a class or module shows, and those of Python's own that were written for it."""
    return {name for name in vars(holder) if not name.startswith("_")}


def test_the_stubs_have_every_name_and_no_other():
    stub = ast.parse((pathlib.Path(korvane.__file__).parent / "__init__.pyi").read_text())
    classes = {node.name: node for node in stub.body if isinstance(node, ast.ClassDef)}
    functions = {node.name: node for node in stub.body if isinstance(node, ast.FunctionDef)}
    assert set(classes) | set(functions) == set(korvane.__all__)
    for name, node in classes.items():
        told = {
            part.name if isinstance(part, ast.FunctionDef) else part.target.id
            for part in node.body
            if isinstance(part, (ast.FunctionDef, ast.AnnAssign))
        }
        told = {part for part in told if not part.startswith("_")}
        there = public(getattr(korvane, name))
        if name in ("InputRefused", "ArithmeticFault"):  # set when they are made
            assert there == set()
        else:
            assert told == there, name
    for name, node in functions.items():
        arguments = [a.arg for a in node.args.args] + ([node.args.kwarg.arg] if node.args.kwarg else [])
        assert arguments == list(inspect.signature(getattr(korvane, name)).parameters), name


def test_every_name_tells_what_it_is_for():
    for name in korvane.__all__:
        thing = getattr(korvane, name)
        assert thing.__doc__, name
        if inspect.isclass(thing) and thing.__module__ == "korvane._engine" and name in ("Design", "Result"):
            for part in public(thing):
                assert getattr(thing, part).__doc__, (name, part)
