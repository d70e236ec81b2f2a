// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "service/PanelClient.h"

#include <QProcess>
#include <QTcpServer>
#include <QTemporaryDir>
#include <QTest>

using namespace Velmora::Tests;

/// The program itself: what its options do and what a signal leaves behind.
class ServiceProcessTest final : public QObject
{
    Q_OBJECT

private slots:
    void badStartEndsWithOneLine();
    void killLosesNothingThatWasShown();

private:
    QTemporaryDir m_folder;
};

void ServiceProcessTest::badStartEndsWithOneLine()
{
    QTcpServer other;
    QVERIFY(other.listen(QHostAddress(ScriptedService::testAddress()), Velmora::servicePort));
    // Arguments and what the error names; the port of the own address is taken.
    for (const char* row :
         {"--port 5|port", "here|here", "--listen nowhere|nowhere", "--seed 2|:12323",
          "--listen 192.0.2.1|192.0.2.1:12323", "--seed -1|-1", "--speed 0|speed", "--speed nan|nan",
          "--log-level loud|loud", "--scenario=|scenario", "--scenario /no/such.json|/no/such.json",
          "--state /no/state.json|/no/state.json"}) {
        const QString arguments = QString::fromLatin1(row).section(QLatin1Char('|'), 0, 0);
        const QString named = QString::fromLatin1(row).section(QLatin1Char('|'), 1);
        QProcess process;
        process.start(QStringLiteral(VELMORA_SERVICE_PROGRAM),
                      QStringList{QStringLiteral("--listen"), ScriptedService::testAddress()} +
                          arguments.split(QLatin1Char(' ')));
        QVERIFY(process.waitForFinished());
        QVERIFY2(process.exitStatus() == QProcess::NormalExit && process.exitCode() == 2, row);
        const QString error = QString::fromUtf8(process.readAllStandardError());
        QVERIFY2(error.startsWith(QLatin1String("velmora-service: ")) && error.contains(named) &&
                     error.count(QLatin1Char('\n')) == 1,
                 qPrintable(error));
        QVERIFY(process.readAllStandardOutput().isEmpty());
    }
}

void ServiceProcessTest::killLosesNothingThatWasShown()
{
    int shown = 0;
    // Killed at another moment each time, while changes keep coming.
    for (int round = 0; round < 5; ++round) {
        QProcess process;
        process.start(QStringLiteral(VELMORA_SERVICE_PROGRAM),
                      {QStringLiteral("--listen"), ScriptedService::testAddress(), QStringLiteral("--state"),
                       m_folder.filePath(QStringLiteral("state.json"))});
        QTRY_VERIFY_WITH_TIMEOUT(process.canReadLine(), 10000);
        QCOMPARE(process.readLine(), "velmora-service 2.5.1 listens on " +
                                         ScriptedService::testAddress().toLatin1() + ":12323\n");
        PanelClient client;
        client.setPassword(administratorPassword);
        const int kept = texts(client.get("ups_model_list"), "id").size();
        QVERIFY2(kept >= shown, qPrintable(QStringLiteral("%1 of %2 devices").arg(kept).arg(shown)));
        shown = kept;
        for (int i = 0; i < 30; ++i)
            client.send("set_new_ups",
                        "<model_name>Quenta_USB</model_name><communication>usb</communication>");
        for (int i = 0; i < 3 + round; ++i)
            shown = texts(client.waitFor("ups_model_list"), "id").size();
        process.kill();
        QVERIFY(process.waitForFinished());
    }
    QVERIFY(shown > 20);
}

QTEST_GUILESS_MAIN(ServiceProcessTest)
#include "ServiceProcessTest.moc"
