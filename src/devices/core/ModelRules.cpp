// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "devices/core/ModelRules.h"

#include <QLatin1String>

#include <algorithm>
#include <iterator>

namespace Velmora {
namespace {

struct StemRule
{
    const char* prefix;
    const char* stem;
};

// The first matching row wins: a longer prefix stands before the family that it is an exception of.
constexpr StemRule stemRules[] = {
    {"TarvexRT_SNMP", "TarvexRT_SNMP"},
    {"TarvexRT_6_10_SNMP", "TarvexRT_SNMP"},
    {"TarvexRT_6_10", "TarvexRT_6_10"},
    {"TarvexRT_", "TarvexRT"},
    {"CormelRT_XL_SNMP", "CormelRT_SNMP"},
    {"CormelRT_SNMP", "CormelRT_SNMP"},
    {"CormelRT_XL", "CormelRT_XL"},
    {"CormelRT", "CormelRT"},
    {"LumoPro_Avr", "LumoPro_Avr"},
    {"Fenna_Avr", "Fenna_Avr"},
    {"Tarvex_Dual31_SNMP", "Tarvex_Dual31_SNMP"},
    {"TARVEX_RT_PLUS_SNMP", "Tarvex_RT_Plus_SNMP"},
    {"TARVEX_RT_PLUS", "Tarvex_RT_Plus"},
    {"Cormel_HID", "Cormel_HID"},
    {"TarvexRTPlus6_10_RS232", "TarvexRTPlus6_10_RS232"},
    {"TarvexRTPlus6_10_USB", "TarvexRTPlus6_10_USB"},
    {"TarvexRTPlus6_10_SNMP", "TarvexRTPlus6_10_SNMP"},
    {"Tarvex_KOMBI_10k_20k_RS232", "Tarvex_KOMBI_10k_20k_RS232"},
    {"Tarvex_KOMBI_10k_20k_SNMP", "Tarvex_KOMBI_10k_20k_SNMP"},
    {"Tarvex_NOIR_RS232", "Tarvex_NOIR_RS232"},
    {"Tarvex_NOIR_SNMP", "Tarvex_NOIR_SNMP"},
    {"Tarvex_RT_PRO_1k_3k_USB", "Tarvex_RT_PRO_1k_3k_USB"},
    {"Tarvex_RT_PRO_1k_3k_SNMP", "Tarvex_RT_PRO_1k_3k_SNMP"},
    {"Tarvex_RT_PRO_1k_3k_RS232", "Tarvex_RT_PRO_1k_3k_RS232"},
};

constexpr const char* advancedPrefixes[] = {"Tarvex33", "TarvexRT", "Hedrix", "Virtual", "CormelRT"};

constexpr const char* advancedParts[] = {"Meridian",
                                         "Borel",
                                         "LumoPro_Avr",
                                         "Fenna_Avr",
                                         "Tarvex_Dual31",
                                         "TARVEX_RT_PLUS",
                                         "Cormel_HID",
                                         "TarvexRTPlus6_10",
                                         "Tarvex_KOMBI_10k_20k",
                                         "Tarvex_NOIR",
                                         "Tarvex_RT_PRO_1k_3k"};

bool startsWithIgnoringCase(const QString& configName, const char* prefix)
{
    return configName.startsWith(QLatin1String(prefix), Qt::CaseInsensitive);
}

} // namespace

bool isVirtualDevice(const QString& configName)
{
    return configName == QLatin1String("Virtual_Device");
}

bool isGenset(const QString& configName)
{
    return configName.contains(QLatin1String("Borel"));
}

bool isLargeDevice(const QString& configName)
{
    return showsThreePhases(configName) || startsWithIgnoringCase(configName, "hedrix");
}

bool isThreePhaseFamily(const QString& configName)
{
    return startsWithIgnoringCase(configName, "tarvex33");
}

bool showsThreePhases(const QString& configName)
{
    return isThreePhaseFamily(configName) || startsWithIgnoringCase(configName, "virtual_device");
}

bool hasEditableConfiguration(const QString& configName)
{
    return configName.toLower() != QLatin1String("tarvex (rs232)");
}

QString devicePictureName(const QString& configName)
{
    QString family = configName;
    family.remove(QLatin1String("_RS232"));
    family.remove(QLatin1String("_SNMP"));
    family.remove(QLatin1String("_USB"));
    return QLatin1String(":/devices/images/devices/") + family.toLower();
}

QString eventDefinitionStem(const QString& configName)
{
    if (isThreePhaseFamily(configName))
        return QStringLiteral("Tarvex33");
    if (startsWithIgnoringCase(configName, "Hedrix") ||
        configName.contains(QLatin1String("Meridian"), Qt::CaseInsensitive))
        return QStringLiteral("Hedrix");

    const auto* const rule =
        std::find_if(std::begin(stemRules), std::end(stemRules), [&configName](const StemRule& candidate) {
            return configName.startsWith(QLatin1String(candidate.prefix));
        });
    return rule == std::end(stemRules) ? configName : QString::fromLatin1(rule->stem);
}

QStringList eventDefinitionStems()
{
    return {
        QStringLiteral("Fenna_Avr"),
        QStringLiteral("LumoPro_Avr"),
        QStringLiteral("Borel_SNMP"),
        QStringLiteral("Tarvex33"),
        QStringLiteral("TarvexRT"),
        QStringLiteral("TarvexRTPlus6_10_RS232"),
        QStringLiteral("TarvexRTPlus6_10_SNMP"),
        QStringLiteral("TarvexRTPlus6_10_USB"),
        QStringLiteral("TarvexRT_6_10"),
        QStringLiteral("TarvexRT_SNMP"),
        QStringLiteral("Tarvex_NOIR_RS232"),
        QStringLiteral("Tarvex_NOIR_SNMP"),
        QStringLiteral("Tarvex_Dual31_SNMP"),
        QStringLiteral("Tarvex_KOMBI_10k_20k_RS232"),
        QStringLiteral("Tarvex_KOMBI_10k_20k_SNMP"),
        QStringLiteral("Tarvex_RT_PRO_1k_3k_RS232"),
        QStringLiteral("Tarvex_RT_PRO_1k_3k_SNMP"),
        QStringLiteral("Tarvex_RT_PRO_1k_3k_USB"),
        QStringLiteral("Tarvex_RT_Plus"),
        QStringLiteral("Tarvex_RT_Plus_SNMP"),
        QStringLiteral("CormelRT"),
        QStringLiteral("CormelRT_SNMP"),
        QStringLiteral("CormelRT_XL"),
        QStringLiteral("Cormel_HID"),
        QStringLiteral("Hedrix"),
        QStringLiteral("Virtual_Device"),
    };
}

bool hasAdvancedEventOptions(const QString& configName)
{
    const auto startsConfigName = [&configName](const char* prefix) {
        return startsWithIgnoringCase(configName, prefix);
    };
    const auto isPartOfConfigName = [&configName](const char* part) {
        return configName.contains(QLatin1String(part), Qt::CaseInsensitive);
    };
    return std::any_of(std::begin(advancedPrefixes), std::end(advancedPrefixes), startsConfigName) ||
           std::any_of(std::begin(advancedParts), std::end(advancedParts), isPartOfConfigName);
}

} // namespace Velmora
