#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# installed_test.sh CMAKE BUILD SOURCE: installs into an empty folder and runs both programs from
# there with an empty environment: they find their data and the painter, and open no file of the
# build or source tree.
set -eu
cmake=$1 build=$2 source=$3
root=$(mktemp -d)
trap 'rm -rf "$root"' EXIT
"$cmake" --install "$build" --prefix "$root/usr" >/dev/null
share=$root/usr/share/korvane
cd "$root"
clean=(env -i PATH=/usr/bin:/bin HOME="$root" TMPDIR="$root" LC_ALL=C.UTF-8)
watch=(strace -f -qq -s 400 -e trace=openat,open,execve -o "$root/trace")

fail() { echo "$*" >&2; exit 1; }

"${clean[@]}" "${watch[@]}" usr/bin/korvane-cli report "$share/examples/column-hea200.kvn" \
  --kind both -o report.pdf || [ $? -eq 1 ] || fail "no report"
[ "$(head -c 4 report.pdf)" = %PDF ] || fail "the report is no PDF"
grep -q "$root/usr/.*korvane_paint.so" trace || fail "the painter is not the installed one"
grep -q "$share/hea.dat" trace || fail "the data are not the installed ones"
! grep -e "\"$build" -e "\"$source" trace || fail "korvane-cli opened the files above"
"${clean[@]}" usr/bin/korvane --version | grep -q '^Korvane_ns [0-9]' ||
  fail "no version without a display"
"${clean[@]}" usr/bin/korvane --help | grep -qF '[FILE.kvn]' || fail "no help without a display"
"${clean[@]}" "${watch[@]}" bash "$source/tests/desktop/start_test.sh" "$root/usr/bin/korvane" \
  "$share/examples/column-hea200.kvn" || fail "the window did not come up"
grep -q "$share/hea.dat" trace || fail "the data are not the installed ones"
! grep -e "\"$build" -e "\"$source" trace | grep -v start_test.sh ||
  fail "korvane opened the files above"

# The help book is there whole, and each of its links leads to a file that is there.
diff -r "$source/docs/help" "$share/help" >&2 || fail "the installed help book is another one"
links=0
while IFS=: read -r page link; do
  link=${link#*\"}
  [ -z "$link" ] || [ -f "$share/help/$link" ] || fail "$page leads to $link, which is not there"
  links=$((links + 1))
done < <(cd "$share/help" && grep -oE '(href|src)="[^"#:]*' ./*.html)
[ "$links" -gt 200 ] || fail "only $links links in the installed help book"
