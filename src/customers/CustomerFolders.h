/// The folders of the customers' auxiliary data: /AuxFiles/<account>/AuxFile0 to AuxFile5.
#pragma once

#include <QString>

class CommonDiskRoutines;

inline constexpr int AuxBoxCount = 6;

QString AuxFolder();                ///< The one above all accounts'.
QString AuxBoxFolderName(int box);  ///< Inside the account's.

/// For each customer of /CustomerData.txt his folder with its six subfolders, each only if it isn't there. An account
/// number that is blank or would name a place outside its folder is passed over. Throws RuntimeError 70 or 75 for a
/// folder that can't be made.
void MakeCustomerFolders(CommonDiskRoutines& disk);
