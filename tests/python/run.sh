#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# run.sh PYTHON WHEELS SITE [PYTEST ARGUMENT...]: installs the wheel into a folder of its own and
# runs the tests of the module with that one alone.
set -euo pipefail
python=$1 wheels=$2 site=$3
shift 3
rm -rf "$site"
"$python" -m pip install --quiet --disable-pip-version-check --root-user-action=ignore --no-index \
  --no-deps --no-compile --target "$site" "$wheels"/korvane-*.whl
cd "$(dirname "$0")"
PYTHONPATH=$site PYTHONDONTWRITEBYTECODE=1 exec "$python" -m pytest -q -p no:cacheprovider "$@"
