/// The rules of the customer screen: one customer at a time, saved whenever the screen moves off him. Records, checks,
/// lists and messages are here; the screen shows what this tells it to.
#pragma once

#include <optional>
#include <QSet>

#include "customers/CustomerFile.h"
#include "customers/CustomerOnScreen.h"
#include "customers/CustomerView.h"
#include "runtime/RuntimeError.h"
#include "shell/Screens.h"

class CommonDiskRoutines;
class Dialogs;
struct BusinessProfile;

class CustomerEditor {
 public:
  CustomerEditor(CommonDiskRoutines& disk, Dialogs& dialogs, const BusinessProfile& profile, CustomerOnScreen& onScreen,
                 CustomerView& view);

  /// Each showing of the screen, from its blanked boxes on: counts, lists and shows the customer, or starts the first
  /// one where there is no file. The error of an auxiliary file that can't be read is answered and not thrown: the
  /// screen comes up with the customer all the same.
  std::optional<RuntimeError> Open();
  /// The address style is Setup's, taken over at each showing and whenever it is toggled there.
  void DecideAddressStyle();
  void UseAddressStyle(bool usa);

  void CountCustomers();
  void BlankBoxes();
  /// Shows the customer at the pointer. The error of an auxiliary file is thrown once all the rest is shown.
  void LoadCustomer();
  /// Checks the boxes and writes the record; `SaveAccepted` tells of it. Throws RuntimeError 61, 70 or 75, with the
  /// record as it was and the boxes as typed.
  void SaveCustomer();
  /// Saves, then starts the record after the last one, and answers whether it did: not without an account number.
  /// Throws RuntimeError 6 before anything is done where the file is full.
  bool AddNewCustomer(const QString& telephone);
  /// Takes the count back and drops what was typed for the new record.
  void CancelAddNew();
  /// An error after the customer is gone is thrown once the screen shows who took the place.
  void DeleteCustomer();
  bool IsDuplicateAcctNo(const QString& number);
  void BuildAccountList();
  void AddCityToList(const QString& city);
  bool HasFile() { return m_file.Exists(); }
  /// One pass over the customers counted; it leaves the last one in the buffer.
  std::vector<FoundCustomer> Find(const CustomerQuery& query) { return m_file.Find(query, m_customerCount); }

  /// The entry of the name list that a typed text is, ignoring case and blanks around; -1 if none.
  int FindAccount(const QString& typed) const;

  /// `cmdNav`: saves, whatever comes of it, moves, and loads.
  void Navigate(int index);
  void ShowRecord(int number);

  /// "Business", or anything else for an individual.
  void ApplyAccountType(const QString& type);
  void ToggleAccountType();
  void ReapplyAccountType() { ApplyAccountType(Text(CustomerBox::lbLType)); }
  void LeaveAccountNo();
  void LeaveName();
  void EnterBox(CustomerBox box);  ///< A box that holds a "Must" is emptied.

  /// `lblAccount` of the auxiliary screen: the name as it stands in the boxes.
  QString AccountText() const;
  /// The customer for an invoice, under the name that was just saved.
  SoldTo CustomerForInvoice() const;
  /// The phone or the cell of the record in the buffer, the user's choice where it has both; empty where it has none.
  QString NumberToDial() const;

  qint32 CustomerPointer() const { return m_customerPointer; }
  qint32 CustomerCount() const { return m_customerCount; }
  bool SaveAccepted() const { return m_saveAccepted; }
  const QString& ScreenCustomerName() const { return m_screenCustomerName; }

  /// What adding without an account number does; no code ever sets them, so that it is silent.
  bool BeepOnError = false;
  bool PromptOnError = false;

 private:
  QString Text(CustomerBox box) const { return m_view.Text(box); }
  void SetPointer(qint32 number) { m_customerPointer = qMax(1, number); }
  void CountStoredCustomers();
  /// Throws RuntimeError 6 where the file is full.
  void RequireRoom();
  bool SettleAccountNo();
  bool CheckNames();
  bool CheckFileName();
  void FillBuffer();
  void StartBlankRecord(const QString& telephone);
  std::optional<RuntimeError> ShowCustomer();
  std::optional<RuntimeError> FillAuxiliaryBoxes();
  void ShowCaption();

  CommonDiskRoutines& m_disk;
  Dialogs& m_dialogs;
  const BusinessProfile& m_profile;
  CustomerOnScreen& m_onScreen;
  CustomerView& m_view;
  CustomerFile m_file;
  QSet<QString> m_cities;
  QStringList m_accounts;

  qint32 m_customerPointer = 1;
  qint32 m_customerCount = 0;
  bool m_saveAccepted = false;
  QString m_screenCustomerName;
  qint16 m_acctFlagValue = 0;
};
