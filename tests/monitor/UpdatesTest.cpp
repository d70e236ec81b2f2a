// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "admin/UpdateDownloadWindow.h"
#include "admin/core/UpdateRules.h"
#include "monitor/WindowFixture.h"
#include "support/ModalDriver.h"

#include <QDir>
#include <QRegExp>
#include <QSettings>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>

using namespace Velmora::Tests;

/// The whole way of an update, from the menu to the terminal, against a web server on loopback.
class UpdatesTest final : public QObject
{
    Q_OBJECT

public:
    UpdatesTest()
    {
        QDir::setCurrent(m_folder.path());
        m_web.listen(QHostAddress(ScriptedService::testAddress()));
        connect(&m_web, &QTcpServer::newConnection, this, [this] {
            QTcpSocket* client = m_web.nextPendingConnection();
            connect(client, &QTcpSocket::readyRead, this, [this, client] { answer(client); });
        });
        m_updates.descriptor = QUrl(QStringLiteral("http://127.0.0.81:%1/new").arg(m_web.serverPort()));
        m_updates.installerFolder = m_updates.descriptor.resolved(QUrl(QStringLiteral("/VL/")));
        m_updates.runAndWait = [this](const QString& program, const QStringList& arguments) {
            const QString command = program + QLatin1Char(' ') + arguments.join(QLatin1Char(' '));
            QMetaObject::invokeMethod(this, [this, command] { m_done.append(command); });
        };
        m_updates.startDetached = m_updates.runAndWait;
        m_updates.endPanel = [this] { m_updates.runAndWait(QStringLiteral("end"), {}); };
    }

private slots:
    void versionsAreCompared();
    void updatesAreOfferedAndFetched_data();
    void updatesAreOfferedAndFetched();

private:
    void answer(QTcpSocket* client)
    {
        const QByteArray path = client->readAll().split(' ').value(1);
        if (!m_answers.contains(path))
            return;
        client->write("HTTP/1.1 " + m_answers.take(path));
        client->disconnectFromHost();
    }

    QTemporaryDir m_folder;
    QTcpServer m_web;
    QHash<QByteArray, QByteArray> m_answers; ///< each for one request of its path
    QStringList m_done;                      ///< commands and messages
    Velmora::UpdateEnvironment m_updates;
};

void UpdatesTest::versionsAreCompared()
{
    for (const char* version :
         {"2.5.2", "2.6.0", "3.0.0", "1.5.2", "2.10.0", "2.5.1", "2.4.9", "1.6.0", "2.6"})
        QCOMPARE(Velmora::isUpdate(QLatin1String(version), QStringLiteral("2.5.1")),
                 QByteArray("2.5.2 2.6.0 3.0.0 1.5.2 2.10.0").split(' ').contains(version));
}

void UpdatesTest::updatesAreOfferedAndFetched_data()
{
    QTest::addColumn<QByteArray>("installer");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char* name, const char* installer, const char* expected) {
        QTest::newRow(name) << QByteArray(installer) << QString::fromUtf8(expected);
    };
    const char started[] = "chmod +x update.bin|xterm ./update.bin|end |new";
    row("an installer is started", "200 OK\r\n\r\nnew", started);
    row("a redirect is followed", "302 Found\r\nLocation: /moved\r\n\r\n", started);
    row("half a file is no installer", "200 OK\r\nContent-Length: 9\r\n\r\nhalf",
        "Error|Connection closed|old");
    row("an error page is no installer", "503 Busy\r\n\r\nbusy", "Error|*replied: Busy|old");
    row("part of a file is no installer", "206 Part\r\n\r\npart", "Error|*(HTTP 206)|old");
    row("a cancelled download says nothing", "", "Błąd połączenia|*witryną 127.0.0.81|old");
    row("an ordinary user may not install", "refused", "Aktualizacja|W celu *|old");
}

void UpdatesTest::updatesAreOfferedAndFetched()
{
    QFETCH(QByteArray, installer);
    QFETCH(QString, expected);
    QFile file(QStringLiteral("update.bin"));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write("old") == 3);
    file.close();
    m_done.clear();
    m_updates.userId = [&installer] { return installer == "refused" ? 1000U : 0U; };
    m_answers = {{"/new", "200 OK\r\n\r\n<a><b></a>"}, {"/moved", "200 OK\r\n\r\nnew"}};
    if (!installer.isEmpty())
        m_answers.insert("/VL/velmora_Professional-i386-rpm.bin", installer);
    WindowFixture panel;
    QSettings(qEnvironmentVariable("VELMORA_CONTROL_PANEL_INI"), QSettings::IniFormat)
        .setValue(QStringLiteral("platform"), QStringLiteral("i386-rpm"));
    panel.window = std::make_unique<VelmoraWindow>(m_updates);
    const auto check = [&] { panel.find<QAction>("actionCheckForUpdates")->trigger(); };
    check();
    QTRY_VERIFY(!m_answers.contains("/new")); // broken XML says nothing

    m_answers.insert("/new", "200 OK\r\n\r\n<a><b><versionNumber>2.6.0</versionNumber></b></a>");
    panel.prompts.expect({QStringLiteral("Aktualizacja oprogramowania"), QMessageBox::Yes, false, {}});
    check();
    if (installer.isEmpty()) {
        const auto wait = [&] { QTRY_VERIFY(panel.prompts.allAsked()); };
        QVERIFY(driveModal<UpdateDownloadWindow>(wait, [](auto& dialog) { dialog.reject(); }));
        check(); // nothing answers
    }
    const auto outcome = [&] {
        m_done.append(takeMessages());
        const QString content = QString::fromUtf8(file.open(QIODevice::ReadOnly) ? file.readAll() : "-");
        file.close();
        return (m_done + QStringList(content)).join(QLatin1Char('|'));
    };
    const QRegExp pattern(expected, Qt::CaseSensitive, QRegExp::Wildcard);
    QTRY_VERIFY2_WITH_TIMEOUT(pattern.exactMatch(outcome()), qPrintable(outcome()), 10000);
}

QTEST_MAIN(UpdatesTest)
#include "UpdatesTest.moc"
