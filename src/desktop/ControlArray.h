/// A control array of a form: element i is the child named "name_i". Gaps are allowed; asking for one is a mistake of
/// the program and asserted.
#pragma once

#include <QWidget>
#include <array>

template <typename Control, int Count>
class ControlArray {
 public:
  ControlArray(const QObject* form, const QString& name) {
    for (int i = 0; i < Count; ++i) {
      m_controls[static_cast<std::size_t>(i)] = form->findChild<Control*>(name + u'_' + QString::number(i));
    }
  }
  Control* operator[](int index) const {
    Q_ASSERT(index >= 0 && index < Count);
    Control* control = m_controls[static_cast<std::size_t>(index)];
    Q_ASSERT(control != nullptr);
    return control;
  }
  bool Has(int index) const {
    return index >= 0 && index < Count && m_controls[static_cast<std::size_t>(index)] != nullptr;
  }
  static constexpr int Size() { return Count; }

 private:
  std::array<Control*, static_cast<std::size_t>(Count)> m_controls{};
};
