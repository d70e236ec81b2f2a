// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QProcess>
#include <QString>
#include <QStringList>

/// The reference service as a process of its own, ended with the object. What it says on standard error
/// passes through.
class ServiceProcess final
{
public:
    ServiceProcess(const QString& program, const QString& address, const QStringList& options = {});
    ~ServiceProcess();
    Q_DISABLE_COPY_MOVE(ServiceProcess)

    /// False, with the reason on standard error, if the service does not come up.
    [[nodiscard]] bool start();
    /// False if it had ended before, or did not end well when asked to.
    bool stop();

private:
    QString m_program;
    QStringList m_arguments;
    QProcess m_process;
};
