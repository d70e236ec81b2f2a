// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "service/mail/SmtpDialogue.h"

#include "service/mail/TestMail.h"

#include <QDateTime>

#include <algorithm>

namespace Velmora::Service {

SmtpDialogue::SmtpDialogue(const MailSettings& settings, const QByteArray& ownName)
    : m_settings(settings)
    , m_ownName(ownName)
    , m_encrypted(settings.security == MailSecurity::Tls)
{}

SmtpStep SmtpDialogue::next(const SmtpReply& reply)
{
    struct Expectation
    {
        State state;
        int code;
        const char* failure;
    };
    static constexpr Expectation expectations[] = {
        {State::Greeting, 220, "The server does not serve us"},
        {State::Hello, 250, "The server does not take our greeting"},
        {State::PlainHello, 250, "The server does not take our greeting"},
        {State::StartTls, 220, "The server does not start the encryption"},
        {State::LoginUser, 334, "The server does not ask for the user name"},
        {State::LoginPassword, 334, "The server does not ask for the password"},
        {State::Authentication, 235, "The server does not accept user name and password"},
        {State::Sender, 250, "The server does not accept the address of the sender"},
        {State::Recipient, 250, "The server does not accept the address of the recipient"},
        {State::Data, 354, "The server does not take the mail"},
        {State::Mail, 250, "The server did not accept the mail"},
    };
    const auto* expected =
        std::find_if(std::begin(expectations), std::end(expectations),
                     [this](const Expectation& expectation) { return expectation.state == m_state; });
    // An old server knows no extensions; without them there is neither encryption nor authentication.
    const bool needsExtensions = m_settings.security == MailSecurity::StartTls || m_settings.authenticate;
    if (m_state == State::Hello && reply.code >= 500 && !needsExtensions)
        return ask(State::PlainHello, "HELO " + m_ownName);
    if (reply.code != expected->code)
        return failed(QLatin1String(expected->failure) % QLatin1String(": ") % reply.summary());
    return proceed(reply);
}

SmtpStep SmtpDialogue::proceed(const SmtpReply& reply)
{
    const QByteArray envelope = '<' + m_settings.address + '>';
    switch (m_state) {
    case State::Greeting:
        return hello(QLatin1String("The server answers: ") % reply.summary());
    case State::Hello:
        return afterHello(reply);
    case State::PlainHello:
        return sender(QString());
    case State::StartTls:
        return {SmtpStep::Kind::Encrypt, {}, QStringLiteral("The server starts the encryption.")};
    case State::LoginUser:
        return ask(State::LoginPassword, m_settings.user.toUtf8().toBase64());
    case State::LoginPassword:
        return ask(State::Authentication, m_settings.password.toUtf8().toBase64());
    case State::Authentication:
        return sender(QLatin1String("Authenticated as ") % m_settings.user % QLatin1Char('.'));
    case State::Sender:
        return ask(State::Recipient, "RCPT TO:" + envelope);
    case State::Recipient:
        return ask(State::Data, "DATA", QStringLiteral("The server accepts sender and recipient."));
    case State::Data:
        m_state = State::Mail;
        return {SmtpStep::Kind::Send, dataForm(testMail(m_settings.address, QDateTime::currentDateTime())),
                QStringLiteral("Sending the test mail.")};
    case State::Mail:
        break;
    }
    return {SmtpStep::Kind::Succeeded, "QUIT\r\n",
            QLatin1String("The server accepted a mail to ") % QString::fromUtf8(m_settings.address) %
                QLatin1String(": ") % reply.summary()};
}

SmtpStep SmtpDialogue::encrypted()
{
    m_encrypted = true;
    // What the server offered in clear text may have been somebody else's words.
    m_extensions.clear();
    return hello(QString());
}

SmtpStep SmtpDialogue::hello(const QString& message)
{
    return ask(State::Hello, "EHLO " + m_ownName, message);
}

SmtpStep SmtpDialogue::afterHello(const SmtpReply& reply)
{
    m_extensions = reply.lines.mid(1);
    for (QString& extension : m_extensions)
        extension = extension.toUpper();
    if (m_settings.security == MailSecurity::StartTls && !m_encrypted) {
        if (!offers("STARTTLS"))
            return failed(QStringLiteral("The server offers no encryption (STARTTLS)."));
        return ask(State::StartTls, "STARTTLS");
    }
    return m_settings.authenticate ? authenticate() : sender(QString());
}

SmtpStep SmtpDialogue::authenticate()
{
    if (!m_trusted)
        return failed(QStringLiteral("The password was not sent, since the server may be another one than it "
                                     "claims to be. Add its certificate to those that the computer of the "
                                     "service trusts."));
    if (offers("AUTH", "PLAIN")) {
        const QByteArray secret = '\0' + m_settings.user.toUtf8() + '\0' + m_settings.password.toUtf8();
        return ask(State::Authentication, "AUTH PLAIN " + secret.toBase64());
    }
    if (offers("AUTH", "LOGIN"))
        return ask(State::LoginUser, "AUTH LOGIN");
    return failed(QStringLiteral("The server offers no authentication by password (PLAIN or LOGIN)."));
}

SmtpStep SmtpDialogue::sender(const QString& message)
{
    const bool ascii = std::all_of(m_settings.address.cbegin(), m_settings.address.cend(),
                                   [](char letter) { return static_cast<uchar>(letter) < 0x80; });
    if (!ascii && !offers("SMTPUTF8"))
        return failed(
            QStringLiteral("The server takes no address with letters such as those of the sender."));
    return ask(State::Sender, "MAIL FROM:<" + m_settings.address + (ascii ? ">" : "> SMTPUTF8"), message);
}

SmtpStep SmtpDialogue::ask(State state, const QByteArray& line, const QString& message)
{
    m_state = state;
    return {SmtpStep::Kind::Send, line + "\r\n", message};
}

SmtpStep SmtpDialogue::failed(const QString& message)
{
    return {SmtpStep::Kind::Failed, "QUIT\r\n", message};
}

bool SmtpDialogue::offers(const char* extension, const char* parameter) const
{
    return std::any_of(m_extensions.cbegin(), m_extensions.cend(), [&](const QString& line) {
        // Some servers write "AUTH=PLAIN".
        QStringList words = QString(line).replace(QLatin1Char('='), QLatin1Char(' ')).split(QLatin1Char(' '));
        return words.takeFirst() == QLatin1String(extension) &&
               (*parameter == '\0' || words.contains(QLatin1String(parameter)));
    });
}

} // namespace Velmora::Service
