// The look of the family: contrast on a light and on a dark palette, one spacing grid, the named looks.
#include <cmath>
#include <QtWidgets>

#include "desktop/FamilyStyle.h"
#include "desktop/Style.h"

using namespace Qt::StringLiterals;

namespace {

double Linear(double channel) {
  return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double Luminance(const QColor& color) {
  return 0.2126 * Linear(color.redF()) + 0.7152 * Linear(color.greenF()) + 0.0722 * Linear(color.blueF());
}

/// The ratio of the accessibility guidelines: 1 for equal colours, 21 for black on white.
double Contrast(const QColor& a, const QColor& b) {
  const double lighter = std::max(Luminance(a), Luminance(b));
  const double darker = std::min(Luminance(a), Luminance(b));
  return (lighter + 0.05) / (darker + 0.05);
}

/// The grounds as they come out on the screen: a gradient has a darkest and a lightest row.
double LeastContrast(QWidget& control, const QColor& text) {
  const QImage drawn = control.grab().toImage();
  double least = 21;
  for (int y = 3; y < drawn.height() - 4; ++y) {
    least = std::min(least, Contrast(text, drawn.pixelColor(drawn.width() / 2, y)));
  }
  return least;
}

}  // namespace

class Styles : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  void everyTextIsReadableOnItsGround_data() {
    QTest::addColumn<QPalette>("palette");
    QTest::newRow("light") << LightPalette();
    QTest::newRow("dark") << DarkPalette();
  }
  void everyTextIsReadableOnItsGround() {
    QFETCH(QPalette, palette);
    using P = QPalette;
    const QList<std::pair<P::ColorRole, P::ColorRole>> pairs{{P::WindowText, P::Window},
                                                             {P::WindowText, P::AlternateBase},
                                                             {P::Text, P::Base},
                                                             {P::Text, P::AlternateBase},
                                                             {P::ButtonText, P::Button},
                                                             {P::HighlightedText, P::Highlight},
                                                             {P::ToolTipText, P::ToolTipBase},
                                                             {P::Link, P::Window},
                                                             {P::Link, P::Base},
                                                             {P::PlaceholderText, P::Base}};
    for (const P::ColorGroup group : {P::Active, P::Inactive, P::Disabled}) {
      for (const auto& [text, ground] : pairs) {
        const double contrast = Contrast(palette.color(group, text), palette.color(group, ground));
        const QString what = u"group %1, %2 on %3: %4"_s.arg(group).arg(text).arg(ground).arg(contrast);
        QVERIFY2(contrast >= 4.5, qPrintable(what));
      }
    }
    QVERIFY(Contrast(HintText(palette), palette.color(P::Window)) >= 4.5);
    QVERIFY(Contrast(HintText(palette), palette.color(P::AlternateBase)) >= 4.5);
    QVERIFY(Contrast(Qt::white, PrimaryGround()) >= 4.5);
    QVERIFY(Contrast(Qt::white, DestructiveGround()) >= 4.5);
  }

  void thePlatformsDarknessDecidesThePalette() {
    const QPalette before = qApp->palette();
    ApplyStyle(*qApp);
    QCOMPARE(qApp->style()->inherits("QProxyStyle"), true);
    const bool dark = before.color(QPalette::Window).lightness() < before.color(QPalette::WindowText).lightness();
    const QPalette expected = dark ? DarkPalette() : LightPalette();
    QCOMPARE(qApp->palette().color(QPalette::Window), expected.color(QPalette::Window));
    QVERIFY(LightPalette().color(QPalette::Window).lightness() > DarkPalette().color(QPalette::Window).lightness());
  }

  void buttonsAreReadableAsTheyAreDrawn_data() {
    QTest::addColumn<QPalette>("palette");
    QTest::addColumn<QString>("look");
    QTest::addColumn<bool>("enabled");
    for (const QString& look : {QString(), u"primary"_s, u"destructive"_s}) {
      for (const bool enabled : {true, false}) {
        const QString name = u"%1%2"_s.arg(look, enabled ? u""_s : u" disabled"_s);
        QTest::addRow("light %s", qPrintable(name)) << LightPalette() << look << enabled;
        QTest::addRow("dark %s", qPrintable(name)) << DarkPalette() << look << enabled;
      }
    }
  }
  void buttonsAreReadableAsTheyAreDrawn() {
    QFETCH(QPalette, palette);
    QFETCH(QString, look);
    QFETCH(bool, enabled);
    qApp->setPalette(palette);
    ApplyStyle(*qApp);
    QPushButton button;
    button.setProperty("look", look);
    button.setEnabled(enabled);
    button.setAutoDefault(false);
    button.resize(100, 28);
    button.ensurePolished();
    const QPalette::ColorGroup group = enabled ? QPalette::Active : QPalette::Disabled;
    const double least = LeastContrast(button, button.palette().color(group, QPalette::ButtonText));
    QVERIFY2(least >= 4.5, qPrintable(QString::number(least)));
  }

