/// The customer screen of the real program, reached from the main menu.
#pragma once

#include <QtTest>

#include "customers/CustomerRecords.h"
#include "support/ProgramFixture.h"

class CustomerDesk {
 public:
  /// A tree that holds these customers, and a catalogue, so that the menu offers an invoice.
  explicit CustomerDesk(const QByteArray& customers) : CustomerDesk() {
    Program.Tree.Write(QStringLiteral("/CustomerData.txt"), customers);
  }
  /// A tree without a customer file.
  CustomerDesk() {
    Program.Tree.Write(QStringLiteral("/Services.txt"),
                       QByteArray("Mowing").leftJustified(60) + "$1.00     \1" + QByteArray(1, '\0'));
    QFile states(QFINDTESTDATA("../supplied/StatesList.txt"));
    if (!states.open(QIODevice::ReadOnly)) qFatal("the supplied states list isn't there");
    Program.Tree.Write(QStringLiteral("/StatesList.txt"), states.readAll());
  }

  void Open() {
    Program.StartAtMenu();
    GoFromMenu();
  }
  /// Where the screen has something to tell as it comes up, as that there is no customer yet.
  void OpenTold(const QueuedAnswers::Wanted& text = {}, const QueuedAnswers::Wanted& title = {}) {
    Program.StartAtMenu();
    Program.Answers.Ok(text, title);
    GoFromMenu();
  }
  void GoFromMenu() const { ScreenDriver(QStringLiteral("frmStartup")).Click(QStringLiteral("cmdGoto")); }
  bool Shown() const { return ScreenDriver::IsShown(QStringLiteral("frmNewCustomer")); }
  ScreenDriver Driver() const { return ScreenDriver(QStringLiteral("frmNewCustomer")); }

  void Click(const QString& name) const { Driver().Click(name); }
  void Fill(const QString& name, const QString& text) const { Driver().Fill(name, text); }
  QString Text(const QString& name) const { return Driver().Text(name); }
  QString Box(int index) const { return Text(QStringLiteral("txtCustomer_%1").arg(index)); }
  bool Sees(const QString& name) const { return Driver().IsVisible(name); }
  QString Focus() const { return Driver().FocusName(); }
  QByteArray Customers() const { return Program.Tree.Bytes(QStringLiteral("/CustomerData.txt")); }
  int BoxesShown() const { return static_cast<int>(Program.Answers.Boxes().size()); }

  ProgramFixture Program;
};
