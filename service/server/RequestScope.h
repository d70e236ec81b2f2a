// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include "service/logs/LogRecorder.h"
#include "service/scenario/Scenario.h"
#include "service/server/ClientSession.h"
#include "service/store/Store.h"
#include "service/wire/Replies.h"

#include <functional>

namespace Velmora::Service {

class DeviceBackend;

/// The parts of the service that requests work on. All of them outlive the server.
struct ServiceParts
{
    Store& store;
    DeviceBackend& backend;
    LogRecorder& logs;
    const Scenario& scenario;
};

/// Everything that the handler of one request may use.
class RequestScope final
{
public:
    RequestScope(const ServiceParts& parts, ClientSession& session, bool administrator,
                 const std::function<void(const QByteArray&)>& broadcast);

    [[nodiscard]] Store& store() const { return m_parts.store; }
    [[nodiscard]] DeviceBackend& backend() const { return m_parts.backend; }
    [[nodiscard]] LogRecorder& logs() const { return m_parts.logs; }
    [[nodiscard]] const Scenario& scenario() const { return m_parts.scenario; }
    [[nodiscard]] ClientSession& session() const { return m_session; }
    /// The request carries the administrator password.
    [[nodiscard]] bool isAdministrator() const { return m_administrator; }

    [[nodiscard]] int device() const { return m_session.selectedDevice(); }
    [[nodiscard]] QVector<SerialPortStatus> ports() const;

    /// Changes the stored data; if they cannot be written, tells the panel and gives false.
    [[nodiscard]] bool change(const std::function<void(StoredData&)>& change) const;
    /// Logs why a request is not carried out and shows it to whoever uses the panel.
    void refuse(const QString& reason) const;
    /// Hands the registered devices to the backend and shows all panels the new lists.
    void devicesChanged() const;
    void reply(const QByteArray& document) const { m_session.send(document); }
    void broadcast(const QByteArray& document) const { m_broadcast(document); }

private:
    const ServiceParts& m_parts;
    ClientSession& m_session;
    bool m_administrator;
    const std::function<void(const QByteArray&)>& m_broadcast;
};

/// Logs a warning if the device list has grown too long for a frame; true if it fits.
bool checkDeviceListSize(const QVector<DeviceRegistration>& devices);

} // namespace Velmora::Service
