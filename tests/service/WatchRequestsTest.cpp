// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "link/DeviceReaders.h"
#include "link/PolicyReaders.h"
#include "link/ServiceEndpoint.h"
#include "link/SettingsReaders.h"
#include "link/XmlParser.h"
#include "service/PanelClient.h"
#include "service/ReferenceService.h"
#include "service/wire/Replies.h"

#include <QTemporaryFile>
#include <QTest>
#include <QUdpSocket>
#include <QXmlStreamReader>

using namespace Velmora::Service;
using namespace Velmora::Tests;
namespace Utils = Velmora::Utils;

/// What nobody has to log in for, read with the panel's own readers where it has some.
class WatchRequestsTest final : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void deviceListHasEveryField();
    void statusListHasOneRecordForEachDevice();
    void portsInUseAreMarked();
    void stateDescribesTheChosenDevice_data();
    void stateDescribesTheChosenDevice();
    void choiceBelongsToTheConnection();
    void configurationOffersChoices();
    void shortRepliesAreAsPanelsReadThem();
    void policyAndComputersAreSentInOrder();
    void secretsAreForAdministrators();
    void logsArePagedByConnection();
    void countdownIsPushedAndWithdrawn();
    void probeAnnouncesClients();
    void repliesComeInTheOrderOfAsking();

private:
    void serve(const QString& scenario = QString(), double speed = 1.0);

    std::unique_ptr<ReferenceService> m_service;
    std::unique_ptr<PanelClient> m_client;
};

void WatchRequestsTest::init()
{
    serve();
}

void WatchRequestsTest::cleanup()
{
    m_client.reset();
    m_service.reset();
}

void WatchRequestsTest::serve(const QString& scenario, double speed)
{
    cleanup();
    Options options;
    options.listen = QHostAddress(PanelClient::address());
    options.scenarioPath = scenario;
    options.speed = speed;
    QString reason;
    m_service = std::make_unique<ReferenceService>();
    QVERIFY2(m_service->start(options, reason), qPrintable(reason));
    m_client = std::make_unique<PanelClient>();
    QVERIFY(m_client->isConnected());
}

void WatchRequestsTest::deviceListHasEveryField()
{
    const QByteArray reply = m_client->ask("get_ups_model_list", "ups_model_list");
    QXmlStreamReader reader(reply);
    reader.readNextStartElement();
    const QVector<Utils::Ups> devices = Utils::parseUpsModelList(reader);
    QCOMPARE(devices.size(), 12);
    QCOMPARE(devices.at(0).model_name, QStringLiteral("Virtual_Device"));
    QCOMPARE(devices.at(0).phy_ids, (QStringList{QStringLiteral("2"), QStringLiteral("3")}));
    QCOMPARE(devices.at(1).ip, QStringLiteral("192.0.2.21"));
    // An omitted field would show the value of the device before.
    QCOMPARE(devices.at(3).ip, QString());
    QCOMPARE(devices.at(3).com_port, QStringLiteral("/dev/ttyS0"));
    QCOMPARE(devices.at(4).user_defined_name, QString());
    QCOMPARE(devices.at(8).serial_no, QStringLiteral("15037421"));
    QVERIFY(!reply.contains('\n'));
}

void WatchRequestsTest::statusListHasOneRecordForEachDevice()
{
    const QByteArray reply = m_client->ask("get_ups_current_status_list", "ups_current_status_list");
    QXmlStreamReader reader(reply);
    reader.readNextStartElement();
    const auto rows = Velmora::XmlParser().parseUpsStatusList(reader);
    QCOMPARE(rows.size(), 12);
    QCOMPARE(rows.at(1).id, 2);
    QVERIFY(rows.at(1).master && rows.at(1).parallel_unit && rows.at(1).connected);
    QCOMPARE(rows.at(1).unit_address, std::string("1"));
    QVERIFY(!rows.at(2).master && rows.at(2).parallel_unit);
    QVERIFY(rows.at(3).power_compensation);
    QVERIFY(rows.at(5).output_socket1 && rows.at(5).output_socket2);
    QVERIFY(!rows.at(6).ups_shutdown_supported && rows.at(5).ups_shutdown_supported);
    QCOMPARE(rows.at(9).status, std::string("no_communication"));
    QVERIFY(!rows.at(9).connected);
    QCOMPARE(rows.at(11).status, std::string("unknown"));
}

void WatchRequestsTest::portsInUseAreMarked()
{
    const QByteArray reply = m_client->ask("get_available_ports", "available_ports");
    QXmlStreamReader reader(reply);
    reader.readNextStartElement();
    const QList<Utils::SerialPort> ports = Utils::parseAvailablePorts(reader);
    QCOMPARE(ports.size(), 5);
    QVERIFY(!ports.at(0).free && !ports.at(1).free && ports.at(2).free);
}

