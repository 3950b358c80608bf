# SPDX-License-Identifier: GPL-3.0-or-later
"""Designs one steel member, a column or a beam, to NS 3472, and many of them at once.

    import korvane
    d = korvane.Design()          # a new project; korvane.Design("beam.kvn") opens one
    d["L"] = 6.5                  # m; all fields by their names, see korvane.fields()
    d.section = "IPE300"
    r = d.calculate()
    print(r.verdict, r.max_ir)

Names are those of the program: fields as `korvane-cli design --json` writes them, results as
`korvane-cli table --list-columns` lists them. Lengths are in m, sections in mm, loads in kN, kN/m
and kNm. A value beyond its limits is refused with the message of the forms (InputRefused, a
ValueError), an unknown name with the nearest one (KeyError), and a calculation that stops raises
ArithmeticFault.

Designs are independent of one another: each thread may have its own. table, vary, sections, solve
and interaction leave Python's lock free while they run, table and vary use all cores.
"""

import os as _os
import re as _re
import sys as _sys

import numpy as _numpy

from . import _engine, _notebook
from ._engine import Answer, Border, Check, Design, Interval, Note, Result, Trial, Verdict
from ._errors import ArithmeticFault, InputRefused
from ._groups import Group
from ._notebook import Svg
from ._version import version as __version__

__all__ = [
    "Answer",
    "ArithmeticFault",
    "Border",
    "Check",
    "Design",
    "Group",
    "InputRefused",
    "Interval",
    "Note",
    "Result",
    "Svg",
    "Trial",
    "Verdict",
    "catalogue",
    "fields",
    "interaction",
    "results",
    "sections",
    "solve",
    "table",
    "vary",
]

_HERE = _os.path.dirname(_os.path.abspath(__file__))
_engine.start(_os.environ.get("KORVANE_DATA") or _os.path.join(_HERE, "data"))

# Columns that are handed through, as the table of the console hands them.
_NAMES = {"id", "name", "mark", "member", "group", "comment"}
_LIGHTEST = ("optimised_section", "optimised_weight", "optimised_IR")


# --- Pictures and pages ---------------------------------------------------------------------------


def _painter_folders():
    """Where the painter may be: named, with the module, or installed with the program."""
    named = _os.environ.get("KORVANE_MODULES")
    libraries = _os.path.join(_sys.base_prefix, "lib")
    multiarch = getattr(_sys.implementation, "_multiarch", "")
    return ([named] if named else []) + [
        _HERE,
        _os.path.join("/usr/lib", multiarch, "korvane", "modules"),
        _os.path.join(libraries, multiarch, "korvane", "modules"),
        _os.path.join(libraries, "korvane", "modules"),
    ]


def _svg(self, what):
    """A drawing as SVG: beam, loads-z, loads-y, my, mz, dz, dy, axial, section."""
    return Svg(_outcome(self)._svg(what))


def _report(self, path, kind="both"):
    """Writes the report: section, control, checker, both or all sheets.

    By its ending a PDF, for which the program's painter has to be installed, or SVG: of several
    sheets a file each, NAME-1.svg and so on. Returns the files written.
    """
    outcome = _outcome(self)
    path = _os.fsdecode(path)
    stem, ending = _os.path.splitext(path)
    if ending.lower() == ".pdf":
        files = {path: outcome._sheets_pdf(kind, _painter_folders())}
    elif ending.lower() == ".svg":
        pages = [page.encode() for page in outcome._sheets_svg(kind)]
        names = [path] if len(pages) == 1 else [f"{stem}-{i + 1}.svg" for i in range(len(pages))]
        files = dict(zip(names, pages))
    else:
        raise ValueError(f"the report must end in .pdf or .svg - {path}")
    for name, page in files.items():
        _engine.write(name, page)
    return list(files)


def _outcome(self):
    return self.calculate() if isinstance(self, Design) else self


def _to_dict(self):
    """Everything by name, as `korvane-cli design --json` writes it."""
    import json

    return json.loads(self.to_json())


Design.svg = Result.svg = _svg
Design.report = Result.report = _report
Result.to_dict = _to_dict
Design._repr_html_ = _notebook.design_html
Result._repr_html_ = _notebook.result_html


# --- Many members ---------------------------------------------------------------------------------


