// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "link/UpsSocketController.h"
#include "support/Feed.h"
#include "support/ScriptedService.h"
#include "support/SignalLog.h"

#include <QTest>
#include <QTimer>

using namespace Velmora;
using Tests::ScriptedService;
using Tests::SignalLog;

class MessagesTest final : public QObject
{
    Q_OBJECT

    UpsSocketController m_link;

private slots:
    void emitsWhatADocumentSays_data();
    void emitsWhatADocumentSays();
    void emitsAgainWhatArrivesAgain();
    void readsFrameByFrame();
    void asks();
};

void MessagesTest::emitsWhatADocumentSays_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<QByteArray>("expected");
    const auto row = [](const char* name, const QByteArray& document, const QByteArray& expected) {
        QTest::newRow(name) << document << expected;
    };
    row("messages to show, by their exact name",
        "<show_message><message>a</message><messages>no</messages><message>b</message></show_message>",
        "showMessage(a,b)");
    row("a discovered computer", "<discovered_message>10.0.0.9</discovered_message>",
        "discoveredComputer(10.0.0.9)");
    row("an empty password is announced once", "<get_password></get_password>", "adminPassFromConfig()");
    row("a client's password", "<netclient_password>x&amp;y</netclient_password>", "netclientPass(x&y)");
    row("a client's password was changed", "<netclient_password_changed/>", "passwordChanged()");
    row("ports", "<available_ports/>", "availablePortsReceived()");
    row("computers, dense", "<all_computers><computer/><computer/></all_computers>",
        "allComputersReceived(*,*)");
    row("computers, line by line", "<all_computers>\n<computer>\n</computer>\n</all_computers>\n",
        "allComputersReceived(*)");
    row("computers, cut, say nothing", "<all_computers><computer></computer>", "");
    row("devices, cut", "<ups_model_list><log_params>1</log_params><id>", "upsModelMessageReceived(*)");
    row("the service is ready, behind a declaration", "<?xml version=\"1.0\"?>\n<daemon_is_ready/>\n",
        "daemonIsBusy(false)");
    row("log lines, by a part of the name", "<ups_logs><log_1>a;b</log_1><x>no</x><my_log_2/></ups_logs>",
        "upsLogs(a;b,)");

    row("a state, with nothing between its values",
        "<ups_device_state isUpsFound=\"1\"><a>x;y</a><events>1;2</events><b></b></ups_device_state>",
        "upsDeviceState(a=x / y,events=1;2,isProperDevice=,isUpsFound=1)");
    row("a state, line by line, cut short", "<ups_device_state isProperDevice=\"0\">\n<a>1</a>\n<b>2</b>\n<c",
        "upsDeviceState(a=1,b=2,isProperDevice=0,isUpsFound=)");
    row("a configuration keeps its semicolons",
        "<ups_configuration isUpsFound=\"1\"><a>1;2</a><b></b><c>ż</c></ups_configuration>",
        "upsConfiguration(a=1;2,c=ż)");

    row("an unknown root with a child", "<foo><a>1</a></foo>", "dataFromUps(foo)\ndataFromUps()");
    row("names are compared by case", "<Daemon_Is_Busy/>", "dataFromUps(Daemon_Is_Busy)");
    row("the end of a known root is no second message", "<daemon_is_busy><pass></pass></daemon_is_busy>",
        "dataFromUps(daemon_is_busy)\ndaemonIsBusy(true)");
    row("a comment before the root hides it", "<!-- c --><daemon_is_busy/>", "dataFromUps()");
    row("so does a document type, whose entities may not make the text longer",
        "<!DOCTYPE a [<!ENTITY a \"xxxx\">]><foo><service_version>&a;</service_version></foo>",
        "dataFromUps()");
    row("a declared encoding does not count", "<?xml version=\"1.0\" encoding=\"ISO-8859-2\"?><foż/>",
        "dataFromUps(foż)");
    row("invalid UTF-8 reads as replacement characters", "<service_version>\xFF</service_version>",
        "serviceVersionReceived(\uFFFD)");
    row("a broken tail", "<service_version>1</service_version><<<", "serviceVersionReceived(1)");
}

