#!/bin/sh
# Installs the Debian packages that are missing; quiet and quick when none is.
set -eu
here=$(cd "$(dirname "$0")" && pwd)
missing=
for package in $(grep -v '^#' "$here/packages"); do
  state=$(dpkg-query -W -f '${Status}' "$package" 2>/dev/null || true)
  [ "$state" = "install ok installed" ] || missing="$missing $package"
done
[ -n "$missing" ] || exit 0
echo "Installing Debian packages:$missing"
as_root=
if [ "$(id -u)" -ne 0 ]; then
  command -v sudo >/dev/null 2>&1 || { echo "Please run as root: apt-get install$missing" >&2; exit 1; }
  as_root=sudo
fi
log=$(mktemp)
export DEBIAN_FRONTEND=noninteractive
# shellcheck disable=SC2086
if ! { $as_root apt-get update && $as_root apt-get install -y --no-install-recommends $missing; } >"$log" 2>&1; then
  cat "$log" >&2
  echo "The packages could not be installed." >&2
  exit 1
fi
rm -f "$log"
