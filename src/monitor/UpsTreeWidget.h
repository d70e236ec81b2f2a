// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include "devices/core/DeviceTreeLayout.h"

#include <QHash>
#include <QIcon>
#include <QTreeWidget>

#include <vector>

class UpsTreeElement;

/// The device tree. Its rows stand in the order in which they were added; it holds no state beyond them.
class UpsTreeWidget final : public QTreeWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(UpsTreeWidget)

public:
    /// `administratorMode` outlives the tree, which reads it at each context menu.
    explicit UpsTreeWidget(const bool* administratorMode, QWidget* parent = nullptr);

    /// Deletes every row.
    void clear();
    void addRows(const std::vector<Velmora::DeviceTreeRow>& rows);
    /// Shows the picture of a resource path in the row; an empty path leaves it without one.
    void showIndicator(UpsTreeElement* element, const QString& path);

    [[nodiscard]] UpsTreeElement* currentElement() const;
    /// The row at a position of the layout that the tree was built from; null if there is none.
    [[nodiscard]] UpsTreeElement* elementAt(Velmora::DeviceTreePosition position) const;
    /// Every row, units of virtual devices included, from top to bottom.
    [[nodiscard]] std::vector<UpsTreeElement*> allElements() const;

signals:
    void editActionTriggered(int row);
    void deleteActionTriggered(int row);
    void addUpsActionTriggered();

public slots:
    void onCustomContextMenuRequested(const QPoint& pos);
    void editActionTriggeredSlot();
    void deleteActionTriggeredSlot();

private:
    UpsTreeElement* makeElement(const Velmora::DeviceTreeRow& row);

    const bool* m_administratorMode;
    QHash<QString, QIcon> m_indicators; ///< by path: each picture is loaded once, not once a row
};
