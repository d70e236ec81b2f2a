// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "service/PanelClient.h"
#include "service/ReferenceService.h"
#include "service/TestScenario.h"

#include <QLoggingCategory>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

using namespace Velmora::Service;
using namespace Velmora::Tests;

namespace {

QtMessageHandler previousHandler = nullptr;
QString logged;

// Keeps what the service logs, so that a test can look for what must not be there.
void keepMessage(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    logged += message + QLatin1Char('\n');
    if (type != QtInfoMsg && type != QtDebugMsg && type != QtWarningMsg)
        previousHandler(type, context, message);
}

const QByteArray newDevice =
    "<model_name>TarvexRT_RS232</model_name><id></id><communication>rs232</communication>"
    "<com_port>/dev/ttyS2</com_port><user_defined_name>Nowy &lt;1&gt;</user_defined_name>";

// A policy with every action and with texts and fields that nobody foresaw.
const QByteArray oddEvents =
    "<event><event_state>st&amp;te</event_state><expressionIn>stateNormal,ON,==,</expressionIn>"
    "<expressionOut> a,b,&lt;, "
    "</expressionOut><event_number>3</event_number><event_parentId>0</event_parentId>"
    "<actions><message_action><message_text>&quot;Ala&quot; &amp; kot\nżółw</message_text></message_action>"
    "<syscommand_action><command_line>ls</command_line><command_options></command_options>"
    "<stanbyUps>1</stanbyUps><delay_time>5</delay_time></syscommand_action>"
    "<poweroff_action><type>reboot</type><stanbyUps>0</stanbyUps><delay_time>180</delay_time></"
    "poweroff_action>"
    "</actions><future_field>7</future_field></event>";

} // namespace

class ChangeRequestsTest final : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void init();
    void cleanup();
    void changeNeedsThePassword_data();
    void changeNeedsThePassword();
    void deviceIsAddedForEveryPanel();
    void newParallelUnitsAreJoined();
    void badRegistrationIsRefused_data();
    void badRegistrationIsRefused();
    void editedDeviceKeepsItsLogging();
    void loggingIsBoundedAndFollowed();
    void removedDeviceLeavesNothingBehind();
    void settingIsFollowedAndKept();
    void policyComesBackAsItWasSaved();
    void missingActionNumbersAreCompleted();
    void policyTooLongForAPanelIsRefused();
    void removedComputerLeavesItsGroups();
    void passwordsChangeAndStay();
    void mailTestIsHonest();
    void secretsStayOutOfTheLog();

private:
    void serve();
    void restart();
    /// The list as it is once all that was sent has been dealt with.
    [[nodiscard]] QByteArray deviceList();
    [[nodiscard]] QByteArray policy(const char* list, const char* device);

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<ReferenceService> m_service;
    std::unique_ptr<PanelClient> m_client;
};

void ChangeRequestsTest::initTestCase()
{
    previousHandler = qInstallMessageHandler(keepMessage);
    QLoggingCategory::setFilterRules(QStringLiteral("velmora.service.debug=true"));
}

void ChangeRequestsTest::cleanupTestCase()
{
    qInstallMessageHandler(previousHandler);
}

void ChangeRequestsTest::init()
{
    logged.clear();
    m_folder = std::make_unique<QTemporaryDir>();
    serve();
}

void ChangeRequestsTest::cleanup()
{
    m_client.reset();
    m_service.reset();
}

void ChangeRequestsTest::serve()
{
    Options options;
    options.listen = QHostAddress(PanelClient::address());
    options.scenarioPath = quickScenarioFile(m_folder->path());
    options.statePath = m_folder->filePath(QStringLiteral("state.json"));
    QString reason;
    m_service = std::make_unique<ReferenceService>();
    QVERIFY2(m_service->start(options, reason), qPrintable(reason));
    m_client = std::make_unique<PanelClient>();
    QVERIFY(m_client->isConnected());
    m_client->setPassword(administratorPassword);
}

void ChangeRequestsTest::restart()
{
    QVERIFY(m_client->synchronize());
    cleanup();
    serve();
}

QByteArray ChangeRequestsTest::deviceList()
{
    if (!m_client->synchronize())
        return {};
    m_client->discard("ups_model_list");
    return m_client->ask("get_ups_model_list", "ups_model_list");
}

