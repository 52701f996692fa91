#!/bin/sh
# The lint gate finds what it must: each breach is put into a small tree of its own, and a clean tree passes.
# Usage: selftest.sh QTCORE, run from anywhere.
set -eu
here=$(cd "$(dirname "$0")" && pwd)
qtcore=$1
tree=$(mktemp -d)
trap 'rm -rf "$tree"' EXIT
failed=0

put() { # put FILE LINES...
  file=$tree/$1
  shift
  mkdir -p "$(dirname "$file")"
  printf '%s\n' "$@" >"$file"
}

clean() {
  rm -rf "$tree"
  mkdir -p "$tree/tests" "$tree/benchmarks"
  put src/runtime/Ground.h '#pragma once' '#include <QString>' '#include <vector>'
  put src/desktop/Window.h '#pragma once' '#include <QWidget>' '#include "runtime/Ground.h"'
  put src/shell/Rule.h '#pragma once' '#include "runtime/Ground.h"'
  put src/shell/Rule.cpp '#include "shell/Rule.h"' 'void Rule() {' '  // QString is all.' '}'
  put src/shell/frmOne.ui '<ui/>'
  put src/shell/frmOne.h '#pragma once' '#include "desktop/Window.h"'
  put src/shell/frmOneMore.cpp '#include "shell/frmOne.h"' '#include "ui_frmOne.h"' '#include <QDialog>' \
    'void More() {' '  connect(a, &A::b, this, [this](int x, int y) { Do(f(x), "a)"); });' '  disconnect(a);' '}'
  put src/invoice/Lines.h '#pragma once' '#include "shell/Rule.h"'
  put src/shell/frmOnePictures.cpp 'void Pictures() {' '  QPixmap drawn(8, 8);' '  const QPixmap none;' \
    '  Show(QImage::fromData(content));' '}'
  put benchmarks/Speed.cpp 'void Raw() {' '  QFile file(name);' '}'
  put src/Program.cpp '#include "invoice/Lines.h"' '#include "shell/frmOne.h"' '#include <QWidget>'
}

floors() { sh "$here/floors.sh" "$tree/src" "$qtcore"; }
sources() { sh "$here/sources.sh" "$tree"; }

passes() { # passes CHECK
  if ! said=$($1); then
    echo "a clean tree doesn't pass $1: $said"
    failed=1
  fi
}

refuses() { # refuses CHECK WHERE WHAT, then starts from a clean tree again
  if said=$($1); then
    echo "$1 doesn't see: $3"
    failed=1
  elif ! printf '%s\n' "$said" | grep -qF "$2" || ! printf '%s\n' "$said" | grep -qF "$3"; then
    echo "$1 says something else than \"$2: $3\": $said"
    failed=1
  fi
  clean
}

clean
passes floors
passes sources

put src/shell/Rule.h '#pragma once' '#include "invoice/Lines.h"'
refuses floors 'shell/Rule.h:2' "isn't on a lower floor"
put src/printing/Page.h '#pragma once' '#include "customers/File.h"'
put src/customers/File.h '#pragma once'
refuses floors 'printing/Page.h:2' "isn't on a lower floor"
put src/shell/Rule.cpp '#include "Program.h"'
put src/Program.h '#pragma once'
refuses floors 'shell/Rule.cpp:1' "isn't on a lower floor"
put src/cellar/Deep.h '#pragma once' '#include <vector>'
refuses floors 'cellar/Deep.h' 'the folder has no floor'
put src/shell/Rule.h '#pragma once' '#include <QWidget>'
refuses floors 'shell/Rule.h:2' 'no part of Qt Core'
put src/shell/Rule.h '#pragma once' '#include <QtGui/QColor>'
refuses floors 'shell/Rule.h:2' 'no part of Qt Core'
put src/shell/Rule.h '#pragma once' '#include "desktop/Window.h"'
refuses floors 'shell/Rule.h:2' 'the screen side'
put src/shell/Rule.h '#pragma once' '#include "shell/frmOne.h"'
refuses floors 'shell/Rule.h:2' 'the screen side'
put src/shell/Rule.cpp '#include "ui_frmOne.h"'
refuses floors 'shell/Rule.cpp:1' 'a rule includes ui_frmOne.h'
put src/invoice/frmTwo.cpp '#include "shell/frmOne.h"'
refuses floors 'invoice/frmTwo.cpp:1' 'another screen'
put src/shell/Rule.cpp '#include "Rule.h"'
refuses floors 'shell/Rule.cpp:1' 'no file of the sources'
put src/runtime/Ground.h '#pragma once' '#include "runtime/Other.h"'
put src/runtime/Other.h '#pragma once' '#include "runtime/Ground.h"'
refuses floors 'runtime/Other.h' 'loop'

put src/shell/frmOne.cpp 'connect(a, SIG''NAL(b()), this, SL''OT(c()));'
refuses sources 'src/shell/frmOne.cpp:1' 'by strings'
put src/shell/frmOne.cpp 'void F() {' '  QObject::connect(a, &A::b,' '                   [this](int x, int y) { Do(x, y); });' '}'
refuses sources 'src/shell/frmOne.cpp:2' 'without a context'
put src/shell/frmOne.cpp 'void F() {' '  QTimer::singleShot(0, [this] { Do(1, 2); });' '}'
refuses sources 'src/shell/frmOne.cpp:2' 'without a context'
put src/shell/Rule.cpp 'void F() {' '  QFile file(name);' '}'
refuses sources 'src/shell/Rule.cpp:2' 'the business of runtime'
put src/shell/Rule.cpp 'void F() {' '  auto* file = std::fopen(name, mode);' '}'
refuses sources 'src/shell/Rule.cpp:2' 'the business of runtime'
put src/shell/Rule.cpp '#include <fstream>'
refuses sources 'src/shell/Rule.cpp:1' 'the business of runtime'
put src/shell/Rule.cpp 'void F() {' '  QDir().mkpath(name);' '}'
refuses sources 'src/shell/Rule.cpp:2' 'the business of runtime'
put src/shell/Rule.cpp 'void F() {' '  ::rename(a, b);' '}'
refuses sources 'src/shell/Rule.cpp:2' 'the business of runtime'
for picture in 'QPixmap picture(name);' 'QImage picture{Path(a, b)};' 'Show(QPixmap(u"a.png"_s));' \
  'picture.load(name);' 'picture->load(name);' 'QImageReader reader(name);'; do
  put src/shell/frmOne.cpp 'void F() {' "  $picture" '}'
  refuses sources 'src/shell/frmOne.cpp:2' 'a picture is made of bytes'
done
put benchmarks/Speed.cpp 'void F() {' '  connect(a, &A::b, [this] { Do(); });' '}'
refuses sources 'benchmarks/Speed.cpp:2' 'without a context'
put docs/page.md 'As Par''t 3.1 tells.'
refuses sources 'docs/page.md:1' 'does not belong'
put src/shell/Rule.cpp '// As the spe''c tells.'
refuses sources 'src/shell/Rule.cpp:1' 'does not belong'
{
  echo 'void F() {'
  yes '  Step();' | head -79
  echo '}'
} >"$tree/src/shell/Rule.cpp"
refuses sources 'src/shell/Rule.cpp:1' 'more than 80 lines'
yes '// A line.' | head -601 >"$tree/src/shell/Rule.cpp"
refuses sources 'src/shell/Rule.cpp:601' 'more than 600 lines'

exit "$failed"
