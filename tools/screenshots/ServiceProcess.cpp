// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "screenshots/ServiceProcess.h"

#include <cstdio>

namespace {

constexpr int startTime = 10000;
constexpr int stopTime = 5000;

} // namespace

ServiceProcess::ServiceProcess(const QString& program, const QString& address)
    : m_program(program)
    , m_address(address)
{
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
}

ServiceProcess::~ServiceProcess()
{
    stop();
}

bool ServiceProcess::start()
{
    m_process.start(m_program, {QStringLiteral("--listen"), m_address});
    // Its first line says that it listens.
    if (m_process.waitForStarted(startTime) && m_process.waitForReadyRead(startTime))
        return true;
    std::fprintf(stderr, "velmora-screenshots: %s does not start: %s\n", qUtf8Printable(m_program),
                 qUtf8Printable(m_process.errorString()));
    return false;
}

void ServiceProcess::stop()
{
    if (m_process.state() == QProcess::NotRunning)
        return;
    m_process.terminate();
    if (!m_process.waitForFinished(stopTime)) {
        m_process.kill();
        m_process.waitForFinished(stopTime);
    }
}
