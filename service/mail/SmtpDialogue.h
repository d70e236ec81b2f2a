// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include "service/mail/MailSettings.h"
#include "service/mail/SmtpReply.h"

namespace Velmora::Service {

/// What is to be done after a reply of the server.
struct SmtpStep
{
    enum class Kind {
        Send,
        Encrypt, ///< begin TLS, then go on with encrypted()
        Succeeded,
        Failed,
    };

    Kind kind = Kind::Send;
    QByteArray bytes; ///< to send, also with the last step
    QString message;  ///< what to tell the user
};

/// Our side of the talk with a mail server, from its greeting to the mail that it has accepted.
class SmtpDialogue final
{
public:
    /// The name is how we introduce ourselves: a host name or an address literal.
    SmtpDialogue(const MailSettings& settings, const QByteArray& ownName);

    [[nodiscard]] SmtpStep next(const SmtpReply& reply);
    /// The step once TLS has begun on request.
    [[nodiscard]] SmtpStep encrypted();
    /// Without a certificate that is trusted no password leaves us.
    void setTrusted(bool trusted) { m_trusted = trusted; }

private:
    enum class State {
        Greeting,
        Hello,
        PlainHello,
        StartTls,
        LoginUser,
        LoginPassword,
        Authentication,
        Sender,
        Recipient,
        Data,
        Mail,
    };

    [[nodiscard]] SmtpStep ask(State state, const QByteArray& line, const QString& message = QString());
    [[nodiscard]] SmtpStep hello(const QString& message);
    [[nodiscard]] SmtpStep afterHello(const SmtpReply& reply);
    [[nodiscard]] SmtpStep authenticate();
    [[nodiscard]] SmtpStep sender(const QString& message);
    [[nodiscard]] SmtpStep proceed(const SmtpReply& reply);
    [[nodiscard]] static SmtpStep failed(const QString& message);
    [[nodiscard]] bool offers(const char* extension, const char* parameter = "") const;

    MailSettings m_settings;
    QByteArray m_ownName;
    State m_state = State::Greeting;
    QStringList m_extensions; ///< upper-case lines with which the server answered the hello
    bool m_encrypted = false;
    bool m_trusted = true;
};

} // namespace Velmora::Service
