// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "link/ServiceEndpoint.h"
#include "service/PanelClient.h"

#include <QProcess>
#include <QRegularExpression>
#include <QTcpServer>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>

using namespace Velmora::Tests;

namespace {

constexpr int timeout = 10000;

QString program()
{
    return QStringLiteral(VELMORA_SERVICE_PROGRAM);
}

} // namespace

/// The program itself: what its options do and what a signal leaves behind.
class ServiceProcessTest final : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void badStartEndsWithOneLine_data();
    void badStartEndsWithOneLine();
    void busyPortEndsWithOneLine();
    void questionsAreAnswered_data();
    void questionsAreAnswered();
    void signalEndsItCleanly_data();
    void signalEndsItCleanly();
    void proxyOfTheEnvironmentIsIgnored();
    void killLosesNothingThatWasShown();
    void longDeviceListIsWarnedOf();

private:
    void start(QProcess& process, const QStringList& arguments);
    [[nodiscard]] QString file(const QString& name) const { return m_folder->filePath(name); }
    void writeFile(const QString& name, const QByteArray& bytes) const;

    std::unique_ptr<QTemporaryDir> m_folder;
};

void ServiceProcessTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    writeFile(QStringLiteral("broken.json"), "{ \"devices\": [");
    writeFile(QStringLiteral("foreign.json"), "{ \"format\": 3 }");
}

void ServiceProcessTest::writeFile(const QString& name, const QByteArray& bytes) const
{
    QFile output(file(name));
    QVERIFY(output.open(QIODevice::WriteOnly));
    QCOMPARE(output.write(bytes), bytes.size());
}

void ServiceProcessTest::start(QProcess& process, const QStringList& arguments)
{
    process.start(program(), QStringList{QStringLiteral("--listen"), PanelClient::address()} + arguments);
    QTRY_VERIFY_WITH_TIMEOUT(process.canReadLine(), timeout);
    QCOMPARE(process.readLine(),
             "velmora-service 2.5.1 listens on " + PanelClient::address().toLatin1() + ":12323\n");
}

void ServiceProcessTest::badStartEndsWithOneLine_data()
{
    QTest::addColumn<QStringList>("arguments"); // "@" stands for the test's folder
    QTest::addColumn<QString>("named");
    const auto row = [](const char* name, const char* arguments, const char* named) {
        QTest::newRow(name) << QString::fromLatin1(arguments).split(QLatin1Char(' '))
                            << QString::fromLatin1(named);
    };
    row("unknown option", "--port 5", "port");
    row("stray argument", "here", "here");
    row("option without its value", "--seed", "seed");
    row("address that is none", "--listen nowhere", "nowhere");
    row("address of another machine", "--listen 192.0.2.1", "192.0.2.1:12323");
    row("seed that is no number", "--seed one", "one");
    row("negative seed", "--seed -1", "-1");
    row("speed of nothing", "--speed 0", "speed");
    row("speed that is no number", "--speed nan", "nan");
    row("endless speed", "--speed inf", "inf");
    row("unknown log level", "--log-level loud", "loud");
    row("no file name", "--scenario=", "scenario");
    row("scenario that is not there", "--scenario @/missing.json", "missing.json");
    row("scenario that is no JSON", "--scenario @/broken.json", "broken.json");
    row("scenario that is a folder", "--scenario @", "@");
    row("state of another format", "--state @/foreign.json", "foreign.json");
    row("state that is no JSON", "--state @/broken.json", "broken.json");
    row("state in a folder that is not there", "--state @/no/state.json", "@/no/state.json");
}

void ServiceProcessTest::badStartEndsWithOneLine()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, named);
    const QRegularExpression folder(QStringLiteral("@"));
    QProcess process;
    process.start(program(), QStringList{QStringLiteral("--listen"), PanelClient::address()} +
                                 arguments.replaceInStrings(folder, m_folder->path()));
    QVERIFY(process.waitForFinished(timeout));
    const QString error = QString::fromUtf8(process.readAllStandardError());
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 2);
    QCOMPARE(error.count(QLatin1Char('\n')), 1);
    QVERIFY2(error.startsWith(QLatin1String("velmora-service: ")) &&
                 error.contains(QString(named).replace(folder, m_folder->path())),
             qPrintable(error));
    QVERIFY(process.readAllStandardOutput().isEmpty());
}

