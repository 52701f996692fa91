#!/bin/sh
# What no source may hold. Usage: sources.sh PROJECT
# Prints each breach as file:line: what, and fails if any.
#
# Each rule stands where it is kept, with its reason.
set -eu
cd "$1"
found=$(mktemp)
trap 'rm -f "$found"' EXIT

sources() { find src tests benchmarks -name '*.h' -o -name '*.cpp' | sort; }

everything() {
  find . \( -name build -o -name .git -o -name .cache \) -prune -o -type f \
    \( -name '*.h' -o -name '*.cpp' -o -name '*.ui' -o -name '*.md' -o -name '*.html' -o -name '*.txt' -o \
    -name '*.cmake' -o -name '*.sh' -o -name '*.json' -o -name run -o -name test -o -name bench -o -name torture -o -name fuzz -o \
    -name demonstrate \) -print | sed 's|^\./||' | sort
}

# forbid PATTERN WHAT, on the files named by the input.
forbid() {
  tr '\n' '\0' | xargs -0 grep -nE "$1" /dev/null | sed "s|^\([^:]*:[0-9]*\):.*|\1: $2|" >>"$found" || true
}

# A connection by strings is checked when it is made, and then only by a line in the log: a renamed slot is never run.
sources | forbid '\<(SIGNAL|SLOT)[[:space:]]*\(' 'a connection by strings'

# One reader and one writer: what opens a file elsewhere has no whole-or-nothing write, no error number for the user, and
# no failing disk in its tests. A picture that is given a path opens that file too; one made of the bytes
# that the reader brought doesn't. Tests and measurements open what they like: they look from outside.
reads_outside() { find src -name '*.h' -o -name '*.cpp' | grep -v '^src/runtime/' | sort; }
reads_outside |
  forbid '\<(QFile|QSaveFile|QTemporaryFile|QSettings|QDataStream)\>|\<(i|o)?fstream\>|\<f(re)?open\>|[^A-Za-z0-9_]::(open|rename|unlink|mkdir)[[:space:]]*\(|std::rename|std::filesystem|QDir\(.*\)\.(mk|rm|remove|rename)' \
    'files are the business of runtime/'
reads_outside | forbid '\<Q(ImageReader|ImageWriter|Movie|Picture)\>|(\.|->)load[[:space:]]*\(' \
  'files are the business of runtime/: a picture is made of bytes'

# The sources speak for themselves, not of a paper beside them that the reader doesn't have.
everything | forbid '\<Par[t] [1-8]\.[1-9]|\<[Ss]pecificatio[n]|\<[Tt]he spe[c]\>' 'a word that does not belong here'

# A connection of three arguments, or a single shot of two, has no context: it outlives whom it works on. A picture made
# of one argument is made of a path.
sources | while read -r file; do
  awk -v file="$file" '
    { text = text $0 "\n" }
    function lineOf(at,   before) { before = substr(text, 1, at); return gsub(/\n/, "", before) + 1 }
    # How many arguments the call has whose bracket stands at "at".
    function arguments(at,   depth, count, c, quoted) {
      depth = 0; count = 1; quoted = 0
      for (; at <= length(text); ++at) {
        c = substr(text, at, 1)
        if (quoted) { if (c == "\\") ++at; else if (c == "\"") quoted = 0; continue }
        if (c == "\"") quoted = 1
        else if (index("([{", c)) ++depth
        else if (index(")]}", c)) { if (--depth == 0) return count }
        else if (c == "," && depth == 1) ++count
      }
      return count
    }
    function look(name, fewest,   from, at, before) {
      from = 1
      while ((at = index(substr(text, from), name "(")) > 0) {
        at += from - 1
        before = at > 1 ? substr(text, at - 1, 1) : " "
        if (before !~ /[A-Za-z0-9_]/ && arguments(at + length(name)) < fewest)
          print file ":" lineOf(at) ": a connection without a context"
        from = at + length(name)
      }
    }
    function lookForPictures(   from, at) {
      from = 1
      while (match(substr(text, from), /[^A-Za-z0-9_]Q(Image|Pixmap)( +[a-z_][A-Za-z0-9_]*)?[({][^)}]/)) {
        at = from + RSTART + RLENGTH - 3
        if (arguments(at) == 1)
          print file ":" lineOf(at) ": files are the business of runtime/: a picture is made of bytes"
        from = at
      }
    }
    END {
      look("connect", 4); look("singleShot", 3)
      if (file ~ /^src\// && file !~ /^src\/runtime\//) lookForPictures()
    }' "$file"
done >>"$found"

# What is longer can't be taken in at once: it does more than one thing, and is mended without being understood.
sources | while read -r file; do
  awk -v file="$file" '
    # As the formatter leaves it, a function begins at the margin, or within a class, and ends at the same column.
    /^[A-Za-z~]/ { outer = /^(namespace|class|struct|enum|union)[ {]/ ? 0 : NR }
    /^  [A-Za-z~]/ { inner = NR }
    /^}/ { if (outer && NR - outer >= 80) print file ":" outer ": a function of more than 80 lines"; outer = 0 }
    /^  }$/ { if (inner && NR - inner >= 80) print file ":" inner ": a function of more than 80 lines"; inner = 0 }
    END { if (NR > 600 && file ~ /^src/) print file ":" NR ": a source of more than 600 lines" }' "$file"
done >>"$found"

cat "$found"
[ ! -s "$found" ]
