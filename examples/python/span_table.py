#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""A span table of all IPE: how far each reaches under a line load, and what stops it.

    span_table.py [OUT.csv]

A beam between two pins, S355, its compressed flange held at four points, no axial force; the load
is that of a floor, its deflection within L/300.
"""

import sys

import korvane

LOADS = [5, 10, 15, 20, 30]  # kN/m

beam = korvane.Design(NP=0, LtbSegments=4, SelfWeight=1, DeflectionLimit=300)
beam.material = "S355"

lines = [["section", *(f"{q} kN/m" for q in LOADS)]]
for name in korvane.catalogue("IPE"):
    beam.section = name
    spans = []
    for q in LOADS:
        beam["q1"] = q
        answer = korvane.solve(beam, "L", between=(0.5, 30), sls=True)
        first = answer.intervals[0] if answer.intervals else None
        stops = "D" if first and first.above and first.above.failing.check == "deflection" else ""
        spans.append(f"{first.high:.2f}{stops}" if first else "-")
    lines.append([name, *spans])

for line in lines:
    print(line[0].ljust(8), *(cell.rjust(8) for cell in line[1:]))
print("spans in m; D: the deflection stops it")
if len(sys.argv) > 1:
    with open(sys.argv[1], "w") as out:
        out.writelines(",".join(line) + "\n" for line in lines)
