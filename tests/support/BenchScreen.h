/// A bare screen for tests of what every screen shares: its handlers are set by the test.
#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStringList>
#include <QVBoxLayout>

#include "desktop/Screen.h"

class RecordingHost final : public ScreenHost {
 public:
  void UnhandledError(const RuntimeError& error) override { Errors.append(error.Number()); }
  void UserClosed() override { ++Closes; }

  QList<int> Errors;
  int Closes = 0;
};

class BenchScreen : public Screen {
 public:
  explicit BenchScreen(ScreenHost& host, const QString& name = QStringLiteral("frmBench")) : Screen(name, host) {
    setCentralWidget(new QWidget);
    m_layout = new QVBoxLayout(centralWidget());
  }

  /// Adds a control of that name under the others.
  template <typename Kind>
  Kind* Add(const QString& name) {
    auto* control = new Kind;
    control->setObjectName(name);
    m_layout->addWidget(control);
    return control;
  }

  using Screen::FilterKeys;
  using Screen::On;
  using Screen::OnClick;
  using Screen::OnEnter;
  using Screen::OnLeave;
  using Screen::SetEnterButton;
  using Screen::SetEscapeButton;
  using Screen::SetFocusTo;
  using Screen::SetTypingLimit;
  using Screen::WhenLeaveRefused;

  std::function<void()> Closing;
  void BeforeUserClose() override {
    if (Closing) Closing();
  }

 private:
  QVBoxLayout* m_layout;
};
