/// The measured operations. Each prints its rows. `fullTree` is a tree filled to all limits, which they share.
#pragma once

#include <QString>

#include "desktop/SerialLine.h"

/// Time until the first window is painted and the event loop runs, and memory beside it, over a bare window of the
/// toolkit and over one with a word in it: each run is a process of its own, which `RunAsStarter` is.
void MeasureStart(const QString& ownProgramFile, const QString& fullTree);
/// The part of a child process of `MeasureStart`; answers its exit code, or -1 where the arguments ask for none.
int RunAsStarter(int argc, char* argv[]);

/// Sixteen ports on which nothing stands: no device of the machine is touched.
PortTable AbsentPorts();
/// The search for a modem where no port is there, over the failing opens alone.
void MeasureAbsentPorts();

/// The customers' folders at start, over the same calls made raw.
void MeasureDataTree(const QString& fullTree);
/// Opening the customer screen over reading the file once and sorting the names, and one step of navigation.
void MeasureCustomers(const QString& fullTree);
/// A search by each criterion over one pass on the raw file, the complete list, and a key in the name list's search.
void MeasureSearch(const QString& fullTree);
/// A commit of 100 lines on full files over the same on empty ones.
void MeasureCommit();
/// The sales grid of 32,767 records and 510 ticked names over one pass with one look-up each.
void MeasureItemSales();
/// A page to PDF over the same texts and lines drawn straight.
void MeasurePage();
/// The list of 10,000 completed invoices over opening each image and reading five lines; one of them, and the main
/// menu's tests, over the same among ten; and the sorts of the list.
void MeasureCompleted();
