// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include "service/device/DeviceTypes.h"

#include <QStringList>

namespace Velmora::Service {

enum class SettingKind {
    Text,
    Number,
    Flag,    ///< "0" or "1"
    Choice,  ///< one of a list
    Command, ///< "1" carries it out; always reads "0"
};

/// One setting that a device offers.
struct SettingSpec
{
    const char* key;
    SettingKind kind;
    const char* initial;
    const char* options; ///< of a choice, joined by ";"
    double minimum;      ///< of a number
    double maximum;
};

/// Whether the command brings back what the device came with.
[[nodiscard]] bool restoresDefaults(const QString& key);

/// The settings of one device and their present values.
class DeviceSettings final
{
public:
    DeviceSettings() = default;
    /// The defaults go before the initial values of the specs. Values for keys that the device does not
    /// offer, or that it would refuse, are left out.
    DeviceSettings(const QVector<SettingSpec>& specs, const KeyValues& defaults, const KeyValues& values);

    [[nodiscard]] KeyValues configuration() const;
    /// Leaves it to the caller to tell what lasts of it.
    [[nodiscard]] SettingOutcome apply(const QString& key, const QString& value);
    [[nodiscard]] KeyValues changedValues() const;
    void set(QLatin1String key, const QString& value);

    [[nodiscard]] bool offers(QLatin1String key) const;
    [[nodiscard]] bool flag(QLatin1String key) const;
    [[nodiscard]] double number(QLatin1String key, double fallback) const;
    [[nodiscard]] QString text(QLatin1String key) const;

private:
    [[nodiscard]] const SettingSpec* find(const QString& key) const;

    QVector<SettingSpec> m_specs;
    KeyValues m_defaults;
    KeyValues m_values;
};

} // namespace Velmora::Service
