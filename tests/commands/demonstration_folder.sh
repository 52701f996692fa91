#!/bin/sh
# ./demonstrate deletes what a demonstration left, and nothing else. Usage: demonstration_folder.sh SCRIPTS
set -eu
scripts=$1
tree=$(mktemp -d)
trap 'rm -rf "$tree"' EXIT
failed=0

"$scripts/clear-demonstration.sh" "$tree/new" || { echo "a folder that isn't there is refused"; failed=1; }
for part in business pages pictures; do
  mkdir -p "$tree/new/$part"
  echo left >"$tree/new/$part/file"
done
echo mine >"$tree/new/mine"
"$scripts/clear-demonstration.sh" "$tree/new" || { echo "an earlier demonstration is refused"; failed=1; }
for part in business pages pictures; do
  [ ! -e "$tree/new/$part" ] || { echo "an earlier demonstration's $part stay"; failed=1; }
done
[ -e "$tree/new/mine" ] || { echo "a file of another name went"; failed=1; }

for part in business pages pictures; do
  mkdir -p "$tree/own_$part/$part"
  echo mine >"$tree/own_$part/$part/file"
  if said=$("$scripts/clear-demonstration.sh" "$tree/own_$part" 2>&1); then
    echo "somebody's $part aren't refused"
    failed=1
  fi
  [ -e "$tree/own_$part/$part/file" ] || { echo "somebody's $part went"; failed=1; }
  [ ! -e "$tree/own_$part/.karvex-demonstration" ] || { echo "a refused folder is marked"; failed=1; }
  case $said in
    *"own_$part/$part is there already"*) ;;
    *) echo "the refusal doesn't name $part: $said"; failed=1 ;;
  esac
done
exit "$failed"
