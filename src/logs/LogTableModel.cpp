// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "logs/LogTableModel.h"

#include <QStandardItemModel>

#include <stdexcept>

namespace {

int leafCount(const QStandardItemModel& model, const QModelIndex& cell)
{
    const int columns = model.rowCount(cell) == 0 ? 0 : model.columnCount(cell);
    if (columns == 0)
        return cell.isValid() ? 1 : 0;
    int leaves = 0;
    for (int column = 0; column < columns; ++column)
        leaves += leafCount(model, model.index(0, column, cell));
    return leaves;
}

} // namespace

LogTableModel::LogTableModel(int rows, int columns, QObject* parent)
    : QAbstractTableModel(parent)
    , m_rows(qMax(0, rows))
    , m_columns(qMax(0, columns))
    , m_items(static_cast<std::size_t>(m_rows))
{}

LogTableModel::~LogTableModel() = default;

void LogTableModel::setItem(int row, int column, QStandardItem* item)
{
    if (row < 0 || row >= m_rows || column < 0 || column >= m_columns)
        throw std::out_of_range("no such cell in the log table");
    auto& items = m_items[static_cast<std::size_t>(row)];
    const auto place = static_cast<std::size_t>(column);
    if (items.size() <= place)
        items.resize(place + 1);
    items[place].reset(item);
    const QModelIndex changed = createIndex(row, column);
    emit dataChanged(changed, changed);
}

void LogTableModel::setTableHeaderData(QStandardItemModel* header)
{
    beginResetModel();
    m_header.reset(header);
    endResetModel();
}

int LogTableModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_rows;
}

int LogTableModel::columnCount(const QModelIndex& parent) const
{
    if (parent.isValid())
        return 0;
    if (m_rows > 0)
        return m_columns;
    return m_header ? leafCount(*m_header, QModelIndex()) : 0;
}

QVariant LogTableModel::data(const QModelIndex& index, int role) const
{
    if (role == Qt::UserRole)
        return headerPointer();
    if (role != Qt::DisplayRole || !index.isValid() || index.row() >= m_rows || index.column() >= m_columns)
        return {};
    const auto& items = m_items[static_cast<std::size_t>(index.row())];
    const auto place = static_cast<std::size_t>(index.column());
    return place < items.size() && items[place] ? QVariant(items[place]->text()) : QVariant();
}

QVariant LogTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Horizontal && role == Qt::UserRole)
        return headerPointer();
    return QAbstractTableModel::headerData(section, orientation, role);
}

QVariant LogTableModel::headerPointer() const
{
    return m_header ? QVariant::fromValue<QObject*>(m_header.get()) : QVariant();
}
