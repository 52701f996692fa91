/// Each of the program's saves as the sweeps drive it: the tree that it starts from, the way to it through the real
/// screens, and the one act of the user that saves.
#pragma once

#include <functional>
#include <QString>
#include <vector>

#include "support/ScreenDriver.h"
#include "torture/DataTree.h"

class Desk;

struct Save {
  /// How much of a failure the user is told.
  enum class Telling {
    Box,        ///< A box names the file.
    SkipsRest,  ///< Nothing; what was still to come is left out: a commit.
    PassesOver  ///< Nothing; the file keeps its older copy: the exit backup.
  };
  /// What doing it again after a kill makes of the tree that the kill left.
  using Continued = std::function<DataTree(const DataTree& left, const DataTree& before, const DataTree& after)>;

  QString Name;
  /// From the common tree to the one that this save starts from.
  std::function<void(DataTree& tree)> Stock = [](DataTree&) {};
  /// From the main menu to just before the save. Empty where the program's start itself is what saves.
  std::function<void(Desk&)> Prepare{};
  std::function<void(Desk&)> Perform{};
  QString Screen{};  ///< Where it can be done again after a failure; blank: after a new start only.
  /// That is the main menu: he goes the way to the save once more, and what `Again` tells must come of it.
  bool FromMenu = false;
  /// It prints on the real paper: to PDF files in the tree's folder /Printed.
  bool OnPaper = false;
  Telling Tells = Telling::Box;
  /// Whether the user sees at the next start that it was done. By default the tree is the one after it.
  std::function<bool(const DataTree& left, const DataTree& after)> IsDone{};
  QSet<QString> MayLag{};  ///< What may still be as it was before when it was done.
  Continued Again{};       ///< By default the tree after it.

  bool AtStart() const { return Prepare == nullptr; }
  bool WasDone(const DataTree& left, const DataTree& after) const {
    return IsDone ? IsDone(left, after) : left == after;
  }
};

/// The shape of most: a way to a window, and a button of it that saves and can be clicked again.
inline Save ByClick(const QString& name, const QString& window, std::function<void(Desk&)> prepare,
                    const QString& button) {
  Save save{.Name = name, .Prepare = std::move(prepare)};
  save.Perform = [window, button](Desk&) { ScreenDriver(window).Click(button); };
  save.Screen = window;
  return save;
}
/// The same of an entry of the menus.
inline Save ByEntry(const QString& name, const QString& window, std::function<void(Desk&)> prepare,
                    const QString& entry) {
  Save save{.Name = name, .Prepare = std::move(prepare)};
  save.Perform = [window, entry](Desk&) { ScreenDriver(window).Trigger(entry); };
  save.Screen = window;
  return save;
}

/// All of them, in the order of a business's day.
std::vector<Save> AllSaves();
std::vector<Save> SavesOfFiles();
std::vector<Save> SavesOfInvoices();
std::vector<Save> SavesOnPaper();
/// A save as a careless program does it, and the words by which a sweep finds it out; none for the careful one.
struct CarelessSave {
  Save What;
  QString Found;
};
std::vector<CarelessSave> CarelessSaves();

/// A business with customers, a catalogue, partial invoices and records, and older copies of all in /Backup.
DataTree CommonTree();
