#!/bin/sh
# install.sh FROM FOLDER: puts the built program into FOLDER, a business's own folder: the program file, the manual and
# the suppliers' pages are replaced; the state list, which its owner may have changed, is put there only where it is
# missing. Nothing else of FROM goes along: a program that was started there has left its data in it.
set -eu
from=$1
folder=$2
mkdir -p "$folder"
[ ! "$from" -ef "$folder" ] || exit 0
cp --remove-destination "$from/KarvexInvoicer.bin" "$folder/"
for pages in manual suppliers; do
  cp -R --remove-destination "$from/$pages" "$folder/"
done
[ -e "$folder/StatesList.txt" ] || cp "$from/StatesList.txt" "$folder/"
