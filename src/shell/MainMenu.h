/// The main menu's rules: which routines make sense for the data at hand.
#pragma once

#include <array>
#include <functional>

#include <QString>
#include "shell/Screens.h"

class CommonDiskRoutines;
class Dialogs;

/// What the main menu asks of the floors above it.
struct MainMenuContext {
  CommonDiskRoutines& Disk;
  Dialogs& Boxes;
  QString ProgramFolder;                    ///< Where the manual stands.
  std::function<int()> LoadPartialList;     ///< Loads the list of partial invoices and answers their number.
  std::function<bool(ScreenName)> IsShown;  ///< Whether its window stands.
};

struct MainMenuState {
  std::array<bool, 7> Visible{};  ///< Of `optMainMenuSub`.
  bool Instructions = false;      ///< No catalogue yet: `fraInstructions`.
  int Selected = 3;
  QString Incomplete;  ///< `lblIncomplete`; null where the text stays as it was.
};

/// Asks for each file in the order of the options, so that one that only /Backup holds comes back here.
MainMenuState UpdateMainMenu(const MainMenuContext& context);
