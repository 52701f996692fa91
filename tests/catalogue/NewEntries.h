/// Entries of the catalogue screen that a test makes, or begins: the boxes filled but those that it fills itself.
#pragma once

#include "support/CatalogueScreen.h"

/// A new service, added.
inline void AddService(const CatalogueScreen& screen, const char* description) {
  screen.Click(1);
  screen.Fill("txtDescription_0", description);
  screen.Fill("txtCharge_0", "1");
  screen.PickTime("0:15");
  screen.Click(4);
}

inline void FillItem(const CatalogueScreen& screen, const char* description) {
  screen.Fill("txtDescription_1", description);
  screen.Fill("txtCharge_1", "5");
  screen.Fill("txtCharge_2", "4.5");
  screen.Fill("txtOnHand", "7");
}

/// A new item with all boxes filled but those that the test fills itself.
inline void BeginItem(const CatalogueScreen& screen) {
  screen.Click(8);
  FillItem(screen, "Hose");
}

/// The same on a screen that is opened for it.
inline void OpenAtNewItem(CatalogueScreen& screen) {
  screen.Open(1);
  BeginItem(screen);
}

inline void FillCustomItem(const CatalogueScreen& screen, const char* description, const char* price,
                           const char* discount) {
  screen.Fill("txtDescription_2", description);
  screen.Fill("txtCharge_3", price);
  screen.Fill("txtCharge_4", discount);
}

/// A new custom item on a screen that is opened for it.
inline void OpenAtNewCustomItem(CatalogueScreen& screen, const char* description, const char* price = "5",
                                const char* discount = "4") {
  screen.Open(3);
  screen.Click(18);
  FillCustomItem(screen, description, price, discount);
}
