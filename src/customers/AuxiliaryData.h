/// The six free-text boxes of an account and their headings. The headings belong to the business, the contents to one
/// account: a small text file per box.
#pragma once

#include <array>
#include <QStringList>

#include "customers/CustomerFolders.h"

class CommonDiskRoutines;

/// What the auxiliary data see of the screen. Lines of a box end with LF or CR LF.
class AuxiliaryView {
 public:
  virtual ~AuxiliaryView() = default;
  virtual QString Heading(int box) const = 0;
  virtual void SetHeading(int box, const QString& text) = 0;
  virtual QString AuxText(int box) const = 0;
  virtual void SetAuxText(int box, const QString& text) = 0;
  virtual bool IsAuxRetained() const = 0;  ///< `ckSaveAux`.
  virtual QString AuxAccount() const = 0;  ///< The account number as it stands in its box.
};

class AuxiliaryData {
 public:
  AuxiliaryData(CommonDiskRoutines& disk, AuxiliaryView& view) : m_disk(disk), m_view(view) {}

  /// Nothing where the file is absent. One with fewer than six lines is damaged: RuntimeError 62.
  void LoadAuxHeadings();
  /// Headings that couldn't be read at the last load are read first, into the boxes that are empty; where they still
  /// can't, that error is thrown and nothing is saved.
  void SaveAuxHeadings();
  /// Fills the boxes from the account's files; what it has none of is empty. Nothing where the boxes are retained: they
  /// keep what they hold of the account before. A comma breaks the line there, quotes around a field are lost, and each
  /// save and load adds a line end; this is meant. The error of a file that can't be read is thrown once the other
  /// boxes are filled.
  void LoadAuxData();
  /// Makes the folders that are missing. Throws RuntimeError 64 for an account that can't name any; 61, 70 or 75 with
  /// each file as it was or as it is to be. A box whose file couldn't be read, and into which nothing was typed,
  /// isn't saved.
  void SaveAuxData();

 private:
  CommonDiskRoutines& m_disk;
  AuxiliaryView& m_view;
  QStringList ReadHeadings();
  void FillUnreadHeadings();

  bool m_headingsUnread = false;
  QString m_unreadAccount;  ///< Whose boxes the last load filled, or was to fill.
  std::array<bool, AuxBoxCount> m_unread{};
};
