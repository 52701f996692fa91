/// The rules of the catalogue screen: what its buttons do to the boxes, which of them are open and live, what a box
/// takes when it is left, and what a Save checks and writes. The screen shows what this tells it to.
#pragma once

#include <optional>
#include <span>

#include "catalogue/Catalogue.h"
#include "catalogue/CatalogueView.h"

class Dialogs;

/// What the three lists have alike on the screen: boxes, and buttons by their index.
struct CatalogueControls {
  CatalogueBox Description;
  std::span<const CatalogueBox> Charges;
  int AddNew;
  int Modify;
  int Delete;
  int Save;
  int Clear;
  int Cancel;
};
CatalogueControls ControlsOf(CatalogueList list);

class CatalogueEditor {
 public:
  CatalogueEditor(Catalogue& catalogue, Dialogs& dialogs, CatalogueView& view);

  /// Each showing of the screen: the boxes are shut until Add New or Modify opens them.
  void Open();
  /// Whether a record is being entered: the Save of a list is live.
  bool IsEntering() const;
  /// A row of a grid was clicked.
  void ClickRow(CatalogueList list);

  void AddNew(CatalogueList list);
  /// Loads the current row into the boxes; nothing without one.
  void Modify(CatalogueList list);
  /// Asks, removes the current row and saves the catalogue; nothing without one.
  void Delete(CatalogueList list);
  void Clear(CatalogueList list);
  void Cancel(CatalogueList list);
  /// Checks the boxes and puts them into the grid: over the current row after Modify, else into a new one. A Save that
  /// stops leaves the grid, the boxes and the mode as they were. Throws RuntimeError 13 or 6 that names the box.
  void Save(CatalogueList list);

  void CreateGeneralLabor();
  void ClearLabor();
  void ClearPrices();
  void RemoveDiscount();

  void EnterBox(CatalogueBox box);
  /// Throws RuntimeError 6 that names the box for an amount too large, 13 for what is none, as a point alone.
  void LeaveBox(CatalogueBox box);

  bool ModifyMode() const { return m_modifyMode; }

 private:
  QString Text(CatalogueBox box) const { return m_view.Text(box); }
  void SetText(CatalogueBox box, const QString& text) { m_view.SetText(box, text); }
  void SetEditing(CatalogueList list, bool enabled);
  void ClearEntry(CatalogueList list);
  void LoadRow(CatalogueList list);

  // CatalogueEditorBoxes.cpp
  void Reformat(CatalogueBox box);
  void LeaveCharge(CatalogueBox box);
  void LeaveLaborRate(CatalogueBox box);

  // CatalogueEditorSave.cpp
  std::optional<QStringList> CellsOf(CatalogueList list);
  std::optional<QStringList> ItemCells();
  std::optional<QStringList> CustomCells();
  bool RefusesEmpty(CatalogueBox box);
  bool RefusesLetters(CatalogueBox box);
  void ZeroWhereEmpty(CatalogueBox box, const QString& zero);
  bool MissesLine(CatalogueList list);
  QString CurrencyTextOf(CatalogueBox box) const;
  QString ServiceCharge() const;
  qint16 Whole16(CatalogueBox box) const;
  void RequireInt32(CatalogueBox box) const;

  Catalogue& m_catalogue;
  Dialogs& m_dialogs;
  CatalogueView& m_view;
  /// Whether a Save replaces the current row. One for all tabs, which is meant.
  bool m_modifyMode = false;
};
