// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "service/server/DiscoveryResponder.h"

#include "link/ServiceEndpoint.h"

#include <QNetworkDatagram>
#include <QNetworkProxy>

namespace Velmora::Service {

namespace {

// A panel probes on each of its interfaces at once; one answer is enough, also for a flood.
constexpr int quietMilliseconds = 250;
constexpr int largestProbe = 16;

} // namespace

DiscoveryResponder::DiscoveryResponder(QObject* parent)
    : QObject(parent)
{
    m_socket.setProxy(QNetworkProxy::NoProxy);
    connect(&m_socket, &QUdpSocket::readyRead, this, &DiscoveryResponder::readProbes);
}

DiscoveryResponder::~DiscoveryResponder() = default;

bool DiscoveryResponder::listen(QString& reason)
{
    // Only a socket on all addresses hears broadcasts; the port is shared with services on other addresses.
    if (m_socket.bind(QHostAddress::AnyIPv4, Velmora::discoveryPort,
                      QAbstractSocket::ShareAddress | QAbstractSocket::ReuseAddressHint))
        return true;
    reason = m_socket.errorString();
    return false;
}

void DiscoveryResponder::readProbes()
{
    bool probed = false;
    while (m_socket.hasPendingDatagrams())
        probed = m_socket.receiveDatagram(largestProbe).data() == "5" || probed;
    if (!probed || (m_sinceProbe.isValid() && m_sinceProbe.elapsed() < quietMilliseconds))
        return;
    m_sinceProbe.start();
    emit probeReceived();
}

} // namespace Velmora::Service