void ServiceProcessTest::busyPortEndsWithOneLine()
{
    QTcpServer other;
    QVERIFY(other.listen(QHostAddress(PanelClient::address()), Velmora::servicePort));
    QProcess process;
    process.start(program(), {QStringLiteral("--listen"), PanelClient::address()});
    QVERIFY(process.waitForFinished(timeout));
    QCOMPARE(process.exitCode(), 2);
    const QByteArray error = process.readAllStandardError();
    QVERIFY2(error.count('\n') == 1 && error.contains(PanelClient::address().toLatin1() + ":12323"),
             error.constData());
}

void ServiceProcessTest::questionsAreAnswered_data()
{
    QTest::addColumn<QString>("option");
    QTest::addColumn<QByteArray>("answer");
    QTest::newRow("help names every option") << "--help" << QByteArray("--log-level");
    QTest::newRow("version") << "--version" << QByteArray("velmora-service 2.5.1\n");
}

void ServiceProcessTest::questionsAreAnswered()
{
    QFETCH(QString, option);
    QFETCH(QByteArray, answer);
    QProcess process;
    process.start(program(), {option});
    QVERIFY(process.waitForFinished(timeout));
    QCOMPARE(process.exitCode(), 0);
    QVERIFY(process.readAllStandardOutput().contains(answer));
    QVERIFY(process.readAllStandardError().isEmpty());
}

void ServiceProcessTest::signalEndsItCleanly_data()
{
    QTest::addColumn<int>("signal");
    QTest::newRow("terminated") << SIGTERM;
    QTest::newRow("interrupted") << SIGINT;
}

void ServiceProcessTest::signalEndsItCleanly()
{
    QFETCH(int, signal);
    QProcess process;
    start(process, {});
    PanelClient client;
    QVERIFY(client.synchronize());
    QCOMPARE(::kill(static_cast<pid_t>(process.processId()), signal), 0);
    QVERIFY(process.waitForFinished(timeout));
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 0);
    QTRY_VERIFY(!client.isConnected());
}

void ServiceProcessTest::proxyOfTheEnvironmentIsIgnored()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("all_proxy"), QStringLiteral("socks5://127.0.0.1:9"));
    QProcess process;
    process.setProcessEnvironment(environment);
    start(process, {});
    PanelClient client;
    QVERIFY(client.synchronize());
    process.terminate();
    QVERIFY(process.waitForFinished(timeout));
}

void ServiceProcessTest::killLosesNothingThatWasShown()
{
    const QStringList arguments{QStringLiteral("--state"), file(QStringLiteral("state.json"))};
    int shown = 0;
    // Killed at another moment each time, while changes keep coming.
    for (int round = 0; round < 5; ++round) {
        QProcess process;
        start(process, arguments);
        PanelClient client;
        client.setPassword(administratorPassword);
        const int kept = texts(client.ask("get_ups_model_list", "ups_model_list"), "id").size();
        QVERIFY2(kept >= shown, qPrintable(QStringLiteral("%1 of %2 devices").arg(kept).arg(shown)));
        shown = kept;
        for (int i = 0; i < 30; ++i)
            client.send("set_new_ups",
                        "<model_name>Quenta_USB</model_name><communication>usb</communication>");
        for (int i = 0; i < 3 + round; ++i)
            shown = texts(client.waitFor("ups_model_list"), "id").size();
        process.kill();
        QVERIFY(process.waitForFinished(timeout));
    }
    QVERIFY(shown > 20);
}

void ServiceProcessTest::longDeviceListIsWarnedOf()
{
    QByteArray devices;
    for (int id = 1; id <= 3000; ++id) {
        devices +=
            (id > 1 ? "," : "") + QByteArray("{\"id\":") + QByteArray::number(id) +
            ",\"model_name\":\"Borel_SNMP\",\"simulation\":{\"answers\":false},\"user_defined_name\":\"" +
            PanelClient::digest(QByteArray::number(id).constData()) + "\"}";
    }
    writeFile(QStringLiteral("many.json"), "{\"devices\":[" + devices + "]}");
    QProcess process;
    start(process, {QStringLiteral("--scenario"), file(QStringLiteral("many.json"))});
    QByteArray error;
    QTRY_VERIFY((error += process.readAllStandardError()).contains("the list of 3000 devices"));
    PanelClient client;
    QVERIFY(client.synchronize());
    process.terminate();
    QVERIFY(process.waitForFinished(timeout));
}

QTEST_GUILESS_MAIN(ServiceProcessTest)
#include "ServiceProcessTest.moc"
