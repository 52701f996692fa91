#!/bin/sh
# What ./run puts into a business's folder. Usage: install.sh SCRIPTS
set -eu
scripts=$1
tree=$(mktemp -d)
trap 'rm -rf "$tree"' EXIT
failed=0

holds() { # holds FILE CONTENT WHAT
  [ "$(cat "$tree/$1" 2>/dev/null)" = "$2" ] || { echo "$3: $1 doesn't hold \"$2\""; failed=1; }
}

# A built program that somebody started where it was built: it left a business's files there.
mkdir -p "$tree/built/manual" "$tree/built/suppliers" "$tree/built/KVActiveAccounts"
echo program >"$tree/built/KarvexInvoicer.bin"
echo page >"$tree/built/manual/index.html"
echo order >"$tree/built/suppliers/order.html"
echo supplied >"$tree/built/StatesList.txt"
echo stray >"$tree/built/CustomerData.txt"
echo stray >"$tree/built/KVActiveAccounts/1.txt"

"$scripts/install.sh" "$tree/built" "$tree/new"
holds new/KarvexInvoicer.bin program 'a new folder'
holds new/manual/index.html page 'a new folder'
holds new/suppliers/order.html order 'a new folder'
holds new/StatesList.txt supplied 'a new folder'
[ ! -e "$tree/new/CustomerData.txt" ] || { echo "stray data went along"; failed=1; }
[ ! -e "$tree/new/KVActiveAccounts" ] || { echo "a stray data folder went along"; failed=1; }

mkdir -p "$tree/used/manual"
echo older >"$tree/used/KarvexInvoicer.bin"
echo older >"$tree/used/manual/index.html"
echo mine >"$tree/used/StatesList.txt"
echo mine >"$tree/used/CustomerData.txt"
"$scripts/install.sh" "$tree/built" "$tree/used"
holds used/KarvexInvoicer.bin program 'a folder in use'
holds used/manual/index.html page 'a folder in use'
holds used/StatesList.txt mine 'a folder in use'
holds used/CustomerData.txt mine 'a folder in use'

# The build's own folder is installed already.
"$scripts/install.sh" "$tree/built" "$tree/built/../built" || { echo "the build's own folder fails"; failed=1; }
holds built/KarvexInvoicer.bin program "the build's own folder"
exit "$failed"
