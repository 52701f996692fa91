/// The real program, led to Setup as its user is, and the steps that most tests of that screen take.
#pragma once

#include <QComboBox>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QTabWidget>

#include "support/ProgramFixture.h"

class SetupScreen : public ProgramFixture {
 public:
  /// From the start-up screen, by its logo.
  ScreenDriver Open() {
    Start();
    ScreenDriver(QStringLiteral("frmSplash")).Click(QStringLiteral("Image1_0"));
    return ScreenDriver(QStringLiteral("frmSetup"));
  }
  /// From the main menu, by Create/Modify.
  static ScreenDriver OpenAgain() {
    ScreenDriver(QStringLiteral("frmStartup")).Trigger(QStringLiteral("mnuCreate"));
    return ScreenDriver(QStringLiteral("frmSetup"));
  }

  /// By the arrow, as often as it takes.
  static void GoToTab(const ScreenDriver& setup, int tab) {
    const auto* tabs = setup.Control<QTabWidget>(QStringLiteral("tabInfo"));
    for (int i = 0; i < 4 && tabs->currentIndex() != tab; ++i) setup.Click(QStringLiteral("Image1_0"));
  }
  static void GoToOptions(const ScreenDriver& setup, int subTab) {
    GoToTab(setup, 2);
    const auto* tabs = setup.Control<QTabWidget>(QStringLiteral("SSTab2"));
    for (int i = 0; i < 3 && tabs->currentIndex() != subTab; ++i) setup.Click(QStringLiteral("Image1_1"));
  }
  /// The two texts that Setup can't be left without.
  static void FillNameAndTelephone(const ScreenDriver& setup) {
    GoToTab(setup, 0);
    setup.Fill(QStringLiteral("txtBusiness_0"), QStringLiteral("Acme"));
    setup.Fill(QStringLiteral("txtBusiness_6"), QStringLiteral("555-1234"));
  }
  /// A picture file in the tree; answers its full path.
  QString Picture(const QString& name) const {
    QImage image(60, 30, QImage::Format_RGB32);
    image.fill(Qt::darkGreen);
    const QString path = Tree.Path(name);
    if (!image.save(path)) qFatal("the picture isn't written");
    return path;
  }
  /// What /CompanyLogo.txt holds for a path.
  static QByteArray LogoLine(const QString& path) { return '"' + path.toLatin1() + "\"\r\n"; }
  static bool ShowsPicture(const ScreenDriver& setup, const QString& name) {
    return !setup.Control<QLabel>(name)->pixmap(Qt::ReturnByValue).isNull();
  }
  /// With what it can be left by, at the logo's tab.
  ScreenDriver OpenLogo() {
    const ScreenDriver setup = Open();
    FillNameAndTelephone(setup);
    GoToTab(setup, 3);
    return setup;
  }
  /// Find, and this file in the dialog.
  void Find(const ScreenDriver& setup, const QString& path) {
    Answers.File(path);
    setup.Click(QStringLiteral("cmdLogo_0"));
  }

  static void SaveAndReturn(const ScreenDriver& setup) { setup.Click(QStringLiteral("cmdQuit")); }
};
