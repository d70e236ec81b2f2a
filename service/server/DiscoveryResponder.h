// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QUdpSocket>

namespace Velmora::Service {

/// Hears the broadcast with which a panel looks for network clients.
class DiscoveryResponder final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(DiscoveryResponder)

public:
    explicit DiscoveryResponder(QObject* parent = nullptr);
    ~DiscoveryResponder() override;

    /// False and a reason if the port cannot be had.
    [[nodiscard]] bool listen(QString& reason);

signals:
    void probeReceived();

private:
    void readProbes();

    QUdpSocket m_socket;
    QElapsedTimer m_sinceProbe;
};

} // namespace Velmora::Service
