// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "support/ServiceProcess.h"

#include <QCoreApplication>

#include <cstdio>

namespace {

constexpr int startTime = 10000;
constexpr int stopTime = 5000;

} // namespace

ServiceProcess::ServiceProcess(const QString& program, const QString& address, const QStringList& options)
    : m_program(program)
    , m_arguments(QStringList{QStringLiteral("--listen"), address} + options)
{
    m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
}

ServiceProcess::~ServiceProcess()
{
    stop();
}

bool ServiceProcess::start()
{
    m_process.start(m_program, m_arguments);
    // Its first line says that it listens.
    if (m_process.waitForStarted(startTime) && m_process.waitForReadyRead(startTime))
        return true;
    std::fprintf(stderr, "%s: %s does not start: %s\n", qUtf8Printable(QCoreApplication::applicationName()),
                 qUtf8Printable(m_program), qUtf8Printable(m_process.errorString()));
    return false;
}

bool ServiceProcess::stop()
{
    if (m_process.state() == QProcess::NotRunning)
        return false;
    m_process.terminate();
    if (!m_process.waitForFinished(stopTime)) {
        m_process.kill();
        m_process.waitForFinished(stopTime);
    }
    return m_process.exitStatus() == QProcess::NormalExit && m_process.exitCode() == 0;
}
