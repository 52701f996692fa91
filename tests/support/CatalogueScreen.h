/// The catalogue screen of the real program, reached from the main menu.
#pragma once

#include <QtTest>
#include <QtWidgets>

#include "support/CatalogueTree.h"
#include "support/ProgramFixture.h"

class CatalogueScreen {
 public:
  /// One service of a dollar and a quarter of an hour.
  static QByteArray Service(const char* description) {
    return Field(description, 60) + Field("$1.00", 10) + Hex("01 00");
  }
  /// Cost 1.25, price 12.50, 10 on hand, 11.00 from 6 up, reorder 24 at 4.
  static QByteArray Item(const char* description, const char* category) {
    return Field(description, 50) + Field(category, 20) + Hex("D4 30 00 00 00 00 00 00") +
           Hex("48 E8 01 00 00 00 00 00") + Hex("0A 00") + Hex("B0 AD 01 00 00 00 00 00") + Hex("06 00 00 00") +
           Hex("18 00") + Hex("04 00");
  }
  /// Price 100, 90.50 from 3 up.
  static QByteArray CustomItem(const char* description) {
    return Field(description, 50) + Hex("40 42 0F 00 00 00 00 00") + Hex("28 CF 0D 00 00 00 00 00") +
           Hex("03 00 00 00");
  }

  /// Starts the program and goes to the screen, its tab `tab` in front.
  void Open(int tab = 0) {
    Program.StartAtMenu();
    GoFromMenu();
    ShowTab(tab);
  }
  void GoFromMenu() {
    const ScreenDriver menu(QStringLiteral("frmStartup"));
    menu.Click(QStringLiteral("optMainMenuSub_3"));
    menu.Click(QStringLiteral("cmdGoto"));
  }
  ScreenDriver Driver() const { return ScreenDriver(QStringLiteral("frmServices")); }
  int ShownTab() const { return Driver().Control<QTabWidget>(QStringLiteral("tabServices"))->currentIndex(); }
  void ShowTab(int tab) const {
    while (ShownTab() != tab) Driver().Click(QStringLiteral("Image1"));
  }

  void Click(int command) const { Driver().Click(CommandName(command)); }
  bool Live(int command) const { return Driver().IsEnabled(CommandName(command)); }
  QString Text(const char* name) const { return Driver().Text(QString::fromLatin1(name)); }
  void Fill(const char* name, const char* text) const {
    Driver().Fill(QString::fromLatin1(name), QString::fromLatin1(text));
  }
  bool Open(const char* box) const { return Driver().IsEnabled(QString::fromLatin1(box)); }
  QString Focus() const { return Driver().FocusName(); }
  void SetFocus(const char* name) const {
    Driver().Control(QString::fromLatin1(name))->setFocus(Qt::TabFocusReason);
    ScreenDriver::ProcessEvents();
  }
  int TakeBeeps() { return std::exchange(Program.Dialogs.Beeps, 0); }
  QString Time() const {
    const auto* item = Driver().Control<QListWidget>(QStringLiteral("lstTime"))->currentItem();
    return item == nullptr ? QString() : item->text();
  }
  void PickTime(const char* text) const {
    auto* list = Driver().Control<QListWidget>(QStringLiteral("lstTime"));
    list->setCurrentItem(list->findItems(QString::fromLatin1(text), Qt::MatchExactly).value(0));
    ScreenDriver::ProcessEvents();
  }

  /// The texts of a grid's row, from 1, joined by "|".
  QString Row(const char* grid, int row) const {
    const auto* model = Driver().Control<QTableView>(QString::fromLatin1(grid))->model();
    QStringList cells;
    for (int col = 0; col < model->columnCount(); ++col) cells << model->index(row - 1, col).data().toString();
    return cells.join(u'|');
  }
  int Rows(const char* grid) const {
    return Driver().Control<QTableView>(QString::fromLatin1(grid))->model()->rowCount();
  }
  void SelectRow(const char* grid, int row) const { Driver().SelectRow(QString::fromLatin1(grid), row); }

  ProgramFixture Program;

 private:
  static QString CommandName(int index) { return QStringLiteral("cmdServices_") + QString::number(index); }
};
