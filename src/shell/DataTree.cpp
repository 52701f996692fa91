#include "shell/DataTree.h"

#include "runtime/Clock.h"
#include "shell/CommonDiskRoutines.h"

using namespace Qt::StringLiterals;

void MakeDataTree(CommonDiskRoutines& disk, const Clock& clock) {
  const QString own = u"/"_s + disk.EXEName();
  const QString folders[] = {
      u"/"_s + QString::number(clock.Today().year()),
      u"/CompletedInvoices"_s,
      own,
      own + u"/IncompleteInvoices"_s,
      u"/KVActiveAccounts"_s,
      u"/KarvexInvoicer"_s,
      u"/KarvexCycleInvoicer"_s,
      u"/KarvexProposals"_s,
      u"/KarvexInvoicer/IncompleteInvoices"_s,
      u"/KarvexInvoicer/Narratives"_s,
      u"/KarvexInvoicer/Templates"_s,
      u"/KarvexInvoicer/Templates/Invoices"_s,
      u"/Backup"_s,
      u"/Backup"_s + own,
      u"/Backup/KVActiveAccounts"_s,
      u"/Backup/KVActiveAccountsBACK"_s,
      u"/Backup/CompletedInvoices"_s,
      u"/Backup"_s + own + u"/IncompleteInvoices"_s,
      u"/Templates"_s,
      u"/Templates/Contracts"_s,
      u"/Templates/ContractInvoices"_s,
      u"/Templates/Proposals"_s,
      u"/KarvexProposals/ProposalBody"_s,
      u"/ConstructionProjects"_s,
      u"/AuxFiles"_s,
  };
  for (const QString& folder : folders) disk.MakeDataFolder(folder);
}

bool RequiredFilesPresent(CommonDiskRoutines& disk) {
  bool present = true;
  for (const QString& name :
       {u"\\"_s + disk.EXEName() + u"Settings.txt"_s, u"\\MyBusinessData.txt"_s, u"\\Phone.txt"_s}) {
    if (!disk.FileExists(name)) present = false;
  }
  return present;
}
