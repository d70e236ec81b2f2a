// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "link/DeviceReaders.h"
#include "link/PolicyReaders.h"
#include "link/SettingsReaders.h"
#include "link/XmlParser.h"
#include "service/PanelClient.h"

#include <QLoggingCategory>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTemporaryFile>
#include <QTest>
#include <QXmlStreamReader>

using namespace Velmora::Service;
using namespace Velmora::Tests;
namespace Utils = Velmora::Utils;

namespace {

// What one of the panel's readers makes of a document.
template <typename Reader>
auto read(const QByteArray& document, Reader reader)
{
    QXmlStreamReader xml(document);
    xml.readNextStartElement();
    return reader(xml);
}

// What the service logs, so that a test can look for what must not be there.
QString logged;

void keepMessage(QtMsgType /*type*/, const QMessageLogContext& /*context*/, const QString& message)
{
    logged += message + QLatin1Char('\n');
}

// A text of which no frame holds all.
QByteArray noise()
{
    QByteArray text;
    for (int i = 0; i < 4000; ++i)
        text += digest(QByteArray::number(i).constData());
    return text;
}

const QByteArray newDevice =
    "<model_name>TarvexRT_RS232</model_name><id></id><communication>rs232</communication>"
    "<com_port>/dev/ttyS2</com_port><user_defined_name>Nowy &lt;1&gt;</user_defined_name>";

// A policy with texts and fields that nobody foresaw.
const QByteArray oddEvents =
    "<event><event_state>st&amp;te</event_state><expressionOut> a,b,&lt;, </expressionOut><actions>"
    "<message_action><message_text>&quot;Ala&quot; &amp; kot\nżółw</message_text></message_action>"
    "<poweroff_action><type>reboot</type><stanbyUps>0</stanbyUps><delay_time>180</delay_time>"
    "</poweroff_action></actions><future_field>7</future_field></event>";

} // namespace

/// Every request, and what the panel's own readers make of the replies.
class ServedRequestsTest final : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void listsHaveEveryField();
    void stateDescribesTheChosenDevice();
    void secretsAreForAdministrators();
    void logsArePagedByConnection();
    void countdownIsPushedAndWithdrawn();
    void changeNeedsThePassword();
    void deviceIsAddedForEveryPanel();
    void impossibleChangeIsRefused();
    void longDeviceListIsWarnedOf();
    void editKeepsOrBoundsTheLogging();
    void whatIsRemovedLeavesNothingBehind();
    void policyComesBackAsItWasSaved();
    void passwordsChangeStayAndAreNotLogged();

private:
    /// Starts the service anew once all that was sent has been dealt with; its state file stays.
    void restart();
    void serveScenario(const QByteArray& json);
    void choose(const QByteArray& id) { m_client->send("change_device_on_interface", "<id>" + id + "</id>"); }
    /// The list once all that was sent has been dealt with, without those that were pushed.
    [[nodiscard]] QByteArray deviceList();
    [[nodiscard]] QByteArray policy(const char* list, const char* device);

    std::unique_ptr<QTemporaryDir> m_folder;
    Options m_options;
    std::unique_ptr<ReferenceService> m_service;
    std::unique_ptr<PanelClient> m_client;
};

void ServedRequestsTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_options = Options();
    m_options.statePath = m_folder->filePath(QStringLiteral("state.json"));
    restart();
}

void ServedRequestsTest::restart()
{
    if (m_client)
        QVERIFY(m_client->synchronize());
    m_service.reset();
    m_service = startService(m_options);
    m_client = std::make_unique<PanelClient>();
    m_client->setPassword(administratorPassword);
}

void ServedRequestsTest::serveScenario(const QByteArray& json)
{
    QTemporaryFile scenario;
    QVERIFY(scenario.open() && scenario.write(json) == json.size() && scenario.flush());
    m_options.scenarioPath = scenario.fileName();
    m_options.statePath.clear();
    restart();
}

