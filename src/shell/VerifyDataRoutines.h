/// Keystroke filters and small normalisers. A filter takes the character code of a key and the box's present text and
/// answers the code to let through, or 0 to swallow the key.
#pragma once

#include <QString>

#include "runtime/KeyFilters.h"

class Dialogs;

/// Digits and one point; no leading zero in an empty box; Backspace (8) is swallowed, which is meant.
int VerifyDecimalKey(int key, const QString& boxText);
/// Backspace and digits.
int VerifyDigitKey(int key);
/// Text that becomes part of a file name: refuses , & . \ * / ? with a message, unless the box holds a number already.
int VerifyFileNameKey(int key, const QString& boxText, Dialogs& dialogs);
/// Text that is stored in a line text file: refuses the double quote with a message.
int VerifyQuoteKey(int key, Dialogs& dialogs);
/// Both filters of such a box: typed by `VerifyQuoteKey`, and dropped from what is pasted. The format of those files
/// has no way to write a double quote.
KeyFilters QuoteFilters(Dialogs& dialogs);
/// The codes that `VerifyFileNameKey` refuses in a box that holds no number; used for pasted text, without message.
bool IsRefusedInFileNames(int key);

/// A currency box on leaving: numeric text becomes currency text and the answer is true; other text is emptied with a
/// beep and the answer is false (the caller gives the box the focus again).
bool VerifyCurrencyBox(QString& boxText, Dialogs& dialogs);

/// Up to four parts, trimmed, empty ones left out; the third gets a point: "Mr John Q. Public". Keeps a trailing
/// blank where the last part is empty.
QString BuildPersonName(const QString& a, const QString& b, const QString& c, const QString& d);
