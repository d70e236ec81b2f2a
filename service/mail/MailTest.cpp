// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "service/mail/MailTest.h"

#include "service/Logging.h"

#include <QHostAddress>
#include <QNetworkProxy>
#include <QSslCipher>

namespace Velmora::Service {

namespace {

// Replies have lines of at most 512 bytes; some servers are more generous.
constexpr qint64 longestLine = 2048;

// An address literal is right whatever this computer is called.
QByteArray ownName(const QHostAddress& address)
{
    const bool newer = address.protocol() == QAbstractSocket::IPv6Protocol;
    return (newer ? "[IPv6:" : "[") + address.toString().toLatin1() + ']';
}

} // namespace

MailTest::MailTest(const MailSettings& settings, QObject* parent)
    : QObject(parent)
    , m_settings(settings)
{
    m_timeout.setSingleShot(true);
    m_timeout.setInterval(m_settings.timeout * 1000);
    connect(&m_timeout, &QTimer::timeout, this, [this] {
        finish(failed, QStringLiteral("The server did not answer within %1 s.").arg(m_settings.timeout));
    });
    m_socket.setProxy(QNetworkProxy::NoProxy);
    m_socket.setReadBufferSize(2 * longestLine);
    m_socket.setPeerVerifyName(m_settings.server);
    connect(&m_socket, &QSslSocket::connected, this, &MailTest::connected);
    connect(&m_socket, &QSslSocket::encrypted, this, &MailTest::encrypted);
    connect(&m_socket, &QSslSocket::readyRead, this, &MailTest::readReplies);
    connect(&m_socket, &QSslSocket::errorOccurred, this, [this] {
        finish(failed, QLatin1String("The connection failed: ") % m_socket.errorString() % QLatin1Char('.'));
    });
    connect(&m_socket, QOverload<const QList<QSslError>&>::of(&QSslSocket::sslErrors), this,
            [this](const QList<QSslError>& errors) {
                for (const QSslError& error : errors)
                    m_certificateFaults.append(error.errorString());
                m_socket.ignoreSslErrors();
            });
}

MailTest::~MailTest()
{
    m_socket.disconnect(this);
}

void MailTest::start()
{
    report(QStringLiteral("Connecting to %1:%2...").arg(m_settings.server).arg(m_settings.port));
    if (m_settings.security != MailSecurity::None && !QSslSocket::supportsSsl()) {
        finish(failed, QStringLiteral("The computer of the service has no library for encryption."));
        return;
    }
    m_timeout.start();
    if (m_settings.security == MailSecurity::Tls)
        m_socket.connectToHostEncrypted(m_settings.server, m_settings.port);
    else
        m_socket.connectToHost(m_settings.server, m_settings.port);
}

void MailTest::connected()
{
    m_timeout.start();
    m_dialogue.emplace(m_settings, ownName(m_socket.localAddress()));
    report(QLatin1String("Connected to ") % m_socket.peerAddress().toString() % QLatin1Char('.'));
}

void MailTest::encrypted()
{
    m_timeout.start();
    report(QLatin1String("The connection is encrypted (") % m_socket.sessionCipher().name() %
           QLatin1String(")."));
    if (!m_certificateFaults.isEmpty())
        report(QLatin1String("The certificate of the server cannot be verified: ") %
               m_certificateFaults.join(QLatin1Char(' ')));
    m_dialogue->setTrusted(m_certificateFaults.isEmpty());
    if (m_settings.security == MailSecurity::StartTls)
        take(m_dialogue->encrypted());
}

void MailTest::readReplies()
{
    while (!m_finished && m_dialogue && m_socket.canReadLine()) {
        const SmtpReplyReader::Progress progress = m_reader.add(m_socket.readLine(longestLine));
        if (progress == SmtpReplyReader::Progress::Broken)
            finish(failed, QStringLiteral("What answers there is no mail server."));
        else if (progress == SmtpReplyReader::Progress::Complete)
            take(m_dialogue->next(m_reader.take()));
    }
    if (!m_finished && m_socket.bytesAvailable() >= longestLine)
        finish(failed, QStringLiteral("What answers there is no mail server."));
}

void MailTest::take(const SmtpStep& step)
{
    switch (step.kind) {
    case SmtpStep::Kind::Send:
        if (!step.message.isEmpty())
            report(step.message);
        m_timeout.start();
        m_socket.write(step.bytes);
        break;
    case SmtpStep::Kind::Encrypt:
        // Anything behind the reply was not encrypted, though it would be read as if it had been.
        if (m_socket.bytesAvailable() > 0) {
            finish(failed, QStringLiteral("The server went on in clear text."));
            break;
        }
        report(step.message);
        m_timeout.start();
        m_socket.startClientEncryption();
        break;
    case SmtpStep::Kind::Succeeded:
    case SmtpStep::Kind::Failed:
        m_socket.write(step.bytes);
        finish(step.kind == SmtpStep::Kind::Succeeded ? succeeded : failed, step.message);
        break;
    }
}

void MailTest::report(const QString& message)
{
    emit reported(running, {message});
}

void MailTest::finish(int status, const QString& message)
{
    if (m_finished)
        return;
    m_finished = true;
    m_timeout.stop();
    m_socket.disconnect(this);
    // Lets the last command leave; who does not take it is dropped with this object.
    m_socket.disconnectFromHost();
    qCInfo(serviceLog).noquote() << "test mail through"
                                 << m_settings.server.left(80) % QLatin1Char(':') %
                                        QString::number(m_settings.port)
                                 << (status == succeeded ? "succeeded:" : "failed:") << message;
    emit reported(status, {message});
}

} // namespace Velmora::Service
