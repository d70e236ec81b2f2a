// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include "service/Options.h"
#include "service/logs/LogRecorder.h"
#include "service/policy/PolicyRunner.h"
#include "service/server/DiscoveryResponder.h"
#include "service/server/Server.h"
#include "service/simulation/SimulatedBackend.h"

#include <memory>

namespace Velmora::Service {

/// The whole service: reads its files, simulates and serves until it is destroyed.
class ReferenceService final
{
public:
    ReferenceService();
    ~ReferenceService();
    Q_DISABLE_COPY_MOVE(ReferenceService)

    /// Starts to serve. False and one line that names what is wrong if it cannot.
    [[nodiscard]] bool start(const Options& options, QString& reason);

private:
    [[nodiscard]] bool listen(const QHostAddress& address, QString& reason);

    // In the order in which they depend on each other.
    Scenario m_scenario;
    Store m_store;
    std::unique_ptr<SimulatedBackend> m_backend;
    std::unique_ptr<LogRecorder> m_logs;
    std::unique_ptr<PolicyRunner> m_policies;
    std::unique_ptr<Server> m_server;
    DiscoveryResponder m_discovery;
};

} // namespace Velmora::Service