QByteArray ChangeRequestsTest::policy(const char* list, const char* device)
{
    m_client->send("get_network_configuration", QByteArray("<id>") + device + "</id>");
    QMap<QByteArray, QByteArray> lists;
    for (const char* name : {"all_computers", "events", "groups"})
        lists.insert(name, m_client->waitFor(name));
    return lists.value(list);
}

void ChangeRequestsTest::changeNeedsThePassword_data()
{
    QTest::addColumn<QByteArray>("request");
    QTest::addColumn<QByteArray>("body");
    const auto row = [](const char* request, const QByteArray& body) {
        QTest::newRow(request) << QByteArray(request) << body;
    };
    row("set_new_ups", newDevice);
    row("change_ups", "<id>5</id><model_name>Quenta_USB</model_name><communication>usb</communication>");
    row("change_log_config", "<id>5</id><log_params>0</log_params>");
    row("remove_ups", "<id>5</id>");
    row("set_ups_configuration", "<eco_mode>1</eco_mode>");
    row("groups", "<ups_id>5</ups_id>");
    row("events", "<ups_id>5</ups_id>" + oddEvents);
    row("all_computers", "");
    row("remove_computer", "<id>1</id>");
    row("application_configuration", "<run_on_boot>0</run_on_boot>");
    row("smtp2_send_test_mail", "<smtp2_server>192.0.2.77</smtp2_server>");
    row("change_password", "<new_password>mine</new_password>");
    row("change_netclient_password",
        "<netclient_address>127.0.0.1</netclient_address><password>mine</password>");
}

