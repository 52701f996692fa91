// The three labor rates and their file, three lines of a name and a rate.

#include "catalogue/Catalogue.h"
#include "shell/CommonDiskRoutines.h"

using namespace Qt::StringLiterals;

void Catalogue::LoadLabor() {
  LaborRates rates;
  const bool exists = m_disk.FileExists(CatalogueFile::Labor());
  if (exists) {
    ListReader file = m_disk.OpenInputFile(CatalogueFile::Labor());
    for (std::size_t i = 0; i < 3; ++i) {
      rates.txtLabor[i] = file.ReadString();
      rates.txtLaborRate[i] = file.ReadString();
    }
    m_disk.CloseAllFiles();
  } else {
    rates.txtLabor[0] = u"General Labor"_s;
    rates.txtLaborRate.fill(ZeroCurrencyText());
  }
  Labor = rates;
  EnableCommand(CatalogueCommand::ReloadLabor, exists);
  if (LaborLoaded) LaborLoaded();
}

void Catalogue::SaveLabor() {
  ListWriter file;
  for (std::size_t i = 0; i < 3; ++i) file.Field(Labor.txtLabor[i]).Field(Labor.txtLaborRate[i]).EndLine();
  m_disk.CloseAllFiles();
  m_disk.SaveFile(CatalogueFile::Labor(), file.Content(), BackupCopy::Dropped);
}
