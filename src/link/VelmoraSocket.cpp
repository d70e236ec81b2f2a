// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "link/VelmoraSocket.h"

#include "link/ServiceEndpoint.h"

#include <QNetworkProxy>

namespace Velmora {

VelmoraSocket::VelmoraSocket(QObject* parent)
    : QTcpSocket(parent)
{
    setProxy(QNetworkProxy::NoProxy);
}

void VelmoraSocket::connect(const QString& host)
{
    connectToHost(host, servicePort, QIODevice::ReadWrite, QAbstractSocket::AnyIPProtocol);
}

} // namespace Velmora
