#!/bin/sh
# sanitize.sh [FOLDER...]: all tests, or those of some folders of tests/, under address and undefined-behaviour sanitizers:
# a read or write outside, a use after the end, an overflow and a leak of the program's own fail the test. It takes some ten
# times as long as ./test.
set -eu
root=$(cd "$(dirname "$0")/.." && pwd)
"$root/scripts/setup.sh" run test
"$root/scripts/build.sh" asan
cd "$root"
folders=$(IFS='|' && echo "$*")
exec ctest --preset asan --no-tests=error -j "$(nproc)" ${folders:+-R "^($folders)[.]"}
