# SPDX-License-Identifier: GPL-3.0-or-later
"""The groups of a result as objects: values by attribute and by name."""

import json
from collections.abc import Mapping

import numpy


def _number(value):
    """A number of single precision with the decimals that stand for it: 8.37, not 8.3699998."""
    if isinstance(value, float):
        single = numpy.float32(value)
        return float(str(single)) if float(single) == value else value
    if isinstance(value, list):
        return numpy.array(value, dtype=float)
    return value


class Group(Mapping):
    """Values by name, group["Wply"] or group.Wply; lists are arrays."""

    def __init__(self, values):
        self._values = values

    def __getitem__(self, name):
        return self._values[name]

    def __getattr__(self, name):
        try:
            return self.__dict__["_values"][name]
        except KeyError:
            raise AttributeError(f"no value {name}") from None

    def __dir__(self):
        return [*super().__dir__(), *self._values]

    def __iter__(self):
        return iter(self._values)

    def __len__(self):
        return len(self._values)

    def __repr__(self):
        shown = (f"{n}={v!r}" for n, v in self._values.items() if not isinstance(v, numpy.ndarray))
        return f"<{', '.join(shown)}>"


def group(result, name):
    """A group of the result's JSON, with the section's name in its own."""
    values = {n: _number(v) for n, v in json.loads(result.to_json())[name].items()}
    if name == "section":
        values = {"name": result._name(), **values}
    return Group(values)
