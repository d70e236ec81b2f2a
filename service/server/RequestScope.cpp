// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "service/server/RequestScope.h"

#include "service/Logging.h"
#include "service/device/DeviceBackend.h"

#include <algorithm>

namespace Velmora::Service {

RequestScope::RequestScope(const ServiceParts& parts, ClientSession& session, bool administrator,
                           const std::function<void(const QByteArray&)>& broadcast)
    : m_parts(parts)
    , m_session(session)
    , m_administrator(administrator)
    , m_broadcast(broadcast)
{}

QVector<SerialPortStatus> RequestScope::ports() const
{
    QVector<SerialPortStatus> ports;
    const QVector<DeviceRegistration>& devices = store().data().devices;
    for (const QString& name : scenario().serialPorts) {
        const bool taken =
            std::any_of(devices.cbegin(), devices.cend(), [&name](const DeviceRegistration& device) {
                return device.communication == QLatin1String("rs232") && device.comPort == name;
            });
        ports.append(SerialPortStatus{name, !taken});
    }
    return ports;
}

bool RequestScope::change(const std::function<void(StoredData&)>& change) const
{
    if (store().update(change))
        return true;
    refuse(QStringLiteral("The service could not write its state file; nothing was changed."));
    return false;
}

void RequestScope::refuse(const QString& reason) const
{
    qCWarning(serviceLog).noquote() << "refused a request of" << m_session.peer() % QLatin1Char(':')
                                    << reason;
    reply(messagesReply({reason}));
}

void RequestScope::devicesChanged() const
{
    const StoredData& data = store().data();
    backend().setDevices(data.devices, data.settings);
    checkDeviceListSize(data.devices);
    broadcast(deviceListReply(data.devices));
    broadcast(portsReply(ports()));
}

bool checkDeviceListSize(const QVector<DeviceRegistration>& devices)
{
    if (!encodeFrame(deviceListReply(devices)).isEmpty())
        return true;
    qCWarning(serviceLog) << "the list of" << devices.size()
                          << "devices is longer than a frame may be: panels will not see it";
    return false;
}

} // namespace Velmora::Service
