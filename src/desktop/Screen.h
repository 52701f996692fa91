/// The base of every screen: one top-level window whose object name is the screen's name. It brings what the toolkit
/// doesn't give by itself: handlers that no exception leaves, boxes that settle when they are left, and key filters.
#pragma once

#include <functional>
#include <memory>
#include <QMainWindow>

#include "desktop/WindowPlacement.h"
#include "runtime/KeyFilters.h"
#include "runtime/RuntimeError.h"

class QAbstractButton;
class QComboBox;
class QLineEdit;
class TypedText;

/// What a screen tells the program around it.
class ScreenHost {
 public:
  virtual ~ScreenHost() = default;
  /// An error that no handler took: shows its box and, where a data file's content is damaged, ends the program.
  virtual void UnhandledError(const RuntimeError& error) = 0;
  /// The user's own window close box.
  virtual void UserClosed() = 0;
  /// Where the last screen stood: the next one opens there.
  WindowPlacement& Placement() { return m_placement; }

 private:
  WindowPlacement m_placement;
};

class Screen : public QMainWindow {
 public:
  Screen(const QString& name, ScreenHost& host);
  ~Screen() override;

  /// Asked when the screen is to be shown; where it says no, it isn't, and no activation runs.
  virtual bool MayShow() { return true; }
  /// Runs each time the screen is shown, before its window appears.
  virtual void Activate() {}

  /// Runs a handler under the guard: a RuntimeError goes to the host, and no later statement of the event runs.
  /// Answers whether the handler ran to its end.
  bool Run(const std::function<void()>& handler);

  void setVisible(bool visible) override;

 protected:
  /// Sets up the form from its description. It stands in the initialiser of the first control array, since arrays are
  /// gathered from a form that is set up; the description itself is a member before them.
  template <typename Form>
  const QObject* BuildForm(Form& form) {
    form.setupUi(this);
    return this;
  }

  /// Before the program ends because the user closed this window. An error in it keeps the program running.
  virtual void BeforeUserClose() {}

  /// How a click treats the box that was left for it: `Dropped` when its check takes the focus back (Save, post,
  /// Finalize), or `Always` run (Menu, Cancel, Clear, Continue).
  enum class WhenLeaveRefused { Dropped, Always };
  /// The button takes the focus first, so that the box that is left settles before the handler runs; the same for the
  /// access key, the space bar, and Enter on the button. Handlers call each other's routines, never `click()`: an error
  /// behind a click ends that click alone, and the caller would go on.
  void OnClick(QAbstractButton* button, std::function<void()> handler,
               WhenLeaveRefused rule = WhenLeaveRefused::Dropped);

  /// Runs the button for a key pressed elsewhere, as its access key does: where the box that is left takes the focus
  /// back or fails, a click that would use it is dropped. Where a message came up and the screen sent the focus
  /// nowhere, it goes back to where the key was pressed, so that what was typed there can be corrected or typed over.
  void PressButton(QAbstractButton* button);

  /// The button that Enter runs where no control has a use for that key, and the one that Escape runs: the obvious
  /// next thing, and the way back where it loses nothing. Null for none. They are run as by their access keys.
  void SetEnterButton(QAbstractButton* button);
  void SetEscapeButton(QAbstractButton* button);

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
  /// A leave handler runs before the enter handler of the control that gets the focus. Where it takes the focus back,
  /// the enter handler of its own box runs instead, and where it sends it to a third control, that one's. Hiding the
  /// window is no leaving.
  void OnEnter(QWidget* control, std::function<void()> handler);
  void OnLeave(QWidget* control, std::function<void()> handler);

  /// A key press: `filter` gets the character code (Backspace is 8, Enter 13) and answers the code to let through or
  /// 0. Chords and editing keys pass by themselves. Pasted text passes `pasteFilter` (by default the same filter)
  /// character by character; give one without messages where the key filter shows any.
  void FilterKeys(QWidget* box, KeyFilter filter, KeyFilter pasteFilter = {});
  void FilterKeys(QWidget* box, const KeyFilters& filters) { FilterKeys(box, filters.Typed, filters.Pasted); }
  /// Cuts what is typed or pasted at `characters`, never a text set from code.
  void SetTypingLimit(QWidget* box, int characters);

  /// Gives the focus where there is a control that is visible and enabled, else does nothing. Before the window shows,
  /// the request is kept until it does; of several the last that can be granted then is.
  void SetFocusTo(QWidget* control);

  bool event(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void moveEvent(QMoveEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  struct State;
  TypedText& Typed(QWidget* box);
  /// So that the titles of all screens stand at one height, with a menu bar above them or without.
  void LeaveRoomForMenuBar();
  /// Sets the focus that the activation asked for, now that the window is visible.
  void ApplyPendingFocus();

  std::unique_ptr<State> m_state;
  ScreenHost& m_host;
};

/// Runs a callback of a control under the guard of the screen that the control stands on; plainly where there is none.
/// For what the user's own events start; what code starts is called plainly, so that an error ends the whole event.
void RunInScreen(QWidget* control, const std::function<void()>& callback);
