#include "customers/CustomerSearch.h"

#include "runtime/Dialogs.h"
#include "runtime/Numbers.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int RecordColumn = 2;

QString OfferedList() {
  return u"View Customer List"_s;
}

}  // namespace

CustomerSearch::CustomerSearch(CustomerEditor& editor, Dialogs& dialogs, CustomerSearchView& view)
    : fgCustomersFound(u"<Customer Name               |<Telephone     |<Record"_s),
      m_editor(editor),
      m_dialogs(dialogs),
      m_view(view) {}

void CustomerSearch::Open() {
  m_editor.SaveCustomer();
  if (!m_editor.SaveAccepted()) {
    return;
  }
  m_editor.ReapplyAccountType();
  m_view.ShowSearchFrame(true);
  m_view.ShowFoundFrame(false);
  m_view.FocusOnSearchText();
}

qint32 CustomerSearch::Start() {
  const QString text = m_view.SearchText();
  if (text.isEmpty()) {
    m_dialogs.ShowMessage(u"You must enter some criteria data for the Search"_s);
    return 0;
  }
  // A text of blanks stands in every field: it finds everybody.
  const qint32 hits = FindCustomers({static_cast<qint16>(m_view.SearchCriterion()), UpperCased(text)});
  ShowHits(hits);
  if (hits > 0) {
    m_view.ShowFoundFrame(true);  // With its one row, where one customer was found and is shown already.
  } else {
    m_view.ShowCustomerFrame();
  }
  m_view.ShowSearchFrame(false);
  return hits;
}

void CustomerSearch::Clear() {
  m_view.ClearSearchText();
  m_view.FocusOnSearchText();
}

void CustomerSearch::Hide() {
  m_view.ShowFoundFrame(false);
  m_view.ShowSearchFrame(false);
  m_view.ShowCustomerFrame();
}

void CustomerSearch::ShowList() {
  if (m_view.IsFoundFrameShown()) {
    LeaveList();
    HideFound();
    return;
  }
  if (!m_editor.HasFile()) {
    m_dialogs.Beep();
    return;
  }
  m_view.SetListEntryCaption(u"Close Customer List"_s);
  m_view.ShowFoundFrame(true);
  m_view.SetFoundCaption(u"Complete Customer List"_s);  // It stays through later searches.
  FindCustomers({EveryCustomer, "All"});
}

void CustomerSearch::HideFound() {
  m_view.ShowFoundFrame(false);
}

void CustomerSearch::LeaveList() {
  m_view.SetListEntryCaption(OfferedList());
}

void CustomerSearch::LoadSelected() {
  ShowCustomer(fgCustomersFound.Row());
  m_view.ShowFoundFrame(false);
}

void CustomerSearch::ShowCustomer(int row) {
  m_editor.ShowRecord(ToInt32(fgCustomersFound.Text(row, RecordColumn), u"fgCustomersFound"_s));
}

qint32 CustomerSearch::FindCustomers(const CustomerQuery& query) {
  const std::vector<FoundCustomer> found = m_editor.Find(query);
  FillRows(found);
  return static_cast<qint32>(found.size());
}

void CustomerSearch::ShowHits(qint32 hits) {
  if (hits == 0) {
    m_dialogs.ShowMessage(u"No Customer Record meets this Criteria"_s, u"Customer not Found"_s);
  } else if (hits == 1) {
    m_view.ShowFoundFrame(false);
    ShowCustomer(1);
  } else {
    m_view.ShowFoundFrame(true);
  }
}

/// Without a hit the rows of the search before stay, which is meant.
void CustomerSearch::FillRows(const std::vector<FoundCustomer>& found) {
  if (found.empty()) {
    return;
  }
  std::vector<QStringList> rows;
  rows.reserve(found.size() + 1);
  for (const FoundCustomer& customer : found) {
    rows.push_back({customer.Name, customer.Phone, QString::number(customer.Record)});
  }
  fgCustomersFound.AssignRows(std::move(rows));
}
