# SPDX-License-Identifier: GPL-3.0-or-later
"""The examples and what the documents show, run as they stand."""

import html
import os
import re
import subprocess
import sys

import pandas
import pytest

import korvane


def run(source, *words, folder=None):
    env = {**os.environ, "PYTHONDONTWRITEBYTECODE": "1", "COLUMNS": "120"}
    done = subprocess.run(
        [sys.executable, *map(str, words)], cwd=folder or source, env=env, capture_output=True, text=True
    )
    assert done.returncode == 0, done.stderr
    return done.stdout


def test_span_table(source, tmp_path):
    out = run(source, source / "examples/python/span_table.py", tmp_path / "spans.csv")
    spans = pandas.read_csv(tmp_path / "spans.csv", index_col="section")
    assert list(spans.index) == korvane.catalogue("IPE") and "IPE600" in out
    # L/300 under a uniform load q + g: L^3 = 384 E I / (5 * 300 * q).
    beam = korvane.Design()
    beam.section = "IPE300"
    section = beam.calculate().section
    load = 10 + section.S * 9.80665 / 1000
    length = (384 * 210000 * section.Iy / (5 * 300 * load)) ** (1 / 3) / 1000
    assert float(spans.loc["IPE300", "10 kN/m"].removesuffix("D")) == pytest.approx(length, abs=0.02)


def test_utilisation_map(source, tmp_path):
    pytest.importorskip("matplotlib")
    out = run(source, source / "examples/python/utilisation_map.py", tmp_path / "map.png")
    assert (tmp_path / "map.png").read_bytes().startswith(b"\x89PNG")
    most = [float(m) for m in re.findall(r"My up to +([\d.]+) kNm", out)]
    assert len(most) == 6 and most == sorted(most, reverse=True) and most[0] > most[-1] == 0
    # The last moment that passes, designed alone, and the next one.
    force = float(re.findall(r"N = +(\d+) kN", out)[2])
    column = korvane.Design(AnalysisMode=0, L=4.5, Ne=force)
    column.update({"section": "HEB240", "material": "S355", "My_end[2]": most[2]})
    assert column.calculate().passes
    column["My_end[2]"] = most[2] + 3.2
    assert not column.calculate().passes


def test_frame_members(source, tmp_path):
    out = run(source, source / "examples/python/frame_members.py", source / "examples/frame-members.csv", tmp_path / "r.csv")
    results = pandas.read_csv(tmp_path / "r.csv").set_index("mark")
    assert len(results) == 8 and (results["standing"] == "fails").sum() == 2
    assert results.loc["B2", "MaxIR"] == pytest.approx(1.048965)
    assert "B2: <Design IPE300 L=6 m: fails 1.05" in out and "G1: <Design I 600x300x12x20" in out


def blocks_of(text):
    """Python and what it prints, of the README."""
    return re.findall(r"```python\n(.*?)```\n\n```\n(.*?)```", text, re.S)


def test_the_lines_of_the_readme_work_as_they_stand(source, tmp_path):
    found = blocks_of((source / "README.md").read_text())
    assert len(found) == 1
    code, prints = found[0]
    assert len(code.strip().splitlines()) == 6
    (tmp_path / "lines.py").write_text(code)
    assert run(source, tmp_path / "lines.py").split() == prints.split()


def test_the_pages_of_the_help_print_what_they_show(source, tmp_path):
    blocks = 0
    for page in ("python.html", "clusters.html"):
        text = (source / "docs/help" / page).read_text()
        for code, prints in re.findall(r'<pre class="python">\n(.*?)</pre>\s*<pre>\n(.*?)</pre>', text, re.S):
            (tmp_path / "lines.py").write_text(html.unescape(code))
            assert run(source, tmp_path / "lines.py", folder=source / "examples").split() == html.unescape(prints).split()
            blocks += 1
    assert blocks == 4
