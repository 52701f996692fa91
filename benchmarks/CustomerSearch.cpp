#include <algorithm>
#include <array>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTableView>

#include "benchmarks/Measure.h"
#include "benchmarks/Operations.h"
#include "benchmarks/Running.h"
#include "benchmarks/Trees.h"
#include "customers/CustomerFile.h"
#include "desktop/Style.h"
#include "runtime/CodePage.h"
#include "shell/CommonDiskRoutines.h"

using namespace Qt::StringLiterals;

namespace {

struct Criterion {
  QString Name;
  QString Text;  ///< What few customers or none have in that field.
  std::size_t Hits;
};

void MeasureCriteria(const QString& tree) {
  const std::array<Criterion, 9> criteria{{{u"business name"_s, u"trading 32766"_s, 1},
                                           {u"address 1"_s, u"grove lane"_s, 0},
                                           {u"address 2"_s, u"suite 3"_s, 0},
                                           {u"city"_s, u"city 366"_s, 37},
                                           {u"state"_s, u"nv"_s, 0},
                                           {u"postal code"_s, u"89501"_s, 0},
                                           {u"telephone"_s, u"352-555-0199"_s, 0},
                                           {u"last name"_s, u"delgado"_s, 0},
                                           {u"account number"_s, u"132766"_s, 1}}};
  FileDevice device;
  FileStore store(device);
  CommonDiskRoutines disk(store, tree, u"KarvexInvoicer"_s);
  CustomerFile file(disk);
  const QByteArray absent("no such text");
  for (std::size_t i = 0; i < criteria.size(); ++i) {
    std::size_t hits = 0;
    bool isAbsent = false;
    const Pair times = MediansOf(
        11,
        [&] {
          hits = file.Find({static_cast<qint16>(i), UpperCased(criteria[i].Text)}, Limit::Customers).size();
        },
        [&] { isAbsent = !store.ReadWhole(tree + u"/CustomerData.txt"_s).contains(absent); });
    MustHold(hits == criteria[i].Hits, u"the search by %1 finds whom it must"_s.arg(criteria[i].Name));
    MustHold(isAbsent, u"the raw pass goes to the end of the file"_s);
    Report(u"search of 32,767 customers by %1, over a raw pass"_s.arg(criteria[i].Name), times, 3);
  }
}

/// Three texts of each record, once.
qsizetype DecodeAll(FileStore& store, const QString& file) {
  const QByteArray content = store.ReadWhole(file);
  qsizetype characters = 0;
  for (qsizetype i = 0; i < content.size(); i += 328) {
    const QByteArrayView record = QByteArrayView(content).sliced(i, 328);
    for (const TextField field : {CustomerField::AcctName, CustomerField::Phone, CustomerField::AcctType}) {
      characters += FromCodePage(record.sliced(field.Offset, field.Width)).trimmed().size();
    }
  }
  return characters;
}

void MeasureList(QWidget& screen, const QString& tree) {
  FileDevice device;
  FileStore store(device);
  auto* entry = screen.findChild<QAction*>(u"mnuPrint"_s);
  const auto* grid = screen.findChild<QTableView*>(u"fgCustomersFound"_s);
  const auto showAndScroll = [&] {
    entry->trigger();
    QApplication::processEvents();
    grid->verticalScrollBar()->setValue(grid->verticalScrollBar()->maximum());
    QApplication::processEvents();
  };
  std::vector<double> works;
  std::vector<double> floors;
  for (int i = 0; i < 7; ++i) {
    floors.push_back(TimeOf([&] { DecodeAll(store, tree + u"/CustomerData.txt"_s); }));
    works.push_back(TimeOf(showAndScroll));
    MustHold(grid->isVisible() && grid->model()->rowCount() >= Limit::Customers, u"the list shows every customer"_s);
    entry->trigger();  // Hidden again.
    QApplication::processEvents();
  }
  std::sort(works.begin(), works.end());
  std::sort(floors.begin(), floors.end());
  Report(u"the complete list shown and scrolled to its end, over decoding it"_s, {works[3], floors[3]}, 3);
}

/// The slowest key of a name that stands last in the list, painting included, beside one screen refresh.
void MeasureKeys(QWidget& screen) {
  constexpr double refresh = 16;
  screen.findChild<QPushButton*>(u"Command1_1"_s)->click();
  QApplication::processEvents();
  auto* names = screen.findChild<QComboBox*>(u"cboAccounts"_s);
  double slowest = 0;
  for (const QChar letter : names->itemText(names->count() - 1)) {
    const double time = TimeOf([&] {
      QKeyEvent press(QEvent::KeyPress, letter.toUpper().unicode(), Qt::NoModifier, QString(letter));
      QApplication::sendEvent(names, &press);
      QApplication::processEvents();
    });
    slowest = std::max(slowest, time);
  }
  MustHold(names->currentText() == names->itemText(names->count() - 1), u"the typed name is found"_s);
  Report(u"the slowest key in the search of 32,767 names, over a refresh"_s, {slowest, refresh}, 1);
}

}  // namespace

void MeasureSearch(const QString& fullTree) {
  ApplyStyle(*qApp);
  MeasureCriteria(fullTree);
  Running full(fullTree);
  (*full).Show(ScreenName::frmNewCustomer);
  QApplication::processEvents();
  QWidget* screen = (*full).Built(ScreenName::frmNewCustomer);
  MeasureList(*screen, fullTree);
  MeasureKeys(*screen);
  (*full).Hide(ScreenName::frmNewCustomer);
}