void WatchRequestsTest::stateDescribesTheChosenDevice_data()
{
    QTest::addColumn<QByteArray>("id");
    QTest::addColumn<QByteArray>("found");
    QTest::addColumn<QByteArray>("proper");
    QTest::addColumn<QByteArray>("key");
    QTest::newRow("three-phase unit")
        << QByteArray("2") << QByteArray("1") << QByteArray("1") << QByteArray("events");
    QTest::newRow("group") << QByteArray("0") << QByteArray("1") << QByteArray("1")
                           << QByteArray("rated_va_per_ups_module");
    QTest::newRow("genset") << QByteArray("9") << QByteArray("1") << QByteArray("1")
                            << QByteArray("fuel_level");
    QTest::newRow("silent device") << QByteArray("10") << QByteArray("0") << QByteArray("0") << QByteArray();
    QTest::newRow("another model answers")
        << QByteArray("11") << QByteArray("1") << QByteArray("0") << QByteArray();
    QTest::newRow("no such device") << QByteArray("99") << QByteArray("0") << QByteArray("0") << QByteArray();
    QTest::newRow("no id") << QByteArray() << QByteArray("0") << QByteArray("0") << QByteArray();
    QTest::newRow("no number") << QByteArray("x") << QByteArray("0") << QByteArray("0") << QByteArray();
}

void WatchRequestsTest::stateDescribesTheChosenDevice()
{
    QFETCH(QByteArray, id);
    QFETCH(QByteArray, key);
    m_client->send("change_device_on_interface", "<id>" + id + "</id>");
    const QByteArray reply = m_client->ask("get_ups_device_state", "ups_device_state");
    QXmlStreamReader reader(reply);
    reader.readNextStartElement();
    QTEST(reader.attributes().value(QLatin1String("isUpsFound")).toUtf8(), "found");
    QTEST(reader.attributes().value(QLatin1String("isProperDevice")).toUtf8(), "proper");
    QCOMPARE(key.isEmpty(), !reply.contains("</device_status>"));
    QVERIFY(key.isEmpty() || !text(reply, key.constData()).isEmpty());
}

void WatchRequestsTest::choiceBelongsToTheConnection()
{
    PanelClient other;
    m_client->send("change_device_on_interface", "<id>9</id>");
    QVERIFY(other.ask("get_ups_device_state", "ups_device_state").contains("isUpsFound=\"0\""));
    other.send("change_device_on_interface", "<id>5</id>");
    QCOMPARE(text(m_client->ask("get_ups_device_state", "ups_device_state"), "firmware_version"),
             QByteArray("BC-25 v1.14"));
    QCOMPARE(text(other.ask("get_ups_device_state", "ups_device_state"), "firmware_version"),
             QByteArray("R3.09"));
}

void WatchRequestsTest::configurationOffersChoices()
{
    m_client->send("change_device_on_interface", "<id>6</id>");
    const QByteArray reply = m_client->ask("get_ups_configuration", "ups_configuration");
    QCOMPARE(text(reply, "output_voltage_option"), QByteArray("230;208;220;230;240"));
    QCOMPARE(text(reply, "snmp_agent_ip"), QByteArray("192.0.2.31"));
    QCOMPARE(text(reply, "output_socket_2"), QByteArray("1"));
    m_client->send("change_device_on_interface", "<id>10</id>");
    QCOMPARE(m_client->ask("get_ups_configuration", "ups_configuration"),
             QByteArray("<ups_configuration></ups_configuration>"));
}

void WatchRequestsTest::shortRepliesAreAsPanelsReadThem()
{
    QCOMPARE(m_client->ask("get_service_version", "service_version"),
             QByteArray("<service_version>2.5.1</service_version>"));
    QCOMPARE(m_client->ask("get_debugging_status", "debugging_disabled"),
             QByteArray("<debugging_disabled/>"));
    QCOMPARE(m_client->ask("get_shutdown_timers", "show_countdown"),
             QByteArray("<show_countdown></show_countdown>"));
    QCOMPARE(text(m_client->ask("get_password", "get_password"), "get_password"),
             PanelClient::digest(administratorPassword));
    QCOMPARE(text(m_client->ask("get_netclient_pass", "netclient_password",
                                "<netclient_address>192.0.2.102</netclient_address>\n"),
                  "netclient_password"),
             PanelClient::digest(administratorPassword));
    // A client that is not there does not answer.
    m_client->send("get_netclient_pass", "<netclient_address>192.0.2.250</netclient_address>\n");
    QVERIFY(m_client->synchronize());
    QVERIFY(!m_client->has("netclient_password"));
}

void WatchRequestsTest::policyAndComputersAreSentInOrder()
{
    m_client->send("get_network_configuration", "<id>2</id>");
    const QByteArray computers = m_client->waitFor("all_computers");
    QVERIFY(m_client->has("groups") && m_client->has("events"));
    const QByteArray groupsReply = m_client->waitFor("groups");
    QXmlStreamReader reader(groupsReply);
    reader.readNextStartElement();
    const QVector<Group> groups = Utils::parseGroups(reader);
    QCOMPARE(groups.size(), 1);
    QCOMPARE(groups.first().name, QStringLiteral("Default"));
    QCOMPARE(groups.first().computers, QVector<int>{0});
    QCOMPARE(texts(computers, "computer_address"), (QVector<QByteArray>{"127.0.0.1", "192.0.2.101"}));
}

