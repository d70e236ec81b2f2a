// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QDateTime>
#include <QStringList>

namespace Velmora::Service {

/// Codes of a device's event memory. They are a numbering of their own, apart from the message codes.
namespace EventCode {
constexpr int initialization = 2;
constexpr int stop = 3;
constexpr int eco = 5;
constexpr int mains = 6;
constexpr int battery = 7;
constexpr int bypass = 10;
constexpr int chargingStart = 48;
constexpr int chargingStop = 49;
constexpr int lowBatteryStart = 58;
constexpr int lowBatteryStop = 59;
constexpr int inputOutOfRangeStart = 74;
constexpr int inputOutOfRangeStop = 75;
} // namespace EventCode

/// The event memory of a device: the latest events, newest first.
class EventHistory final
{
public:
    void add(int code, const QDateTime& when);
    /// Records "code;month;day;hour;minute;second" joined by "|".
    [[nodiscard]] QString text() const { return m_records.join(QLatin1Char('|')); }

private:
    QStringList m_records;
};

} // namespace Velmora::Service
