// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

class QTreeWidget;
class QTreeWidgetItem;

namespace Velmora {

/// Columns of the trees with computers and groups. From KindColumn on they are hidden and say what a row
/// stands for; they are read as DisplayRole.
enum NetworkTreeColumn {
    NameColumn,
    AddressColumn,
    KindColumn = 5,
    GroupIdColumn = 6,   ///< of groups and of their members
    ComputerIdColumn = 7 ///< of computers
};

/// Values of KindColumn.
extern const QString headerKind;
extern const QString computerKind;
extern const QString groupKind;

/// Gives the tree all columns and shows the first two under `titles`, that of the names `nameWidth` pixels
/// wide.
void prepareNetworkTree(QTreeWidget* tree, const QStringList& titles, int nameWidth);

/// False without a row.
[[nodiscard]] bool isOfKind(const QTreeWidgetItem* row, const QString& kind);
[[nodiscard]] int rowGroupId(const QTreeWidgetItem& row);
[[nodiscard]] int rowComputerId(const QTreeWidgetItem& row);

} // namespace Velmora
