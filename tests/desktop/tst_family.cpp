// What holds for every screen of the family: it fits, it is named, and it can be used without a mouse.
#include <QAccessible>

#include "desktop/PictureButton.h"
#include "support/ProgramFixture.h"

using namespace Qt::StringLiterals;

namespace {

/// Null behind the last screen. A screen that isn't here is a compiler's warning.
const char* NameOf(ScreenName screen) {
  switch (screen) {
    case ScreenName::frmSplash:
      return "frmSplash";
    case ScreenName::frmStartup:
      return "frmStartup";
    case ScreenName::frmSetup:
      return "frmSetup";
    case ScreenName::frmServices:
      return "frmServices";
    case ScreenName::frmNewCustomer:
      return "frmNewCustomer";
    case ScreenName::frmCustomerSelection:
      return "frmCustomerSelection";
    case ScreenName::frmInvoice:
      return "frmInvoice";
    case ScreenName::frmReprint:
      return "frmReprint";
    case ScreenName::frmIncomplete:
      return "frmIncomplete";
    case ScreenName::frmSalesReport:
      return "frmSalesReport";
    case ScreenName::frmBlanks:
      return "frmBlanks";
    case ScreenName::frmDialer:
      return "frmDialer";
  }
  return nullptr;
}

/// Both purges bear the P on purpose: the letter moves the focus between them and runs neither.
const QSet<QString> SharedLetter{u"Command1_2"_s, u"Command1_3"_s};

bool IsOwnControl(const QWidget* widget) {
  const QString name = widget->objectName();
  const bool takesFocus = (widget->focusPolicy() & Qt::TabFocus) != 0;
  return takesFocus && !name.isEmpty() && !name.startsWith("qt_"_L1) && !name.startsWith(u'_');
}

QString AccessibleName(QWidget* widget) {
  QAccessibleInterface* access = QAccessible::queryAccessibleInterface(widget);
  return access != nullptr ? access->text(QAccessible::Name) : QString();
}

/// A button that only stands for a menu's entry is reached through the menu.
bool IsMenuEntry(const QAbstractButton* button) {
  const auto* tool = qobject_cast<const QToolButton*>(button);
  if (tool == nullptr || tool->defaultAction() == nullptr) return false;
  const QObjectList places = tool->defaultAction()->associatedObjects();
  return std::any_of(places.begin(), places.end(),
                     [](const QObject* place) { return qobject_cast<const QMenu*>(place) != nullptr; });
}

/// Its text needs more room than it has.
bool IsCut(const QWidget* widget) {
  const auto* label = qobject_cast<const QLabel*>(widget);
  const auto* button = qobject_cast<const QAbstractButton*>(widget);
  if (label != nullptr && label->wordWrap()) return label->height() < label->heightForWidth(label->width());
  if (label != nullptr) return !label->text().isEmpty() && label->width() < label->sizeHint().width();
  if (button == nullptr || button->text().isEmpty() || dynamic_cast<const PictureButton*>(widget) != nullptr)
    return false;
  const QSize text = button->fontMetrics().size(Qt::TextShowMnemonic, button->text());
  return button->width() < text.width() + 8 || button->height() < text.height() + 4;
}

/// Every page of every tab of the window is shown once.
template <typename Look>
void OnEachPage(QWidget* window, Look look) {
  look();
  for (QTabWidget* tabs : window->findChildren<QTabWidget*>()) {
    for (int i = 0; i < tabs->count(); ++i) {
      tabs->setCurrentIndex(i);
      ScreenDriver::ProcessEvents();
      look();
    }
  }
}

}  // namespace

class Family : public QObject {
  Q_OBJECT

 private:
  static void Rows() {
    QTest::addColumn<ScreenName>("screen");
    for (int i = 0; NameOf(static_cast<ScreenName>(i)) != nullptr; ++i) {
      QTest::newRow(NameOf(static_cast<ScreenName>(i))) << static_cast<ScreenName>(i);
    }
  }
  /// The screen of the row, shown by the program.
  static QWidget* Open(ProgramFixture& program, ScreenName screen) {
    // Without customers their screen says so at its first showing.
    if (screen == ScreenName::frmNewCustomer) program.Answers.Ok();
    if (screen == ScreenName::frmCustomerSelection) {
      program.Tree.Write(u"/KarvexProposals/a.txt"_s, "FP1,5,3/2/2026,7,Smith,1 Main Street,,Reno,NV,89501,555\r\n");
    }
    // Without a partial invoice their screen doesn't come up.
    if (screen == ScreenName::frmIncomplete) {
      program.Tree.Write(u"/KarvexInvoicer/IncompleteInvoices/20260001.txt"_s,
                         "20260001\r\n7\r\nSmith\r\n3/7/2026\r\n");
    }
    // Nor theirs without a completed one.
    if (screen == ScreenName::frmReprint)
      program.Tree.Write(u"/CompletedInvoices/20260001.txt"_s, "20260001\r\n7\r\nSmith\r\n3/7/2026\r\n$1.00\r\n");
    if (screen == ScreenName::frmSplash) {
      program.Start();
    } else {
      program.StartAtMenu();
      program.Running().Show(screen);
    }
    QWidget* window = program.Built(screen);
    if (window == nullptr) qFatal("%s isn't built", NameOf(screen));
    return window;
  }

 private Q_SLOTS:
  void itHasItsName_data() { Rows(); }
  void itHasItsName() {
    QFETCH(ScreenName, screen);
    ProgramFixture program;
    QCOMPARE(Open(program, screen)->objectName(), QLatin1String(NameOf(screen)));
  }

