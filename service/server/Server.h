// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include "service/server/RequestDispatcher.h"

#include <QTcpServer>

namespace Velmora::Service {

/// Accepts panels and keeps their sessions.
class Server final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(Server)

public:
    explicit Server(const ServiceParts& parts, QObject* parent = nullptr);
    ~Server() override;

    /// False and a reason if the address cannot be had.
    [[nodiscard]] bool listen(const QHostAddress& address, QString& reason);
    /// Tells all panels of the network clients, as these do when they hear a probe.
    void announceClients();

private:
    void acceptConnections();
    /// Ends the connection that has been silent for longest; false if all of them are in use.
    [[nodiscard]] bool makeRoom();
    void addSession(QTcpSocket* socket);
    void broadcast(const QByteArray& document);

    ServiceParts m_parts;
    QTcpServer m_tcp;
    QVector<ClientSession*> m_sessions;
    RequestDispatcher m_dispatcher;
};

} // namespace Velmora::Service
