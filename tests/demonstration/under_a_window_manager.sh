#!/bin/sh
# Runs the demonstration on an X display with a window manager, in a folder that is gone afterwards.
folder=$(mktemp -d)
export QT_QPA_PLATFORM=xcb KARVEX_ON_DISPLAY=1
# openbox runs the command once it manages the display.
xvfb-run -a -s "-screen 0 1920x1080x24" sh -c '
  ready=$2/ready
  openbox --sm-disable --startup "touch $ready" >/dev/null 2>&1 &
  manager=$!
  tries=0
  while [ ! -e "$ready" ] && [ $tries -lt 300 ]; do sleep 0.1; tries=$((tries + 1)); done
  "$1" "$2"
  result=$?
  kill $manager
  exit $result' sh "$1" "$folder"
result=$?
rm -rf "$folder"
exit $result
