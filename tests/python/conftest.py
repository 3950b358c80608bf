# SPDX-License-Identifier: GPL-3.0-or-later
"""What the tests of the module share, and their counts for the sum of all tests."""

import os
import pathlib

import pytest

import korvane

SOURCE = pathlib.Path(__file__).resolve().parents[2]


def pytest_sessionfinish(session):
    """Leaves the counts as the other test programs do."""
    path = os.environ.get("KORVANE_TEST_REPORT")
    reporter = session.config.pluginmanager.get_plugin("terminalreporter")
    if not path or reporter is None:
        return
    count = {name: len(reporter.stats.get(name, ())) for name in ("passed", "failed", "error", "skipped")}
    os.makedirs(os.path.dirname(path), exist_ok=True)
    with open(path, "w") as report:
        report.write(
            f'<testsuites tests="{sum(count.values())}" failures="{count["failed"]}"'
            f' errors="{count["error"]}" disabled="0">\n'
        )
        report.write('<testcase result="skipped"/>\n' * count["skipped"])
        report.write("</testsuites>\n")


@pytest.fixture
def beam():
    """6 m between pins, S355, 12 kN/m and 20 kN."""
    design = korvane.Design(L=6, q1=12, NP=20)
    design.update(section="IPE330", material="S355")
    return design


@pytest.fixture(scope="session")
def source():
    return SOURCE


@pytest.fixture(scope="session")
def cli():
    program = os.environ.get("KORVANE_CLI")
    if not program:
        pytest.skip("no console program to compare with")
    return program
