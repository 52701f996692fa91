#!/bin/sh
# setup.sh LIST...: installs the Debian packages of the lists that are missing; quiet and quick when none is.
# The lists stand beside it: packages.run (building and running), and on top of that packages.test (testing) and
# packages.fuzz (fuzzing).
set -eu
here=$(cd "$(dirname "$0")" && pwd)
[ $# -gt 0 ] || { echo "Usage: setup.sh run [test] [fuzz]" >&2; exit 2; }
missing=
wanted=
for list in "$@"; do
  wanted="$wanted $(grep -v '^#' "$here/packages.$list")"
done
for package in $wanted; do
  state=$(dpkg-query -W -f '${Status}' "$package" 2>/dev/null || true)
  [ "$state" = "install ok installed" ] || missing="$missing $package"
done
[ -n "$missing" ] || exit 0
echo "Installing Debian packages:$missing"
as_root=env
if [ "$(id -u)" -ne 0 ]; then
  command -v sudo >/dev/null 2>&1 || { echo "Please run as root: apt-get install$missing" >&2; exit 1; }
  as_root='sudo env'
fi
log=$(mktemp)
trap 'rm -f "$log"' EXIT
# Handed over by env: sudo drops what is merely exported, and a package's question would wait for an answer unseen.
# shellcheck disable=SC2086
if ! {
  $as_root apt-get update &&
    $as_root DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends $missing
} >"$log" 2>&1; then
  cat "$log" >&2
  echo "The packages could not be installed." >&2
  exit 1
fi
