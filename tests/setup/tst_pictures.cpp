// The test of a logo's file: what passes it shows and prints.
#include <QBuffer>
#include <QImage>
#include <QPixmap>
#include <QtTest>

#include "setup/frmSetupPictures.h"

using namespace Qt::StringLiterals;

class PicturesTest : public QObject {
  Q_OBJECT

  static QByteArray PictureIn(const char* format) {
    QImage image(60, 30, QImage::Format_RGB32);
    for (int y = 0; y < 30; ++y) {
      for (int x = 0; x < 60; ++x) image.setPixel(x, y, qRgb(x * 37 % 256, y * 91 % 256, x * y * 13 % 256));
    }
    QByteArray content;
    QBuffer buffer(&content);
    buffer.open(QIODevice::WriteOnly);
    if (!image.save(&buffer, format)) qFatal("the picture isn't written");
    return content;
  }

 private Q_SLOTS:
  void whatIsNoPictureIsNone() {
    QVERIFY(!IsPicture({}));
    QVERIFY(!IsPicture("these are letters"));
    QVERIFY(!IsPicture("BM"));
  }

  void aPictureIsOneAsLongAsItsFormatShowsIt_data() {
    QTest::addColumn<QByteArray>("format");
    QTest::addColumn<bool>("halfIsOne");
    QTest::newRow("PNG") << QByteArray("PNG") << false;
    QTest::newRow("ICO") << QByteArray("ICO") << false;
    QTest::newRow("JPEG") << QByteArray("JPG") << true;
    QTest::newRow("BMP") << QByteArray("BMP") << true;
  }
  void aPictureIsOneAsLongAsItsFormatShowsIt() {
    QFETCH(QByteArray, format);
    QFETCH(bool, halfIsOne);
    const QByteArray whole = PictureIn(format.constData());
    const QByteArray half = whole.first(whole.size() / 2);
    QVERIFY(IsPicture(whole));
    QCOMPARE(IsPicture(half), halfIsOne);
    // The same bytes on the screen.
    QCOMPARE(QPixmap().loadFromData(half), halfIsOne);
  }
};

QTEST_MAIN(PicturesTest)
#include "tst_pictures.moc"
