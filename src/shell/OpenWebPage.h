/// Pages in the user's browser: the manual, and the suppliers of forms.
#pragma once

#include <QString>

class CommonDiskRoutines;
class Dialogs;

/// Notes the page in /Temp.url, which stays on the disk and is rewritten at each use, and opens it.
void OpenWebPage(const QString& url, CommonDiskRoutines& disk, Dialogs& dialogs);
