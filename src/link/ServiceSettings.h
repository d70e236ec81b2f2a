// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QMetaType>
#include <QString>

namespace Velmora::Utils {

/// Settings of the service's mail client.
struct SmtpConfig
{
    QString security_type; ///< "none", "tls" or "ssl"
    QString server;
    int port = 0;
    int timeout = 0;
    QString sender_address;
    bool authentication = false;
    QString user;
    QString pass;
};

/// The service-wide settings.
struct ApplicationConfiguration : SmtpConfig
{
    QString log_files_path;
    bool run_on_boot = false;
    QString control_panel_path; ///< written to the service, never read back
};

} // namespace Velmora::Utils

Q_DECLARE_METATYPE(Velmora::Utils::SmtpConfig)
Q_DECLARE_METATYPE(Velmora::Utils::ApplicationConfiguration)
