// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "service/mail/MailSettings.h"

#include <QUrl>

#include <algorithm>

namespace Velmora::Service {

namespace {

constexpr int usualTimeout = 30;
constexpr int longestTimeout = 120;

MailSecurity security(const QString& name)
{
    if (name.compare(QLatin1String("none"), Qt::CaseInsensitive) == 0)
        return MailSecurity::None;
    return name.compare(QLatin1String("ssl"), Qt::CaseInsensitive) == 0 ? MailSecurity::Tls
                                                                        : MailSecurity::StartTls;
}

// The form that goes into commands; empty if a server could take it for something else than one address.
QByteArray envelopeAddress(const QString& address)
{
    const int at = address.lastIndexOf(QLatin1Char('@'));
    const QByteArray domain = QUrl::toAce(address.mid(at + 1));
    const auto isForbidden = [](QChar letter) {
        return letter.isSpace() || !letter.isPrint() || QStringLiteral("<>\"(),:;\\@[]").contains(letter);
    };
    const QString local = address.left(qMax(0, at));
    if (local.isEmpty() || domain.isEmpty() || std::any_of(local.cbegin(), local.cend(), isForbidden))
        return {};
    return local.toUtf8() + '@' + domain;
}

} // namespace

std::optional<MailSettings> readMailSettings(const Element& request, QString& fault)
{
    const auto text = [&request](const char* field) { return request.childText(QLatin1String(field)); };
    MailSettings settings;
    settings.security = security(text("smtp2_security_type"));
    settings.server = text("smtp2_server").trimmed();
    settings.port = text("smtp2_port").toUShort();
    const int timeout = text("smtp2_timeout").toInt();
    settings.timeout = timeout > 0 ? qMin(timeout, longestTimeout) : usualTimeout;
    settings.address = envelopeAddress(text("smtp2_sender_address").trimmed());
    const Element* authentication = request.child(QLatin1String("smtp2_authentication"));
    settings.authenticate = authentication && authentication->text != QLatin1String("0");
    settings.user = text("smtp2_user");
    settings.password = text("smtp2_pass");
    if (settings.server.isEmpty())
        fault = QStringLiteral("No mail server is set.");
    else if (settings.port == 0)
        fault = QStringLiteral("The port of the mail server is not a number from 1 to 65535.");
    else if (settings.address.isEmpty())
        fault = QStringLiteral("The address of the sender is not a mail address.");
    else if (settings.authenticate && settings.user.isEmpty())
        fault = QStringLiteral("The server asks for authentication, but no user name is set.");
    else
        return settings;
    return std::nullopt;
}

} // namespace Velmora::Service