QByteArray ServedRequestsTest::deviceList()
{
    return m_client->synchronize() ? PanelClient().get("ups_model_list") : QByteArray();
}

QByteArray ServedRequestsTest::policy(const char* list, const char* device)
{
    m_client->send("get_network_configuration", QByteArray("<id>") + device + "</id>");
    const QByteArray computers = m_client->waitFor("all_computers");
    // Groups and events come before the computers.
    const bool inOrder = m_client->has("groups") && m_client->has("events");
    QMap<QByteArray, QByteArray> lists{{"all_computers", computers}};
    for (const char* name : {"events", "groups"})
        lists.insert(name, m_client->waitFor(name));
    return inOrder ? lists.value(list) : QByteArray();
}

void ServedRequestsTest::listsHaveEveryField()
{
    m_client->setPassword(""); // watching needs none
    const QVector<Utils::Ups> devices = read(m_client->get("ups_model_list"), Utils::parseUpsModelList);
    // An omitted field would show the value of the device before.
    QVERIFY(devices.at(3).ip.isEmpty() && devices.at(4).user_defined_name.isEmpty());
    QCOMPARE(devices.at(3).com_port, QStringLiteral("/dev/ttyS0"));

    const auto rows = read(m_client->get("ups_current_status_list"), [](QXmlStreamReader& reader) {
        return Velmora::XmlParser().parseUpsStatusList(reader);
    });
    QVERIFY(rows.at(1).master && rows.at(1).parallel_unit && rows.at(1).connected);
    QVERIFY(!rows.at(2).master && rows.at(3).power_compensation);
    QVERIFY(rows.at(5).output_socket2 && rows.at(5).ups_shutdown_supported);
    QVERIFY(!rows.at(6).output_socket2 && !rows.at(6).ups_shutdown_supported);
    const auto ports = read(m_client->get("available_ports"), Utils::parseAvailablePorts);
    QCOMPARE(ports.size(), 5);
    QVERIFY(!ports.at(1).free && ports.at(2).free);
    QCOMPARE(m_client->ask("get_shutdown_timers", "show_countdown"),
             QByteArray("<show_countdown></show_countdown>"));
    // A client that is not there does not answer.
    m_client->send("get_netclient_pass", "<netclient_address>192.0.2.250</netclient_address>\n");
    QVERIFY(m_client->synchronize() && !m_client->has("netclient_password"));
}

void ServedRequestsTest::stateDescribesTheChosenDevice()
{
    PanelClient other;
    choose("9");
    QVERIFY(other.get("ups_device_state").contains("isUpsFound=\"0\""));
    // Found, proper, one of the values; at last a device that is silent, of another model, unknown, not
    // named.
    for (const char* expected : {"0 1 1 rated_va_per_ups_module", "2 1 1 events", "9 1 1 fuel_level",
                                 "10 0 0", "11 1 0", "99 0 0", " 0 0"}) {
        const QByteArrayList row = QByteArray(expected).split(' ');
        choose(row.at(0));
        const QByteArray reply = m_client->get("ups_device_state");
        const QByteArray start =
            "<ups_device_state isUpsFound=\"" + row.at(1) + "\" isProperDevice=\"" + row.at(2);
        QVERIFY2(reply.startsWith(start) && reply.contains("</device_status>") == (row.size() > 3), expected);
        QVERIFY2(row.size() < 4 || !text(reply, row.at(3).constData()).isEmpty(), expected);
    }
}

void ServedRequestsTest::secretsAreForAdministrators()
{
    m_client->send("application_configuration",
                   "<smtp2_pass>secret</smtp2_pass><smtp2_port>587</smtp2_port>");
    for (const bool administrator : {true, false}) {
        m_client->setPassword(administrator ? administratorPassword : "");
        const QByteArray computers = policy("all_computers", "2");
        QCOMPARE(texts(computers, "computer_address"), (QVector<QByteArray>{"127.0.0.1", "192.0.2.101"}));
        QCOMPARE(text(computers, "computer_password"),
                 QByteArray(administrator ? administratorPassword : ""));
        const QByteArray settings = m_client->get("application_configuration");
        QCOMPARE(text(settings, "smtp2_pass"), QByteArray(administrator ? "secret" : ""));
        QCOMPARE(text(settings, "smtp2_port"), QByteArray("587"));
    }
}

