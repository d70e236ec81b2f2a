// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractTableModel>

#include <memory>
#include <vector>

class QStandardItem;
class QStandardItemModel;

/// One page of a parameters log: a grid of texts and the tree of cells that heads its columns.
class LogTableModel final : public QAbstractTableModel
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(LogTableModel)

public:
    LogTableModel(int rows, int columns, QObject* parent = nullptr);
    ~LogTableModel() override;

    /// Takes the item and deletes the one that stood there. Throws std::out_of_range, and leaves the item to
    /// the caller, if there is no such place.
    void setItem(int row, int column, QStandardItem* item);
    /// Takes the header's tree, see HierarchicalHeaderView, and deletes the one before.
    void setTableHeaderData(QStandardItemModel* header);

    [[nodiscard]] int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    /// Without rows as many as the header has leaves, so that the header of an empty page stands.
    [[nodiscard]] int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    /// Qt::UserRole gives the header's tree, here and as horizontal header data.
    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role = Qt::DisplayRole) const override;

private:
    [[nodiscard]] QVariant headerPointer() const;

    int m_rows;
    int m_columns;
    // Each row as far as it was filled: rows times columns is no size that a page may announce.
    std::vector<std::vector<std::unique_ptr<QStandardItem>>> m_items;
    std::unique_ptr<QStandardItemModel> m_header;
};
