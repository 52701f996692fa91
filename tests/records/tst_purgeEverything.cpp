// "Purge All" empties the folder, whatever the names: what a killed save left, and what isn't text, too.

#include "records/InvoicingDesk.h"

using namespace Qt::StringLiterals;

namespace {
const QString Folder = u"/KarvexInvoicer/IncompleteInvoices"_s;
}

class PurgeEverything : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void filesOfEveryNameGo();
};

void PurgeEverything::filesOfEveryNameGo() {
  InvoicingDesk desk;
  const TemporaryTree& tree = desk.Program.Tree;
  tree.Write(Folder + u"/20260007.txt"_s, "20260007\r\n1003\r\nAcme Tools\r\n3/3/2026\r\n");
  for (const auto& name : {u"20260008.txt.new"_s, u"old.new"_s, u".new"_s, u"notes.doc"_s, u"bare"_s, u".hidden"_s,
                           u"20260009\\x.txt.bak"_s}) {
    tree.Write(Folder + u'/' + name, "x");
  }
  tree.Write(Folder + u"/Kept/20260006.txt"_s, "x");
  QVERIFY(desk.Program.StartAtMenu());
  desk.Program.Answers.Yes();
  desk.Program.Answers.Yes();
  desk.OpenPartials().Click(u"Command1_2"_s);
  QCOMPARE(QDir(tree.Path(Folder)).entryList(QDir::Files | QDir::Hidden | QDir::System), QStringList{});
  // A folder isn't a file.
  QVERIFY(tree.Exists(Folder + u"/Kept/20260006.txt"_s));
  QVERIFY(ScreenDriver::IsShown(u"frmStartup"_s));
}

QTEST_MAIN(PurgeEverything)
#include "tst_purgeEverything.moc"
