/// The proposals that a companion program left in /KarvexProposals: whose customers the selection screen offers.
#pragma once

#include <QString>
#include <vector>

#include "runtime/TextMatrix.h"

class CommonDiskRoutines;

/// The fields that a proposal's file starts with, in their order.
struct Proposal {
  QString ProposalNo;
  QString ProposalAmount;
  QString ProposalDate;
  QString ProposalAcct;
  QString ProposalName;
  QString ProposalAddr1;
  QString ProposalAddr2;
  QString ProposalCity;
  QString ProposalState;
  QString ProposalPostal;
  QString ProposalPhone;
};

struct ProposalList {
  ProposalList();

  /// Number, date, customer and amount: row i shows proposal i. The current row is the one chosen.
  TextMatrix fgProposals;
  std::vector<Proposal> Proposals;

  int Count() const { return static_cast<int>(Proposals.size()); }
  /// The proposal of the current row; nullptr where none is.
  const Proposal* Current() const;
};

/// Reads the folder anew, in name order, and makes row 1 current; false where it holds no proposal. A file that can't
/// be read as a proposal throws a RuntimeError that names it: 62 where fields are missing, 13 or 6 where the amount
/// isn't one. That ends the event alone, since the files are another program's and nothing of this one's is damaged.
bool LoadProposals(ProposalList& list, CommonDiskRoutines& disk);
