#!/bin/sh
# Runs the demonstration in a folder that is gone afterwards.
folder=$(mktemp -d)
"$1" "$folder"
result=$?
rm -rf "$folder"
exit $result
