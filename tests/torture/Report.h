/// How a try tells what it saw: a file beside the tree.
#pragma once

#include "torture/Bench.h"

void WriteReport(const QString& file, const Outcome& outcome);
/// False if there is none.
bool ReadReport(const QString& file, Outcome& outcome);
