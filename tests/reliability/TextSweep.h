/// Hostile texts and numbers at the edges of 16, 32 and 64 bits for every box that can be typed into: each is pasted,
/// the box is left, and the screen's own save is pressed. The program goes on; what was saved can be read at the next
/// start; and what stood before beside it still stands. No box of a screen is left out, and no text of a box.
#pragma once

#include <functional>

#include "support/ProgramFixture.h"

namespace TextSweep {

/// What is put into every box.
const QStringList& Texts();

/// A place of the program where boxes stand open: how the user comes there from the menu, and what he saves by.
struct Stage {
  const char* Name;
  QString Window;
  std::function<void()> Open;
  QStringList Boxes;                 ///< All that are open here and not in a stage before.
  QStringList Saves;                 ///< The buttons pressed after each text, in this order, those of them that can be.
  std::function<void()> Again = {};  ///< How he comes there once all is saved, where that differs.
  std::function<void(const TemporaryTree&)> Stock = {};  ///< What the tree holds beside the common files.
};

/// All boxes of a window that its user types into, by name, whichever page or view they stand on.
QStringList BoxesOf(const QWidget* window);
/// Brings the pages to the front that the box stands on.
void ShowPageOf(QWidget* box);

/// The tree that a stage begins with.
void Begin(ProgramFixture& program, const Stage& stage);
/// Every box of the stage with every text, a fresh program for each box.
void SweepBoxes(const Stage& here);
/// The next start reads everything, the screen opens again, and each partial invoice is recalled, all without a word.
void CheckWhatWasSaved(ProgramFixture& program, const Stage& stage);

}  // namespace TextSweep
