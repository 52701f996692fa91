/// `dlgPrint`, the one dialog in which files, colours, fonts and printers are chosen: what it keeps from use to use.
#pragma once

#include <QString>

struct CommonDialog {
  /// The picture that Setup's Find chose. Empty after every other use of the dialog, cancelled ones included.
  QString FileName;
};
