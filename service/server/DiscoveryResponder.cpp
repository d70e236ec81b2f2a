// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "service/server/DiscoveryResponder.h"

#include "link/ServiceEndpoint.h"

#include <QNetworkDatagram>
#include <QNetworkInterface>
#include <QNetworkProxy>

namespace Velmora::Service {

namespace {

// A panel probes on each of its interfaces at once; one answer is enough, also for a flood.
constexpr int quietMilliseconds = 250;
constexpr int largestProbe = 16;
// The rest of a flood waits until the panels had their turn.
constexpr int probesPerTurn = 64;

} // namespace

DiscoveryResponder::DiscoveryResponder(QObject* parent)
    : QObject(parent)
{
    for (QUdpSocket* socket : {&m_everybody, &m_own}) {
        socket->setProxy(QNetworkProxy::NoProxy);
        connect(socket, &QUdpSocket::readyRead, this, [this, socket] { readProbes(*socket); });
    }
}

DiscoveryResponder::~DiscoveryResponder() = default;

bool DiscoveryResponder::listen(const QHostAddress& address, QString& reason)
{
    m_address = address;
    const bool everywhere = address == QHostAddress::Any || address == QHostAddress::AnyIPv4;
    for (QUdpSocket* socket : {&m_everybody, &m_own}) {
        if (socket == &m_own && everywhere)
            break;
        const QHostAddress bound = socket == &m_own ? address : QHostAddress(QHostAddress::AnyIPv4);
        if (!socket->bind(bound, Velmora::discoveryPort,
                          QAbstractSocket::ShareAddress | QAbstractSocket::ReuseAddressHint)) {
            reason = socket->errorString();
            return false;
        }
    }
    return true;
}

void DiscoveryResponder::readProbes(QUdpSocket& socket)
{
    QSet<QHostAddress> destinations;
    for (int i = 0; i < probesPerTurn && socket.hasPendingDatagrams(); ++i) {
        const QNetworkDatagram datagram = socket.receiveDatagram(largestProbe);
        if (datagram.data() == "5")
            destinations.insert(datagram.destinationAddress());
    }
    if (destinations.isEmpty() || (m_sinceProbe.isValid() && m_sinceProbe.elapsed() < quietMilliseconds) ||
        (&socket == &m_everybody && !concernsUs(destinations)))
        return;
    m_sinceProbe.start();
    emit probeReceived();
}

bool DiscoveryResponder::concernsUs(const QSet<QHostAddress>& destinations) const
{
    // Without a socket of its own the service listens on all addresses.
    QSet<QHostAddress> ours{m_address, QHostAddress(), QHostAddress(QHostAddress::Broadcast)};
    const QList<QNetworkInterface> interfaces = QNetworkInterface::allInterfaces();
    for (const QNetworkInterface& interface : interfaces) {
        for (const QNetworkAddressEntry& entry : interface.addressEntries())
            ours.insert(entry.broadcast());
    }
    return m_own.state() != QAbstractSocket::BoundState || ours.intersects(destinations);
}

} // namespace Velmora::Service
