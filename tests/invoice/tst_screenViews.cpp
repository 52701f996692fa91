// The views of the invoice screen: which frame and which help each menu entry shows, and what goes with it.

#include <QtWidgets>

#include "support/InvoiceBench.h"

using namespace Qt::StringLiterals;

namespace {

const QStringList Frames{u"fraSetup"_s, u"fraServices"_s, u"fraItems"_s,     u"fraCItems"_s,    u"fraManual"_s,
                         u"fraLabor"_s, u"fraMemo"_s,     u"fraNarrative"_s, u"fraPrintReady"_s};

QStringList Shown(const ScreenDriver& screen) {
  QStringList shown;
  for (const QString& frame : Frames) {
    if (screen.IsVisible(frame)) shown += frame;
  }
  return shown;
}

QList<int> Help(const ScreenDriver& screen) {
  QList<int> shown;
  for (int i = 0; i < 12; ++i) {
    if (screen.IsVisible(u"fraInstructions_%1"_s.arg(i))) shown += i;
  }
  return shown;
}

}  // namespace

class ScreenViews : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void eachMenuEntryShowsItsFrameAndItsHelp_data();
  void eachMenuEntryShowsItsFrameAndItsHelp();
};

void ScreenViews::eachMenuEntryShowsItsFrameAndItsHelp_data() {
  QTest::addColumn<QString>("entry");
  QTest::addColumn<QStringList>("frames");
  QTest::addColumn<int>("help");
  QTest::newRow("setup") << u"mnuSetup"_s << QStringList{u"fraSetup"_s} << 0;
  QTest::newRow("creation") << u"mnuCreate"_s << QStringList{} << 1;
  QTest::newRow("print ready") << u"mnuPrint"_s << QStringList{u"fraPrintReady"_s} << 2;
  QTest::newRow("items") << u"mnuItems"_s << QStringList{u"fraItems"_s} << 6;
  QTest::newRow("manual") << u"mnuManual"_s << QStringList{u"fraManual"_s} << 7;
  QTest::newRow("labor") << u"mnuLabor"_s << QStringList{u"fraLabor"_s} << 8;
  QTest::newRow("services") << u"mnuServices"_s << QStringList{u"fraServices"_s} << 9;
  QTest::newRow("narrative") << u"mnuNarrative"_s << QStringList{u"fraNarrative"_s} << 10;
  QTest::newRow("custom items") << u"mnuCItems"_s << QStringList{u"fraCItems"_s} << 11;
  QTest::newRow("memo") << u"mnuMemo"_s << QStringList{u"fraMemo"_s} << 0;
}

void ScreenViews::eachMenuEntryShowsItsFrameAndItsHelp() {
  QFETCH(QString, entry);
  QFETCH(QStringList, frames);
  QFETCH(int, help);
  InvoiceBench bench;
  bench.Open();
  QCOMPARE(Shown(bench.On()), QStringList{u"fraSetup"_s});
  bench.On().Trigger(entry);
  QCOMPARE(Shown(bench.On()), frames);
  QCOMPARE(Help(bench.On()), QList<int>{help});
  bench.On().Trigger(u"mnuClose"_s);
  QCOMPARE(Shown(bench.On()), QStringList{});
  QCOMPARE(Help(bench.On()), QList<int>{help});
}

QTEST_MAIN(ScreenViews)
#include "tst_screenViews.moc"
