// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "service/policy/ConditionTables.h"

#include <QHash>

#include <algorithm>

namespace Velmora::Service {

namespace {

// What families can say about their work mode, without the "state" that every key begins with.
constexpr const char* genset = "NoCommunication GensetOn GensetOff";
constexpr const char* threePhase =
    "NoCommunication Normal BatteryBackup Eco Bypass Watch Initialization Waiting "
    "Hybrid Emergency Stop Unknown";
constexpr const char* onLine =
    "NoCommunication Normal BatteryBackup Eco Bypass Watch Initialization BatteryTest "
    "Fault Converter ShutdownUps";
constexpr const char* onLinePlus = "NoCommunication Normal BatteryBackup Eco Bypass Stop Initialization "
                                   "BatteryTest Emergency Converter";
constexpr const char* noir = "NoCommunication Normal BatteryBackup EcoBypass Stop Emergency";
constexpr const char* rtPlus = "NoCommunication Normal BatteryBackup Emergency Stop SelfTest Eco Bypass";
constexpr const char* rackSnmp = "NoCommunication Normal BatteryBackup Watch AvrActive";
constexpr const char* rack = "NoCommunication Normal BatteryBackup Emergency Watch Unknown Stop Waiting";
constexpr const char* avr = "NoCommunication Normal BatteryBackup Emergency Unknown Waiting";
constexpr const char* avrTested = "NoCommunication Normal BatteryBackup Emergency Unknown Stop SelfTest";
constexpr const char* simpleCormel = "NoCommunication Normal BatteryBackup BatteryLowLevel Overload Shortcut "
                                     "AvrActive";
constexpr const char* simpleQuenta = "NoCommunication Normal BatteryBackup BatteryLowLevel AvrActive Fault";
constexpr const char* simple = "NoCommunication Normal BatteryBackup BatteryLowLevel Fault";

struct FamilyStates
{
    const char* prefix;
    const char* states;
};

// The first prefix that fits decides; all other models are simple.
constexpr FamilyStates families[] = {
    {"Virtual_Device", threePhase},
    {"Tarvex33", threePhase},
    {"Hedrix", threePhase},
    {"CormelMeridian", threePhase},
    {"Borel", genset},
    {"TarvexRTPlus6_10", onLinePlus},
    {"TarvexRT", onLine},
    {"Tarvex_Dual31", onLine},
    {"Tarvex_KOMBI", onLinePlus},
    {"Tarvex_RT_PRO", onLinePlus},
    {"Tarvex_NOIR", noir},
    {"TARVEX_RT_PLUS", rtPlus},
    {"CormelRT_SNMP", rackSnmp},
    {"CormelRT_XL_SNMP", rackSnmp},
    {"CormelRT", rack},
    {"Cormel_HID", avr},
    {"LumoPro_Avr", avr},
    {"Fenna_Avr", avrTested},
    {"Cormel", simpleCormel},
    {"Quenta", simpleQuenta},
};

struct WordStates
{
    const char* word;
    const char* states; ///< the first that the family has is on
};

constexpr WordStates stateWords[] = {
    {"no_communication", "NoCommunication"},
    {"unknown", "Unknown"},
    {"on_power_line", "Normal"},
    {"on_battery", "BatteryBackup"},
    {"low_battery", "BatteryLowLevel BatteryBackup"},
    {"avr_on", "AvrActive Normal"},
    {"overload", "Overload Normal"},
    {"shortcut", "Shortcut Emergency"},
    {"waiting_work", "Waiting Watch"},
    {"watch", "Watch Waiting"},
    {"eco", "Eco EcoBypass Normal"},
    {"bypass", "Bypass EcoBypass Emergency"},
    {"eco_bypass", "EcoBypass Bypass"},
    {"emergency", "Emergency"},
    {"initialization", "Initialization"},
    {"stop", "Stop"},
    {"hybrid", "Hybrid Normal"},
    {"battery_test", "BatteryTest SelfTest Normal"},
    {"self_test", "SelfTest BatteryTest Normal"},
    {"converter", "Converter Normal"},
    {"ups_off", "Stop ShutdownUps Watch Waiting"},
    {"shutdown", "ShutdownUps Stop Emergency Watch"},
    {"fault", "Fault Emergency"},
    {"genset_on", "GensetOn"},
    {"genset_off", "GensetOff"},
};

struct CodedState
{
    const char* state;
    const char* codes;
    const char* onlyInWord; ///< the codes count in this work mode alone; empty: in all
};

// States of simple devices that follow from their messages. A flat battery that charges again is none.
constexpr CodedState codedStates[] = {
    {"BatteryLowLevel", "5 77", "on_battery"},
    {"Overload", "2 13 82", ""},
    {"Shortcut", "1", ""},
    {"Fault", "39 92", ""},
};

struct KeyCodes
{
    const char* key;
    const char* codes;
};

constexpr KeyCodes keyCodes[] = {
    {"alarmAccumulatorError", "14"},
    {"alarmActiveEpo", "15"},
    {"alarmAwaitingPower", "95"},
    {"alarmBatteryBad", "66 75"},
    {"alarmBatteryTemperatureLimit", "73 101"},
    {"alarmBusFault", "53"},
    {"alarmBypassOverload", "65"},
    {"alarmChargerFail", "57 87"},
    {"alarmCriticalBatteryVoltage", "100"},
    {"alarmDepletedBattery", "60 78"},
    {"alarmFanLock", "52 90"},
    {"alarmGeneralFault", "39 92"},
    {"alarmIncorrectOrderBypass", "21"},
    {"alarmIncorrectOrderMain", "198"},
    {"alarmInputBad", "38 80"},
    {"alarmInputLNFault", "42"},
    {"alarmInternalError", "16"},
    {"alarmInverterFault", "54"},
    {"alarmInverterInternalError", "26"},
    {"alarmInverterSoftFail", "55"},
    {"alarmInverterTemperatureLimit", "18 102"},
    {"alarmLoadOverSettingLimit", "51"},
    {"alarmLowBattery", "5 77"},
    {"alarmNoInternalCommunication", "74 94"},
    {"alarmOnBattery", "61 76"},
    {"alarmOutputOffAsRequest", "85 86"},
    {"alarmOutputOverload", "2 13 82"},
    {"alarmOverCharge", "56"},
    {"alarmParallelWorkModeError", "34"},
    {"alarmRectifierInternalError", "25"},
    {"alarmRectifierTemperatureLimit", "17"},
    {"alarmReversePowerSupply", "6"},
    {"alarmShutdownImminent", "97"},
    {"alarmShutdownPending", "41 96"},
    {"alarmTempBad", "79"},
    {"alarmTemperatureIncrease", "3"},
    {"alarmTemperatureOverSettingLimit", "50"},
    {"alarmUpsOutputOff", "86 88 89"},
    {"alarmUpsOverheated", "3"},
    {"alarmUpsShortcut", "1"},
    {"message2LcdError", "30"},
    {"message2ParallelUnitNotEnabled", "33"},
    {"message2ParallelUnitStopped", "31"},
    {"message2ParallelWorkModeMaster", "28"},
    {"message2ParallelWorkModeNotEnoughUnits", "35 36"},
    {"message2ParallelWorkModeSlave", "29"},
    {"message2ParallelWorkNoRedundancy", "32"},
    {"message2PowerCompensation", "99"},
    {"messageAwaitingPower", "95"},
    {"messageBatteryCircuitOpen", "23"},
    {"messageBatteryDepleted", "60 78"},
    {"messageBatteryDischarging", "61 76"},
    {"messageBatteryFailure", "62"},
    {"messageBatteryLowLevel", "5 77"},
    {"messageBatteryNeedsReplacement", "66"},
    {"messageBatteryOverheated", "73 101"},
    {"messageBatteryStatusNormal", "59"},
    {"messageBatteryStatusUnknown", "58"},
    {"messageBoostingAvrBlocked", "68"},
    {"messageBoostingAvrEngaged", "0"},
    {"messageBuckingAvrBlocked", "69"},
    {"messageBuckingAvrEngaged", "67"},
    {"messageBypass", "12 83"},
    {"messageBypassFIncorrect", "206"},
    {"messageBypassOutOfRange", "194"},
    {"messageBypassOverload", "65"},
    {"messageBypassVIncorrect", "205"},
    {"messageBypassVoltageOutOfRange", "22"},
    {"messageChargerFail", "57"},
    {"messageChargerVoltageTooHigh", "56 208"},
    {"messageChargerVoltageTooLow", "207"},
    {"messageCharging", "9"},
    {"messageEpoBlocked", "71"},
    {"messageEpromFail", "43"},
    {"messageFanLock", "52"},
    {"messageFunTurnedOn", "70"},
    {"messageIncorrectOrderBypass", "21"},
    {"messageInputLNFault", "42"},
    {"messageInverterOverheated", "102"},
    {"messageInverterTemperatureLimit", "18"},
    {"messageMainsOutOfRange", "38 189 193"},
    {"messageMainsVIncorrect", "38 203"},
    {"messageMaintenanceBypassCover", "200"},
    {"messageMaisnFIncorrect", "204"},
    {"messageNeedReplacement", "4 66"},
    {"messageNoCommunicationInverter", "20"},
    {"messageNoCommunicationRectifier", "19"},
    {"messageNoInternalComm", "74"},
    {"messageNonCriticalOutOff", "196 197"},
    {"messageOilLowLevel", "187"},
    {"messageOutputOverload", "2 13 82"},
    {"messageOutputsDisabled", "195"},
    {"messageOutputsNotProtected", "202"},
    {"messageOutputsProtected", "201"},
    {"messagePrestart", "188"},
    {"messageRectifierTemperatureLimit", "17"},
    {"messageRestoreIsPending", "191"},
    {"messageService", "11"},
    {"messageShdwnIsPending", "41 96 192"},
    {"messageShutdownActive", "41 96"},
    {"messageTemperatureIncrease", "3"},
    {"messageTestCanceled", "63"},
    {"messageTestFailed", "45 93"},
    {"messageTestInProgress", "40 98"},
    {"messageTestNotPossible", "46"},
    {"messageTestOk", "44"},
    {"messageTestStatusUnknown", "47"},
    {"messageTestWarning", "190"},
    {"messageUps110Overload", "49"},
    {"messageUpsFailed", "39 92"},
    {"messageUpsNormalMode", "48"},
    {"messageUpsOutputOff", "86 88 89"},
    {"messageUpsOverheating", "3"},
    {"messageUpsOverload", "2"},
    {"messageUtilityFail", "38 80"},
    {"messageVoltageOutOfRange", "24 38"},
    {"messageWaitingForMinimalCharge", "10"},
};

// The alarm list of a genset controller, in the order of its codes; one condition has no key.
constexpr const char* gensetAlarms[] = {
    "WrnFuelLevel",
    "SdFuelLevel",
    "WrnBattVolt",
    "ChargeAltFail",
    "SdOverspeed",
    "SdUnderspeed",
    "",
    "WrnECUAlarm",
    "WrnECUComm",
    "GenCCWRot",
    "MainsCCWRot",
    "BOCOverload",
    "BOCShortCrct",
    "BOCAmpsUnbal",
    "BOCAmpsIDMT",
    "GCBFail",
    "MCBFail",
    "CheckDPFStatus",
    "SdGenL",
    "BOCGenL",
    "2BOCGenVUnbal",
    "2BOCGenFreq",
    "2MainsL",
    "2MainsVUnbal",
    "2MainsFreq",
    "2EmergencyStop",
    "2SdBatteryFlat",
    "2WrnMaintenance",
};

struct AlarmBand
{
    const char* ending; ///< of the key
    int firstCode;
};

constexpr AlarmBand alarmBands[] = {{"A", 103}, {"AN", 131}, {"N", 159}};

QStringList words(const char* text)
{
    return QString::fromLatin1(text).split(QLatin1Char(' '));
}

QStringList familyStates(const QString& modelName)
{
    for (const FamilyStates& family : families) {
        if (modelName.startsWith(QLatin1String(family.prefix)))
            return words(family.states);
    }
    return words(simple);
}

QString modeState(const QString& stateWord, const QStringList& known)
{
    for (const WordStates& row : stateWords) {
        if (stateWord != QLatin1String(row.word))
            continue;
        for (const QString& state : words(row.states)) {
            if (known.contains(state))
                return state;
        }
    }
    return known.contains(QStringLiteral("Unknown")) ? QStringLiteral("Unknown") : QString();
}

QHash<QString, QStringList> allKeyCodes()
{
    QHash<QString, QStringList> all;
    for (const KeyCodes& row : keyCodes)
        all.insert(QLatin1String(row.key), words(row.codes));
    for (const AlarmBand& band : alarmBands) {
        int code = band.firstCode;
        for (const char* alarm : gensetAlarms) {
            if (*alarm != '\0')
                all.insert(QLatin1String("alarm") % QLatin1String(alarm) % QLatin1String(band.ending),
                           {QString::number(code)});
            ++code;
        }
    }
    return all;
}

} // namespace

QStringList activeStates(const QString& modelName, const QString& stateWord, const QSet<QString>& codes)
{
    const QStringList known = familyStates(modelName);
    QStringList states{modeState(stateWord, known)};
    for (const CodedState& row : codedStates) {
        const QString word = QLatin1String(row.onlyInWord);
        const QStringList wanted = words(row.codes);
        const bool reported = std::any_of(wanted.cbegin(), wanted.cend(),
                                          [&codes](const QString& code) { return codes.contains(code); });
        if (!reported || !known.contains(QLatin1String(row.state)) || (!word.isEmpty() && word != stateWord))
            continue;
        states.append(QLatin1String(row.state));
        // A fault ends, for the policy, when normal work is back.
        states.removeAll(QStringLiteral("Normal"));
    }
    states.removeAll(QString());
    for (QString& state : states)
        state.prepend(QLatin1String("state"));
    return states;
}

QStringList codesOf(const QString& key)
{
    static const QHash<QString, QStringList> all = allKeyCodes();
    return all.value(key);
}

} // namespace Velmora::Service
