#include "customers/AuxiliaryData.h"

#include <optional>

#include "customers/CommonAccountRoutines.h"
#include "runtime/Numbers.h"
#include "runtime/RuntimeError.h"
#include "shell/CommonDiskRoutines.h"

using namespace Qt::StringLiterals;

namespace {

QString HeadingsFile() {
  return u"/AuxHeadings.txt"_s;
}

QString AccountFolder(const QString& account) {
  return AuxFolder() + u'/' + account;
}

QString BoxFolder(const QString& account, int box) {
  return AccountFolder(account) + u'/' + AuxBoxFolderName(box);
}

QString BoxFile(const QString& account, int box) {
  return BoxFolder(account, box) + u"/Data.txt"_s;
}

QString ContentOf(CommonDiskRoutines& disk, const QString& file) {
  ListReader reader = disk.OpenInputFile(file);
  QString text;
  while (!reader.AtEnd()) {
    text += reader.ReadString() + u"\r\n"_s;
  }
  return text;
}

bool CanHaveFolders(const QString& account) {
  return !account.isEmpty() && IsSafeAccount(account);
}

}  // namespace

void AuxiliaryData::LoadAuxHeadings() {
  m_headingsUnread = true;
  for (int box = 0; const QString& heading : ReadHeadings()) {
    m_view.SetHeading(box++, heading);
  }
  m_headingsUnread = false;
}

/// Empty where the file is absent.
QStringList AuxiliaryData::ReadHeadings() {
  QStringList headings;
  if (m_disk.FileExists(HeadingsFile())) {
    ListReader reader = m_disk.OpenInputFile(HeadingsFile());
    for (int box = 0; box < AuxBoxCount; ++box) {
      headings += reader.ReadLine();
    }
    m_disk.CloseAllFiles();
  }
  return headings;
}

/// Headings that couldn't be read are read now: an empty box mustn't empty what the file holds.
void AuxiliaryData::FillUnreadHeadings() {
  for (int box = 0; const QString& heading : ReadHeadings()) {
    if (m_view.Heading(box).isEmpty()) {
      m_view.SetHeading(box, heading);
    }
    ++box;
  }
  m_headingsUnread = false;
}

void AuxiliaryData::SaveAuxHeadings() {
  if (m_headingsUnread) {
    FillUnreadHeadings();
  }
  ListWriter writer;
  for (int box = 0; box < AuxBoxCount; ++box) {
    writer.Print(m_view.Heading(box));
  }
  m_disk.SaveFile(HeadingsFile(), writer.Content(), BackupCopy::Dropped);
  m_disk.CloseAllFiles();
}

void AuxiliaryData::LoadAuxData() {
  if (m_view.IsAuxRetained()) {
    return;
  }
  m_unread.fill(false);
  m_unreadAccount.clear();
  for (int box = 0; box < AuxBoxCount; ++box) {
    m_view.SetAuxText(box, {});
  }
  const QString account = TrimBlanks(m_view.AuxAccount());
  if (!CanHaveFolders(account)) {
    return;
  }
  m_unreadAccount = account;
  // A file that can't be read doesn't leave the boxes behind it empty: a save would then empty their files.
  std::optional<RuntimeError> failed;
  for (int box = 0; box < AuxBoxCount; ++box) {
    const QString file = BoxFile(account, box);
    try {
      if (m_disk.FileExists(file)) {
        m_view.SetAuxText(box, ContentOf(m_disk, file));
      }
    } catch (const RuntimeError& error) {
      m_unread[static_cast<size_t>(box)] = true;
      if (!failed) {
        failed = error;
      }
    }
  }
  m_disk.CloseAllFiles();
  if (failed) {
    throw *failed;
  }
}

void AuxiliaryData::SaveAuxData() {
  const QString account = TrimBlanks(m_view.AuxAccount());
  if (!CanHaveFolders(account)) {
    throw RuntimeError(ErrorNumber::BadFileName, {},
                       u"The account number \"%1\" names the folder of these data, so it cannot be blank, . or .. and "
                       "cannot hold / or \\ or characters outside the Western alphabets."_s.arg(account))
        .WithAdvice(u"Enter another Account No and save again. Nothing was lost."_s);
  }
  m_disk.MakeDataFolder(AuxFolder());
  m_disk.MakeDataFolder(AccountFolder(account));
  for (int box = 0; box < AuxBoxCount; ++box) {
    m_disk.MakeDataFolder(BoxFolder(account, box));
    QString text = m_view.AuxText(box);
    bool& unread = m_unread[static_cast<size_t>(box)];
    if (unread && account == m_unreadAccount && text.isEmpty()) {
      continue;  // What its file holds has never been in the box.
    }
    text.replace(u"\r\n"_s, u"\n"_s).replace(u"\n"_s, u"\r\n"_s);
    m_disk.SaveFile(BoxFile(account, box), ListWriter().Print(text).Content(), BackupCopy::Kept);
    unread = unread && account != m_unreadAccount;
  }
  m_disk.CloseAllFiles();
}
