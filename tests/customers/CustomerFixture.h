/// The customer rules without a screen: a data tree in a temporary folder, and boxes that only hold their texts.
#pragma once

#include <map>

#include "customers/CustomerView.h"
#include "support/DataFolder.h"

class PlainView final : public CustomerView {
 public:
  std::map<CustomerBox, QString> Boxes;
  QString Focus;
  bool Business = false;
  bool Usa = false;
  QString Caption;
  QString AuxCaption;
  int SearchFramesHidden = 0;
  int AuxiliaryLoads = 0;
  QStringList Accounts;
  QList<int> Records;
  QStringList Cities;

  QString Text(CustomerBox box) const override {
    const auto at = Boxes.find(box);
    return at == Boxes.end() ? QString() : at->second;
  }
  void SetText(CustomerBox box, const QString& text) override { Boxes[box] = text; }
  void FocusOn(CustomerBox box) override { Focus = QStringLiteral("box %1").arg(static_cast<int>(box)); }
  void FocusOnSelect() override { Focus = QStringLiteral("select"); }
  void ShowNameBoxes(bool business) override { Business = business; }
  void ShowAddressBoxes(bool usa) override { Usa = usa; }
  void SetCustomerCaption(const QString& caption) override { Caption = caption; }
  void SetAuxCaption(const QString& caption) override { AuxCaption = caption; }
  void HideSearchFrames() override { ++SearchFramesHidden; }
  void LoadAuxiliaryBoxes() override { ++AuxiliaryLoads; }
  void SetAccounts(const QStringList& accounts, const QList<int>& records) override {
    Accounts = accounts;
    Records = records;
  }
  void SetCities(const QStringList& cities) override { Cities = cities; }
  void AddCity(const QString& city) override { Cities.append(city); }
};

/// A data tree with the folders that the customer rules write into.
struct CustomerTree : DataFolder {
  CustomerTree() {
    QDir().mkpath(Path(QStringLiteral("/Backup/KVActiveAccounts")));
    QDir().mkpath(Path(QStringLiteral("/KVActiveAccounts")));
  }
};