void MessagesTest::emitsWhatADocumentSays()
{
    QFETCH(QByteArray, document);
    QFETCH(QByteArray, expected);
    const SignalLog log(m_link);
    QVERIFY(Tests::feed(m_link, Tests::frame(document)));
    QCOMPARE(log.entries(), QString::fromUtf8(expected).split(QLatin1Char('\n'), Qt::SkipEmptyParts));
}

void MessagesTest::emitsAgainWhatArrivesAgain()
{
    const QByteArray one("<ups_device_state isUpsFound=\"1\"><a>1</a></ups_device_state>");
    const QByteArray two("<ups_device_state isUpsFound=\"1\"><a>2</a></ups_device_state>");
    const QByteArray configuration("<ups_configuration><a>1</a></ups_configuration>");
    const SignalLog log(m_link);
    for (const QByteArray& document : {one, one, configuration, two, configuration, one})
        QVERIFY(Tests::feed(m_link, Tests::frame(document)));
    const QString state = QStringLiteral("upsDeviceState(a=%1,isProperDevice=,isUpsFound=1)");
    const QString configured = QStringLiteral("upsConfiguration(a=1)");
    QCOMPARE(log.entries(),
             (QStringList{state.arg(1), state.arg(1), state.arg(2), state.arg(1), configured, configured}));
}

void MessagesTest::readsFrameByFrame()
{
    const QByteArray frame = Tests::frame("<service_version>1</service_version>");
    const QByteArray empty(Utils::frameHeaderSize, '\0');
    QByteArray announcingMore = frame;
    announcingMore[3] = static_cast<char>(frame.at(3) + 1);
    const SignalLog log(m_link);
    QVERIFY(Tests::feed(m_link, frame + announcingMore)); // what is there counts
    // The size of an empty frame is read with the next frame, which then is none.
    QVERIFY(Tests::feed(m_link, empty));
    QVERIFY(!Tests::feed(m_link, empty + frame));
    const QString version = QStringLiteral("serviceVersionReceived(1)");
    QCOMPARE(log.entries(), (QStringList{version, version}));
}

void MessagesTest::asks()
{
    ScriptedService service;
    QVERIFY(service.start());
    m_link.setServerAddress(ScriptedService::testAddress());
    m_link.connectToServer();
    QVERIFY(service.waitForRequest("get_ups_configuration"));
    m_link.findChild<QTimer*>(QStringLiteral("pollTimer"))->stop();
    service.clearRequests();

    m_link.setAdminPass(QStringLiteral("&amp;ż"));
    QVector<QByteArray> expected;
    const auto expect = [&expected](const QByteArray& name, const QByteArray& body = {}) {
        expected += '<' + name + "><pass>&amp;ż</pass>" + body + "</" + name + '>';
    };
    m_link.getApplicationConfiguration();
    expect("get_application_configuration");
    m_link.sendRemoveComputer(-1);
    expect("remove_computer", "<id>-1</id>");
    m_link.setUpsConfiguration(
        {{QStringLiteral("type"), QStringLiteral("data")}, {QStringLiteral("age"), QStringLiteral("<&>")}});
    expect("set_ups_configuration", "<age><&></age>\n<type>data</type>\n");
    m_link.setAdminPass(QString());
    m_link.getUpsModel();
    expected += "<get_ups_model_list><pass></pass></get_ups_model_list>";

    QTRY_COMPARE(service.requests().size(), expected.size());
    for (int i = 0; i < expected.size(); ++i)
        QCOMPARE(service.requests().at(i).xml, expected.at(i));
}

QTEST_GUILESS_MAIN(MessagesTest)
#include "MessagesTest.moc"
