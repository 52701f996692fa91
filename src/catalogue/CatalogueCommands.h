/// The buttons `cmdServices` of the catalogue screen, by their index.
#pragma once

namespace CatalogueCommand {
enum {
  Menu,
  AddService,
  DeleteService,
  ModifyService,
  SaveService,
  ClearService,
  CancelService = 7,
  AddItem,
  ModifyItem,
  DeleteItem,
  ClearItem,
  GeneralLabor,
  SaveItem,
  CancelItem,
  ClearLabor,
  ReloadLabor,
  SaveLabor,
  AddCustom,
  ModifyCustom,
  DeleteCustom,
  ClearCustom,
  SaveCustom,
  CancelCustom,
  ClearPrices,
  NoDiscount,
  Count
};
}