  void itIsUsableFrom1024By700_data() { Rows(); }
  void itIsUsableFrom1024By700() {
    QFETCH(ScreenName, screen);
    ProgramFixture program;
    const QWidget* window = Open(program, screen);
    // The window's frame takes some of it.
    const QSize needed = window->minimumSizeHint().expandedTo(window->minimumSize());
    QVERIFY2(needed.width() <= 1016 && needed.height() <= 664,
             qPrintable(u"%1 x %2"_s.arg(needed.width()).arg(needed.height())));
    QCOMPARE(window->size(), QSize(1180, 760));
  }

  void noTextInSightIsCutOffInASmallWindow_data() { Rows(); }
  void noTextInSightIsCutOffInASmallWindow() {
    QFETCH(ScreenName, screen);
    ProgramFixture program;
    QWidget* window = Open(program, screen);
    window->resize(1016, 664);
    ScreenDriver::ProcessEvents();
    QSet<QString> cut;
    OnEachPage(window, [&] {
      for (const QWidget* part : window->findChildren<QWidget*>()) {
        if (part->isVisible() && IsCut(part)) cut.insert(part->objectName());
      }
    });
    QVERIFY2(cut.isEmpty(), qPrintable(cut.values().join(u", "_s)));
  }

  void boxesAndButtonsHaveOneHeight_data() { Rows(); }
  void boxesAndButtonsHaveOneHeight() {
    QFETCH(ScreenName, screen);
    ProgramFixture program;
    QWidget* window = Open(program, screen);
    QMap<QString, int> others;
    OnEachPage(window, [&] {
      for (const QWidget* part : window->findChildren<QWidget*>()) {
        if (dynamic_cast<const PictureButton*>(part) != nullptr) continue;
        const bool counts = qobject_cast<const QLineEdit*>(part) != nullptr ||
                            qobject_cast<const QComboBox*>(part) != nullptr ||
                            qobject_cast<const QPushButton*>(part) != nullptr;
        const bool inside = qobject_cast<const QComboBox*>(part->parentWidget()) != nullptr ||
                            qobject_cast<const QAbstractSpinBox*>(part->parentWidget()) != nullptr;
        if (part->isVisible() && counts && !inside && part->height() != 28)
          others.insert(part->objectName(), part->height());
      }
    });
    QStringList told;
    for (auto it = others.cbegin(); it != others.cend(); ++it) told.append(u"%1 %2"_s.arg(it.key()).arg(it.value()));
    QVERIFY2(told.isEmpty(), qPrintable(told.join(u", "_s)));
  }

  void theTitleStandsInTheUpperLeftCorner_data() { Rows(); }
  void theTitleStandsInTheUpperLeftCorner() {
    QFETCH(ScreenName, screen);
    // The start-up screen is all title; the invoice is headed by its number and date.
    if (screen == ScreenName::frmSplash || screen == ScreenName::frmInvoice) return;
    ProgramFixture program;
    auto* window = qobject_cast<QMainWindow*>(Open(program, screen));
    QVERIFY(window != nullptr);
    const ScreenDriver driver(window);
    const auto* title = driver.Control<QLabel>(u"lblHeading"_s);
    // Below the menu bar, or the room of one: it doesn't jump from screen to screen.
    QCOMPARE(title->mapTo(window, QPoint(0, 0)), QPoint(16, 16 + 19));
    QCOMPARE(title->height(), 25);
  }

  void everyControlHasAnAccessibleName_data() { Rows(); }
  void everyControlHasAnAccessibleName() {
    QFETCH(ScreenName, screen);
    ProgramFixture program;
    QWidget* window = Open(program, screen);
    QStringList nameless;
    for (QWidget* control : window->findChildren<QWidget*>()) {
      if (IsOwnControl(control) && AccessibleName(control).isEmpty()) nameless.append(control->objectName());
    }
    QVERIFY2(nameless.isEmpty(), qPrintable(nameless.join(u", "_s)));
    QVERIFY(!window->windowTitle().isEmpty());
  }

  void noTwoVisibleButtonsShareAnAccessKey_data() { Rows(); }
  void noTwoVisibleButtonsShareAnAccessKey() {
    QFETCH(ScreenName, screen);
    ProgramFixture program;
    QWidget* window = Open(program, screen);
    QMap<QString, QString> owners;
    for (QAbstractButton* button : window->findChildren<QAbstractButton*>()) {
      const QString key = button->shortcut().toString();
      if (!button->isVisible() || key.isEmpty()) continue;
      if (SharedLetter.contains(button->objectName()) && SharedLetter.contains(owners.value(key))) continue;
      QVERIFY2(!owners.contains(key), qPrintable(u"%1: %2 and %3"_s.arg(key, owners.value(key), button->objectName())));
      owners.insert(key, button->objectName());
    }
  }

  void everyEnabledControlInSightIsReachedByTheTabKeyOrItsAccessKey_data() { Rows(); }
  void everyEnabledControlInSightIsReachedByTheTabKeyOrItsAccessKey() {
    QFETCH(ScreenName, screen);
    ProgramFixture program;
    QWidget* window = Open(program, screen);
    QSet<QWidget*> reached;
    QWidget* next = window;
    do {
      next = next->nextInFocusChain();
      reached.insert(next);
    } while (next != window);
    QStringList missed;
    for (QAbstractButton* button : window->findChildren<QAbstractButton*>()) {
      const QString name = button->objectName();
      if (!button->isVisible() || name.isEmpty() || name.startsWith("qt_"_L1) || IsMenuEntry(button)) continue;
      const bool byTab = (button->focusPolicy() & Qt::TabFocus) != 0 && reached.contains(button);
      if (!byTab && button->shortcut().isEmpty()) missed.append(name);
    }
    QVERIFY2(missed.isEmpty(), qPrintable(missed.join(u", "_s)));
  }
};

QTEST_MAIN(Family)
#include "tst_family.moc"
