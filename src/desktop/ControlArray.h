/// A control array of a form: element i is the child named "name_i". Gaps are allowed; asking for one is a mistake of
/// the program: std::logic_error.
#pragma once

#include <array>
#include <QWidget>
#include <stdexcept>
#include <string>

template <typename Control, int Count>
class ControlArray {
 public:
  /// Gathers the elements in one pass over the form, which must have been set up.
  ControlArray(const QObject* form, const QString& name) {
    const QString prefix = name + u'_';
    for (Control* control : form->findChildren<Control*>()) {
      const QString own = control->objectName();
      if (!own.startsWith(prefix)) {
        continue;
      }
      bool isNumber = false;
      const int index = QStringView(own).sliced(prefix.size()).toInt(&isNumber);
      if (isNumber && index >= 0 && index < Count) {
        m_controls[static_cast<std::size_t>(index)] = control;
      }
    }
  }
  Control* operator[](int index) const {
    if (!Has(index)) throw std::logic_error("a control array has no element " + std::to_string(index));
    return m_controls[static_cast<std::size_t>(index)];
  }
  bool Has(int index) const {
    return index >= 0 && index < Count && m_controls[static_cast<std::size_t>(index)] != nullptr;
  }
  static constexpr int Size() { return Count; }

 private:
  std::array<Control*, static_cast<std::size_t>(Count)> m_controls{};
};
