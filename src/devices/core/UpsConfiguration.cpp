// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "devices/core/UpsConfiguration.h"

namespace Velmora {

UpsConfiguration::UpsConfiguration(const QString& settingKey, const QString& caption, const QString& unitText,
                                   UpsConfType control, const bool& isVisible, const bool& isWide)
    : key(settingKey)
    , label(caption)
    , unit(unitText)
    , type(control)
    , visible(isVisible)
    , wide(isWide)
{}

std::vector<UpsConfigurationPlace> upsConfigurationPlaces(const QList<UpsConfiguration>& catalogue,
                                                          const QMap<QString, QString>& map)
{
    std::vector<UpsConfigurationPlace> places;
    const int half = map.size() / 2;
    int index = 0;
    for (const UpsConfiguration& setting : catalogue) {
        const auto value = map.constFind(setting.key);
        if (value == map.cend())
            continue;
        const bool left = index < half;
        places.push_back({setting, *value, left ? index : index - half, left ? 0 : 1});
        ++index;
    }
    return places;
}

ChoiceValue choiceValue(const QString& value)
{
    ChoiceValue choice;
    choice.options = value.split(QLatin1Char(';'));
    choice.current = choice.options.takeFirst();
    return choice;
}

bool isNumericSetting(const QString& key)
{
    static const QStringList keys{
        QStringLiteral("output_voltage"),
        QStringLiteral("battery_modules_count"),
        QStringLiteral("overload_alert_threshold"),
        QStringLiteral("standby_cap"),
        QStringLiteral("lower_output_threshold"),
        QStringLiteral("upper_output_threshold"),
        QStringLiteral("lower_output_freq_threshold"),
        QStringLiteral("upper_output_freq_threshold"),
        QStringLiteral("standby_delay"),
        QStringLiteral("auth_time_m_low_battery"),
        QStringLiteral("auth_time_low_battery"),
    };
    return keys.contains(key);
}

bool isSecretSetting(const QString& key)
{
    return key == QLatin1String("access_code");
}

bool isAssignedByDhcp(const QString& key)
{
    return key == QLatin1String("snmp_agent_ip") || key == QLatin1String("network_mask") ||
           key == QLatin1String("default_gateway");
}

bool settingDiffers(UpsConfType type, const QString& received, const std::optional<QString>& present,
                    bool touched)
{
    if (!touched || !present)
        return false;
    const bool isChoice = type == UpsConfTypeRadioGroup || type == UpsConfTypeComboBox;
    return *present != (isChoice ? choiceValue(received).current : received);
}

} // namespace Velmora