void WatchRequestsTest::secretsAreForAdministrators()
{
    m_client->send("get_network_configuration", "<id>2</id>");
    QCOMPARE(text(m_client->waitFor("all_computers"), "computer_password"), QByteArray());
    m_client->setPassword(administratorPassword);
    m_client->send("get_network_configuration", "<id>2</id>");
    QCOMPARE(text(m_client->waitFor("all_computers"), "computer_password"), QByteArray("Opiekunsystem"));
    m_client->send("application_configuration",
                   "<smtp2_pass>secret</smtp2_pass><smtp2_port>587</smtp2_port>");
    const QByteArray full = m_client->ask("get_application_configuration", "application_configuration");
    QXmlStreamReader reader(full);
    reader.readNextStartElement();
    QCOMPARE(Utils::parseAppConfiguration(reader)->pass, QStringLiteral("secret"));
    m_client->forgetPassword();
    const QByteArray open = m_client->ask("get_application_configuration", "application_configuration");
    QCOMPARE(text(open, "smtp2_pass"), QByteArray());
    QCOMPARE(text(open, "smtp2_port"), QByteArray("587"));
}

void WatchRequestsTest::logsArePagedByConnection()
{
    m_client->send("change_device_on_interface", "<id>2</id>");
    const auto page = [](PanelClient& client, const char* age) {
        const QByteArray reply = client.ask("get_ups_logs", "ups_logs",
                                            QByteArray("<age>") + age + "</age>\n<type>parameters</type>\n");
        QXmlStreamReader reader(reply);
        reader.readNextStartElement();
        return Velmora::XmlParser().parseUpsLogsList(reader);
    };
    const QStringList first = page(*m_client, "first");
    QCOMPARE(first.size(), 101);
    QVERIFY(first.first().startsWith(
        QLatin1String("date;time;device_status;output_load_L1;output_load_L2;output_load_L3;")));
    QCOMPARE(first.at(1).count(QLatin1Char(';')), first.first().count(QLatin1Char(';')));
    const QStringList older = page(*m_client, "older");
    QVERIFY(older.last() < first.at(1));
    // Another connection, and this one after it gave up its position, start at the newest page.
    PanelClient other;
    other.send("change_device_on_interface", "<id>2</id>");
    QCOMPARE(page(other, "newer").last(), first.last());
    m_client->send("clear_logs_cache");
    QCOMPARE(page(*m_client, "older").last(), first.last());
    QCOMPARE(m_client->ask("get_ups_logs", "ups_logs", "<age>first</age>\n<type>nonsense</type>\n"),
             QByteArray("<ups_logs></ups_logs>"));
}

void WatchRequestsTest::countdownIsPushedAndWithdrawn()
{
    QTemporaryFile scenario;
    QVERIFY(scenario.open());
    scenario.write(R"({"feeds":[{"name":"f","first_failure":40,"duration":100,"countdown":3000}],)"
                   R"("devices":[{"id":1,"model_name":"Tarvex33_USB"}]})");
    QVERIFY(scenario.flush());
    serve(scenario.fileName(), 100.0);
    const Velmora::XmlParser parser;
    const QByteArray announced = m_client->waitFor("show_countdown");
    QXmlStreamReader reader(announced);
    reader.readNextStartElement();
    QCOMPARE(parser.parseCountdownTimer(reader), (QList<QPair<int, int>>{{1, 30}}));
    const QByteArray withdrawn = m_client->waitFor("show_countdown");
    QXmlStreamReader second(withdrawn);
    second.readNextStartElement();
    QCOMPARE(parser.parseCountdownTimer(second), (QList<QPair<int, int>>{{1, -1}}));
}

void WatchRequestsTest::probeAnnouncesClients()
{
    QUdpSocket probe;
    QVERIFY(m_client->synchronize());
    // Only a broadcast reaches every service that shares the port.
    probe.writeDatagram("x", QHostAddress(QStringLiteral("127.255.255.255")), Velmora::discoveryPort);
    probe.writeDatagram("5", QHostAddress(QStringLiteral("127.255.255.255")), Velmora::discoveryPort);
    QVector<QByteArray> found;
    for (int i = 0; i < 4; ++i)
        found.append(text(m_client->waitFor("discovered_message"), "discovered_message"));
    QCOMPARE(found, (QVector<QByteArray>{"127.0.0.1", "192.0.2.101", "192.0.2.102", "192.0.2.117"}));
}

void WatchRequestsTest::repliesComeInTheOrderOfAsking()
{
    for (int i = 0; i < 40; ++i) {
        m_client->send("change_device_on_interface", "<id>" + QByteArray::number(i % 2 ? 9 : 5) + "</id>");
        m_client->send("get_ups_device_state");
    }
    for (int i = 0; i < 40; ++i) {
        const QByteArray version = text(m_client->waitFor("ups_device_state"), "firmware_version");
        QCOMPARE(version, QByteArray(i % 2 ? "BC-25 v1.14" : "R3.09"));
    }
    QVERIFY(m_client->longestFrame() < maximumFrame);
}

QTEST_GUILESS_MAIN(WatchRequestsTest)
#include "WatchRequestsTest.moc"
