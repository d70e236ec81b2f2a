// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "devices/core/DeviceTreeLayout.h"

#include "devices/core/ModelCatalogue.h"
#include "devices/core/ModelRules.h"

#include <QCoreApplication>
#include <QSet>

#include <algorithm>

namespace Velmora {
namespace {

using Models = QList<Utils::Model>;

/// Fills a row from a device of a known model; false, with the row untouched, if the catalogue lacks it.
bool describeDevice(DeviceTreeRow& row, const Utils::Ups& device, const Models& models)
{
    const Utils::Model* model = Utils::findModel(models, device.model_name);
    if (!model)
        return false;
    row.text = device.user_defined_name.isEmpty() ? model->fullName : device.user_defined_name;
    // Colour comes with the first status list.
    row.iconPath = QStringLiteral(":/indicators/images/indicators/grey.png");
    row.ups = device;
    row.modelFullName = model->fullName;
    return true;
}

/// The row of a virtual device. The ids of its units are added to `assignedIds`, also those of units that
/// stay blank because their model is unknown.
DeviceTreeRow virtualDeviceRow(const Utils::Ups& device, const QVector<Utils::Ups>& devices,
                               const Models& models, QSet<int>& assignedIds)
{
    DeviceTreeRow row;
    describeDevice(row, device, models);
    for (const QString& unitId : device.phy_ids) {
        for (const Utils::Ups& unit : devices) {
            if (unit.id != unitId)
                continue;
            DeviceTreeRow child;
            describeDevice(child, unit, models);
            row.children.push_back(std::move(child));
            assignedIds.insert(unit.id.toInt());
        }
    }
    return row;
}

DeviceTreeRow physicalDeviceRow(const Utils::Ups& device, const Models& models)
{
    DeviceTreeRow row;
    if (!describeDevice(row, device, models)) {
        row.text = QCoreApplication::translate("VelmoraWindow", "<NIEZNANY>");
        row.iconPath = QStringLiteral(":/indicators/images/indicators/unknown.png");
    }
    return row;
}

} // namespace

bool operator==(const DeviceTreePosition& left, const DeviceTreePosition& right)
{
    return left.top == right.top && left.child == right.child;
}

std::vector<DeviceTreeRow> deviceTreeLayout(const QVector<Utils::Ups>& devices)
{
    const Models models = Utils::getAllSuportedModelList();
    std::vector<DeviceTreeRow> rows;
    QSet<int> assignedIds;
    for (const Utils::Ups& device : devices) {
        if (isVirtualDevice(device.model_name))
            rows.push_back(virtualDeviceRow(device, devices, models, assignedIds));
    }
    for (const Utils::Ups& device : devices) {
        if (!isVirtualDevice(device.model_name) && !assignedIds.contains(device.id.toInt()))
            rows.push_back(physicalDeviceRow(device, models));
    }
    return rows;
}

std::vector<DeviceTreePosition> deviceSelectionSteps(const std::vector<DeviceTreeRow>& rows,
                                                     const QString& currentId)
{
    const int current = currentId.toInt();
    const auto isCurrent = [current](const DeviceTreeRow& row) { return row.ups.id.toInt() == current; };

    std::vector<DeviceTreePosition> steps;
    for (std::size_t top = 0; top < rows.size(); ++top) {
        const DeviceTreeRow& row = rows[top];
        if (isCurrent(row)) {
            steps.push_back({static_cast<int>(top), -1});
            return steps;
        }
        // A match among the children does not end the search: a later row with the same id takes over.
        const auto child = std::find_if(row.children.cbegin(), row.children.cend(), isCurrent);
        if (child != row.children.cend())
            steps.push_back({static_cast<int>(top), static_cast<int>(child - row.children.cbegin())});
    }
    if (steps.empty() && !rows.empty())
        steps.push_back({0, -1});
    return steps;
}

} // namespace Velmora
