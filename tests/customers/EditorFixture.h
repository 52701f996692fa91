/// The rules of the customer screen on a tree of their own: boxes that only hold their texts, and the user's answers
/// prepared. A test class is one of these and begins each test with `Begin`.
#pragma once

#include <QtTest>

#include "customers/CustomerEditor.h"
#include "customers/CustomerFixture.h"
#include "customers/CustomerRecords.h"
#include "setup/BusinessProfile.h"
#include "support/ScriptedDialogs.h"

class EditorFixture : public QObject {
 protected:
  struct Desk : CustomerTree {
    ScriptedDialogs Boxes;
    BusinessProfile Profile;
    CustomerOnScreen OnScreen;
    PlainView View;
    CustomerEditor Editor{Disk, Boxes, Profile, OnScreen, View};
  };
  std::unique_ptr<Desk> m_desk;

  /// A business in Sparks, with addresses in USA style.
  void Begin() {
    m_desk = std::make_unique<Desk>();
    m_desk->Profile.BusinessCity = QStringLiteral("Sparks");
    m_desk->Profile.AddressStyleCaption = QStringLiteral("USA Style Address");
  }

  void PutCustomers(const QByteArray& content) { m_desk->Put(QStringLiteral("/CustomerData.txt"), content); }
  QByteArray Customers() { return m_desk->Bytes(QStringLiteral("/CustomerData.txt")); }
  void Type(CustomerBox box, const QString& text) { m_desk->View.SetText(box, text); }
  QString Text(CustomerBox box) { return m_desk->View.Text(box); }
  CustomerEditor& Editor() { return m_desk->Editor; }
  /// The boxes that came up since the last call.
  QStringList Shown() { return m_desk->Boxes.Take(); }
  /// What a showing of the screen runs.
  void Activate() {
    Editor().DecideAddressStyle();
    Editor().ApplyAccountType(QStringLiteral("Business"));
    Editor().BlankBoxes();
    Editor().Open();
  }
  void OpenWith(const QByteArray& content) {
    PutCustomers(content);
    Activate();
  }
};
