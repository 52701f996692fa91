/// The entries of a list combo: a text and a data word each, held so that tens of thousands of them cost nothing to
/// fill or to look through.
#pragma once

#include <QAbstractListModel>
#include <QStringList>

class EntryModel : public QAbstractListModel {
 public:
  using QAbstractListModel::QAbstractListModel;

  void Assign(QStringList texts, QList<int> data);
  void Insert(int row, const QString& text, int data);
  const QStringList& Texts() const { return m_texts; }
  int Data(int row) const { return m_data.value(row, 0); }

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role) override;
  bool insertRows(int row, int count, const QModelIndex& parent) override;
  bool removeRows(int row, int count, const QModelIndex& parent) override;

 private:
  QStringList m_texts;
  QList<int> m_data;
};