  void edgesStandOutFromTheirGrounds_data() { everyTextIsReadableOnItsGround_data(); }
  void edgesStandOutFromTheirGrounds() {
    QFETCH(QPalette, palette);
    for (const QPalette::ColorRole ground : {QPalette::Base, QPalette::Window}) {
      QVERIFY(Contrast(EdgeColor(palette), palette.color(ground)) >= 3);
      QVERIFY(Contrast(AccentColor(palette), palette.color(ground)) >= 3);
    }
  }

  void textOnATabIsReadableAsItIsDrawn_data() { everyTextIsReadableOnItsGround_data(); }
  void textOnATabIsReadableAsItIsDrawn() {
    QFETCH(QPalette, palette);
    qApp->setPalette(palette);
    ApplyStyle(*qApp);
    QTabWidget tabs;
    auto* page = new QWidget;
    tabs.addTab(page, u"Page"_s);
    tabs.resize(300, 200);
    const QColor ground = tabs.grab().toImage().pixelColor(150, 120);
    for (const QPalette::ColorGroup group : {QPalette::Active, QPalette::Disabled}) {
      QVERIFY(Contrast(qApp->palette().color(group, QPalette::WindowText), ground) >= 4.5);
    }
    QVERIFY(Contrast(HintText(qApp->palette()), ground) >= 4.5);
  }

  void windowsHaveWideMarginsAndTheirInsideNarrowOnes() {
    ApplyStyle(*qApp);
    QMainWindow window;
    auto* central = new QWidget;
    window.setCentralWidget(central);
    auto* outer = new QVBoxLayout(central);
    auto* frame = new QGroupBox;
    auto* inner = new QHBoxLayout(frame);
    outer->addWidget(frame);
    QCOMPARE(outer->contentsMargins(), QMargins(16, 16, 16, 16));
    QCOMPARE(outer->spacing(), 8);
    QCOMPARE(inner->contentsMargins(), QMargins(8, 8, 8, 8));
    QCOMPARE(inner->spacing(), 8);
  }

  void controlsTakeTheLookTheyName() {
    ApplyStyle(*qApp);
    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    const auto named = [&](QWidget* control, const QString& look) {
      control->setProperty("look", look);
      layout->addWidget(control);
    };
    auto* plain = new QLabel;
    auto* title = new QLabel;
    auto* amount = new QLineEdit;
    auto* primary = new QPushButton;
    auto* destructive = new QPushButton;
    auto* other = new QPushButton;
    auto* panel = new QFrame;
    layout->addWidget(plain);
    layout->addWidget(other);
    named(title, u"title"_s);
    named(amount, u"amount"_s);
    named(primary, u"primary"_s);
    named(destructive, u"destructive"_s);
    named(panel, u"panel"_s);
    window.show();
    QVERIFY(title->font().pointSizeF() > plain->font().pointSizeF());
    QVERIFY(amount->alignment().testFlag(Qt::AlignRight));
    QCOMPARE(primary->palette().color(QPalette::Button), PrimaryGround());
    QCOMPARE(destructive->palette().color(QPalette::Button), DestructiveGround());
    QCOMPARE(other->palette().color(QPalette::Button), qApp->palette().color(QPalette::Button));
    QCOMPARE(panel->backgroundRole(), QPalette::AlternateBase);
    // The look says so in words as well as in colour: a disabled primary button is grey like the others.
    QCOMPARE(primary->palette().color(QPalette::Disabled, QPalette::Button),
             other->palette().color(QPalette::Disabled, QPalette::Button));
  }

  void aLookPolishedTwiceStaysTheSame() {
    ApplyStyle(*qApp);
    QLabel title;
    title.setProperty("look", u"title"_s);
    title.show();
    const qreal size = title.font().pointSizeF();
    title.style()->polish(&title);
    QCOMPARE(title.font().pointSizeF(), size);
  }

