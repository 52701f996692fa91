/// The purge of the sold items' records in a range of dates.
#pragma once

class CommonDiskRoutines;
struct SalesRange;

/// Takes the records from the start picker's date to the end picker's, both included, out of /SoldItems.txt. What is
/// left becomes the backup copy too; where nothing is left, file and copy go. Answers whether any record was kept. What
/// fails before the shorter file stands leaves the file as it was; so does a file of more than 32,767 records,
/// RuntimeError 6 of this event.
bool PurgeSoldItems(const SalesRange& range, CommonDiskRoutines& disk);
