#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""A table of members designed by the workers of a Dask cluster, part by part.

    dask_table.py MEMBERS.csv RESULTS.csv [SCHEDULER]

Without the address of a scheduler two worker processes are started on this machine.
"""

import sys

import dask.dataframe
import distributed

import korvane


def design(members, base):
    """A Dask frame of results; each part is designed where it is, in one thread."""
    shape = korvane.table(members._meta, base)
    return members.map_partitions(korvane.table, base=base, jobs=1, meta=shape)


if __name__ == "__main__":
    address = sys.argv[3] if len(sys.argv) > 3 else None
    cluster = address or distributed.LocalCluster(
        n_workers=2, threads_per_worker=1, host="127.0.0.1", dashboard_address=None
    )
    with distributed.Client(cluster):
        members = dask.dataframe.read_csv(sys.argv[1], blocksize="8MB")
        results = design(members, korvane.Design())
        results.to_csv(sys.argv[2], single_file=True, index=False)
        print(results["standing"].value_counts().compute().to_string())
