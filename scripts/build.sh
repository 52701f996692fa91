#!/bin/sh
# build.sh [PRESET [BUILD ARGUMENTS]]: configures and builds one preset (default: release); prints what the compiler says
# only when it fails. In all but the release a warning is an error.
set -eu
root=$(cd "$(dirname "$0")/.." && pwd)
preset=${1:-release}
shift || true
cd "$root"
mkdir -p build
log=build/$preset.log
strict=OFF
[ "$preset" = release ] || strict=ON
echo "Building Karvex Invoicer ($preset) ..."
if ! { cmake --preset "$preset" -DKARVEX_WERROR=$strict && cmake --build --preset "$preset" "$@"; } >"$log" 2>&1; then
  tail -n 60 "$log" >&2
  echo "The build failed; all of its output is in $log" >&2
  exit 1
fi
