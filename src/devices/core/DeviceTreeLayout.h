// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include "link/DeviceRecords.h"

#include <QString>
#include <QVector>

#include <vector>

namespace Velmora {

/// What one row of the device tree shows and stands for. A row whose record is empty stands for no device
/// that status lists or requests could name.
struct DeviceTreeRow
{
    QString text;
    QString iconPath; ///< empty: no icon
    Utils::Ups ups;
    QString modelFullName; ///< the model's name even where the row shows the user's own name
    std::vector<DeviceTreeRow> children;
};

/// A row's place: index among the top-level rows and, for a unit of a virtual device, among its children.
struct DeviceTreePosition
{
    int top = 0;
    int child = -1; ///< -1: the top-level row itself
};

[[nodiscard]] bool operator==(const DeviceTreePosition& left, const DeviceTreePosition& right);

/// Rows for a device list as the service sent it: virtual devices with their units below them, then every
/// physical device that no virtual one names.
[[nodiscard]] std::vector<DeviceTreeRow> deviceTreeLayout(const QVector<Utils::Ups>& devices);

/// The rows to make current one after the other in a tree built anew, so that the device of `currentId`
/// (decimal text) is selected again; the last one stays. Falls back to the first row; empty for no rows only.
[[nodiscard]] std::vector<DeviceTreePosition> deviceSelectionSteps(const std::vector<DeviceTreeRow>& rows,
                                                                   const QString& currentId);

} // namespace Velmora
