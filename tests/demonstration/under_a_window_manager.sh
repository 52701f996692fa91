#!/bin/sh
# Runs the demonstration on an X display with a window manager, in a folder that is gone afterwards.
folder=$(mktemp -d)
export QT_QPA_PLATFORM=xcb
xvfb-run -a -s "-screen 0 1920x1080x24" sh -c '
  openbox --sm-disable >/dev/null 2>&1 &
  manager=$!
  "$1" "$2"
  result=$?
  kill $manager
  exit $result' sh "$1" "$folder"
result=$?
rm -rf "$folder"
exit $result
