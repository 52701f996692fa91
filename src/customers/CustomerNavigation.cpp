/// Moving through the customers, and what the boxes of the customer screen check when they are entered and left.
#include "customers/CustomerEditor.h"
#include "runtime/Dialogs.h"
#include "runtime/Numbers.h"
#include "shell/CommonDiskRoutines.h"

using namespace Qt::StringLiterals;

void CustomerEditor::Navigate(int index) {
  SaveCustomer();
  const qint32 quarter = m_customerCount / 4;
  if (index >= 4 && index <= 6 && m_customerCount < 4) {
    return;
  }
  switch (index) {
    case 0:
      SetPointer(1);
      break;
    case 1:
      SetPointer(m_customerPointer - 1);
      break;
    case 2:
      SetPointer(m_customerPointer < m_customerCount ? m_customerPointer + 1 : 1);
      break;
    case 3:
      SetPointer(m_customerCount);
      break;
    case 4:
      SetPointer(m_customerCount / 2);
      break;
    case 5:
      SetPointer(quarter);
      break;
    case 6:
      SetPointer(quarter * 3);
      break;
    case 7:
      SetPointer(m_customerPointer - 10);
      break;
    case 8:
      SetPointer(qMin(m_customerPointer + 10, m_customerCount));
      break;
    default:
      break;
  }
  LoadCustomer();
}

void CustomerEditor::ShowRecord(int number) {
  SetPointer(number);
  LoadCustomer();
}

void CustomerEditor::ApplyAccountType(const QString& type) {
  const bool business = type == u"Business";
  const CustomerRecord& record = m_file.Buffer;
  m_screenCustomerName = business ? record.Text(CustomerField::AcctName) : record.PersonName();
  m_view.ShowNameBoxes(business);
  m_view.SetText(CustomerBox::lbLType, business ? u"Business"_s : u"Individual"_s);
  m_view.SetAuxCaption(u"Data for "_s + m_screenCustomerName);
}

void CustomerEditor::ToggleAccountType() {
  ApplyAccountType(Text(CustomerBox::lbLType) == u"Individual" ? u"Business"_s : u"Individual"_s);
}

void CustomerEditor::LeaveAccountNo() {
  const QString number = Text(CustomerBox::txtCustomer0);
  if (m_customerPointer == 0 || number.isEmpty()) {
    return;
  }
  const bool duplicate = IsDuplicateAcctNo(number);
  if (duplicate && m_dialogs.AskYesNo(u"The Account Number is a duplicate\nClick Yes to Replace it\n"
                                      "Enter a different Number"_s,
                                      u"Duplicate Account Number"_s)) {
    m_view.SetText(CustomerBox::txtCustomer0, {});
    m_view.FocusOn(CustomerBox::txtCustomer0);
  }
  if (!duplicate || Text(CustomerBox::txtCustomer0).isEmpty()) {
    m_disk.CloseAllFiles();
  }
}

void CustomerEditor::LeaveName() {
  if (m_customerPointer != 0 && Text(CustomerBox::txtCustomer1).size() < 2) {
    m_dialogs.ShowMessage(
        u"The Name Field Must be at least 2 Characters\n"
        "This is okay if Cancelling a New Entry\nClick Cancel AddNew Again"_s,
        u"No Name Entered"_s);
  }
}

void CustomerEditor::EnterBox(CustomerBox box) {
  if (Text(box).contains(u"Must")) {
    m_view.SetText(box, {});
  }
}

QString CustomerEditor::AccountText() const {
  if (Text(CustomerBox::lbLType) == u"Business") {
    return Text(CustomerBox::txtCustomer1);
  }
  return Text(CustomerBox::cboTitle) + u' ' + Text(CustomerBox::txtCustomer8) + u' ' + Text(CustomerBox::txtCustomer10);
}

SoldTo CustomerEditor::CustomerForInvoice() const {
  const auto boxText = [this](CustomerBox box) { return TrimBlanks(Text(box)); };
  const bool usa = m_onScreen.UsaAddress;
  SoldTo customer;
  customer.Acct = boxText(CustomerBox::txtCustomer0);
  customer.Line = {m_file.Buffer.DisplayName(),
                   boxText(CustomerBox::txtCustomer2),
                   boxText(CustomerBox::txtCustomer3),
                   boxText(usa ? CustomerBox::cboCity : CustomerBox::txtAdd3),
                   usa ? boxText(CustomerBox::cboStates) : QString(),
                   boxText(usa ? CustomerBox::txtCustomer5 : CustomerBox::txtAdd4),
                   boxText(CustomerBox::txtCustomer6)};
  return customer;
}

QString CustomerEditor::NumberToDial() const {
  const QString phone = m_file.Buffer.Text(CustomerField::Phone);
  const QString cell = m_file.Buffer.Text(CustomerField::CellPhone);
  if (phone.isEmpty() || cell.isEmpty()) {
    return phone.isEmpty() ? cell : phone;
  }
  const bool dialPhone =
      m_dialogs.AskYesNo(u"Click YES to dial Phone,\nClick NO to dial Cell"_s, u"Select Phone or Cell"_s);
  return dialPhone ? phone : cell;
}
