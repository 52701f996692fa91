/// What an invoice page prints, as plain texts: the invoice in the making and a stored image both fill this.
#pragma once

#include <QString>

class TextMatrix;

struct PageHeading {
  QString Acct;
  QString Date;
  QString InvoiceNo;
  QString Reference;
};

struct PageAddress {
  QString Name;
  QString Address1;
  QString Address2;
  QString City;
  QString State;
  QString Postal;

  bool IsEmpty() const {
    return Name.isEmpty() && Address1.isEmpty() && Address2.isEmpty() && City.isEmpty() && State.isEmpty() &&
           Postal.isEmpty();
  }
};

struct PageShipping {
  QString ShipVia;
  QString ShipDate;  ///< Short date text.
  QString Reference;
};

/// Amounts as text: numeric text prints as currency, other text as it stands, so that an empty one prints nothing.
struct PageTotals {
  QString SubTotal;
  QString Tax1;
  QString Tax2;
  QString Shipping;
  QString Handling;
  QString GrandTotal;
};

struct InvoicePage {
  PageHeading Heading;
  PageAddress SoldTo;
  bool UsaAddress = true;  ///< The customer screen's address style; it governs sold-to and ship-to.
  bool HasShipTo = false;  ///< `ckShipto`; a reprint doesn't ask for it.
  PageAddress ShipTo;
  PageShipping Shipping;
  const TextMatrix* Lines = nullptr;  ///< Quantity, description, date, price, total; from row 1.
  qint16 LineCount = 0;
  PageTotals Totals;
};
