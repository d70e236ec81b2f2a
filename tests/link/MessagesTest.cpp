// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "link/UpsSocketController.h"
#include "link/XmlWriter.h"
#include "support/ScriptedService.h"
#include "support/SignalLog.h"

#include <QTest>
#include <QTimer>

using namespace Velmora;
using Tests::ScriptedService;
using Tests::SignalLog;
using Parameters = QMap<QString, QString>;

namespace {

// Stands behind each tested document; its signal tells that all before it was handled.
const QByteArray lastDocument("<service_version>last</service_version>");
const QString lastSignal(QStringLiteral("serviceVersionReceived(last)"));

} // namespace

class MessagesTest final : public QObject
{
    Q_OBJECT

    ScriptedService m_service;
    std::unique_ptr<UpsSocketController> m_link;

private slots:
    void initTestCase();
    void emitsWhatADocumentSays_data();
    void emitsWhatADocumentSays();
    void emitsAgainWhatArrivesAgain();
    void asks();
};

void MessagesTest::initTestCase()
{
    QVERIFY(m_service.start());
    m_link = std::make_unique<UpsSocketController>();
    m_link->setServerAddress(ScriptedService::testAddress());
    m_link->connectToServer();
    QVERIFY(m_service.waitForRequest("get_ups_configuration"));
    m_link->findChild<QTimer*>(QStringLiteral("pollTimer"))->stop();
}

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
    row("the outcome of a test mail", "<smtp2_test_status/>", "smpt2TestStatus(0:)");
    row("the administrator's password", "<get_password>abc</get_password>", "adminPassFromConfig(abc)");
    row("an empty password is announced once", "<get_password></get_password>", "adminPassFromConfig()");
    row("a client's password", "<netclient_password>x&amp;y</netclient_password>", "netclientPass(x&y)");
    row("a client's password was changed", "<netclient_password_changed/>", "passwordChanged()");
    row("the administrator's password was changed", "<admin_password_changed/>", "passwordChanged()");
    row("groups", "<groups><group></group></groups>", "groupReceived(*)");
    row("events", "<events><event></event></events>", "eventsReceived(*)");
    row("computers, dense", "<all_computers><computer/><computer/></all_computers>",
        "allComputersReceived(*,*)");
    row("computers, line by line", "<all_computers>\n<computer>\n</computer>\n</all_computers>\n",
        "allComputersReceived(*)");
    row("computers, cut, say nothing", "<all_computers><computer></computer>", "");
    row("the service's settings", "<application_configuration/>", "appConfifuratioReceived()");
    row("the service's version", "<service_version>2.5.1</service_version>", "serviceVersionReceived(2.5.1)");
    row("ports", "<available_ports/>", "availablePortsReceived()");
    row("devices, cut", "<ups_model_list><log_params>1</log_params><id>", "upsModelMessageReceived(*)");
    row("statuses", "<ups_current_status_list/>", "upsCurrentStatusListReceived()");
    row("the service is busy", "<daemon_is_busy/>", "daemonIsBusy(true)");
    row("the service is ready, behind a declaration", "<?xml version=\"1.0\"?>\n<daemon_is_ready/>\n",
        "daemonIsBusy(false)");
    row("log lines, by a part of the name", "<ups_logs><log_1>a;b</log_1><x>no</x><my_log_2/></ups_logs>",
        "upsLogs(a;b,)");
    row("debugging is on", "<debugging_enabled/>", "debugModeEnabled(true)");
    row("debugging is off", "<debugging_disabled/>", "debugModeEnabled(false)");
    row("timers", "<show_countdown/>", "showCountdownTimer()");

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
    row("so does a document type, with its entities that would expand for ever",
        "<!DOCTYPE a [<!ENTITY a \"&b;&b;\"><!ENTITY b \"&a;&a;\">]><daemon_is_busy>&a;</daemon_is_busy>",
        "dataFromUps()");
    row("a declared encoding does not count", "<?xml version=\"1.0\" encoding=\"ISO-8859-2\"?><foż/>",
        "dataFromUps(foż)");
    row("invalid UTF-8 reads as replacement characters", "<service_version>\xFF</service_version>",
        "serviceVersionReceived(\uFFFD)");
    row("a text of 40 kB is one text", "<service_version>" + QByteArray(40000, 'x') + "</service_version>",
        "serviceVersionReceived(" + QByteArray(40000, 'x') + ')');
    row("a broken tail", "<service_version>1</service_version><<<", "serviceVersionReceived(1)");
}

