/// Searching for customers on the customer screen, and their complete list: what is found stands in one grid, and the
/// record number in its last column leads back to the customer.
#pragma once

#include "customers/CustomerEditor.h"
#include "runtime/TextMatrix.h"

/// What the search sees of the screen.
class CustomerSearchView {
 public:
  virtual ~CustomerSearchView() = default;
  virtual QString SearchText() const = 0;
  /// The first `optSearch` that is selected, from index 0 up.
  virtual int SearchCriterion() const = 0;
  virtual void ClearSearchText() = 0;
  virtual void FocusOnSearchText() = 0;
  virtual void ShowCustomerFrame() = 0;
  virtual void ShowSearchFrame(bool visible) = 0;
  virtual bool IsFoundFrameShown() const = 0;
  virtual void ShowFoundFrame(bool visible) = 0;  ///< Where it is shown, in front of the others.
  virtual void SetFoundCaption(const QString& caption) = 0;
  virtual void SetListEntryCaption(const QString& caption) = 0;  ///< `mnuPrint`.
};

class CustomerSearch {
 public:
  CustomerSearch(CustomerEditor& editor, Dialogs& dialogs, CustomerSearchView& view);

  /// `Command1(0)`: saves the customer, and asks for a criterion and a text where that was accepted.
  void Open();
  /// `cmdStartSearch`; answers the number of hits.
  qint32 Start();
  void Clear();      ///< `cmdClearSearch`, and the choice of another criterion.
  void Hide();       ///< `cmdHideSearch`.
  void ShowList();   ///< `mnuPrint`: shows the complete list, or hides what is found.
  void HideFound();  ///< `cmdRetry`.
  void LeaveList();  ///< The mouse was released on a customer: the menu offers the list again.
  /// `mnuSelect`: shows the customer of the grid's current row. The one on the screen isn't saved. Throws RuntimeError
  /// 13 where the grid has none.
  void LoadSelected();

  TextMatrix fgCustomersFound;

 private:
  /// Fills the grid; answers the number of hits.
  qint32 FindCustomers(const CustomerQuery& query);
  void ShowHits(qint32 hits);  ///< A message for none, the customer himself for one, else all of them.
  void FillRows(const std::vector<FoundCustomer>& found);
  void ShowCustomer(int row);

  CustomerEditor& m_editor;
  Dialogs& m_dialogs;
  CustomerSearchView& m_view;
};
