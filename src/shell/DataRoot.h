/// Where the data live.
#pragma once

#include <QString>

class FileDevice;

/// The folder of the program file where that is writable, else `userDataFolder`/KarvexInvoicer, which is made; files
/// supplied with the program (StatesList.txt) are copied there if absent. Absolute, without a trailing separator.
QString ChooseDataRoot(FileDevice& files, const QString& programFolder, const QString& userDataFolder);
