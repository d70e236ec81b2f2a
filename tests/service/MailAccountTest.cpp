// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "service/PanelClient.h"
#include "service/mail/TestMail.h"

#include <QFile>
#include <QRegularExpression>
#include <QSslConfiguration>
#include <QSslKey>
#include <QSslSocket>
#include <QTcpServer>

using namespace Velmora::Tests;

namespace {

// Key and certificate of the test's mail server, made for nothing else; the file names its own address.
QByteArray pem()
{
    QFile file(QStringLiteral(VELMORA_TEST_DATA "/mail-server.pem"));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// A mail server that does what the words of its script say: which extensions it offers ("STARTTLS",
/// "AUTH PLAIN"), which command it refuses ("no RCPT") and how it misbehaves ("silence", "flood", "leave",
/// "inject"); "tls" encrypts from the first byte. It keeps what it was told.
class MailServer final : public QTcpServer
{
public:
    explicit MailServer(const QString& script)
        : m_script(script.split(QLatin1Char(';'), Qt::SkipEmptyParts))
    {
        listen(QHostAddress(ownAddress()));
    }
    QByteArray told;

protected:
    void incomingConnection(qintptr descriptor) override
    {
        auto* socket = new QSslSocket(this);
        socket->setSocketDescriptor(descriptor);
        socket->setPrivateKey(QSslKey(pem(), QSsl::Ec));
        socket->setLocalCertificate(QSslCertificate(pem()));
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
        m_inMail = command == "DATA";
        if (does("no " + command)) {
            answer(socket, "550-5.7.1 Not\r\n550 here");
        } else if (command == "EHLO") {
            QByteArray offer = "250-mail.test";
            for (const QString& extension : m_script)
                offer += "\r\n250-" + extension.toLatin1();
            answer(socket, offer + "\r\n250 SIZE");
        } else if (command == "STAR") {
            answer(socket, does("inject") ? "220 go\r\n250 done" : "220 go");
            socket->startServerEncryption();
        } else if (command == "AUTH") {
            answer(socket, does("AUTH LOGIN") ? "334 VXNlcm5hbWU6" : "235 welcome");
        } else {
            answer(socket, command == "DATA"   ? "354 go"
                           : command == "dTpz" ? "334 UGFzcw=="
                           : command == "cDpz" ? "235 in"
                                               : "250 ok");
        }
    }

    QStringList m_script;
    bool m_inMail = false;
};

} // namespace

/// The test of the mail account, as a panel sees it.
class MailAccountTest final : public QObject
{
    Q_OBJECT

private slots:
    void accountIsTried_data();
    void accountIsTried();
    void mailIsWellFormed();
    void badSettingsAreNamed();
};

void MailAccountTest::accountIsTried_data()
{
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<QByteArray>("account"); // security, authentication, trust in the server's certificate
    QTest::addColumn<QByteArray>("status");
    QTest::addColumn<QByteArray>("message"); // one of the reports
    QTest::addColumn<QByteArray>("told");    // something that the server heard; "!": not
    const auto row = [](const char* name, const char* script, const char* account, const char* status,
                        const char* message, const char* told) {
        QTest::newRow(name) << QByteArray(script) << QByteArray(account) << QByteArray(status)
                            << QByteArray(message) << QByteArray(told);
    };
    row("plain mail goes through", "", "none 0 0", "100", "accepted a mail to ups@test",
        "- RCPT TO:<ups@test>");
    row("server without extensions is greeted the old way", "no EHLO", "none 0 0", "100", "accepted",
        "- HELO [127.");
    row("password goes out encrypted", "STARTTLS;AUTH PLAIN", "tls 1 1", "100", "Authenticated as u:s",
        "# AUTH PLAIN AHU6cwBwOnM=");
    row("login goes on line by line", "tls;AUTH LOGIN", "ssl 1 1", "100", "Authenticated",
        "# cDpz\r\n# MAIL");
    row("unknown certificate is reported", "STARTTLS", "tls 0 0", "100", "cannot be verified", "# EHLO");
    row("password stays at home without trust", "tls;AUTH PLAIN", "ssl 1 0", "2", "was not sent", "!AUTH");
    row("encryption is not given up", "AUTH PLAIN", "tls 1 1", "2", "no encryption", "!AUTH");
    row("words slipped in before encryption are refused", "STARTTLS;inject", "tls 0 1", "2", "clear text",
        "!MAIL");
    row("refused password is told", "tls;AUTH PLAIN;no AUTH", "ssl 1 1", "2", "password: 550 5.7.1 Not",
        "# AUTH");
    row("refused recipient is told", "no RCPT", "none 0 0", "2", "recipient: 550", "!DATA");
    row("silence ends in time", "silence", "none 0 0", "2", "within 1 s", "!EHLO");
    row("plain server does not hang TLS", "", "ssl 0 0", "2", "", "!EHLO");
    row("endless line is cut", "flood", "none 0 0", "2", "no mail server", "!EHLO");
    row("end of the connection is told", "leave", "none 0 0", "2", "connection failed", "!EHLO");
}

void MailAccountTest::accountIsTried()
{
    QFETCH(QByteArray, script);
    QFETCH(QByteArray, account);
    QFETCH(QByteArray, message);
    QFETCH(QByteArray, told);
    QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
    configuration.setCaCertificates({});
    if (account.endsWith('1'))
        configuration.setCaCertificates({QSslCertificate(pem())});
    QSslConfiguration::setDefaultConfiguration(configuration);
    MailServer server(QString::fromLatin1(script));
    const auto service = startService();
    PanelClient client;
    client.setPassword(administratorPassword);
    client.send("smtp2_send_test_mail",
                "<smtp2_security_type>" + account.split(' ').at(0) + "</smtp2_security_type><smtp2_server>" +
                    ownAddress().toLatin1() + "</smtp2_server><smtp2_port>" +
                    QByteArray::number(server.serverPort()) +
                    "</smtp2_port><smtp2_timeout>1</smtp2_timeout><smtp2_sender_address>ups@test"
                    "</smtp2_sender_address><smtp2_authentication>" +
                    account.split(' ').at(1) +
                    "</smtp2_authentication><smtp2_user>u:s</smtp2_user><smtp2_pass>p:s</smtp2_pass>");
    QByteArray messages;
    QByteArray status;
    do {
        const QByteArray report = client.waitFor("smtp2_test_status");
        status = text(report, "current_status");
        messages += text(report, "msg_0") + '\n';
    } while (status == "1");
    QTEST(status, "status");
    QVERIFY2(messages.contains(message), messages.constData());
    QVERIFY2(server.told.contains(told.mid(told.startsWith('!') ? 1 : 0)) != told.startsWith('!'),
             server.told.constData());
}

void MailAccountTest::mailIsWellFormed()
{
    const QByteArray mail = Velmora::Service::testMail(
        "ups@test", QDateTime(QDate(2026, 3, 4), QTime(5, 6, 7), Qt::OffsetFromUTC, 3600));
    const QRegularExpression headers(QStringLiteral(
        "\\AFrom: Velmora <ups@test>\nTo: <ups@test>\nSubject: [^\n]+\nDate: 04 Mar 2026 05:06:07 \\+0100\n"
        "Message-ID: <[0-9a-f-]{36}@test>\n([A-Za-z-]+: [^\n]+\n)+\n[^\n]"));
    QVERIFY2(headers.match(QString::fromUtf8(mail)).hasMatch(), mail.constData());
    QCOMPARE(Velmora::Service::dataForm(".a\n\r\n..\nb"), QByteArray("..a\r\n\r\n...\r\nb\r\n.\r\n"));
}

void MailAccountTest::badSettingsAreNamed()
{
    const auto service = startService();
    PanelClient client;
    client.setPassword(administratorPassword);
    QByteArray fields;
    // Each field that is added mends what was wrong before it.
    for (const QByteArray& row :
         {QByteArray("server is set|<smtp2_server>127.0.0.26</smtp2_server>"),
          QByteArray("port|<smtp2_port>1</smtp2_port>"),
          QByteArray("address|<smtp2_sender_address>a@b&gt;\r\n</smtp2_sender_address>"),
          QByteArray("address|")}) {
        const QByteArray reply = client.ask("smtp2_send_test_mail", "smtp2_test_status", fields);
        QCOMPARE(text(reply, "current_status"), QByteArray("2"));
        QVERIFY2(text(reply, "msg_0").contains(row.split('|').at(0)), reply.constData());
        fields += row.split('|').at(1);
    }
}

QTEST_GUILESS_MAIN(MailAccountTest)
#include "MailAccountTest.moc"
