#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""The members of a frame analysis: which fail, why, and the lightest size of each.

    frame_members.py [MEMBERS.csv [RESULTS.csv]]
"""

import pathlib
import sys

import pandas

import korvane

here = pathlib.Path(__file__).resolve().parent
members = sys.argv[1] if len(sys.argv) > 1 else here.parent / "frame-members.csv"
frame = pandas.read_csv(members, skiprows=[1])  # the second line holds units

result = korvane.table(frame, optimise=True)
shown = ["mark", "section", "MaxIR", "governing", "standing", "optimised_section"]
print(result[shown].to_string(index=False))

for _, row in result[result["standing"] == "fails"].iterrows():
    member = korvane.Design()
    inputs = row.index.intersection(korvane.fields().keys())
    member.update({name: row[name] for name in inputs if pandas.notna(row[name])})
    print(f"\n{row['mark']}: {member!r}")
    for note in member.calculate().verdict.notes:
        print(f"  {note.severity}: {note.text}")

print(f"\n{len(result)} members, {(result['weight'] * result['L']).sum():.0f} kg")
if len(sys.argv) > 2:
    result.to_csv(sys.argv[2], index=False)
