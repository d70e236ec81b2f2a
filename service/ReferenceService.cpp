// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "service/ReferenceService.h"

#include "link/ServiceEndpoint.h"
#include "service/Logging.h"

namespace Velmora::Service {

ReferenceService::ReferenceService() = default;

ReferenceService::~ReferenceService() = default;

bool ReferenceService::start(const Options& options, QString& reason)
{
    const std::optional<Scenario> scenario = readScenario(options.scenarioPath, reason);
    if (!scenario || !m_store.open(options.statePath, scenario->initial, reason))
        return false;
    m_scenario = *scenario;
    m_backend = std::make_unique<SimulatedBackend>(m_scenario, options.seed, realClock(options.speed));
    m_logs = std::make_unique<LogRecorder>(*m_backend, m_store);
    m_server = std::make_unique<Server>(ServiceParts{m_store, *m_backend, *m_logs, m_scenario});
    if (!listen(options.listen, reason))
        return false;
    const StoredData& data = m_store.data();
    m_backend->setDevices(data.devices, data.settings);
    m_backend->start();
    // The warm-up is the past: nothing is to be done about it any more.
    m_policies = std::make_unique<PolicyRunner>(*m_backend, m_store, *m_logs);
    checkDeviceListSize(data.devices);
    return true;
}

bool ReferenceService::listen(const QHostAddress& address, QString& reason)
{
    QString detail;
    if (!m_server->listen(address, detail)) {
        reason = QStringLiteral("cannot listen on %1:%2: %3")
                     .arg(address.toString())
                     .arg(Velmora::servicePort)
                     .arg(detail);
        return false;
    }
    if (!m_discovery.listen(address, detail))
        qCWarning(serviceLog).noquote()
            << "cannot hear discovery probes on port" << Velmora::discoveryPort << detail;
    QObject::connect(&m_discovery, &DiscoveryResponder::probeReceived, m_server.get(),
                     &Server::announceClients);
    return true;
}

} // namespace Velmora::Service
