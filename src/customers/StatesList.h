/// The states that the customer screen offers: /StatesList.txt, supplied with the program.
#pragma once

#include <QStringList>

class CommonDiskRoutines;

/// Exactly 50 entries; none where the file is absent. A file with fewer is damaged: RuntimeError 62.
QStringList LoadStatesList(CommonDiskRoutines& disk);
