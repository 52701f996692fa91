#include "shell/VerifyDataRoutines.h"

#include "runtime/Currency.h"
#include "runtime/Dialogs.h"
#include "runtime/Numbers.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int backspace = 8;

bool IsDigitKey(int key) {
  return key >= '0' && key <= '9';
}

int Refuse(int key, Dialogs& dialogs) {
  dialogs.Beep();
  dialogs.ShowMessage(u"This character, ("_s + QChar(static_cast<char16_t>(key)) + u") is invalid for this field"_s,
                      u"Invalid Key entry"_s);
  return 0;
}

}  // namespace

int VerifyDecimalKey(int key, const QString& boxText) {
  // Backspace isn't let through, which is meant: the box is corrected with the delete key or by selecting.
  if (key == '0' && boxText.isEmpty()) return 0;
  if (key == '.' && boxText.contains(u'.')) return 0;
  return IsDigitKey(key) || key == '.' ? key : 0;
}

int VerifyDigitKey(int key) {
  return key == backspace || IsDigitKey(key) ? key : 0;
}

bool IsRefusedInFileNames(int key) {
  return key > 0 && key < 128 && ",&.\\*/?"_L1.contains(QLatin1Char(static_cast<char>(key)));
}

int VerifyFileNameKey(int key, const QString& boxText, Dialogs& dialogs) {
  if (key == backspace) return key;
  // A box that holds a number takes any key, which is meant: the check is aimed at names.
  if (IsNumeric(boxText)) return key;
  return IsRefusedInFileNames(key) ? Refuse(key, dialogs) : key;
}

int VerifyQuoteKey(int key, Dialogs& dialogs) {
  return key == '"' ? Refuse(key, dialogs) : key;
}

KeyFilters QuoteFilters(Dialogs& dialogs) {
  return {[&dialogs](int key) { return VerifyQuoteKey(key, dialogs); }, [](int key) { return key == '"' ? 0 : key; }};
}

bool VerifyCurrencyBox(QString& boxText, Dialogs& dialogs) {
  if (const std::optional<QString> amount = CurrencyTextOf(boxText)) {
    boxText = *amount;
    return true;
  }
  dialogs.Beep();
  boxText.clear();
  return false;
}

QString BuildPersonName(const QString& a, const QString& b, const QString& c, const QString& d) {
  QString name;
  const auto add = [&name](const QString& part, QLatin1StringView after) {
    const QString trimmed = TrimBlanks(part);
    if (!trimmed.isEmpty()) name += trimmed + after;
  };
  add(a, " "_L1);
  add(b, " "_L1);
  add(c, ". "_L1);
  add(d, ""_L1);
  return name;
}