  void aLookNamedAfterTheControlWasPolishedIsTakenToo() {
    ApplyStyle(*qApp);
    QWidget window;
    auto* title = new QLabel(&window);
    auto* amount = new QLineEdit(&window);
    title->ensurePolished();
    amount->ensurePolished();
    const qreal plain = title->font().pointSizeF();
    title->setProperty("look", u"title"_s);
    amount->setProperty("look", u"amount"_s);
    window.show();
    QVERIFY(title->font().pointSizeF() > plain);
    QVERIFY(amount->alignment().testFlag(Qt::AlignRight));
  }

  void whiteCaptionsReadOnTheButtonsAsTheyAreDrawn_data() {
    QTest::addColumn<QString>("look");
    QTest::newRow("primary") << u"primary"_s;
    QTest::newRow("destructive") << u"destructive"_s;
  }
  void whiteCaptionsReadOnTheButtonsAsTheyAreDrawn() {
    QFETCH(QString, look);
    ApplyStyle(*qApp);
    QWidget window;
    QPushButton button(&window);
    button.setProperty("look", look);
    button.resize(120, 28);
    window.show();
    const QImage picture = button.grab().toImage();
    for (int y = 4; y < 24; ++y) {
      const double contrast = Contrast(Qt::white, picture.pixelColor(60, y));
      QVERIFY2(contrast >= 4.5, qPrintable(u"line %1: %2"_s.arg(y).arg(contrast)));
    }
  }

  void aBoxThatIsOnlyReadLiesFlatOnTheWindow_data() { everyTextIsReadableOnItsGround_data(); }
  void aBoxThatIsOnlyReadLiesFlatOnTheWindow() {
    QFETCH(QPalette, palette);
    FamilyStyle style;
    QLineEdit box(u"1"_s);
    box.setStyle(&style);
    box.setPalette(palette);
    box.resize(120, 28);
    const auto drawn = [&box] { return box.grab().toImage(); };
    const QColor open = drawn().pixelColor(60, 14);
    QCOMPARE(open, palette.color(QPalette::Base));
    const QColor openEdge = drawn().pixelColor(60, 0);
    box.setReadOnly(true);
    QCOMPARE(drawn().pixelColor(60, 14), palette.color(QPalette::Window));
    QVERIFY(open != palette.color(QPalette::Window));
    QVERIFY(drawn().pixelColor(60, 0) != openEdge);
    QVERIFY(Contrast(palette.color(QPalette::Text), palette.color(QPalette::Window)) >= 4.5);
  }

  void datesFollowTheUnitedStatesWhateverTheMachineDoes() {
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    ApplyStyle(*qApp);
    QDateEdit box(QDate(2026, 3, 7));
    box.setCalendarPopup(true);
    box.setDisplayFormat(u"MMMM d, yyyy"_s);
    QCOMPARE(box.text(), u"March 7, 2026"_s);
    QCOMPARE(box.calendarWidget()->firstDayOfWeek(), Qt::Sunday);
  }

  void captionsKeepClearOfTheEdges() {
    ApplyStyle(*qApp);
    QPushButton button(u"Cancel Add New or Modify"_s);
    QVERIFY(button.sizeHint().width() >= button.fontMetrics().horizontalAdvance(button.text()) + 16);
    QVERIFY(button.sizeHint().height() >= 28);
    QVERIFY(QLineEdit().sizeHint().height() >= 28);
  }

  void aCaptionTooLongForItsButtonKeepsItsStartAndEndsInDots() {
    ApplyStyle(*qApp);
    QWidget window;
    QPushButton button(&window);
    button.resize(160, 28);
    const auto drawn = [&button](const QString& caption) {
      button.setText(caption);
      return button.grab().toImage();
    };
    const QString name = u"Hill && Sons, the warehouse by the dock"_s;
    const QImage whole = drawn(name);
    qsizetype kept = 0;
    while (kept < name.size() && drawn(name.left(kept) + u'\u2026') != whole) ++kept;
    QVERIFY2(kept > 10 && kept < name.size(), qPrintable(name.left(kept)));
    // One that fits is drawn as it is.
    QVERIFY(drawn(u"Hill"_s) != drawn(u"Hil\u2026"_s));
  }

  void accessKeysAreUnderlined() {
    ApplyStyle(*qApp);
    QCOMPARE(qApp->style()->styleHint(QStyle::SH_UnderlineShortcut), 1);
  }
};

QTEST_MAIN(Styles)
#include "tst_style.moc"
