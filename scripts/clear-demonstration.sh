#!/bin/sh
# clear-demonstration.sh FOLDER: makes FOLDER ready for a demonstration. What an earlier one left there goes; a business,
# pages or pictures that no demonstration left there are somebody's own, and stay: then it refuses.
set -eu
folder=$1
marker=$folder/.karvex-demonstration
if [ ! -e "$marker" ]; then
  for part in business pages pictures; do
    [ -e "$folder/$part" ] || continue
    echo "$folder/$part is there already, and no demonstration left it: it stays as it is." >&2
    echo "Please give another folder: ./demonstrate FOLDER" >&2
    exit 1
  done
fi
mkdir -p "$folder"
: >"$marker"
rm -rf "$folder/business" "$folder/pages" "$folder/pictures"
