#include <algorithm>
#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QTemporaryDir>

#include "benchmarks/Measure.h"
#include "benchmarks/Operations.h"
#include "benchmarks/Running.h"
#include "benchmarks/Trees.h"
#include "desktop/Style.h"
#include "runtime/CodePage.h"
#include "runtime/FileStore.h"
#include "shell/CommonDiskRoutines.h"

using namespace Qt::StringLiterals;

namespace {

void OpenAndClose(Program& program) {
  program.Show(ScreenName::frmNewCustomer);
  QApplication::processEvents();
  program.Hide(ScreenName::frmNewCustomer);
}

/// The customer on screen, by his place in the file.
int Shown(const Program& program) {
  return program.Built(ScreenName::frmNewCustomer)->findChild<QLineEdit*>(u"txtCustomer_0"_s)->text().toInt() - 100000;
}

void ReadAndSort(const QString& file, FileStore& store) {
  const QByteArray content = store.ReadWhole(file);
  std::vector<QString> names;
  for (qsizetype i = 0; i < content.size(); i += 328) {
    names.push_back(FromCodePage(QByteArrayView(content).sliced(i + 20, 45)).trimmed());
  }
  std::sort(names.begin(), names.end());
}

double StepTime(Program& program, int customers) {
  program.Show(ScreenName::frmNewCustomer);
  auto* next = program.Built(ScreenName::frmNewCustomer)->findChild<QAbstractButton*>(u"cmdNav_2"_s);
  const int first = Shown(program);
  const double step = MedianOf(201, [&] {
    next->click();
    QApplication::processEvents();
  });
  MustHold(Shown(program) == (first + 201) % customers, u"201 steps lead 201 customers on"_s);
  program.Hide(ScreenName::frmNewCustomer);
  return step;
}

}  // namespace

void MeasureCustomers(const QString& fullTree) {
  ApplyStyle(*qApp);
  Running full(fullTree);
  FileDevice device;
  FileStore store(device);
  OpenAndClose(*full);
  const Pair opening = MediansOf(
      5, [&] { OpenAndClose(*full); }, [&] { ReadAndSort(fullTree + u"/CustomerData.txt"_s, store); });
  const QWidget* screen = (*full).Built(ScreenName::frmNewCustomer);
  MustHold(screen->findChild<QComboBox*>(u"cboAccounts"_s)->count() == Limit::Customers, u"all names are listed"_s);
  Report(u"opening the customer screen, over reading the file and sorting names"_s, opening, 3);

  const QTemporaryDir small;
  FillTree(small.path(), 10, Limit::Catalogue, 1);
  Running few(small.path());
  Report(u"one step to the next of 32,767 customers, over one of 10"_s,
         {StepTime(*full, Limit::Customers), StepTime(*few, 10)}, 1.1);
}
