// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include "service/logs/LogRecorder.h"
#include "service/policy/PolicyRunner.h"
#include "service/server/ClientSession.h"
#include "service/server/RequestDispatcher.h"
#include "service/simulation/SimulatedBackend.h"

#include <QVector>

namespace Velmora::Tests {

class FrameSink;

/// The reference service with one connection, but without network, files and clock.
class InProcessService final
{
public:
    InProcessService();
    ~InProcessService();
    Q_DISABLE_COPY_MOVE(InProcessService)

    /// The documents that the service sends on this request, which it takes two seconds after the last one.
    /// A frame that is not one whole document in clear is an empty one.
    [[nodiscard]] QVector<QByteArray> ask(const QByteArray& request);
    /// Everything that the service keeps, as it would write it down.
    [[nodiscard]] QByteArray stored() const;
    /// <pass> with the administrator's password.
    [[nodiscard]] QByteArray pass() const;

private:
    qint64 m_milliseconds = 0;
    Service::Store m_store;
    Service::SimulatedBackend m_backend;
    Service::LogRecorder m_logs;
    Service::PolicyRunner m_policies;
    FrameSink* m_sink; ///< owned by the session
    Service::ClientSession m_session;
    Service::RequestDispatcher m_dispatcher;
};

} // namespace Velmora::Tests
