// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>
#include <QHostAddress>
#include <QObject>
#include <QSet>
#include <QUdpSocket>

namespace Velmora::Service {

/// Hears the probes with which panels look for network clients: broadcasts on any interface and what is sent
/// to the service's own address. Services on other addresses of this machine hear theirs beside it.
class DiscoveryResponder final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(DiscoveryResponder)

public:
    explicit DiscoveryResponder(QObject* parent = nullptr);
    ~DiscoveryResponder() override;

    /// False and a reason if the port cannot be had.
    [[nodiscard]] bool listen(const QHostAddress& address, QString& reason);

signals:
    void probeReceived();

private:
    void readProbes(QUdpSocket& socket);
    [[nodiscard]] bool concernsUs(const QSet<QHostAddress>& destinations) const;

    QHostAddress m_address;
    QUdpSocket m_everybody; ///< on all addresses, since no other socket hears broadcasts
    QUdpSocket m_own; ///< on the service's address, so that the system gives what comes there to nobody else
    QElapsedTimer m_sinceProbe;
};

} // namespace Velmora::Service