void MessagesTest::emitsWhatADocumentSays()
{
    QFETCH(QByteArray, document);
    QFETCH(QByteArray, expected);
    const SignalLog log(*m_link);
    m_service.send(document);
    m_service.send(lastDocument);
    QTRY_VERIFY(log.entries().contains(lastSignal));
    QStringList entries = log.entries();
    entries.removeOne(lastSignal);
    QCOMPARE(entries, QString::fromUtf8(expected).split(QLatin1Char('\n'), Qt::SkipEmptyParts));
    QCOMPARE(m_service.connectionCount(), 1);
}

void MessagesTest::emitsAgainWhatArrivesAgain()
{
    const QByteArray one("<ups_device_state isUpsFound=\"1\"><a>1</a></ups_device_state>");
    const QByteArray two("<ups_device_state isUpsFound=\"1\"><a>2</a></ups_device_state>");
    const QByteArray configuration("<ups_configuration><a>1</a></ups_configuration>");
    const SignalLog log(*m_link);
    m_service.sendTogether({one, one, configuration, two, configuration, one, lastDocument});
    QTRY_VERIFY(log.entries().contains(lastSignal));
    const QString state = QStringLiteral("upsDeviceState(a=%1,isProperDevice=,isUpsFound=1)");
    const QString configured = QStringLiteral("upsConfiguration(a=1)");
    QCOMPARE(log.entries(), (QStringList{state.arg(1), state.arg(1), state.arg(2), state.arg(1), configured,
                                         configured, lastSignal}));
}

void MessagesTest::asks()
{
    const QString seven(QStringLiteral("7"));
    const Utils::Ups ups;
    const Utils::ApplicationConfiguration configuration;
    const QVector<Group> groups;
    QVector<Event> events;
    const QVector<Computer> computers{Computer()};
    const Parameters page{{QStringLiteral("type"), QStringLiteral("data")},
                          {QStringLiteral("age"), QStringLiteral("<&>")}};

    m_service.clearRequests();
    m_link->setAdminPass(QStringLiteral("&amp;ż"));
    QVector<QByteArray> expected;
    const auto expect = [&expected](const QByteArray& name, const QByteArray& body = {}) {
        expected += '<' + name + "><pass>&amp;ż</pass>" + body + "</" + name + '>';
    };
    m_link->getNetworkConfiguration(seven);
    expect("get_network_configuration", "<id>7</id>");
    m_link->getApplicationConfiguration();
    expect("get_application_configuration");
    m_link->sendRemoveDevice(seven);
    expect("remove_ups", "<id>7</id>");
    m_link->sendRemoveComputer(-1);
    expect("remove_computer", "<id>-1</id>");
    m_link->sendChangeUpsOnInterface(12);
    expect("change_device_on_interface", "<id>12</id>");
    m_link->sendChangeLogConfig(ups);
    m_link->sendChangeDevice(ups);
    m_link->sendDeviceData(ups);
    for (const char* name : {"change_log_config", "change_ups", "set_new_ups"})
        expect(name, Utils::makeXml(ups));
    m_link->sendTestMail(configuration);
    expect("smtp2_send_test_mail", Utils::makeXml(static_cast<const Utils::SmtpConfig&>(configuration)));
    m_link->sendAppConfiguration(&configuration);
    expect("application_configuration", Utils::makeXml(&configuration));
    m_link->sendGroups(&groups, seven);
    m_link->sendEvents(&events, seven);
    for (const char* name : {"groups", "events"})
        expect(name, "<ups_id>7</ups_id>");
    m_link->sendAllComputers(&computers);
    expect("all_computers", Utils::makeXml(&computers));
    m_link->getPassword();
    expect("get_password");
    m_link->getUpsLogs(page);
    m_link->getNetClientPassword(page);
    m_link->setUpsConfiguration(page);
    m_link->changeNetclientPassword(page);
    m_link->changePassword(page);
    for (const char* name : {"get_ups_logs", "get_netclient_pass", "set_ups_configuration",
                             "change_netclient_password", "change_password"})
        expect(name, "<age><&></age>\n<type>data</type>\n");
    m_link->setAdminPass(QString());
    m_link->getUpsModel();
    expected += "<get_ups_model_list><pass></pass></get_ups_model_list>";

    QTRY_COMPARE(m_service.requests().size(), expected.size());
    for (int i = 0; i < expected.size(); ++i)
        QCOMPARE(m_service.requests().at(i).xml, expected.at(i));
}

QTEST_GUILESS_MAIN(MessagesTest)
#include "MessagesTest.moc"