void ServedRequestsTest::logsArePagedByConnection()
{
    const auto page = [](PanelClient& client, const char* age, const char* device) {
        client.send("change_device_on_interface", QByteArray("<id>") + device + "</id>");
        return read(client.get("ups_logs", QByteArray("<age>") + age + "</age>\n<type>parameters</type>\n"),
                    [](QXmlStreamReader& reader) { return Velmora::XmlParser().parseUpsLogsList(reader); });
    };
    const QStringList first = page(*m_client, "first", "2");
    QCOMPARE(first.size(), 101);
    QVERIFY(first.first().startsWith(QLatin1String("date;time;device_status;output_load_L1;")));
    QCOMPARE(first.at(1).count(QLatin1Char(';')), first.first().count(QLatin1Char(';')));
    QVERIFY(page(*m_client, "older", "2").last() < first.at(1));
    // Another connection, this one after it looked at another device, and after it gave up its position.
    PanelClient other;
    QCOMPARE(page(other, "newer", "2").last(), first.last());
    (void)page(*m_client, "first", "3");
    QCOMPARE(page(*m_client, "older", "2").last(), first.last());
    m_client->send("clear_logs_cache");
    QCOMPARE(page(*m_client, "older", "2").last(), first.last());
}

void ServedRequestsTest::countdownIsPushedAndWithdrawn()
{
    m_options.speed = 100.0;
    serveScenario(R"({"feeds":[{"name":"f","first_failure":40,"duration":100,"countdown":3000}],)"
                  R"("devices":[{"id":1,"model_name":"Tarvex33_USB"}]})");
    for (const int seconds : {30, -1})
        QCOMPARE(
            read(m_client->waitFor("show_countdown"),
                 [](QXmlStreamReader& reader) { return Velmora::XmlParser().parseCountdownTimer(reader); }),
            (QList<QPair<int, int>>{{1, seconds}}));
}

void ServedRequestsTest::changeNeedsThePassword()
{
    const QByteArray before = deviceList();
    logged.clear();
    const QtMessageHandler previous = qInstallMessageHandler(keepMessage);
    const QByteArrayList requests =
        QByteArray("set_new_ups change_ups change_log_config remove_ups set_ups_configuration groups events "
                   "all_computers remove_computer application_configuration smtp2_send_test_mail "
                   "change_password change_netclient_password")
            .split(' ');
    for (const char* password : {"", "wrong", "opiekunsystem"}) {
        m_client->setPassword(password);
        for (const QByteArray& request : requests)
            m_client->send(request, "<id>5</id>" + newDevice);
    }
    const QByteArray after = deviceList();
    qInstallMessageHandler(previous);
    QCOMPARE(after, before);
    for (const QByteArray& request : requests)
        QVERIFY2(logged.count(QLatin1String("refused " + request + ' ')) == 3, request.constData());
    QVERIFY(!m_client->has("smtp2_test_status") && m_client->has("show_message"));
}

