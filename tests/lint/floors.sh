#!/bin/sh
# Who may include whom. Usage: floors.sh SOURCES QTCORE
# SOURCES is src/, QTCORE the folder of Qt Core's headers. Prints each breach as file:line: what, and fails if any.
#
# A folder includes its own files and lower folders' only. Rules (whatever isn't in desktop/ and isn't named frm*) see
# no Qt header but Core's and no screen. A screen never includes another screen. Nothing includes itself in a circle.
set -eu
cd "$1"
qtcore=$2
[ -e "$qtcore/QString" ] || { echo "$qtcore isn't the folder of Qt Core's headers"; exit 2; }

found=$(mktemp)
trap 'rm -f "$found"' EXIT

includes() {
  find . -name '*.h' -o -name '*.cpp' | sed 's|^\./||' | sort |
    xargs grep -n '^[[:space:]]*#[[:space:]]*include' /dev/null || true
}

# file:line:folder-or-roof:kind-of-brackets:what
includes | sed -n 's|^\([^:]*\):\([0-9]*\):[^"<]*\(["<]\)\([^">]*\)[">].*|\1 \2 \3 \4|p' |
  awk -v qtcore="$qtcore" '
    BEGIN {
      split("runtime:0 desktop:1 shell:2 catalogue:3 telephony:3 setup:4 customers:5 printing:5 invoice:6 records:7",
            pairs, " ")
      for (i in pairs) { split(pairs[i], pair, ":"); floor[pair[1]] = pair[2] }
      roof = 8
    }
    function folder(path) { return path ~ /\// ? substr(path, 1, index(path, "/") - 1) : "" }
    function base(path) { sub(/.*\//, "", path); sub(/\.[^.]*$/, "", path); return path }
    function level(path,   name) { name = folder(path); return name == "" ? roof : (name in floor ? floor[name] : -1) }
    function exists(path,   line, there) { there = (getline line < path) >= 0; close(path); return there }
    function isScreenSide(path) { return folder(path) == "desktop" || base(path) ~ /^frm/ }
    function breach(what) { print $1 ":" $2 ": " what }
    {
      from = $1; bracket = $3; to = $4
      roofFile = folder(from) == ""
      if (level(from) < 0) breach("the folder has no floor")
      if (bracket == "<") {
        if (to ~ /^(Q|Qt)/ && !roofFile && !isScreenSide(from) && !exists(qtcore "/" to))
          breach("a rule includes <" to ">, which is no part of Qt Core")
        next
      }
      if (to ~ /^ui_/) {
        if (!isScreenSide(from)) breach("a rule includes " to)
        next
      }
      if (!exists(to)) { breach("\"" to "\" is no file of the sources, written from their root"); next }
      if (folder(to) != folder(from) && level(to) >= level(from)) breach("\"" to "\" isn\x27t on a lower floor")
      if (!roofFile && !isScreenSide(from) && isScreenSide(to)) breach("a rule includes the screen side, \"" to "\"")
      ui = to; sub(/\.h$/, ".ui", ui)
      if (!roofFile && base(to) ~ /^frm/ && exists(ui) && index(base(from), base(to)) != 1)
        breach("a screen includes another screen, \"" to "\"")
    }' >"$found"

# Circles: tsort names the members of each.
includes | sed -n 's|^\([^:]*\):[0-9]*:[^"<]*"\([^"]*\)".*|\1 \2|p' | grep -v ' ui_' | sort -u |
  tsort 2>&1 >/dev/null | sed 's|^tsort: ||; s|^-: ||' >>"$found" || true

cat "$found"
[ ! -s "$found" ]
