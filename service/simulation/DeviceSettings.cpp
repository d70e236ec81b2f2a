// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "service/simulation/DeviceSettings.h"

#include <algorithm>

namespace Velmora::Service {

namespace {

constexpr int maximumTextLength = 80;

QString refusal(const SettingSpec& spec, const QString& value)
{
    switch (spec.kind) {
    case SettingKind::Text:
        // A panel leaves out a setting that is reported empty, and so could never fill it again.
        if (value.isEmpty())
            return QStringLiteral("empty");
        return value.size() <= maximumTextLength
                   ? QString()
                   : QStringLiteral("longer than %1 characters").arg(maximumTextLength);
    case SettingKind::Number: {
        bool valid = false;
        const double number = QString(value).replace(QLatin1Char(','), QLatin1Char('.')).toDouble(&valid);
        return valid && number >= spec.minimum && number <= spec.maximum
                   ? QString()
                   : QStringLiteral("not a number from %1 to %2").arg(spec.minimum).arg(spec.maximum);
    }
    case SettingKind::Flag:
    case SettingKind::Command:
        return value == QLatin1String("0") || value == QLatin1String("1") ? QString()
                                                                          : QStringLiteral("neither 0 nor 1");
    case SettingKind::Choice:
        break;
    }
    const QStringList options = QString(QLatin1String(spec.options)).split(QLatin1Char(';'));
    return options.contains(value) ? QString()
                                   : QStringLiteral("not one of ") % options.join(QLatin1String(", "));
}

} // namespace

bool restoresDefaults(const QString& key)
{
    return key == QLatin1String("restore_default_settings_ups") ||
           key == QLatin1String("reset_control_parameters");
}

DeviceSettings::DeviceSettings(const QVector<SettingSpec>& specs, const KeyValues& defaults,
                               const KeyValues& values)
    : m_specs(specs)
{
    for (const SettingSpec& spec : m_specs) {
        const QString key = QLatin1String(spec.key);
        m_defaults.insert(key, defaults.value(key, QString::fromUtf8(spec.initial)));
    }
    m_values = m_defaults;
    for (auto entry = values.cbegin(); entry != values.cend(); ++entry)
        static_cast<void>(apply(entry.key(), entry.value()));
}

KeyValues DeviceSettings::configuration() const
{
    KeyValues configuration = m_values;
    for (const SettingSpec& spec : m_specs) {
        if (spec.kind == SettingKind::Choice)
            configuration[QLatin1String(spec.key)] += QLatin1Char(';') % QLatin1String(spec.options);
    }
    return configuration;
}

SettingOutcome DeviceSettings::apply(const QString& key, const QString& value)
{
    SettingOutcome outcome;
    const SettingSpec* spec = find(key);
    if (!spec) {
        outcome.reason = QStringLiteral("the device has no such setting");
        return outcome;
    }
    outcome.reason = refusal(*spec, value);
    outcome.accepted = outcome.reason.isEmpty();
    if (outcome.accepted && spec->kind != SettingKind::Command)
        m_values.insert(key, value);
    if (outcome.accepted && value == QLatin1String("1") && restoresDefaults(key))
        m_values = m_defaults;
    return outcome;
}

KeyValues DeviceSettings::changedValues() const
{
    KeyValues changed;
    for (auto entry = m_values.cbegin(); entry != m_values.cend(); ++entry) {
        if (m_defaults.value(entry.key()) != entry.value())
            changed.insert(entry.key(), entry.value());
    }
    return changed;
}

void DeviceSettings::set(QLatin1String key, const QString& value)
{
    if (offers(key))
        m_values.insert(key, value);
}

bool DeviceSettings::offers(QLatin1String key) const
{
    return m_values.contains(key);
}

bool DeviceSettings::flag(QLatin1String key) const
{
    return m_values.value(key) == QLatin1String("1");
}

double DeviceSettings::number(QLatin1String key, double fallback) const
{
    bool valid = false;
    const double number = text(key).replace(QLatin1Char(','), QLatin1Char('.')).toDouble(&valid);
    return valid ? number : fallback;
}

QString DeviceSettings::text(QLatin1String key) const
{
    return m_values.value(key);
}

const SettingSpec* DeviceSettings::find(const QString& key) const
{
    const auto found = std::find_if(m_specs.cbegin(), m_specs.cend(), [&key](const SettingSpec& spec) {
        return key == QLatin1String(spec.key);
    });
    return found == m_specs.cend() ? nullptr : &*found;
}

} // namespace Velmora::Service