void ServedRequestsTest::deviceIsAddedForEveryPanel()
{
    PanelClient watcher;
    m_client->send("set_new_ups", newDevice);
    const QByteArray list = watcher.waitFor("ups_model_list");
    QCOMPARE(texts(list, "id").last(), QByteArray("13"));
    QCOMPARE(texts(list, "user_defined_name").last(), QByteArray("Nowy <1>"));
    QCOMPARE(texts(watcher.waitFor("available_ports"), "is_port_free"),
             (QVector<QByteArray>{"0", "0", "0", "1", "1"}));
    QVERIFY(policy("groups", "13").contains("<group_name>Default</group_name>"));
    // A member that nobody registered is not taken.
    m_client->send("set_new_ups", "<model_name>Virtual_Device</model_name><phy_id>13</phy_id>"
                                  "<phy_id>3</phy_id><phy_id>99</phy_id>");
    QCOMPARE(texts(deviceList(), "phy_id").mid(2), (QVector<QByteArray>{"13", "3"}));
    choose("14");
    QCOMPARE(text(m_client->get("ups_device_state"), "nominal_active_power"), QByteArray("21800"));
}

void ServedRequestsTest::impossibleChangeIsRefused()
{
    const QByteArray port = "<com_port>/dev/ttyS1</com_port><communication>rs232</communication>";
    const QVector<QPair<QByteArray, QByteArray>> requests{
        {"set_new_ups", "<communication>usb</communication>"},
        {"set_new_ups", "<model_name>unknown</model_name>"},
        {"set_new_ups", "<model_name>A</model_name>" + port},
        {"change_ups", "<id>4</id><model_name>A</model_name>" + port},
        {"change_ups", "<id>99</id><model_name>A</model_name>"},
        {"remove_ups", "<id>99</id>"},
        {"remove_ups", "<id></id>"}, // a row that names no device, beside a device 0
        {"groups", "<ups_id>99</ups_id>"},
        {"change_password", "<new_password></new_password>"},
        {"set_ups_configuration", "<output_voltage>1</output_voltage>"},
        {"set_new_ups", "<model_name>A</model_name><ip>" + noise() + "</ip>"}, // then no panel saw the list
        {"change_ups", "<id>4</id><model_name>A</model_name><ip>" + noise() + "</ip>"},
        {"application_configuration", "<smtp2_user>" + noise() + "</smtp2_user>"},
        {"events", "<ups_id>6</ups_id><event><event_state>" + noise() + "</event_state></event>"},
        {"remove_computer", "<id>none</id>"}, // beside a computer 0
        {"change_netclient_password", "<netclient_address>127.0.0.1</netclient_address>"},
        {"change_netclient_password",
         "<netclient_address>192.0.2.1</netclient_address><password>a</password>"}};
    const QByteArray before = deviceList();
    choose("2");
    for (const auto& request : requests)
        QVERIFY2(!text(m_client->ask(request.first, "show_message", request.second), "message").isEmpty(),
                 request.second.constData());
    QCOMPARE(deviceList(), before);
    QCOMPARE(texts(policy("groups", "6"), "computer_configId"), QVector<QByteArray>{"0"});
}

void ServedRequestsTest::longDeviceListIsWarnedOf()
{
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("the list of 1 devices")));
    serveScenario(R"({"devices":[{"id":1,"model_name":"A","ip":")" + noise() + "\"}]}");
}

void ServedRequestsTest::editKeepsOrBoundsTheLogging()
{
    m_client->send("change_ups",
                   "<id>4</id><model_name>Tarvex33Verde_USB</model_name><communication>usb</communication>"
                   "<log_file_size></log_file_size><log_time_interval></log_time_interval>"
                   "<log_params></log_params><user_defined_name></user_defined_name>");
    QCOMPARE(texts(m_client->waitFor("available_ports"), "is_port_free").first(), QByteArray("1"));
    m_client->send("change_log_config",
                   "<id>5</id><model_name>Quenta_USB</model_name><log_file_size>0</log_file_size>"
                   "<log_time_interval>99999</log_time_interval><log_params>9</log_params>");
    const QByteArray list = deviceList();
    QCOMPARE(texts(list, "model_name").mid(3, 2), (QVector<QByteArray>{"Tarvex33Verde_USB", "TarvexRT_USB"}));
    QCOMPARE(texts(list, "com_port").at(3), QByteArray());
    QCOMPARE(texts(list, "log_file_size").at(4), QByteArray("1"));
    QCOMPARE(texts(list, "log_time_interval").mid(3, 2), (QVector<QByteArray>{"15", "3600"}));
    QCOMPARE(texts(list, "log_params").mid(3, 2), (QVector<QByteArray>{"7", "7"}));
}

