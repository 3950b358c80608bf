# SPDX-License-Identifier: GPL-3.0-or-later
# Installs what a build needs from Debian's packages, by name and only what is missing.
# Sourced by the other scripts.

need() {
  local missing=() package
  for package in "$@"; do
    if [ "$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null)" != installed ]; then
      missing+=("$package")
    fi
  done
  [ ${#missing[@]} -eq 0 ] && return 0
  echo "Installing: ${missing[*]}"
  local sudo=
  if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || fail "packages are missing and only root can install them: apt-get install ${missing[*]}"
    sudo=sudo
  fi
  local log
  log=$(mktemp)
  if ! { $sudo apt-get update && DEBIAN_FRONTEND=noninteractive \
         $sudo apt-get install -y --no-install-recommends "${missing[@]}"; } >"$log" 2>&1; then
    tail -n 20 "$log" >&2
    rm -f "$log"
    fail "the packages could not be installed; look at the lines above, mend it and run again"
  fi
  rm -f "$log"
}

fail() {
  echo "$0: $*" >&2
  exit 1
}

# Where Debian's Qt tells CMake of its programs, which run while Qt for another system is built.
qt_host_cmake() {
  dpkg-query -L qt6-base-dev | sed -n 's|/Qt6/Qt6Config.cmake$||p'
}

BUILD_PACKAGES="g++ cmake ninja-build libcli11-dev nlohmann-json3-dev"
DESKTOP_PACKAGES="qt6-base-dev qt6-base-dev-tools qt6-svg-dev libgl-dev fonts-liberation"
PYTHON_PACKAGES="pybind11-dev python3-dev python3-numpy python3-setuptools python3-wheel"
TEST_PACKAGES="libgtest-dev libbenchmark-dev poppler-utils xvfb xdotool strace fonts-dejavu-core python3-pip python3-pytest python3-pandas \
python3-matplotlib python3-dask python3-distributed"
DISPLAY_PACKAGES="xvfb openbox"
BOOK_PACKAGES="chromium fonts-lmodern poppler-utils python3"
WINDOWS_PACKAGES="g++-mingw-w64-x86-64-posix nsis zip"
WINE_PACKAGES="wine64"
