#include "shell/frmOrderMenu.h"

#include <QMenu>

using namespace Qt::StringLiterals;

std::vector<std::pair<QAction*, OrderEntry>> BuildOrderMenu(QMenu* menu) {
  std::vector<std::pair<QAction*, OrderEntry>> actions;
  const auto add = [&actions](QMenu* to, const std::vector<OrderEntry>& entries) {
    for (const OrderEntry& entry : entries) {
      QAction* action = to->addAction(entry.Text);
      action->setObjectName(entry.Name);
      actions.emplace_back(action, entry);
    }
  };
  QMenu* heading = menu->addMenu(u"&Deluxe Forms"_s);
  heading->setObjectName(u"mnuDeluxeForms"_s);
  add(heading, DeluxeOrderEntries());
  add(menu, AskingOrderEntries());
  return actions;
}
