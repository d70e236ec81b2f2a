// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "policy/NetworkTreeColumns.h"

#include <QTreeWidget>

namespace Velmora {

const QString headerKind = QStringLiteral("header");
const QString computerKind = QStringLiteral("computer");
const QString groupKind = QStringLiteral("group");

void prepareNetworkTree(QTreeWidget* tree, const QStringList& titles, int nameWidth)
{
    tree->setColumnCount(ComputerIdColumn + 1);
    tree->setHeaderLabels(titles);
    for (int column = AddressColumn + 1; column < tree->columnCount(); ++column) {
        tree->headerItem()->setText(column, QString());
        tree->hideColumn(column);
    }
    tree->setColumnWidth(NameColumn, nameWidth);
}

bool isOfKind(const QTreeWidgetItem* row, const QString& kind)
{
    return row && row->text(KindColumn) == kind;
}

int rowGroupId(const QTreeWidgetItem& row)
{
    return row.data(GroupIdColumn, Qt::DisplayRole).toInt();
}

int rowComputerId(const QTreeWidgetItem& row)
{
    return row.data(ComputerIdColumn, Qt::DisplayRole).toInt();
}

} // namespace Velmora
