#!/bin/sh
# fuzz-reader.sh RUNS READER [FUZZER ARGUMENTS]: feeds one reader RUNS made up files by the fuzzer that ./fuzz has built, and
# prints one line. What is interesting among them is kept in build/fuzz/inputs/READER, and the next run begins with it.
set -eu
root=$(cd "$(dirname "$0")/.." && pwd)
runs=$1
reader=$2
shift 2
corpus=$root/tests/fuzz/corpus/$reader
if [ ! -d "$corpus" ]; then
  echo "There is no reader $reader. There are: $(ls "$root/tests/fuzz/corpus" | xargs)" >&2
  exit 2
fi
cd "$root/build/fuzz"
mkdir -p "inputs/$reader"
# Twice the largest file written by hand, within reason: what is longer takes its time and tells nothing new. Large files
# are tried by the test.
longest=$(find "$corpus" -type f -printf '%s\n' | sort -n | tail -n 1)
longest=$((longest * 2))
[ "$longest" -ge 512 ] || longest=512
[ "$longest" -le 8192 ] || longest=8192
# Where memory came from isn't noted at each of the thousands of allocations a second: whoever looks into a finding runs
# the fuzzer on that one input, and sees it. Freed memory is kept from use for the length of several loads, and no longer:
# more would leave the processor's cache. Every input has the same turn: weighing them takes longer than most loads.
if ! ASAN_OPTIONS=malloc_context_size=0:quarantine_size_mb=1:thread_local_quarantine_size_kb=64 UBSAN_OPTIONS=print_stacktrace=1 KARVEX_FUZZ_READER=$reader \
  tests/karvex_fuzz -runs="$runs" -max_len="$longest" -timeout=20 -rss_limit_mb=4096 -entropic=0 -artifact_prefix="$reader-" \
  "$@" "inputs/$reader" "$corpus" >"$reader.log" 2>&1; then
  tail -n 40 "$reader.log" >&2
  echo "$reader: failed. All of the output is in build/fuzz/$reader.log; the input stands beside it, and is tried again by" >&2
  echo "  KARVEX_FUZZ_READER=$reader build/fuzz/tests/karvex_fuzz build/fuzz/$reader-..." >&2
  exit 1
fi
echo "$reader: $(sed -n 's/^Done \([0-9]*\) runs in \([0-9]*\) second.*/\1 runs in \2 s/p' "$reader.log")," \
  "$(sed -n 's/^#[0-9]*\tDONE *cov: \([0-9]*\) ft: \([0-9]*\).*/\1 edges, \2 features/p' "$reader.log")"