def _base(base):
    if base is None:
        return Design()
    return base if isinstance(base, Design) else Design(base)


def _is_frame(table):
    return hasattr(table, "columns") and hasattr(table, "iloc")


def _words(column):
    """Texts that rows share, as (places, words); a place of -1 is an empty cell."""
    if hasattr(column, "cat"):
        words = [str(word) for word in column.cat.categories]
        return _numpy.asarray(column.cat.codes, dtype=_numpy.int32), words
    values = column.to_numpy() if hasattr(column, "to_numpy") else _numpy.asarray(column)
    if values.ndim != 1:
        raise ValueError("a column has one dimension")
    if values.dtype.kind in "US":
        values = values.astype(object)
    if values.dtype.kind != "O":
        # A number where a word belongs is refused by its row, as its text is.
        shown, places = _numpy.unique(values, return_inverse=True)
        return places.astype(_numpy.int32), [str(value) for value in shown]
    return _engine.column_words(_numpy.ascontiguousarray(values))


def _values(column, is_number):
    """A column as the engine takes it: numbers, or words where some of it is no number."""
    if not is_number or hasattr(column, "cat"):
        return _words(column)
    if hasattr(column, "to_numpy") and not _is_plain(getattr(column, "dtype", None)):
        try:
            return column.to_numpy(dtype=float, na_value=_numpy.nan)
        except (TypeError, ValueError):
            return _words(column)
    values = column.to_numpy() if hasattr(column, "to_numpy") else _numpy.asarray(column)
    if values.ndim != 1:
        raise ValueError("a column has one dimension")
    if values.dtype.kind in "biuf":
        return _numpy.ascontiguousarray(values, dtype=float)
    if values.dtype.kind in "OUS":
        return _words(values)
    raise TypeError(f"a column of {values.dtype} holds no numbers")


def _is_plain(dtype):
    return isinstance(dtype, _numpy.dtype) and dtype.kind != "O"


def _heading(name):
    """A heading without the unit in brackets that a blank separates from it."""
    return _re.sub(r"\s+[\[(][^\[(]*[\])]$", "", str(name))


def _result_names(columns, inputs):
    """The results wanted: those named, else all that no column of the inputs stands for."""
    if columns is not None:
        return [columns] if isinstance(columns, str) else list(columns)
    return [name for name, _, _ in _engine.result_columns() if name not in inputs]


def table(frame, base=None, columns=None, keep=(), optimise=False, jobs=0):
    """Designs the members of a table, a row each, and returns the table with their results.

    frame: a DataFrame or a dict of arrays; columns are inputs by name (fields(), section,
    material, support, loads). An empty cell (nan, None) keeps the base's value. Columns id, name,
    mark, member, group, comment and those of keep are handed through; any other raises KeyError
    with the nearest name. Results of an earlier run are replaced.
    base: the design whose values the cells replace, or its file; a new project without one.
    columns: results by name, results() tells all; by default all, but not section where that is
    an input.
    optimise: the lightest size of each member's series too.
    jobs: threads, by default one a core.

    A row that is refused has the standing "refused", and the reason in its notes; rows are
    counted from 0. Columns of numbers are float32, nan where there is none.
    """
    base = _base(base)
    is_frame = _is_frame(frame)
    names = list(frame.columns) if is_frame else list(frame)
    keep = {keep} if isinstance(keep, str) else set(keep)
    known_results = {name for name, _, _ in _engine.result_columns()} | set(_LIGHTEST)
    inputs, replaced, seen = [], [], set()
    for name in names:
        heading = _heading(name)
        if heading.lower() in _NAMES or name in keep:
            continue
        found = _engine.input_of_heading(base, heading)
        if found is None and name in known_results:
            replaced.append(name)
            continue
        if found is None:
            _engine.raise_unknown_column(heading)
        if found[0] in seen:
            raise ValueError(f"column {heading} stands twice")
        seen.add(found[0])
        inputs.append((found[0], _values(frame[name], found[1]), 1))
    lengths = {len(v[0]) if isinstance(v, tuple) else len(v) for _, v, _ in inputs}
    if not is_frame:
        lengths |= {len(frame[name]) for name in names}
    if len(lengths) > 1:
        raise ValueError("the columns are of different lengths")
    rows = len(frame) if is_frame else (lengths.pop() if lengths else 0)
    wanted = _result_names(columns, set(names) - set(replaced))
    made = _engine.design_rows(base, inputs, rows, wanted, optimise, jobs, 0)
    if is_frame:
        return frame.drop(columns=replaced).assign(**made)
    return {name: frame[name] for name in names if name not in replaced} | made