void ChangeRequestsTest::changeNeedsThePassword()
{
    QFETCH(QByteArray, request);
    QFETCH(QByteArray, body);
    const auto everything = [this] {
        QFile file(m_folder->filePath(QStringLiteral("state.json")));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    const QByteArray before = everything();
    m_client->send("change_device_on_interface", "<id>5</id>");
    const QByteArray settings = m_client->ask("get_ups_configuration", "ups_configuration");
    for (const char* password : {"", "wrong", "opiekunsystem"}) {
        m_client->setPassword(password);
        if (*password == '\0')
            m_client->forgetPassword();
        m_client->send(request, body);
        QVERIFY(m_client->synchronize());
    }
    QCOMPARE(everything(), before);
    QCOMPARE(m_client->ask("get_ups_configuration", "ups_configuration"), settings);
    QCOMPARE(logged.count(QStringLiteral("refused ") + QString::fromLatin1(request)), 3);
    QVERIFY(!m_client->has("smtp2_test_status") && !m_client->has("admin_password_changed"));
}

void ChangeRequestsTest::deviceIsAddedForEveryPanel()
{
    PanelClient watcher;
    m_client->send("set_new_ups", newDevice);
    const QByteArray list = watcher.waitFor("ups_model_list");
    QCOMPARE(texts(list, "id").last(), QByteArray("13"));
    QCOMPARE(texts(list, "user_defined_name").last(), QByteArray("Nowy <1>"));
    const QByteArray ports = watcher.waitFor("available_ports");
    QCOMPARE(texts(ports, "is_port_free"), (QVector<QByteArray>{"0", "0", "0", "1", "1"}));
    m_client->send("change_device_on_interface", "<id>13</id>");
    QCOMPARE(text(m_client->ask("get_ups_device_state", "ups_device_state"), "firmware_version"),
             QByteArray("R3.09"));
    QVERIFY(policy("groups", "13").contains("<group_name>Default</group_name>"));
    restart();
    QCOMPARE(texts(deviceList(), "id").last(), QByteArray("13"));
}

void ChangeRequestsTest::newParallelUnitsAreJoined()
{
    for (int i = 0; i < 2; ++i)
        m_client->send("set_new_ups",
                       "<model_name>Hedrix_USB</model_name><communication>usb</communication>");
    const QByteArray status = m_client->ask("get_ups_current_status_list", "ups_current_status_list");
    QCOMPARE(texts(status, "parallel_unit").mid(12), (QVector<QByteArray>{"1", "1"}));
    // A member that nobody registered is not taken.
    m_client->send("set_new_ups", "<model_name>Virtual_Device</model_name><id></id><phy_id>13</phy_id>"
                                  "<phy_id>14</phy_id><phy_id>99</phy_id>");
    QCOMPARE(texts(deviceList(), "phy_id").mid(2), (QVector<QByteArray>{"13", "14"}));
    m_client->send("change_device_on_interface", "<id>15</id>");
    const QByteArray state = m_client->ask("get_ups_device_state", "ups_device_state");
    QCOMPARE(text(state, "nominal_active_power"), QByteArray("108000"));
    m_client->send("change_ups", "<model_name>Virtual_Device</model_name><id>15</id><phy_id>14</phy_id>");
    QCOMPARE(texts(deviceList(), "phy_id").mid(2), QVector<QByteArray>{"14"});
}

void ChangeRequestsTest::badRegistrationIsRefused_data()
{
    QTest::addColumn<QByteArray>("request");
    QTest::addColumn<QByteArray>("body");
    QTest::newRow("no model") << QByteArray("set_new_ups")
                              << QByteArray("<communication>usb</communication>");
    QTest::newRow("model that the panel could not name")
        << QByteArray("set_new_ups") << QByteArray("<model_name>unknown</model_name>");
    QTest::newRow("port of another device")
        << QByteArray("set_new_ups") << QByteArray(newDevice).replace("ttyS2", "ttyS1");
    QTest::newRow("edit to the port of another device")
        << QByteArray("change_ups")
        << QByteArray("<id>7</id><model_name>LumoPro_Rack_RS232</model_name><communication>rs232</"
                      "communication><com_port>/dev/ttyS0</com_port>");
    QTest::newRow("edit of a device that is gone")
        << QByteArray("change_ups") << QByteArray("<id>99</id><model_name>A</model_name>");
    QTest::newRow("removal of a device that is gone")
        << QByteArray("remove_ups") << QByteArray("<id>99</id>");
    QTest::newRow("removal of a row that names no device, beside a device 0")
        << QByteArray("remove_ups") << QByteArray("<id></id>");
    QTest::newRow("groups of a device that is gone")
        << QByteArray("groups") << QByteArray("<ups_id>99</ups_id>");
    QTest::newRow("empty password") << QByteArray("change_password")
                                    << QByteArray("<new_password></new_password>");
    QTest::newRow("password of an unknown client")
        << QByteArray("change_netclient_password")
        << QByteArray("<netclient_address>192.0.2.1</netclient_address><password>a</password>");
}

void ChangeRequestsTest::badRegistrationIsRefused()
{
    QFETCH(QByteArray, request);
    QFETCH(QByteArray, body);
    const QByteArray before = deviceList();
    const QByteArray shown = m_client->ask(request, "show_message", body);
    QVERIFY(!text(shown, "message").isEmpty());
    QCOMPARE(deviceList(), before);
}

void ChangeRequestsTest::editedDeviceKeepsItsLogging()
{
    m_client->send("change_ups",
                   "<id>4</id><model_name>Tarvex33Verde_USB</model_name><communication>usb</communication>"
                   "<log_file_size></log_file_size><log_time_interval></log_time_interval>"
                   "<log_params></log_params><user_defined_name></user_defined_name>");
    const QByteArray list = m_client->waitFor("ups_model_list");
    QCOMPARE(texts(list, "model_name").at(3), QByteArray("Tarvex33Verde_USB"));
    QCOMPARE(texts(list, "com_port").at(3), QByteArray());
    QCOMPARE(texts(list, "log_time_interval").at(3), QByteArray("15"));
    QCOMPARE(texts(list, "log_params").at(3), QByteArray("7"));
    QCOMPARE(texts(m_client->waitFor("available_ports"), "is_port_free").first(), QByteArray("1"));
}

void ChangeRequestsTest::loggingIsBoundedAndFollowed()
{
    m_client->send("change_log_config",
                   "<id>5</id><model_name>Quenta_USB</model_name><log_file_size>0</log_file_size>"
                   "<log_time_interval>99999</log_time_interval><log_params>9</log_params>");
    const QByteArray list = m_client->waitFor("ups_model_list");
    QCOMPARE(texts(list, "model_name").at(4), QByteArray("TarvexRT_USB"));
    QCOMPARE(texts(list, "log_file_size").at(4), QByteArray("1"));
    QCOMPARE(texts(list, "log_time_interval").at(4), QByteArray("3600"));
    QCOMPARE(texts(list, "log_params").at(4), QByteArray("7"));
}

void ChangeRequestsTest::removedDeviceLeavesNothingBehind()
{
    m_client->send("events", "<ups_id>3</ups_id>" + oddEvents);
    m_client->send("remove_ups", "<id>3</id>");
    QVERIFY(!texts(m_client->waitFor("ups_model_list"), "id").contains("3"));
    QCOMPARE(texts(deviceList(), "phy_id"), QVector<QByteArray>{"2"});
    QVERIFY(!policy("events", "3").contains("<event>"));
    // Its id is not given to the next one, nor after the last one is removed and the service started anew.
    m_client->send("remove_ups", "<id>12</id>");
    restart();
    m_client->send("set_new_ups", newDevice);
    QCOMPARE(texts(m_client->waitFor("ups_model_list"), "id").last(), QByteArray("13"));
}

void ChangeRequestsTest::settingIsFollowedAndKept()
{
    m_client->send("change_device_on_interface", "<id>2</id>");
    m_client->send("set_ups_configuration",
                   "<output_voltage>240</output_voltage>\n<sound_alarm>0</sound_alarm>\n");
    const QByteArray shown =
        m_client->ask("set_ups_configuration", "show_message", "<output_voltage>1</output_voltage>");
    QVERIFY(shown.contains("output_voltage"));
    restart();
    m_client->send("change_device_on_interface", "<id>2</id>");
    const QByteArray settings = m_client->ask("get_ups_configuration", "ups_configuration");
    QCOMPARE(text(settings, "output_voltage"), QByteArray("240"));
    QCOMPARE(text(settings, "sound_alarm"), QByteArray("0"));
    QVERIFY(text(m_client->ask("get_ups_device_state", "ups_device_state"), "output_voltage")
                .startsWith("240.0/"));
    m_client->send("set_ups_configuration", "<reset_control_parameters>1</reset_control_parameters>");
    restart();
    m_client->send("change_device_on_interface", "<id>2</id>");
    QCOMPARE(text(m_client->ask("get_ups_configuration", "ups_configuration"), "output_voltage"),
             QByteArray("230"));
}

void ChangeRequestsTest::policyComesBackAsItWasSaved()
{
    const QByteArray groups =
        "<group><group_name>Piętro &lt;2&gt;</group_name><group_configId>4</group_configId>"
        "<computers><computer><computer_configId>1</computer_configId></computer>"
        "<computer><computer_configId>1</computer_configId></computer></computers></group>";
    const QByteArray computers =
        "<computer><computer_name>a &amp; b</computer_name><computer_address>192.0.2.5:99"
        "</computer_address><computer_password>p\"w'</computer_password>"
        "<computer_configId>7</computer_configId></computer>";
    m_client->send("all_computers", computers);
    m_client->send("events", "<ups_id>6</ups_id>" + oddEvents);
    m_client->send("groups",
                   "<ups_id>6</ups_id>" + QByteArray(groups).replace("</group_name>", "</group_name>\n"));
    for (const bool afterRestart : {false, true}) {
        if (afterRestart)
            restart();
        QCOMPARE(policy("groups", "6"), "<groups>" + groups + "</groups>");
        QCOMPARE(policy("events", "6"), "<events>" + oddEvents + "</events>");
        QCOMPARE(texts(policy("all_computers", "6"), "computer_password"), QVector<QByteArray>{"p\"w'"});
        QVERIFY(!policy("events", "5").contains("<event>"));
    }
    m_client->send("change_ups",
                   "<id>6</id><model_name>CormelRT_XL_USB</model_name><communication>usb</communication>"
                   "<reset_events_request>1</reset_events_request>");
    QVERIFY(!policy("events", "6").contains("<event>"));
    QCOMPARE(policy("groups", "6"), "<groups>" + groups + "</groups>");
}

void ChangeRequestsTest::missingActionNumbersAreCompleted()
{
    m_client->send("events", "<ups_id>6</ups_id><event><actions><poweroff_action><type>reboot</type>"
                             "</poweroff_action><output_sock_action><first_sock_ena>1</first_sock_ena>"
                             "</output_sock_action></actions></event>");
    const QByteArray saved = policy("events", "6");
    QCOMPARE(text(saved, "stanbyUps"), QByteArray("0"));
    QCOMPARE(text(saved, "delay_time"), QByteArray("0"));
    QCOMPARE(text(saved, "first_sock_ena"), QByteArray("1"));
    QCOMPARE(text(saved, "second_sock_delay"), QByteArray("0"));
}

void ChangeRequestsTest::policyTooLongForAPanelIsRefused()
{
    m_client->send("events", "<ups_id>6</ups_id>" + oddEvents);
    QByteArray body = "<ups_id>6</ups_id>";
    for (uint i = 0; i < 20000; ++i)
        body +=
            "<event><event_state>" + QByteArray::number(qHash(i * 2654435761U)) + "</event_state></event>";
    QVERIFY(!m_client->ask("events", "show_message", body).isEmpty());
    QCOMPARE(policy("events", "6"), "<events>" + oddEvents + "</events>");
}

void ChangeRequestsTest::removedComputerLeavesItsGroups()
{
    m_client->send("groups",
                   "<ups_id>6</ups_id><group><group_name>g</group_name><group_configId>1</group_configId>"
                   "<computers><computer><computer_configId>1</computer_configId></computer><computer>"
                   "<computer_configId>0</computer_configId></computer></computers></group>");
    m_client->send("remove_computer", "<id>1</id>");
    QCOMPARE(texts(policy("all_computers", "6"), "computer_configId"), QVector<QByteArray>{"0"});
    QCOMPARE(texts(policy("groups", "6"), "computer_configId"), QVector<QByteArray>{"0"});
    m_client->send("remove_computer", "<id>none</id>");
    QCOMPARE(texts(policy("all_computers", "6"), "computer_configId"), QVector<QByteArray>{"0"});
}

void ChangeRequestsTest::passwordsChangeAndStay()
{
    QVERIFY(
        !m_client->ask("change_password", "admin_password_changed", "<new_password>zażółć</new_password>\n")
             .isEmpty());
    QVERIFY(!m_client->has("show_message"));
    m_client->send("remove_ups", "<id>5</id>"); // still with the old password
    QVERIFY(m_client->synchronize());
    QVERIFY(texts(deviceList(), "id").contains("5"));
    m_client->setPassword("zażółć");
    const QByteArray address = "<netclient_address>192.0.2.101</netclient_address>\n";
    QVERIFY(!m_client
                 ->ask("change_netclient_password", "netclient_password_changed",
                       address + "<password>x</password>\n")
                 .isEmpty());
    restart();
    QCOMPARE(text(m_client->ask("get_password", "get_password"), "get_password"),
             PanelClient::digest("zażółć"));
    QCOMPARE(text(m_client->ask("get_netclient_pass", "netclient_password", address), "netclient_password"),
             PanelClient::digest("x"));
}

void ChangeRequestsTest::mailTestIsHonest()
{
    const QByteArray status =
        m_client->ask("smtp2_send_test_mail", "smtp2_test_status", "<smtp2_server>192.0.2.77</smtp2_server>");
    // 1 would say that it runs, 100 that it went well.
    QCOMPARE(text(status, "current_status"), QByteArray("2"));
    QVERIFY(!text(status, "msg_0").isEmpty());
}

void ChangeRequestsTest::secretsStayOutOfTheLog()
{
    m_client->send("change_device_on_interface", "<id>2</id>");
    m_client->send("change_password", "<new_password>hush-one</new_password>");
    m_client->send("change_netclient_password",
                   "<netclient_address>127.0.0.1</netclient_address><password>hush-two</password>");
    m_client->setPassword("hush-one");
    m_client->send("application_configuration", "<smtp2_pass>hush-three</smtp2_pass>");
    m_client->send("set_ups_configuration",
                   "<http_service_pass>hush-four" + QByteArray(90, 'x') + "</http_service_pass>");
    m_client->send("hush-five");
    QVERIFY(m_client->synchronize());
    QVERIFY(logged.contains(QLatin1String("change_password")));
    QVERIFY2(!logged.contains(QRegularExpression(QStringLiteral("hush-(one|two|three|four)"))),
             qPrintable(logged));
    for (const char* password : {administratorPassword, "hush-one", "hush-two"})
        QVERIFY(!logged.contains(QString::fromLatin1(PanelClient::digest(password))));
}

QTEST_GUILESS_MAIN(ChangeRequestsTest)
#include "ChangeRequestsTest.moc"
