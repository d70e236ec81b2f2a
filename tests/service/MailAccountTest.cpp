// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "service/PanelClient.h"
#include "service/mail/MailSettings.h"
#include "service/mail/TestMail.h"

#include <QHash>
#include <QRegularExpression>
#include <QSslConfiguration>
#include <QSslSocket>
#include <QTcpServer>

using namespace Velmora::Service;
using namespace Velmora::Tests;

namespace {

// Key and certificate of the test's mail server, made for nothing else; it names its own address.
const QString pem = QStringLiteral(VELMORA_TEST_DATA "/mail-server.pem");

/// A mail server that does what the words of its script say: which extensions it offers ("STARTTLS",
/// "AUTH PLAIN"), which command it refuses ("no RCPT") and how it misbehaves ("silence", "flood", "leave",
/// "inject"); "tls" encrypts from the first byte. It keeps what it was told.
class MailServer final : public QTcpServer
{
public:
    explicit MailServer(const QString& script)
        : m_script(script.split(QLatin1Char(';'), Qt::SkipEmptyParts))
    {
        listen(QHostAddress(ScriptedService::testAddress()));
    }
    QByteArray told;

protected:
    void incomingConnection(qintptr descriptor) override
    {
        auto* socket = new QSslSocket(this);
        socket->setSocketDescriptor(descriptor);
        socket->setPrivateKey(pem, QSsl::Ec);
        socket->setLocalCertificate(pem);
        const auto greet = [this, socket] { answer(socket, "220 mail.test ready"); };
        connect(socket, &QSslSocket::readyRead, this, [this, socket] { read(socket); });
        if (does("tls")) {
            connect(socket, &QSslSocket::encrypted, this, greet);
            socket->startServerEncryption();
        } else {
            greet();
        }
    }

private:
    bool does(const QByteArray& word) const { return m_script.contains(QLatin1String(word)); }
    void answer(QSslSocket* socket, const QByteArray& line)
    {
        if (does("leave"))
            socket->disconnectFromHost();
        else if (!does("silence"))
            socket->write(does("flood") ? QByteArray(1 << 20, '2') : line + "\r\n");
    }
    void read(QSslSocket* socket)
    {
        while (socket->canReadLine()) {
            const QByteArray line = socket->readLine();
            told += (socket->isEncrypted() ? "# " : "- ") + line;
            if (!m_inMail || line == ".\r\n")
                obey(socket, line.left(4).trimmed());
        }
    }
    void obey(QSslSocket* socket, const QByteArray& command)
    {
        static const QHash<QByteArray, QByteArray> answers{
            {"DATA", "354 go"}, {"STAR", "220 go"}, {"dTpz", "334 UGFzcw=="}, {"cDpz", "235 in"}};
        m_inMail = command == "DATA";
        if (does("no " + command))
            answer(socket, "550-No\r\n550 here");
        else if (command == "EHLO")
            answer(socket, "250-mail.test\r\n250-" + m_script.join(QLatin1String("\r\n250-")).toLatin1() +
                               "\r\n250 SIZE");
        else if (command == "AUTH")
            answer(socket, does("AUTH LOGIN") ? "334 VXNlcm5hbWU6" : "235 welcome");
        else
            answer(socket, answers.value(command, "250 ok") + (does("inject") ? "\r\n250 done" : ""));
        if (command == "STAR")
            socket->startServerEncryption();
    }

    QStringList m_script;
    bool m_inMail = false;
};

} // namespace

class MailAccountTest final : public QObject
{
    Q_OBJECT

private slots:
    void accountIsTried();
    void mailIsWellFormed();
};

