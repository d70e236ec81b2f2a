// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include "service/device/DeviceTypes.h"

#include <QSet>
#include <QStringList>

namespace Velmora::Service {

/// A device's report of one moment in the vocabulary of the policy: states, messages and alarms that are on
/// or off, and parameters that have a number.
class DeviceConditions final
{
public:
    DeviceConditions(const QString& modelName, const DeviceState& report);

    /// Off for a key that nothing in the report stands for.
    [[nodiscard]] bool isOn(const QString& key) const;
    /// The reported number in the unit of the report; NaN if there is none.
    [[nodiscard]] double parameter(const QString& key) const;

private:
    QStringList m_states;
    QSet<QString> m_codes;
    KeyValues m_values;
};

/// The key is one of a state, a message or an alarm, whether known or not.
[[nodiscard]] bool isConditionKey(const QString& key);

} // namespace Velmora::Service
