/// Makes each screen, with the rules objects and the devices that it works on.
#pragma once

#include <functional>
#include <memory>

#include "desktop/Screen.h"
#include "shell/Screens.h"

struct Platform;
struct ProgramObjects;

/// What screens are made of.
struct ScreenParts {
  ProgramObjects& Our;
  const Platform& On;
  ScreenHost& Host;
  Screens& Others;
  std::function<bool(ScreenName)> IsShown;
};

/// The screen, made anew and not shown.
std::unique_ptr<Screen> MakeScreen(ScreenName screen, const ScreenParts& parts);
