#include "desktop/EntryModel.h"

void EntryModel::Assign(QStringList texts, QList<int> data) {
  beginResetModel();
  m_texts = std::move(texts);
  m_data = std::move(data);
  m_data.resize(m_texts.size());
  endResetModel();
}

void EntryModel::Insert(int row, const QString& text, int data) {
  beginInsertRows({}, row, row);
  m_texts.insert(row, text);
  m_data.insert(row, data);
  endInsertRows();
}

int EntryModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(m_texts.size());
}

QVariant EntryModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || index.row() >= m_texts.size()) {
    return {};
  }
  switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
      return m_texts.at(index.row());
    case Qt::UserRole:
      return m_data.at(index.row());
    default:
      return {};
  }
}

bool EntryModel::setData(const QModelIndex& index, const QVariant& value, int role) {
  if (!index.isValid() || index.row() >= m_texts.size()) {
    return false;
  }
  if (role == Qt::EditRole || role == Qt::DisplayRole) {
    m_texts[index.row()] = value.toString();
  } else if (role == Qt::UserRole) {
    m_data[index.row()] = value.toInt();
  } else {
    return false;
  }
  Q_EMIT dataChanged(index, index, {role});
  return true;
}

bool EntryModel::insertRows(int row, int count, const QModelIndex& parent) {
  if (parent.isValid() || count <= 0 || row < 0 || row > m_texts.size()) {
    return false;
  }
  beginInsertRows({}, row, row + count - 1);
  m_texts.insert(row, count, QString());
  m_data.insert(row, count, 0);
  endInsertRows();
  return true;
}

bool EntryModel::removeRows(int row, int count, const QModelIndex& parent) {
  if (parent.isValid() || count <= 0 || row < 0 || row + count > m_texts.size()) {
    return false;
  }
  beginRemoveRows({}, row, row + count - 1);
  m_texts.remove(row, count);
  m_data.remove(row, count);
  endRemoveRows();
  return true;
}
