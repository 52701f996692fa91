/// Completed invoices on a data tree, written by hand, and the way to their screen.
#pragma once

#include "support/ScreenDriver.h"
#include "support/TemporaryTree.h"

/// One service, so that the main menu offers what there is.
inline void StockCatalogue(const TemporaryTree& tree) {
  tree.Write(QStringLiteral("/Services.txt"), QByteArray("Repair").leftJustified(60, ' ') +
                                                  QByteArray("$10.00").leftJustified(10, ' ') +
                                                  QByteArray("\x01\x00", 2));
}

/// An image of two lines, whole.
inline QByteArray Image(const QByteArray& number, const QByteArray& name, const QByteArray& date,
                        const QByteArray& amount) {
  return number + "\r\n1001\r\n" + name + "\r\n" + date + "\r\n" + amount + "\r\n\"" + name +
         "\"\r\n"
         "\"1 Dock Rd\"\r\n"
         "\"Gate 2\"\r\n"
         "\"Salem\"\r\n"
         "\"MA\"\r\n"
         "\"01970\"\r\n"
         "\"Barn\"\r\n"
         "\"2 Hill Rd\"\r\n"
         "\"\"\r\n"
         "\"Lynn\"\r\n"
         "\"NH\"\r\n"
         "\"01901\"\r\n"
         "UPS Ground\r\n"
         "3/9/2026\r\n" +
         number +
         "\r\n"
         "1001\r\n"
         "PO 5\r\n"
         "Ann\r\n"
         "2\r\n"
         "2\r\n"
         "Hammer, \"big\"\r\n"
         "\r\n"
         "$12.00\r\n"
         "$24.00\r\n"
         "True\r\n"
         "\r\n"
         " Survey \r\n"
         "3/1/2026\r\n"
         "$1,000.00\r\n"
         "$1,000.00\r\n"
         "False\r\n"
         "\"$1,024.00\",\"$51.20\",\"$1.30\",\"" +
         amount + "\",\"$12.50\",\"$3.00\",\"($2.25)\"\r\n";
}

/// From the main menu to the screen.
inline void OpenReprint() {
  const ScreenDriver menu(QStringLiteral("frmStartup"));
  menu.Click(QStringLiteral("optMainMenuSub_2"));
  menu.Click(QStringLiteral("cmdGoto"));
}
