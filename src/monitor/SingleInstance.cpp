// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "monitor/SingleInstance.h"

#include <QLocalServer>
#include <QLocalSocket>

namespace Velmora::SingleInstance {

namespace {

const QLatin1String instanceName("velmora_instance");
constexpr int probeTime = 500;

} // namespace

bool anotherPanelRuns()
{
    QLocalSocket probe;
    probe.connectToServer(instanceName, QIODevice::ReadWrite);
    return probe.isValid() && probe.waitForConnected(probeTime);
}

QLocalServer* listenForPanels(QObject* parent)
{
    auto* server = new QLocalServer(parent);
    QLocalServer::removeServer(instanceName);
    server->listen(instanceName);
    return server;
}

} // namespace Velmora::SingleInstance
