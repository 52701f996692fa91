/// The rules of the catalogue screen without a screen: a catalogue on a data tree of its own, and boxes that only hold
/// their texts, with what the rules made open, shut and focused.
#pragma once

#include <map>
#include <QStringList>
#include <set>

#include "catalogue/CatalogueEditor.h"
#include "support/CatalogueTree.h"
#include "support/ScriptedDialogs.h"

class CatalogueBoxes final : public CatalogueView {
 public:
  std::map<CatalogueBox, QString> Texts;
  std::set<CatalogueBox> Shut;
  std::set<CatalogueList> ShutGrids;
  QString Focus;  ///< "box 3" or "button 8", what was asked for last.
  bool ClearsItem = false;

  QString Text(CatalogueBox box) const override {
    const auto at = Texts.find(box);
    return at == Texts.end() ? QString() : at->second;
  }
  void SetText(CatalogueBox box, const QString& text) override { Texts[box] = text; }
  QString NameOf(CatalogueBox box) const override { return Name(box); }
  void EnableBox(CatalogueBox box, bool enabled) override { Put(Shut, box, !enabled); }
  void FocusOn(CatalogueBox box) override { Focus = Name(box); }
  void FocusOnCommand(int command) override { Focus = QStringLiteral("button %1").arg(command); }
  void EnableGrid(CatalogueList list, bool enabled) override { Put(ShutGrids, list, !enabled); }
  bool ckClearItem() const override { return ClearsItem; }

  static QString Name(CatalogueBox box) { return QStringLiteral("box %1").arg(static_cast<int>(box)); }

 private:
  template <typename Set, typename Value>
  static void Put(Set& set, Value value, bool in) {
    if (in) {
      set.insert(value);
    } else {
      set.erase(value);
    }
  }
};

struct CatalogueDesk : CatalogueTree {
  ScriptedDialogs Asked;
  CatalogueBoxes View;
  CatalogueEditor Editor{Catalog, Asked, View};

  void Fill(std::initializer_list<std::pair<CatalogueBox, QString>> texts) {
    for (const auto& [box, text] : texts) View.SetText(box, text);
  }
  void FillItem() {
    Fill({{CatalogueBox::txtDescription1, QStringLiteral("Hammer")},
          {CatalogueBox::cboCategory, QStringLiteral("Tools")},
          {CatalogueBox::txtCharge1, QStringLiteral("12")},
          {CatalogueBox::txtCharge2, QStringLiteral("11")},
          {CatalogueBox::txtOnHand, QStringLiteral("10")}});
  }
  QString Row(CatalogueList list, int row) {
    QStringList cells;
    TextMatrix& grid = Catalog.Grid(list);
    for (int col = 0; col < grid.Cols(); ++col) cells << grid.Text(row, col);
    return cells.join(u'|');
  }
  bool Live(int command) const { return Catalog.CommandEnabled(command); }
};
