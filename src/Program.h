/// The roof: owns the rules objects and the screens, wires them, and catches what nobody caught.
///
/// Two programs on two data roots can live one after the other in one process; nothing is kept outside this object.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <QPointer>
#include <QString>
#include <vector>

#include "desktop/Screen.h"
#include "Platform.h"
#include "shell/Screens.h"

class CommonDiskRoutines;
struct ProgramObjects;

class Program final : public Screens, public ScreenHost {
 public:
  explicit Program(const Platform& platform);
  ~Program() override;
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  /// `Sub Main`. False when the program ended in it: another instance runs, or something failed (a box told so).
  bool Start();
  bool HasEnded() const { return m_ended; }
  /// Whether it was an error that ended it.
  bool HasFailed() const { return m_failed; }
  /// Called once, when the program has ended; the event loop is the caller's to leave.
  std::function<void()> Ended;

  /// The screen, or nullptr while it isn't built. For tests and for taking pictures.
  Screen* Built(ScreenName screen) const;
  CommonDiskRoutines& Disk();

  // Screens
  void Show(ScreenName screen) override;
  void Hide(ScreenName screen) override;
  void Unload(ScreenName screen) override;
  void ShowSetupAtFirstTab() override;
  void StartInvoiceFor(const SoldTo& customer) override;
  void StartCall(const QString& name, const QString& number) override;
  void PrintSample() override;
  void QuitProgram() override;

  // ScreenHost
  void UnhandledError(const RuntimeError& error) override;
  void UserClosed() override;

 private:
  /// Makes the screen if it isn't there.
  Screen& Build(ScreenName screen);
  void Open(Screen& screen);
  QString NameOfBox(const QString& objectName) const;
  void KeepAWindow();
  void HideAll();
  void EndProcess();

  Platform m_platform;
  std::unique_ptr<ProgramObjects> m_objects;  ///< Every rules object, by folder.
  std::map<ScreenName, std::unique_ptr<Screen>> m_screens;
  std::vector<QPointer<Screen>> m_unloaded;  ///< Null once they are gone.
  ScreenName m_lastHidden = ScreenName::frmSplash;
  bool m_starting = false;
  bool m_ended = false;
  bool m_failed = false;
};
