// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include "link/DeviceRecords.h"

#include <QTreeWidgetItem>

/// One row of the device tree with the device that it stands for.
class UpsTreeElement final : public QTreeWidgetItem
{
public:
    UpsTreeElement();
    Q_DISABLE_COPY_MOVE(UpsTreeElement)

    /// Shows the picture of this path, unless the row does already.
    void setIndicator(const QString& path, const QIcon& picture);

    /// The devices of the rows below this one.
    [[nodiscard]] QList<Velmora::Utils::Ups> childUps() const;

    Velmora::Utils::Ups ups; ///< empty for a row that stands for no known device
    QString modelFullName;   ///< the model's name even where the row shows the user's own name

private:
    QString m_indicatorPath;
};
