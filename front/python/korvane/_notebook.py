# SPDX-License-Identifier: GPL-3.0-or-later
"""How designs and results look in a notebook."""

from html import escape


class Svg(str):
    """A drawing as SVG, which a notebook shows."""

    def _repr_svg_(self):
        return str(self)


def result_html(result):
    """The headline, the checks with their numbers, the remarks."""
    rows = "".join(
        f"<tr><td>{escape(c.label)}</td><td>{escape(c.formula + c.numbers)}</td>"
        f"<td><b>{escape(c.value)}</b>{escape(c.limit)}</td></tr>"
        for c in result.checks.values()
    )
    notes = "".join(
        f"<li>{escape(n.severity)}: {escape(n.text)}</li>" for n in result.verdict.notes
    )
    headline = escape(f"{result._name()}, L = {result.design['L']:g} m: {result._words()}")
    return (
        f"<p><b>{headline}</b></p><table>{rows}</table>" + (f"<ul>{notes}</ul>" if notes else "")
    )


def design_html(design):
    """What was designed, and its result."""
    section = str(design._outcome()._svg("section"))
    return f"{section[section.index('<svg'):]}{result_html(design._outcome())}"
