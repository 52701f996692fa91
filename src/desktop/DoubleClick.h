/// A double click on a text box that means something of its own, and the key that does the same: F2.
#pragma once

#include <functional>

class QWidget;

/// `handler` runs under the guard of the box's screen, in place of the toolkit's selecting of a word.
void OnDoubleClick(QWidget* box, std::function<void()> handler);
