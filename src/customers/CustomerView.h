/// What the rules of the customer screen see of it: its boxes by name, and the few things that they make it show.
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

/// The boxes that a record fills. The elements of `txtCustomer` come first, at their own index.
enum class CustomerBox {
  txtCustomer0,
  txtCustomer1,
  txtCustomer2,
  txtCustomer3,
  txtCustomer4,
  txtCustomer5,
  txtCustomer6,
  txtCustomer7,
  txtCustomer8,
  txtCustomer9,
  txtCustomer10,
  txtCustomer11,
  cboCity,
  cboStates,
  cboTitle,
  txtAdd3,
  txtAdd4,
  lbLType
};

class CustomerView {
 public:
  virtual ~CustomerView() = default;
  virtual QString Text(CustomerBox box) const = 0;
  virtual void SetText(CustomerBox box, const QString& text) = 0;
  /// Nothing happens where the box is hidden.
  virtual void FocusOn(CustomerBox box) = 0;
  virtual void FocusOnSelect() = 0;  ///< `cmdCustomer(1)`.
  /// A business has its one name box; a person a title and three name boxes.
  virtual void ShowNameBoxes(bool business) = 0;
  virtual void ShowAddressBoxes(bool usa) = 0;
  virtual void SetCustomerCaption(const QString& caption) = 0;
  virtual void SetAuxCaption(const QString& caption) = 0;
  virtual void HideSearchFrames() = 0;
  virtual void LoadAuxiliaryBoxes() = 0;
  virtual void SetAccounts(const QStringList& accounts, const QList<int>& records) = 0;
  /// The text that the box of cities shows stays.
  virtual void SetCities(const QStringList& cities) = 0;
  virtual void AddCity(const QString& city) = 0;
};
