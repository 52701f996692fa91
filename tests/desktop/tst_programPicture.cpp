// The program's own picture: what it shows, that it fits the first screen unscaled, and that no file is read for it.
#include <QDir>
#include <QFile>
#include <QPixmapCache>
#include <QtTest>

#include "desktop/PictureButton.h"
#include "desktop/ProgramPicture.h"

using namespace Qt::StringLiterals;

namespace {

/// On the square of 256 units that the picture is drawn in.
QColor At(const QImage& logo, int x, int y) {
  return logo.pixelColor(x * logo.width() / 256, y * logo.height() / 256);
}

bool IsNear(const QColor& shown, const QColor& wanted) {
  constexpr int Allowed = 6;
  return std::abs(shown.red() - wanted.red()) <= Allowed && std::abs(shown.green() - wanted.green()) <= Allowed &&
         std::abs(shown.blue() - wanted.blue()) <= Allowed;
}

}  // namespace

class ProgramPictureTest : public QObject {
  Q_OBJECT

 private Q_SLOTS:
  // The first one: what others draw may start threads.
  void noLibraryOfPictureFormatsIsLoadedForItAndNoThreadStarted() {
    QPixmapCache::clear();
    const auto threads = [] { return QDir(u"/proc/self/task"_s).entryList(QDir::Dirs | QDir::NoDotAndDotDot); };
    const QStringList before = threads();
    QVERIFY(!ProgramPicture().isNull());
    QCOMPARE(threads(), before);
    QFile maps(u"/proc/self/maps"_s);
    QVERIFY(maps.open(QIODevice::ReadOnly));
    const QByteArray loaded = maps.readAll();
    QVERIFY(loaded.contains("libQt6Gui"));
    QVERIFY(!loaded.contains("/imageformats/"));
  }

  void itShowsOrangesBeforeASheet() {
    const QImage logo = ProgramPicture().toImage();
    QCOMPARE(At(logo, 2, 2).alpha(), 0);
    QCOMPARE(At(logo, 20, 128), QColor(0xFD, 0xF6, 0xEC));
    QCOMPARE(At(logo, 136, 50), QColor(Qt::white));
    QCOMPARE(At(logo, 136, 94), QColor(0x35, 0x50, 0x6B));
    for (const QPoint light : {QPoint(81, 161), QPoint(158, 170), QPoint(124, 193)}) {
      QVERIFY2(IsNear(At(logo, light.x(), light.y()), QColor(0xFF, 0xC4, 0x6B)),
               qPrintable(At(logo, light.x(), light.y()).name()));
    }
    for (const QPoint leaf : {QPoint(110, 122), QPoint(186, 140)}) {
      const QColor green = At(logo, leaf.x(), leaf.y());
      QVERIFY2(green.green() > green.red() && green.green() > green.blue(), qPrintable(green.name()));
    }
  }

  void aButtonOfItsSizeShowsItPixelByPixel() {
    PictureButton button(nullptr);
    button.SetPicture(ProgramPicture());
    // The room of the first screen.
    QCOMPARE(button.sizeHint(), QSize(220, 220));
    button.resize(button.sizeHint());
    const QImage shown = button.grab(QRect(2, 2, 216, 216)).toImage();
    QImage wanted(216, 216, shown.format());
    wanted.fill(button.palette().color(QPalette::Window));
    QPainter(&wanted).drawPixmap(0, 0, ProgramPicture());
    QCOMPARE(shown, wanted);
  }

  void aSmallerButtonShowsItWhole() {
    PictureButton button(nullptr);
    button.SetPicture(ProgramPicture());
    button.resize(64, 64);
    const QImage shown = button.grab(QRect(2, 2, 60, 60)).toImage();
    QVERIFY(IsNear(At(shown, 20, 128), QColor(0xFD, 0xF6, 0xEC)));
    QVERIFY(IsNear(At(shown, 236, 128), QColor(0xFD, 0xF6, 0xEC)));
  }
};

QTEST_MAIN(ProgramPictureTest)
#include "tst_programPicture.moc"