def _as_frame(columns, frame):
    """A DataFrame where pandas is there, unless the caller says which."""
    if frame is None:
        import importlib.util

        frame = importlib.util.find_spec("pandas") is not None
    if not frame:
        return columns
    import pandas

    return pandas.DataFrame(columns)


def vary(design, values=None, columns=None, jobs=0, frame=None, **fields):
    """Designs the grid of all values: vary(d, L=range(2, 13), q1=[5, 10]).

    values: fields whose names are no words of Python, {"My_end[1]": [10, 20]}; they vary slowest.
    section takes names or a series, section="family:HEA"; loads is a factor on all loads.
    columns, jobs: as in table. frame: a DataFrame (the default where pandas is there) or a dict
    of arrays. The last field varies fastest.
    """
    design = _base(design)
    axes = []
    for name, given in {**(values or {}), **fields}.items():
        found = _engine.input_of_heading(design, name)
        if found is None:
            _engine.raise_unknown_column(name)
        if isinstance(given, str) and given.startswith("family:"):
            given = catalogue(given[len("family:") :])
        if isinstance(given, str) or not hasattr(given, "__len__"):
            given = [given] if isinstance(given, (str, int, float)) else list(given)
        axis = given if hasattr(given, "dtype") else _numpy.asarray(given)
        axis = axis.astype(object) if axis.dtype.kind in "US" else axis
        if len(axis) == 0:
            raise ValueError(f"no values for {name}")
        axes.append((name, found, axis))
    if not axes:
        raise ValueError("no field is varied")
    rows = 1
    for _, _, axis in axes:
        rows *= len(axis)
    inputs, shown, every = [], {}, rows
    for name, found, axis in axes:
        every //= len(axis)
        inputs.append((found[0], _values(axis, found[1]), every))
        shown[name] = _numpy.tile(_numpy.repeat(axis, every), rows // (every * len(axis)))
    made = _engine.design_rows(design, inputs, rows, _result_names(columns, shown), False, jobs, 0)
    return _as_frame({**shown, **{n: c for n, c in made.items() if n not in shown}}, frame)


def sections(design, families=None, passing=False, sls=False, frame=None):
    """The member with every size of all catalogues, the lightest first.

    families: series by their words, "HEA" or ["HEA", "IPE"]; all without one.
    passing: those alone that pass; with sls the deflection has to hold too.
    """
    wanted = [families] if isinstance(families, str) else list(families or [])
    made = _engine.section_columns(_base(design), wanted)
    order = _numpy.argsort(made["kg_m"], kind="stable")
    if passing:
        good = made["standing"] == "passes"
        if sls:
            good &= made["sls"] != "fails"
        order = order[good[order]]
    return _as_frame({name: column[order] for name, column in made.items()}, frame)


# --- Questions ------------------------------------------------------------------------------------


def solve(design, field, between=None, sls=False):
    """How far a field can go while the member passes, to six digits; both sides are designed.

    field: L, loads (a factor), N, q1, ... between: (A, B), where is looked; within the field's
    limits up to ten times the present value without it. sls: the deflection has to hold too.
    """
    low, high = between if between is not None else (None, None)
    return _engine.solve(_base(design), field, low, high, sls)


def interaction(design, axes="N-My", directions=72):
    """The envelope of the section's interaction, an array of points: N-My, N-Mz or My-Mz.

    kN and kNm, compression positive; the other forces are those of the governing point. Empty
    where the section doesn't reach the limit.
    """
    return _engine.interaction(_base(design), axes, directions)


def catalogue(series=None):
    """The names of a series' sizes; without one the words of all series."""
    return _engine.series_words() if series is None else _engine.catalogue_names(series)


def fields():
    """All inputs of a table and a design: {name: (unit, accepted values)}."""
    return _engine.fields()


def results():
    """All results of a table: {name: (unit, meaning)}."""
    return {name: (unit, meaning) for name, unit, meaning in _engine.result_columns()}
