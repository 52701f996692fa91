#include "customers/CustomerEditor.h"

#include <algorithm>

#include "customers/CommonAccountRoutines.h"
#include "runtime/CodePage.h"
#include "runtime/Dialogs.h"
#include "runtime/Numbers.h"
#include "setup/BusinessProfile.h"
#include "shell/CommonDiskRoutines.h"

using namespace Qt::StringLiterals;

namespace {

/// The boxes that take one field each, both ways.
struct BoxField {
  CustomerBox Box;
  TextField Field;
};
constexpr std::array<BoxField, 11> PlainBoxes{{{CustomerBox::txtCustomer0, CustomerField::AcctNo},
                                               {CustomerBox::txtCustomer1, CustomerField::AcctName},
                                               {CustomerBox::txtCustomer2, CustomerField::Address1},
                                               {CustomerBox::txtCustomer3, CustomerField::Address2},
                                               {CustomerBox::txtCustomer6, CustomerField::Phone},
                                               {CustomerBox::txtCustomer7, CustomerField::Email},
                                               {CustomerBox::txtCustomer8, CustomerField::FirstName},
                                               {CustomerBox::txtCustomer9, CustomerField::MiddleInitial},
                                               {CustomerBox::txtCustomer10, CustomerField::LastName},
                                               {CustomerBox::txtCustomer11, CustomerField::CellPhone},
                                               {CustomerBox::cboTitle, CustomerField::Title}}};

}  // namespace

CustomerEditor::CustomerEditor(CommonDiskRoutines& disk, Dialogs& dialogs, const BusinessProfile& profile,
                               CustomerOnScreen& onScreen, CustomerView& view)
    : m_disk(disk), m_dialogs(dialogs), m_profile(profile), m_onScreen(onScreen), m_view(view), m_file(disk) {}

std::optional<RuntimeError> CustomerEditor::Open() {
  if (m_file.Exists()) {
    CountCustomers();
    BuildAccountList();
    return ShowCustomer();
  }
  m_dialogs.ShowMessage(
      u"Your Customer File is Empty\nCreate your First Customer Now\nTo create a Residential Account,\n"
      "click the Toggle Acct Type Button\nClick Open Delivery Window to\nto create an automatic delivery"_s,
      u"Create Customers"_s);
  m_customerCount = 1;
  SetPointer(1);
  StartBlankRecord({});
  return std::nullopt;
}

void CustomerEditor::DecideAddressStyle() {
  UseAddressStyle(m_profile.IsUsaStyle());
}

void CustomerEditor::UseAddressStyle(bool usa) {
  m_onScreen.UsaAddress = usa;
  m_view.ShowAddressBoxes(usa);
}

/// A file that is there but empty counts as one record, the blank one on the screen.
void CustomerEditor::CountCustomers() {
  m_customerCount = qMax(1, m_file.Count());
}

void CustomerEditor::BlankBoxes() {
  for (int i = 0; i <= 10; ++i) {
    m_view.SetText(static_cast<CustomerBox>(i), {});
  }
  m_view.SetText(CustomerBox::cboCity, {});
  m_view.SetText(CustomerBox::txtAdd3, {});
  m_view.SetText(CustomerBox::txtAdd4, {});
}

void CustomerEditor::LoadCustomer() {
  if (const std::optional<RuntimeError> failed = ShowCustomer()) {
    throw *failed;
  }
}

/// Answers the error of the auxiliary boxes: the customer himself is shown whole.
std::optional<RuntimeError> CustomerEditor::ShowCustomer() {
  BlankBoxes();
  m_view.HideSearchFrames();
  m_file.Read(m_customerPointer);
  const CustomerRecord& record = m_file.Buffer;
  ApplyAccountType(record.Text(CustomerField::AcctType));
  for (const BoxField& plain : PlainBoxes) {
    m_view.SetText(plain.Box, record.Text(plain.Field));
  }
  const QString city = record.Text(CustomerField::CityLine);
  m_view.SetText(CustomerBox::cboCity, city);
  m_view.SetText(CustomerBox::txtAdd3, city);
  const QString state = record.Text(CustomerField::State);
  m_view.SetText(CustomerBox::txtCustomer4, state);
  m_view.SetText(CustomerBox::cboStates, state);
  const QString postal = record.Text(CustomerField::PostalLine);
  m_view.SetText(CustomerBox::txtCustomer5, postal);
  m_view.SetText(CustomerBox::txtAdd4, postal);
  m_acctFlagValue = record.AcctFlag();
  const std::optional<RuntimeError> failed = FillAuxiliaryBoxes();
  if (Text(CustomerBox::txtCustomer0).isEmpty()) {
    m_view.FocusOn(CustomerBox::txtCustomer0);
  } else {
    m_view.FocusOnSelect();
  }
  ShowCaption();
  return failed;
}

