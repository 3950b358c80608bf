#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""A map of the utilisation of a column under N and My, and the envelope of its section.

    utilisation_map.py [OUT.png]

10,201 designs; with a name of a picture it is drawn, for which matplotlib has to be there.
"""

import sys

import numpy as np

import korvane

column = korvane.Design(AnalysisMode=0, L=4.5)
column.update(section="HEB240", material="S355")

axial = np.linspace(0, 2400, 101)  # kN
moments = np.linspace(0, 320, 101)  # kNm, at the upper end

grid = korvane.vary(
    column, {"My_end[2]": moments}, Ne=axial, columns=["MaxIR", "governing"], frame=False
)
ratio = grid["MaxIR"].reshape(len(moments), len(axial))
passing = np.nan_to_num(ratio, nan=np.inf) <= 1
print(f"{column.section}, L = {column['L']} m: {passing.mean():.0%} of {ratio.size} designs pass")
for i in range(0, len(axial), 20):
    most = moments[passing[:, i]].max() if passing[:, i].any() else 0
    print(f"N = {axial[i]:6.0f} kN: My up to {most:5.1f} kNm")
for check in sorted(set(grid["governing"]) - {""}):
    print(f"{(grid['governing'] == check).mean():6.1%} governed by {check}")

if len(sys.argv) > 1:
    import matplotlib

    matplotlib.use("Agg")
    from matplotlib import pyplot

    figure, axes = pyplot.subplots(figsize=(7, 5))
    filled = axes.contourf(axial, moments, ratio, levels=np.arange(0, 2.01, 0.1), extend="max")
    axes.contour(axial, moments, ratio, levels=[1], colors="black")
    envelope = korvane.interaction(column, "N-My")
    axes.plot(*envelope.T, "w--", label="the section alone")
    axes.set(xlabel="N [kN]", ylabel="My [kNm]", xlim=(0, 2400), ylim=(0, 320))
    axes.legend()
    figure.colorbar(filled, label="IR")
    figure.savefig(sys.argv[1], dpi=120)
