/// Works on one window as a person does: by mouse and keys, sent to the window and handed on by the toolkit, so that
/// what is covered, hidden, disabled or shut out by a box can't be reached. Controls are found by their object names.
///
///   ScreenDriver customers(u"frmNewCustomer"_s);
///   customers.Fill(u"txtCustomer_0"_s, u"1001"_s);
///   customers.Click(u"cmdNav_2"_s);
///   QCOMPARE(customers.Control<QLineEdit>(u"txtCustomer_1"_s)->text(), u"Smith"_s);
///
/// After each act all pending events have been handled. A control that isn't there, or can't be reached by the act,
/// fails the test.
#pragma once

#include <QWidget>

class QAction;

class ScreenDriver {
 public:
  /// The visible top-level window of that name.
  explicit ScreenDriver(const QString& windowName);
  explicit ScreenDriver(QWidget* window);

  QWidget* Window() const { return m_window; }
  static QWidget* FindWindow(const QString& windowName);
  static bool IsShown(const QString& windowName) { return FindWindow(windowName) != nullptr; }

  /// The control of that name, of that kind.
  template <typename Kind = QWidget>
  Kind* Control(const QString& name) const {
    auto* control = m_window->findChild<Kind*>(name);
    if (control == nullptr) {
      Missing(name);
    }
    return control;
  }
  QAction* Entry(const QString& actionName) const;

  /// Text boxes, combos and labels: what they show.
  QString Text(const QString& name) const;
  bool IsVisible(const QString& name) const { return Control(name)->isVisible(); }
  bool IsEnabled(const QString& name) const { return Control(name)->isEnabled(); }
  /// The object name of the control that has the focus.
  QString FocusName() const;

  /// A click with the left button; on the indicator of radio buttons and check boxes.
  void Click(const QString& name) const;
  void DoubleClick(const QString& name) const;
  /// Clicks an entry of a popup that is open.
  void ClickPopup(const QString& menuName, const QString& actionName) const;
  /// Into the control that has the focus.
  void Type(const QString& text) const;
  void PressKey(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const;
  /// Alt and the letter.
  void PressAccessKey(char letter) const;
  /// Clicks into a box, selects what it holds, and types over it; empty text deletes it. The focus stays there.
  void Fill(const QString& name, const QString& text) const;
  /// Puts a text on the clipboard and pastes it into the control that has the focus.
  void Paste(const QString& text) const;

  /// Opens the list and clicks the entry.
  void PickEntry(const QString& comboName, int index) const;
  void PickEntry(const QString& comboName, const QString& entry) const;

  /// Grid rows count from 1.
  void SelectRow(const QString& gridName, int row, int col = 0) const;
  void DoubleClickRow(const QString& gridName, int row, int col = 0) const;
  void RightPressRow(const QString& gridName, int row, int col = 0) const;
  /// One notch is 120; upwards is positive.
  void Wheel(const QString& name, int delta) const;

  /// Runs a menu entry that is visible and enabled, of the menu bar or of a popup.
  void Trigger(const QString& actionName) const;

  /// The window's own close box.
  void CloseByUser() const;

  /// A picture of the window.
  void GrabPng(const QString& fileName) const;

  static void ProcessEvents();

 private:
  [[noreturn]] void Missing(const QString& name) const;
  void Activate() const;
  QPoint Reach(QWidget* control, const QPoint& position) const;
  QPoint CellAt(const QString& gridName, int row, int col) const;

  QWidget* m_window;
};