std::optional<RuntimeError> CustomerEditor::FillAuxiliaryBoxes() {
  try {
    m_view.LoadAuxiliaryBoxes();
    return std::nullopt;
  } catch (const RuntimeError& error) {
    return error;
  }
}

void CustomerEditor::SaveCustomer() {
  if (!SettleAccountNo()) {
    return;  // SaveAccepted stays as it was, which is meant.
  }
  m_saveAccepted = true;
  if (!CheckNames() || !CheckFileName()) {
    m_saveAccepted = false;
    return;
  }
  FillBuffer();
  m_file.Write(m_customerPointer);
  AddCityToList(m_file.Buffer.Text(CustomerField::CityLine));
}

/// A blank account number becomes the telephone number, untested for a duplicate; without either nothing is saved.
bool CustomerEditor::SettleAccountNo() {
  if (!Text(CustomerBox::txtCustomer0).isEmpty()) {
    return true;
  }
  const QString telephone = Text(CustomerBox::txtCustomer6);
  if (telephone.isEmpty()) {
    m_dialogs.ShowMessage(u"The Telephone Number cannot be blank"_s, u"No number"_s);
    m_view.FocusOn(CustomerBox::txtCustomer6);
    return false;
  }
  m_view.SetText(CustomerBox::txtCustomer0, TrimBlanks(telephone));
  m_dialogs.ShowMessage(u"Telephone Number will be used as Acct No."_s, u"Account not Entered"_s);
  return true;
}

bool CustomerEditor::CheckNames() {
  const bool business = Text(CustomerBox::lbLType) == u"Business";
  if (business && Text(CustomerBox::txtCustomer1).isEmpty()) {
    // An individual who was toggled to a business gets his name from the buffer, whatever was read into it last.
    m_view.SetText(CustomerBox::txtCustomer1, m_file.Buffer.PersonName());
  }
  if (Text(CustomerBox::txtCustomer1).isEmpty()) {
    m_dialogs.ShowMessage(u"The Account Name Cannot be Blank"_s);
    m_view.FocusOn(CustomerBox::txtCustomer1);  // Of an individual too, whose box is hidden.
    return false;
  }
  if (!business && (Text(CustomerBox::txtCustomer8).isEmpty() || Text(CustomerBox::txtCustomer10).isEmpty())) {
    m_dialogs.ShowMessage(u"Enter Account 1st and Last Name"_s);
    m_view.FocusOn(CustomerBox::txtCustomer8);
    return false;
  }
  return true;
}

/// The number names the account's ledger and folders: one that would leave their folder is never stored, nor one that
/// a record would hold as another.
bool CustomerEditor::CheckFileName() {
  const QString number = Text(CustomerBox::txtCustomer0);
  if (IsSafeAccount(number)) {
    return true;
  }
  const bool storable = FromCodePage(ToCodePage(number)) == number;
  m_dialogs.ShowMessage(
      u"The Account Number \"%1\" cannot be used.\n"
      "It also names the files of this account, so it cannot %2.\n"
      "Nothing was saved: enter a different Number"_s.arg(
          number, storable ? u"hold / or \\, nor be . or .. alone"_s : u"hold letters outside the Western alphabets"_s),
      u"Invalid Account Number"_s);
  m_view.FocusOn(CustomerBox::txtCustomer0);
  return false;
}

void CustomerEditor::FillBuffer() {
  CustomerRecord& record = m_file.Buffer;
  for (const BoxField& plain : PlainBoxes) {
    record.SetText(plain.Field, Text(plain.Box));
  }
  const bool usa = m_onScreen.UsaAddress;
  record.SetText(CustomerField::CityLine, Text(usa ? CustomerBox::cboCity : CustomerBox::txtAdd3));
  record.SetText(CustomerField::State, usa ? TrimBlanks(Text(CustomerBox::cboStates)) : QString());
  record.SetText(CustomerField::PostalLine, Text(usa ? CustomerBox::txtCustomer5 : CustomerBox::txtAdd4));
  record.SetText(CustomerField::CityShort, Text(CustomerBox::cboCity));
  record.SetText(CustomerField::PostalShort, Text(CustomerBox::txtCustomer5));
  record.SetText(CustomerField::AcctType, Text(CustomerBox::lbLType));
  record.SetAcctFlag(m_acctFlagValue);
}

