// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "service/simulation/UpsMessages.h"

namespace Velmora::Service {

namespace {

class Codes final
{
public:
    void addIf(bool applies, const char* code)
    {
        if (applies)
            m_codes.append(QLatin1String(code));
    }
    [[nodiscard]] QStringList all() const { return m_codes; }

private:
    QStringList m_codes;
};

void addAlarms(Codes& codes, const UpsReadings& readings, const UpsCondition& condition)
{
    const bool onBattery = readings.mode == WorkMode::Battery;
    const bool small = readings.detail == Detail::Basic;
    codes.addIf(!readings.mainsPresent, "38");   // mains failed
    codes.addIf(onBattery, small ? "61" : "76"); // discharging; reserve work
    codes.addIf(readings.mode == WorkMode::Discharged, "60");
    codes.addIf(readings.mode == WorkMode::Standby, "86"); // switched off on request
    codes.addIf(condition.overload, "2");
    codes.addIf(condition.wornBattery, "66"); // battery to be replaced
    codes.addIf(condition.testResult == TestResult::Failed, "45");
    codes.addIf(condition.firstSocketOff, "196");
    codes.addIf(condition.secondSocketOff, "197");
}

void addWarnings(Codes& codes, const UpsReadings& readings, const UpsCondition& condition)
{
    codes.addIf(condition.lowBattery, "5");
    codes.addIf(readings.mode == WorkMode::Bypass, "12");
    codes.addIf(readings.mode == WorkMode::Avr, "0"); // AVR boost
}

void addNotices(Codes& codes, const UpsReadings& readings, const UpsCondition& condition)
{
    const bool normal = readings.mode == WorkMode::Mains;
    codes.addIf(normal && readings.detail == Detail::Full, "27");     // normal work
    codes.addIf(normal && readings.detail == Detail::Standard, "48"); // normal work mode
    codes.addIf(readings.charging, "9");
    codes.addIf(readings.mode == WorkMode::BatteryTest, "40");
    codes.addIf(condition.testResult == TestResult::Passed, "44");
    codes.addIf(condition.parallelUnit, condition.master ? "28" : "29");
    codes.addIf(readings.compensating, "99");
}

} // namespace

QStringList upsMessages(const UpsReadings& readings, const UpsCondition& condition)
{
    Codes codes;
    addAlarms(codes, readings, condition);
    addWarnings(codes, readings, condition);
    addNotices(codes, readings, condition);
    return codes.all();
}

} // namespace Velmora::Service
