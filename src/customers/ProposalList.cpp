#include "customers/ProposalList.h"

#include "runtime/Currency.h"
#include "runtime/RuntimeError.h"
#include "shell/CommonDiskRoutines.h"

using namespace Qt::StringLiterals;

namespace {

const QString Folder = u"/KarvexProposals"_s;

/// What a proposal has more of where its number lacks the mark; nothing here uses it.
constexpr int ExtraFields = 7;

Proposal ReadProposal(ListReader& file) {
  Proposal proposal;
  for (QString* field :
       {&proposal.ProposalNo, &proposal.ProposalAmount, &proposal.ProposalDate, &proposal.ProposalAcct,
        &proposal.ProposalName, &proposal.ProposalAddr1, &proposal.ProposalAddr2, &proposal.ProposalCity,
        &proposal.ProposalState, &proposal.ProposalPostal, &proposal.ProposalPhone}) {
    *field = file.ReadString();
  }
  // The rest of the file isn't looked at, but these must be there.
  if (!proposal.ProposalNo.contains(u"FP")) {
    for (int i = 0; i < ExtraFields; ++i) file.ReadString();
  }
  return proposal;
}

QString AmountText(const Proposal& proposal) {
  if (const auto text = CurrencyTextOf(proposal.ProposalAmount)) return *text;
  constexpr int shown = 40;
  throw RuntimeError(ErrorNumber::TypeMismatch, QString(),
                     u"Its amount, \"%1\", isn't a number."_s.arg(proposal.ProposalAmount.left(shown)));
}

void LoadRow(ProposalList& list, int row, ListReader& file) {
  const Proposal proposal = ReadProposal(file);
  list.fgProposals.SetText(row, 0, proposal.ProposalNo);
  list.fgProposals.SetText(row, 1, proposal.ProposalDate);
  list.fgProposals.SetText(row, 2, proposal.ProposalName);
  list.fgProposals.SetText(row, 3, AmountText(proposal));
  list.Proposals.push_back(proposal);
}

}  // namespace

ProposalList::ProposalList()
    : fgProposals(
          u"<Proposal No       |<Created on       |<Customer Information                           |>Amount          "_s) {
}

const Proposal* ProposalList::Current() const {
  const int row = fgProposals.Row();
  return row < 1 || row > Count() ? nullptr : &Proposals[static_cast<std::size_t>(row - 1)];
}

bool LoadProposals(ProposalList& list, CommonDiskRoutines& disk) {
  const QStringList files = disk.ListFiles(Folder, u"*.txt"_s);
  TextMatrix& grid = list.fgProposals;
  list.Proposals.clear();
  grid.SetRows(static_cast<int>(files.size()) + 1);
  grid.Clear();
  if (files.isEmpty()) return false;
  grid.SetRow(1);
  for (int row = 1; row <= files.size(); ++row) {
    const QString name = Folder + u'/' + files.at(row - 1);
    ListReader file = disk.OpenInputFile(name);
    try {
      LoadRow(list, row, file);
    } catch (const RuntimeError& error) {
      throw error.AsEvent(name);
    }
    disk.CloseAllFiles();
  }
  return true;
}
