/// The ordering menu's entries, built alike on the main menu and on Setup.
#pragma once

#include <utility>
#include <vector>

#include "shell/OrderForms.h"

class QAction;
class QMenu;

/// Fills `menu` and answers each entry's action; the screen runs `RunOrderEntry` when one is triggered.
std::vector<std::pair<QAction*, OrderEntry>> BuildOrderMenu(QMenu* menu);
