// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "bench/ServedDevices.h"

#include "service/simulation/UpsReport.h"
#include "service/wire/Replies.h"

#include <array>

using namespace Velmora::Service;

namespace Velmora::Bench {

QByteArray devicesMessage(int count)
{
    const std::array<QString, 4> models{QStringLiteral("Tarvex33_SNMP"), QStringLiteral("CormelRT_USB"),
                                        QStringLiteral("Borel_SNMP"), QStringLiteral("TarvexRT_USB")};
    QVector<DeviceRegistration> devices;
    for (int i = 0; i < count; ++i) {
        DeviceRegistration device;
        device.id = i + 1;
        device.modelName = models.at(static_cast<std::size_t>(i) % models.size());
        device.communication = QStringLiteral("snmp");
        device.ip = QStringLiteral("192.0.2.%1").arg(i % 250 + 1);
        device.userDefinedName = QStringLiteral("Szafa %1").arg(device.id);
        devices.append(device);
    }
    return deviceListReply(devices);
}

QByteArray statusesMessage(int count, int turn)
{
    const WorkMode mode = turn == 0 ? WorkMode::Mains : WorkMode::Battery;
    QVector<DeviceStatus> statuses;
    for (int id = 1; id <= count; ++id) {
        DeviceStatus status;
        status.id = id;
        status.status = workModeKeyword(mode);
        status.connected = true;
        statuses.append(status);
    }
    return statusListReply(statuses);
}

QByteArray stateMessage(int turn)
{
    UpsReadings readings;
    readings.mode = turn == 0 ? WorkMode::Mains : WorkMode::Battery;
    readings.detail = Detail::Full;
    readings.nominalWatts = 18000 + 2000 * turn;
    readings.nominalVoltAmperes = 20000 + 2000 * turn;
    readings.load = {34.0 + turn, 41.0 + turn, 29.0 + turn};
    readings.inputVoltage = {231.0 + turn, 229.5 + turn, 230.4 + turn};
    readings.ambient = 22.0 + turn;
    readings.batteryVolts = 240;
    readings.batteryAmpereHours = 40;
    readings.batteryPercent = 98 - turn;
    readings.autonomyMinutes = 31 - turn;
    DeviceState state{true, true, upsReport(readings)};
    state.values.insert(QStringLiteral("firmware_version"), QStringLiteral("1.0%1").arg(turn));
    state.values.insert(QStringLiteral("snmp_sys_name"), QStringLiteral("ups-%1").arg(turn));
    state.values.insert(QStringLiteral("messages"), turn == 0 ? QStringLiteral("3") : QStringLiteral("3\n7"));
    return stateReply(state);
}

QByteArray configurationMessage()
{
    return valuesReply(QLatin1String("ups_configuration"),
                       {{QStringLiteral("buzzer"), QStringLiteral("1;0;1")},
                        {QStringLiteral("low_battery"), QStringLiteral("20")}});
}

} // namespace Velmora::Bench
