#!/bin/sh
# ./bench measures nothing when it is asked for a part that there isn't. Usage: bench_parts.sh BENCH
set -eu
bench=$1
failed=0

QT_QPA_PLATFORM=offscreen
export QT_QPA_PLATFORM
for words in 'nosuch' 'ports nosuch' 'nosuch ports'; do
  # shellcheck disable=SC2086
  if said=$("$bench" $words 2>&1); then
    echo "$words: it doesn't fail"
    failed=1
  fi
  case $said in
    *'no part "nosuch"'*' start, ports, folders, customers, search, commit, sales, page, completed.'*) ;;
    *) echo "$words: it says: $said"; failed=1 ;;
  esac
  case $said in
    *Filling*) echo "$words: it measures"; failed=1 ;;
  esac
done
exit "$failed"