/// After a cancelled add that had been saved the file holds more than is counted: what is added or deleted then must
/// not take that record's place.
void CustomerEditor::CountStoredCustomers() {
  m_customerCount = qMax(m_customerCount, m_file.Count());
}

void CustomerEditor::RequireRoom() {
  CountStoredCustomers();
  if (m_customerCount >= RecordLimit) {
    throw RuntimeError(ErrorNumber::Overflow, u"/CustomerData.txt"_s,
                       u"The customer file is full: it holds 32,767 customers."_s)
        .WithAdvice(u"Delete one first. Nothing was lost."_s);
  }
}

bool CustomerEditor::AddNewCustomer(const QString& telephone) {
  if (Text(CustomerBox::txtCustomer0).isEmpty()) {
    if (BeepOnError) {
      m_dialogs.Beep();
    }
    if (PromptOnError) {
      m_dialogs.ShowMessage(u"Enter an Account Number"_s);
    }
    return false;
  }
  RequireRoom();
  SaveCustomer();  // Whatever comes of it.
  ++m_customerCount;
  SetPointer(m_customerCount);
  m_file.Buffer.Blank();
  StartBlankRecord(telephone);
  return true;
}

/// The boxes of a record that isn't in the file yet. The account type and the state stay what they show.
void CustomerEditor::StartBlankRecord(const QString& telephone) {
  m_acctFlagValue = 0;
  BlankBoxes();
  m_view.SetText(CustomerBox::cboCity, m_profile.BusinessCity);
  m_view.SetText(CustomerBox::txtCustomer11, {});
  m_view.FocusOn(CustomerBox::txtCustomer0);
  m_view.SetText(CustomerBox::txtCustomer6, telephone);
  ShowCaption();
}

void CustomerEditor::CancelAddNew() {
  // The count goes back even if the added record was saved by navigating: the record stays in the file.
  m_customerCount = qMax(0, m_customerCount - 1);
  SetPointer(m_customerCount);
  LoadCustomer();
}

void CustomerEditor::DeleteCustomer() {
  if (!m_dialogs.AskYesNo(u"Delete this Customer"_s)) {
    m_view.FocusOn(CustomerBox::txtCustomer0);
    return;
  }
  CountStoredCustomers();
  const std::optional<RuntimeError> failed =
      m_file.Remove(m_customerPointer, m_customerCount, Text(CustomerBox::txtCustomer0));
  if (m_customerCount > 1) {
    --m_customerCount;
  }
  SetPointer(qMin(m_customerPointer, m_customerCount));
  const std::optional<RuntimeError> unread = ShowCustomer();
  m_view.FocusOn(CustomerBox::txtCustomer0);
  BuildAccountList();
  if (failed) {
    throw failed->WithAdvice(
        u"The customer is gone from the file all the same: don't delete again. Nothing else was lost."_s);
  }
  if (unread) {
    throw *unread;
  }
}

bool CustomerEditor::IsDuplicateAcctNo(const QString& number) {
  return m_file.HasAccount(number, m_customerCount, m_customerPointer);
}

void CustomerEditor::BuildAccountList() {
  const CustomerLists lists = m_file.ReadLists(m_customerCount);
  m_cities = QSet<QString>(lists.Cities.begin(), lists.Cities.end());
  m_accounts = lists.Accounts;
  m_view.SetAccounts(lists.Accounts, lists.Records);
  m_view.SetCities(lists.Cities);
}

void CustomerEditor::AddCityToList(const QString& city) {
  if (!m_cities.contains(city)) {
    m_cities.insert(city);
    m_view.AddCity(city);
  }
}

int CustomerEditor::FindAccount(const QString& typed) const {
  if (typed.isEmpty()) {
    return -1;
  }
  const QString wanted = TrimBlanks(typed).toUpper();
  const auto found = std::find_if(m_accounts.begin(), m_accounts.end(),
                                  [&](const QString& account) { return TrimBlanks(account).toUpper() == wanted; });
  return found == m_accounts.end() ? -1 : static_cast<int>(found - m_accounts.begin());
}

void CustomerEditor::ShowCaption() {
  m_view.SetCustomerCaption(u"Account Information for Customer No "_s + QString::number(m_customerPointer));
}
