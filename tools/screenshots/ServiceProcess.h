// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QProcess>
#include <QString>

/// The reference service as a process of its own, ended with the object.
class ServiceProcess final
{
public:
    ServiceProcess(const QString& program, const QString& address);
    ~ServiceProcess();
    Q_DISABLE_COPY_MOVE(ServiceProcess)

    /// False, with the reason on standard error, if the service does not come up.
    [[nodiscard]] bool start();
    void stop();

private:
    QString m_program;
    QString m_address;
    QProcess m_process;
};
