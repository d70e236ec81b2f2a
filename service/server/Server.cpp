// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "service/server/Server.h"

#include "link/ServiceEndpoint.h"
#include "service/Logging.h"
#include "service/device/DeviceBackend.h"

#include <QNetworkProxy>
#include <QTcpSocket>

#include <algorithm>

namespace Velmora::Service {

namespace {

constexpr int maximumConnections = 64;
// A panel polls every second; who is silent for longer may have to make room.
constexpr int placeKeptMilliseconds = 5000;

} // namespace

Server::Server(const ServiceParts& parts, QObject* parent)
    : QObject(parent)
    , m_parts(parts)
    , m_dispatcher(parts, [this](const QByteArray& document) { broadcast(document); })
{
    // A proxy in the environment is meant for outgoing connections.
    m_tcp.setProxy(QNetworkProxy::NoProxy);
    connect(&m_tcp, &QTcpServer::newConnection, this, &Server::acceptConnections);
    // A withdrawal ends the reading of a list in panels, so each change goes out by itself.
    connect(&m_parts.backend, &DeviceBackend::shutdownTimerChanged, this, [this](int id, int seconds) {
        broadcast(countdownReply({ShutdownTimer{id, seconds}}));
    });
}

Server::~Server()
{
    for (ClientSession* session : qAsConst(m_sessions))
        session->disconnect(this);
}

bool Server::listen(const QHostAddress& address, QString& reason)
{
    if (m_tcp.listen(address, Velmora::servicePort))
        return true;
    reason = m_tcp.errorString();
    return false;
}

void Server::acceptConnections()
{
    while (QTcpSocket* socket = m_tcp.nextPendingConnection()) {
        if (m_sessions.size() < maximumConnections || makeRoom()) {
            addSession(socket);
            continue;
        }
        qCWarning(serviceLog).noquote()
            << "turned away" << socket->peerAddress().toString() << "since all connections are taken";
        socket->abort();
        socket->deleteLater();
    }
}

bool Server::makeRoom()
{
    ClientSession* const quietest = *std::max_element(
        m_sessions.cbegin(), m_sessions.cend(), [](const ClientSession* left, const ClientSession* right) {
            return left->silentMilliseconds() < right->silentMilliseconds();
        });
    if (quietest->silentMilliseconds() < placeKeptMilliseconds)
        return false;
    quietest->close(QStringLiteral("it was silent and another needs the place"));
    return true;
}

void Server::addSession(QTcpSocket* socket)
{
    auto* session = new ClientSession(socket, this);
    m_sessions.append(session);
    qCInfo(serviceLog).noquote() << "connection of" << session->peer();
    connect(session, &ClientSession::messageReceived, this,
            [this, session](const QString& text) { m_dispatcher.handle(*session, text); });
    connect(session, &ClientSession::closed, this, [this, session] {
        m_sessions.removeOne(session);
        session->deleteLater();
    });
}

void Server::broadcast(const QByteArray& document)
{
    const QByteArray frame = encodeFrame(document);
    if (frame.isEmpty())
        return;
    // Sending can end a session and take it off the list.
    const QVector<ClientSession*> sessions = m_sessions;
    for (ClientSession* session : sessions)
        session->sendFrame(frame);
}

void Server::announceClients()
{
    for (const SimulatedClient& client : m_parts.scenario.clients)
        broadcast(textReply(QLatin1String("discovered_message"), client.address));
}

} // namespace Velmora::Service