void ServedRequestsTest::whatIsRemovedLeavesNothingBehind()
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

    m_client->send("remove_computer", "<id>0</id>");
    QCOMPARE(texts(policy("all_computers", "6"), "computer_configId"), QVector<QByteArray>{"1"});
    QCOMPARE(texts(policy("groups", "6"), "computer_configId"), QVector<QByteArray>());
}

void ServedRequestsTest::policyComesBackAsItWasSaved()
{
    // An action without its numbers gets them, since a panel would take any for one that is missing.
    const QByteArray socket = "<event><actions><output_sock_action><first_sock_ena>1</first_sock_ena>"
                              "</output_sock_action></actions></event>";
    m_client->send("events", "<ups_id>6</ups_id>" + oddEvents + socket);
    restart();
    const QByteArray events = policy("events", "6");
    QVERIFY2(events.startsWith("<events>" + oddEvents + "<event>"), events.constData());
    QCOMPARE(texts(events, "first_sock_ena"), QVector<QByteArray>{"1"});
    QCOMPARE(texts(events, "second_sock_delay"), QVector<QByteArray>{"0"});
    // Another type starts without events, but keeps its groups.
    const QByteArray group = "<group><group_name>Piętro &lt;2&gt;</group_name></group>";
    m_client->send("groups", "<ups_id>6</ups_id>" + group);
    m_client->send("change_ups",
                   "<id>6</id><model_name>CormelRT_XL_USB</model_name><communication>usb</communication>"
                   "<reset_events_request>1</reset_events_request>");
    QVERIFY(!policy("events", "6").contains("<event>"));
    QVERIFY(policy("groups", "6").contains("Piętro &lt;2&gt;"));
}

void ServedRequestsTest::passwordsChangeStayAndAreNotLogged()
{
    logged.clear();
    QLoggingCategory::setFilterRules(QStringLiteral("velmora.service.debug=true"));
    const QtMessageHandler previous = qInstallMessageHandler(keepMessage);
    choose("2");
    m_client->send("change_password", "<new_password>żhush</new_password>\n");
    m_client->send("remove_ups", "<id>5</id>"); // still with the old password
    m_client->setPassword("żhush");
    const QByteArray address = "<netclient_address>192.0.2.101</netclient_address>\n";
    m_client->send("change_netclient_password", address + "<password>hush2</password>\n");
    m_client->send("application_configuration", "<smtp2_pass>hush3</smtp2_pass>");
    m_client->send("set_ups_configuration",
                   "<http_service_pass>hush4" + QByteArray(90, 'x') + "</http_service_pass>");
    const QByteArray mailTest = m_client->ask("smtp2_send_test_mail", "smtp2_test_status");
    qInstallMessageHandler(previous);
    QVERIFY(m_client->has("admin_password_changed") && m_client->has("netclient_password_changed"));
    // Without a server nothing was sent, and the answer says so.
    QCOMPARE(text(mailTest, "current_status"), QByteArray("2"));
    QVERIFY(logged.contains(QLatin1String("change_password")) && !logged.contains(QLatin1String("hush")));
    for (const char* password : {administratorPassword, "żhush", "hush2"})
        QVERIFY(!logged.contains(QLatin1String(digest(password))));
    QVERIFY(texts(deviceList(), "id").contains("5"));
    restart();
    m_client->send("get_password");
    QCOMPARE(text(m_client->waitFor("get_password"), "get_password"), digest("żhush"));
    QCOMPARE(text(m_client->ask("get_netclient_pass", "netclient_password", address), "netclient_password"),
             digest("hush2"));
}

QTEST_GUILESS_MAIN(ServedRequestsTest)
#include "ServedRequestsTest.moc"
