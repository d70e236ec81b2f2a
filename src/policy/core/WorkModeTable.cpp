// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "policy/core/WorkModeTable.h"

#include <QCoreApplication>

namespace Velmora {

namespace {

constexpr char textContext[] = "NetworkConfigurationWindow";

struct WorkModeRow
{
    const char* key;
    const char* label;
    const char* expressionIn;
    const char* expressionOut;
};

// Sent as they stand, byte for byte: services in the field hold events with these texts.
constexpr WorkModeRow workModeEvents[] = {
    {"stateNoCommunication", QT_TRANSLATE_NOOP("NetworkConfigurationWindow", "Brak komunikacji"),
     "stateNoCommunication,ON,==,", "stateNoCommunication,OFF,==,"},
    {"stateNormal", QT_TRANSLATE_NOOP("NetworkConfigurationWindow", "Praca w trybie sieciowym"),
     "stateNormal,ON,==,", "stateNormal,OFF,==,"},
    {"stateBatteryBackup",
     QT_TRANSLATE_NOOP("NetworkConfigurationWindow", "Praca w trybie podtrzymania z baterii"),
     "stateBatteryBackup,ON,==,", "stateNormal,ON,==,"},
    {"stateBatteryLowLevel", QT_TRANSLATE_NOOP("NetworkConfigurationWindow", "Niski poziom energii baterii"),
     "stateBatteryLowLevel,ON,==,", "stateNormal,ON,==,"},
    {"stateShortcut", QT_TRANSLATE_NOOP("NetworkConfigurationWindow", "Zwarcie"), "stateShortcut,ON,==,",
     "stateNormal,ON,==,"},
    {"stateOverload", QT_TRANSLATE_NOOP("NetworkConfigurationWindow", "Przeciążenie"), "stateOverload,ON,==,",
     "stateNormal,ON,==,"},
    {"stateAvrActive", QT_TRANSLATE_NOOP("NetworkConfigurationWindow", "Aktywny AVR"),
     "stateAvrActive,ON,==,", "stateNormal,ON,==,"},
    {"stateFault", QT_TRANSLATE_NOOP("NetworkConfigurationWindow", "Tryb błędu"), "stateFault,ON,==,",
     "stateNormal,ON,==,"},
};

// The end conditions of battery operation and of a low battery lack a comma and an operator.
constexpr WorkModeRow cormelWorkModeEvents[] = {
    {"stateNoCommunication", QT_TRANSLATE_NOOP("NetworkConfigurationWindow", "Brak komunikacji"),
     "stateNoCommunication,ON,==,", "stateNoCommunication,OFF,==,"},
    {"stateNormal", QT_TRANSLATE_NOOP("NetworkConfigurationWindow", "Praca w trybie sieciowym"),
     "stateNormal,ON,==,stateAvrActive,ON,==,||,", "stateNormal,OFF,==,stateAvrActive,OFF,==,&&,"},
    {"stateBatteryBackup",
     QT_TRANSLATE_NOOP("NetworkConfigurationWindow", "Praca w trybie podtrzymania z baterii"),
     "stateBatteryBackup,ON,==,", "stateNormal,ON,==,stateAvrActive,ON,==,||"},
    {"stateBatteryLowLevel", QT_TRANSLATE_NOOP("NetworkConfigurationWindow", "Niski poziom energii baterii"),
     "stateBatteryLowLevel,ON,==,", "stateNormal,ON,==,stateAvrActive,ON,||,"},
    {"stateShortcut", QT_TRANSLATE_NOOP("NetworkConfigurationWindow", "Zwarcie"), "stateShortcut,ON,==,",
     "stateShortcut,OFF,==,"},
    {"stateOverload", QT_TRANSLATE_NOOP("NetworkConfigurationWindow", "Przeciążenie"), "stateOverload,ON,==,",
     "stateOverload,OFF,==,"},
    {"stateAvrActive", QT_TRANSLATE_NOOP("NetworkConfigurationWindow", "Aktywny AVR"),
     "stateAvrActive,ON,==,", "stateAvrActive,OFF,==,"},
};

bool startsWithAny(const QString& configName, std::initializer_list<const char*> prefixes)
{
    for (const char* prefix : prefixes) {
        if (configName.startsWith(QLatin1String(prefix), Qt::CaseInsensitive))
            return true;
    }
    return false;
}

bool usesCormelTable(const QString& configName)
{
    return (configName.startsWith(QLatin1String("Cormel_")) ||
            configName.startsWith(QLatin1String("CormelJ_"))) &&
           !configName.contains(QLatin1String("HID"), Qt::CaseInsensitive);
}

template <std::size_t size>
WorkMode rowWithKey(const WorkModeRow (&rows)[size], const QString& key)
{
    for (const WorkModeRow& row : rows) {
        if (key == QLatin1String(row.key))
            return {key, QCoreApplication::translate(textContext, row.label), QLatin1String(row.expressionIn),
                    QLatin1String(row.expressionOut)};
    }
    return {key, key, {}, {}};
}

} // namespace

QStringList workModeKeys(const QString& configName)
{
    QStringList keys{QStringLiteral("stateNormal"), QStringLiteral("stateBatteryBackup"),
                     QStringLiteral("stateBatteryLowLevel")};
    if (startsWithAny(configName, {"Cormel"}))
        keys << QStringLiteral("stateOverload") << QStringLiteral("stateShortcut")
             << QStringLiteral("stateAvrActive");
    if (configName != QLatin1String("LumoPro_Rack_RS232") && configName != QLatin1String("FennaPro_RS232"))
        keys << QStringLiteral("stateNoCommunication");
    if (startsWithAny(configName, {"Quenta"}))
        keys << QStringLiteral("stateAvrActive");
    if (startsWithAny(configName, {"Quenta", "LumoLCD", "FennaIIPro"}))
        keys << QStringLiteral("stateFault");
    return keys;
}

WorkMode workMode(const QString& configName, const QString& key)
{
    return usesCormelTable(configName) ? rowWithKey(cormelWorkModeEvents, key)
                                       : rowWithKey(workModeEvents, key);
}

} // namespace Velmora
