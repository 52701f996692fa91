/// The base of every screen: one top-level window whose object name is the screen's name. It brings what the toolkit
/// doesn't give by itself: handlers that no exception leaves, boxes that settle when they are left, and key filters.
#pragma once

#include <QMainWindow>
#include <functional>
#include <memory>

#include "runtime/RuntimeError.h"

class QAbstractButton;
class QComboBox;
class QLineEdit;

/// What a screen tells the program around it.
class ScreenHost {
 public:
  virtual ~ScreenHost() = default;
  /// An error that no handler took: shows its box and, where a data file's content is damaged, ends the program.
  virtual void UnhandledError(const RuntimeError& error) = 0;
  /// The user's own window close box.
  virtual void UserClosed() = 0;
};

class Screen : public QMainWindow {
 public:
  Screen(const QString& name, ScreenHost& host);
  ~Screen() override;

  /// Runs each time the screen is shown, before its window appears.
  virtual void Activate() {}
  /// The focus that the activation asked for is set once the window is visible.
  void ApplyPendingFocus();

 protected:
  /// Before the program ends because the user closed this window.
  virtual void BeforeUserClose() {}

  /// Runs a handler under the guard: a RuntimeError goes to the host, and no later statement of the event runs.
  void Run(const std::function<void()>& handler);

  /// How a click treats the box that was left for it: `Dropped` when its check takes the focus back (Save, post,
  /// Finalize), or `Always` run (Menu, Cancel, Clear, Continue).
  enum class WhenLeaveRefused { Dropped, Always };
  void OnClick(QAbstractButton* button, std::function<void()> handler,
               WhenLeaveRefused rule = WhenLeaveRefused::Dropped);

  /// Any other signal, under the guard.
  template <typename Sender, typename Signal, typename Handler>
  void On(Sender* sender, Signal signal, Handler handler) {
    connect(sender, signal, this, [this, handler](auto&&... values) {
      Run([&] {
        if constexpr (std::is_invocable_v<Handler, decltype(values)...>) {
          handler(values...);
        } else {
          handler();
        }
      });
    });
  }

  /// The focus comes to, or leaves, a control of this window; never because a box, a menu or another program took it.
  void OnEnter(QWidget* control, std::function<void()> handler);
  void OnLeave(QWidget* control, std::function<void()> handler);

  /// A key press: `filter` gets the character code (Backspace is 8, Enter 13) and answers the code to let through or
  /// 0. Chords and editing keys pass by themselves. Pasted text passes `pasteFilter` (by default the same filter)
  /// character by character; give one without messages where the key filter shows any.
  using KeyFilter = std::function<int(int key)>;
  void FilterKeys(QWidget* box, KeyFilter filter, KeyFilter pasteFilter = {});
  /// Cuts what is typed or pasted at `characters`, never a text set from code.
  void SetTypingLimit(QWidget* box, int characters);

  /// Gives the focus where the control is visible and enabled, else does nothing. Before the window shows, the
  /// request is kept until it does.
  void SetFocusTo(QWidget* control);

  void closeEvent(QCloseEvent* event) override;

 private:
  struct State;
  std::unique_ptr<State> m_state;
  ScreenHost& m_host;
};
