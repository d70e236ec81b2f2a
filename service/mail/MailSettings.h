// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include "service/wire/Element.h"

#include <QByteArray>

namespace Velmora::Service {

enum class MailSecurity {
    None,
    StartTls, ///< the connection begins in clear text and is encrypted on request
    Tls,      ///< encrypted from the first byte
};

/// The mail account of the service, checked.
struct MailSettings
{
    MailSecurity security = MailSecurity::None;
    QString server;
    quint16 port = 0;
    int timeout = 30;   ///< seconds for each step
    QByteArray address; ///< of the sender; its domain in ASCII form
    bool authenticate = false;
    QString user;
    QString password;
};

/// Reads the smtp2_ fields of a request. Nothing and a sentence that says what is wrong if no mail could be
/// sent with them.
[[nodiscard]] std::optional<MailSettings> readMailSettings(const Element& request, QString& fault);

} // namespace Velmora::Service
