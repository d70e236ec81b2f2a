// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "devices/core/VirtualDeviceMembers.h"

#include "devices/core/ModelCatalogue.h"

#include <QCoreApplication>

#include <algorithm>

namespace Velmora {
namespace {

using Rows = std::vector<VirtualMemberRow>;

/// The first row with this id; the end if there is none or the id says nothing. A unit of two virtual devices
/// stands twice and must not be picked twice.
Rows::iterator findRow(Rows& rows, const QString& id)
{
    if (id.isEmpty())
        return rows.end();
    return std::find_if(rows.begin(), rows.end(),
                        [&id](const VirtualMemberRow& row) { return row.id == id; });
}

VirtualMemberRow rowOf(const Utils::Ups& unit)
{
    VirtualMemberRow row;
    row.id = unit.id;
    row.label = modelLabel(unit.model_name);
    return row;
}

void markMembers(Rows& rows, const QList<Utils::Ups>& members)
{
    for (const Utils::Ups& unit : members) {
        const auto row = findRow(rows, unit.id);
        if (row == rows.end())
            continue;
        row->address = unit.unit_address;
        row->state = VirtualMemberState::MemberSilent;
        row->enabled = true;
        row->checked = true;
    }
}

void markReporting(VirtualMemberRow& row, const QString& address)
{
    row.address = address;
    if (row.state == VirtualMemberState::BusySilent)
        row.state = VirtualMemberState::Busy;
    else if (row.state == VirtualMemberState::MemberSilent)
        row.state = VirtualMemberState::Available;
}

} // namespace

std::vector<VirtualMemberRow> virtualMemberRows(const QList<Utils::Ups>& allDevices,
                                                const QList<Utils::Ups>& membersOfAllVirtuals,
                                                const QList<Utils::Ups>& members)
{
    Rows rows;
    for (const Utils::Ups& unit : membersOfAllVirtuals)
        rows.push_back(rowOf(unit));
    markMembers(rows, members);

    Rows freeUnits;
    for (const Utils::Ups& candidate : allDevices) {
        if (!candidate.parallel_unit)
            continue;
        const auto row = findRow(rows, candidate.id);
        if (row != rows.end()) {
            markReporting(*row, candidate.unit_address);
            continue;
        }
        VirtualMemberRow unit = rowOf(candidate);
        unit.address = candidate.unit_address;
        unit.state = VirtualMemberState::Available;
        unit.enabled = true;
        freeUnits.push_back(unit);
    }
    rows.insert(rows.end(), freeUnits.begin(), freeUnits.end());
    return rows;
}

QString virtualMemberStatusText(VirtualMemberState state)
{
    switch (state) {
    case VirtualMemberState::BusySilent:
        return QCoreApplication::translate("AddVirtualUpsWindow", "Zajęty; Brak komunikacji");
    case VirtualMemberState::Busy:
        return QCoreApplication::translate("AddVirtualUpsWindow", "Zajęty");
    case VirtualMemberState::Silent:
        return QCoreApplication::translate("AddVirtualUpsWindow", "Brak komunikacji");
    case VirtualMemberState::Available:
        return QCoreApplication::translate("AddVirtualUpsWindow", "Dostępny");
    case VirtualMemberState::MemberSilent:
        return QCoreApplication::translate("AddVirtualUpsWindow", "Dostępny; Brak komunikacji");
    }
    return {};
}

QString modelLabel(const QString& configName)
{
    const QList<Utils::Model> models = Utils::getAllSuportedModelList();
    const Utils::Model* model = Utils::findModel(models, configName);
    return model ? model->fullName : configName;
}

} // namespace Velmora
