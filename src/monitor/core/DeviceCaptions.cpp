// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "monitor/core/DeviceCaptions.h"

#include "devices/core/ModelRules.h"

#include <QCoreApplication>

namespace Velmora {
namespace {

QString translated(const char* source)
{
    return QCoreApplication::translate("VelmoraWindow", source);
}

DeviceCaptions upsCaptions()
{
    DeviceCaptions captions;
    captions.box = translated(QT_TRANSLATE_NOOP("VelmoraWindow", "UPS"));
    captions.model = translated(QT_TRANSLATE_NOOP("VelmoraWindow", "Model UPS"));
    captions.firmware = translated(QT_TRANSLATE_NOOP("VelmoraWindow", "Firmware"));
    captions.nominalActivePower = translated(QT_TRANSLATE_NOOP("VelmoraWindow", "Znamionowa moc czynna"));
    captions.workMode = translated(QT_TRANSLATE_NOOP("VelmoraWindow", "Tryb pracy UPS"));
    captions.batteryState = translated(QT_TRANSLATE_NOOP("VelmoraWindow", "Stan naładowania akumulatora"));
    captions.autonomyTime = translated(QT_TRANSLATE_NOOP("VelmoraWindow", "Czas autonomii"));
    captions.temperature = translated(QT_TRANSLATE_NOOP("VelmoraWindow", "Temperatura wewnętrzna UPS"));
    captions.configurationButton = translated(QT_TRANSLATE_NOOP("VelmoraWindow", "Konfiguracja UPS"));
    return captions;
}

DeviceCaptions gensetCaptions()
{
    DeviceCaptions captions;
    captions.box = translated(QT_TRANSLATE_NOOP("VelmoraWindow", "Agregat"));
    captions.model = translated(QT_TRANSLATE_NOOP("VelmoraWindow", "Typ urządzenia"));
    captions.firmware = translated(QT_TRANSLATE_NOOP("VelmoraWindow", "Model sterownika"));
    captions.nominalActivePower = translated(QT_TRANSLATE_NOOP("VelmoraWindow", "Numer seryjny sterownika"));
    captions.workMode = translated(QT_TRANSLATE_NOOP("VelmoraWindow", "Tryb pracy agregatu"));
    captions.batteryState = translated(QT_TRANSLATE_NOOP("VelmoraWindow", "Poziom paliwa"));
    captions.autonomyTime = translated(QT_TRANSLATE_NOOP("VelmoraWindow", "Całkowite zużycie paliwa"));
    captions.temperature = translated(QT_TRANSLATE_NOOP("VelmoraWindow", "Całkowity czas pracy"));
    captions.configurationButton = translated(QT_TRANSLATE_NOOP("VelmoraWindow", "Konfiguracja agregatu"));
    return captions;
}

} // namespace

DeviceCaptions deviceCaptions(const QString& configName)
{
    DeviceCaptions captions = isGenset(configName) ? gensetCaptions() : upsCaptions();
    captions.nominalSpuriousPower = translated(QT_TRANSLATE_NOOP("VelmoraWindow", "Znamionowa moc pozorna"));
    captions.load = translated(QT_TRANSLATE_NOOP("VelmoraWindow", "Obciążenie"));
    if (showsThreePhases(configName))
        captions.load += QLatin1String(" L1");
    return captions;
}

MissingValueReasons missingValueReasons(const QString& configName)
{
    const bool lacksNominalValues =
        configName.contains(QLatin1String("Tarvex_Dual31_SNMP"), Qt::CaseInsensitive);
    MissingValueReasons reasons;
    reasons.temperature = !configName.contains(QLatin1String("CormelRt"), Qt::CaseInsensitive);
    reasons.firmware = !lacksNominalValues;
    reasons.nominalActivePower = !lacksNominalValues;
    reasons.nominalSpuriousPower = !lacksNominalValues;
    return reasons;
}

} // namespace Velmora
