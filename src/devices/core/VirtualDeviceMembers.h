// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include "link/DeviceRecords.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <vector>

namespace Velmora {

/// What a unit is to the virtual device whose members are picked.
enum class VirtualMemberState {
    BusySilent = 0,  ///< member of a virtual device, does not report as a parallel unit
    Busy = 1,        ///< member of another virtual device, reports
    Silent = 2,      ///< reserved
    Available = 3,   ///< free or a member of this device, reports
    MemberSilent = 4 ///< member of this device, does not report
};

/// One unit that is shown for picking.
struct VirtualMemberRow
{
    QString id; ///< empty for a unit of unknown model, which cannot be picked
    QString address;
    QString label;
    VirtualMemberState state = VirtualMemberState::BusySilent;
    bool enabled = false;
    bool checked = false;
};

/// The units of every virtual device, then the free ones that report as parallel units. `members` are those
/// of the device that is edited, none for a new one. Empty: there is nothing to pick from.
[[nodiscard]] std::vector<VirtualMemberRow> virtualMemberRows(const QList<Utils::Ups>& allDevices,
                                                              const QList<Utils::Ups>& membersOfAllVirtuals,
                                                              const QList<Utils::Ups>& members);

[[nodiscard]] QString virtualMemberStatusText(VirtualMemberState state);

/// Full name of a model; the config name itself if the catalogue lacks it.
[[nodiscard]] QString modelLabel(const QString& configName);

} // namespace Velmora