void MailAccountTest::accountIsTried()
{
    // What it is about, what the server does, security, authentication and trust in the certificate; then the
    // status, one of the reports and something that the server heard or, with "!", did not hear.
    const QVector<QByteArrayList> rows{
        {"plain mail goes through", "", "none 0 0", "100", "accepted a mail to u@t", "- RCPT TO:<u@t>"},
        {"old server is greeted the old way", "no EHLO", "none 0 0", "100", "accepted", "- HELO [127."},
        {"password goes out encrypted", "STARTTLS;AUTH PLAIN", "tls 1 1", "100", "as u:s",
         "# AUTH PLAIN AHU6cwBwOnM="},
        {"login goes on line by line", "tls;AUTH LOGIN", "ssl 1 1", "100", "as u:s", "# cDpz\r\n# MAIL"},
        {"unknown certificate is reported", "STARTTLS", "tls 0 0", "100", "cannot be verified", "# EHLO"},
        {"password stays at home without trust", "tls;AUTH PLAIN", "ssl 1 0", "2", "was not sent", "!AUTH"},
        {"encryption is not given up", "AUTH PLAIN", "tls 1 1", "2", "no encryption", "!AUTH"},
        {"words slipped in are refused", "STARTTLS;inject", "tls 0 1", "2", "clear text", "!MAIL"},
        {"refused password is told", "tls;AUTH PLAIN;no AUTH", "ssl 1 1", "2", "password: 550 No", "# AUTH"},
        {"refused recipient is told", "no RCPT", "none 0 0", "2", "recipient: 550", "!DATA"},
        {"silence ends in time", "silence", "none 0 0", "2", "within 1 s", "!EHLO"},
        {"server without TLS ends the test", "", "ssl 0 0", "2", "handshake", "!EHLO"},
        {"endless line is cut", "flood", "none 0 0", "2", "no mail server", "!EHLO"},
        {"end of the connection is told", "leave", "none 0 0", "2", "connection failed", "!EHLO"}};
    for (const QByteArrayList& row : rows) {
        const QByteArrayList account = row.at(2).split(' ');
        QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
        configuration.setCaCertificates(QSslCertificate::fromPath(account.last() == "1" ? pem : QString()));
        QSslConfiguration::setDefaultConfiguration(configuration);
        MailServer server(QString::fromLatin1(row.at(1)));
        const auto service = startService();
        PanelClient client;
        client.setPassword(administratorPassword);
        QByteArray fields = "<smtp2_sender_address>u@t</smtp2_sender_address><smtp2_timeout>1</smtp2_timeout>"
                            "<smtp2_user>u:s</smtp2_user><smtp2_pass>p:s</smtp2_pass>";
        fields += "<smtp2_server>" + ScriptedService::testAddress().toLatin1() + "</smtp2_server>";
        fields += "<smtp2_port>" + QByteArray::number(server.serverPort()) + "</smtp2_port>";
        fields += "<smtp2_security_type>" + account.at(0) + "</smtp2_security_type>";
        fields += "<smtp2_authentication>" + account.at(1) + "</smtp2_authentication>";
        client.send("smtp2_send_test_mail", fields);
        QByteArray messages = row.at(0) + ": ";
        QByteArray status;
        do {
            const QByteArray report = client.waitFor("smtp2_test_status");
            status = text(report, "current_status");
            messages += text(report, "msg_0") + '\n';
        } while (status == "1");
        const bool mustHear = !row.at(5).startsWith('!');
        const bool heard = server.told.contains(row.at(5).mid(mustHear ? 0 : 1));
        messages += server.told;
        QVERIFY2(status == row.at(3) && messages.contains(row.at(4)) && heard == mustHear,
                 messages.constData());
    }
}

void MailAccountTest::mailIsWellFormed()
{
    const QByteArray mail =
        testMail("ups@test", QDateTime(QDate(2026, 3, 4), QTime(5, 6, 7), Qt::OffsetFromUTC, 3600));
    const QRegularExpression headers(QStringLiteral(
        "\\AFrom: Velmora <ups@test>\nTo: <ups@test>\nSubject: [^\n]+\nDate: 04 Mar 2026 05:06:07 \\+0100\n"
        "Message-ID: <[0-9a-f-]{36}@test>\n([A-Za-z-]+: [^\n]+\n)+\n[^\n]"));
    QVERIFY2(headers.match(QString::fromUtf8(mail)).hasMatch(), mail.constData());
    QCOMPARE(dataForm(".a\n\r\n..\nb"), QByteArray("..a\r\n\r\n...\r\nb\r\n.\r\n"));
    // What would end the command or the address in it.
    for (const char* address : {"", "a", "@b", "a@", "a>@b", "a\nQUIT@b", "a@b@c", "a@b>\r\nDATA"}) {
        Element request;
        request.add(QStringLiteral("smtp2_server"), QStringLiteral("s"));
        request.add(QStringLiteral("smtp2_port"), QStringLiteral("25"));
        request.add(QStringLiteral("smtp2_sender_address"), QString::fromLatin1(address));
        QString fault;
        QVERIFY2(!readMailSettings(request, fault) && fault.contains(QLatin1String("address")), address);
    }
}

QTEST_GUILESS_MAIN(MailAccountTest)
#include "MailAccountTest.moc"
