/// A started program on a tree.
#pragma once

#include "benchmarks/Measure.h"
#include "desktop/PaperPrinter.h"
#include "desktop/QtDialogs.h"
#include "desktop/SerialLine.h"
#include "Program.h"
#include "runtime/Clock.h"
#include "runtime/FileStore.h"

class Running {
 public:
  explicit Running(const QString& tree) : m_store(m_files), m_paper(m_store, m_dialogs, tree), m_program(OnTree(tree)) {
    MustHold(m_program.Start(), QStringLiteral("the program starts"));
  }
  Program& operator*() { return m_program; }

 private:
  Platform OnTree(const QString& tree) { return PlatformOn(tree, m_files, m_clock, m_dialogs, m_paper, m_noPorts); }

  FileDevice m_files;
  FileStore m_store;
  SystemClock m_clock;
  QtDialogs m_dialogs;
  PaperPrinter m_paper;
  SerialLine m_noPorts{PortTable{}};
  Program m_program;
};
