# SPDX-License-Identifier: GPL-3.0-or-later
"""Three designs of each family, worked out elsewhere by two independent programs."""

import json
import pathlib
import re

import pytest

import korvane

FOLDER = pathlib.Path(__file__).resolve().parents[1] / "reference"
EXPECTED = json.loads((FOLDER / "results.json").read_text())
STATIONS = [0, 7, 12, 25, 38, 50]  # those kept of 51


def near(name, a, b):
    """Both work in single precision, in an order of their own."""
    big = max(abs(a), abs(b))
    least = 0.11 if name == "ezpl" else 1e-4 if "Station" in name else 1e-6
    ratio = name.startswith("IR") or name == "MaxIR"
    share = 1e-2 if ratio and big > 50 else 2e-5
    return abs(a - b) <= max(share * big, least)


def parts(text):
    """Words and numbers of a line; the position of equal ratios may be either."""
    text = re.sub(r"\(\d\.\d\dL;", "(xL;", text)
    number = r"-?\d+\.?\d*"
    return re.split(number, text), [float(n) for n in re.findall(number, text)]


def compare(name, expected, got):
    if isinstance(expected, dict):
        for part, value in expected.items():
            compare(f"{name}.{part}", value, got[part])
    elif isinstance(expected, list):
        for station, value in zip(STATIONS, expected):
            compare(name, value, got[station])
    elif isinstance(expected, str):
        (words, numbers), (own_words, own_numbers) = parts(expected), parts(str(got))
        assert words == own_words, name
        for a, b in zip(numbers, own_numbers):
            assert abs(a - b) <= 0.11 + 2e-4 * abs(a), name
    else:
        value = float("0" + got) if isinstance(got, str) else got
        assert near(name, expected, value), (name, expected, value)


def test_there_are_three_of_each_family():
    assert len(EXPECTED) == 96


@pytest.mark.parametrize("name", EXPECTED)
def test_agrees_with_the_independent_results(name):
    design = korvane.Design(FOLDER / "designs" / f"{name}.kvn")
    expected = EXPECTED[name]
    if expected is None:
        with pytest.raises(korvane.ArithmeticFault) as fault:
            design.calculate()
        assert fault.value.step and fault.value.input == design
        return
    result = design.calculate()
    got = result.to_dict()
    for group, values in expected.items():
        for key, value in values.items():
            compare(key, value, got[group][key])
    # The ratio alone, read from numbers without lines, is that of the whole.
    assert result.max_ir == pytest.approx(got["checks"]["MaxIR"], rel=1e-6)
