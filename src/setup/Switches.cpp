#include "setup/Switches.h"

#include "runtime/RuntimeError.h"

using namespace Qt::StringLiterals;

bool ReadSwitch(ListReader& file) {
  const qint16 value = file.ReadInt16();
  if (value != 0 && value != 1) {
    throw RuntimeError(ErrorNumber::TypeMismatch, file.FileName(), u"A tick box in it is neither 0 nor 1."_s,
                       RuntimeError::Origin::FileContent);
  }
  return value == 1;
}
