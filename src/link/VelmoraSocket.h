// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QTcpSocket>

namespace Velmora {

/// TCP socket of the link. Proxies of the system are not used: the service stands in the local network.
class VelmoraSocket final : public QTcpSocket
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(VelmoraSocket)

public:
    explicit VelmoraSocket(QObject* parent = nullptr);

    /// Starts one attempt to reach the service on `host`.
    void connect(const QString& host);
};

} // namespace Velmora
