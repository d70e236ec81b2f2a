// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "link/UpsSocketController.h"
#include "support/ScriptedService.h"

#include <QTest>
#include <QTimer>

#include <functional>

using namespace Velmora;
using Tests::ScriptedService;
using Parameters = QMap<QString, QString>;
using Ask = std::function<void(UpsSocketController&)>;
Q_DECLARE_METATYPE(Ask)

namespace {

const QString seven(QStringLiteral("7"));

void addRow(const char* request, const Ask& ask, const QByteArray& body)
{
    const QByteArray name(request);
    QTest::newRow(request) << ask
                           << QByteArray('<' + name + "><pass>&amp;ż</pass>" + body + "</" + name + '>');
}

} // namespace

class RequestsTest final : public QObject
{
    Q_OBJECT

    ScriptedService m_service;
    std::unique_ptr<UpsSocketController> m_link;

private slots:
    void initTestCase();
    void asks_data();
    void asks();
    void carriesAnEmptyPassword();
};

void RequestsTest::initTestCase()
{
    QVERIFY(m_service.start());
    m_link = std::make_unique<UpsSocketController>();
    m_link->setServerAddress(ScriptedService::testAddress());
    m_link->connectToServer();
    QVERIFY(m_service.waitForRequest("get_ups_configuration"));
    m_link->findChild<QTimer*>(QStringLiteral("pollTimer"))->stop();
}

void RequestsTest::asks_data()
{
    using Link = UpsSocketController;
    QTest::addColumn<Ask>("ask");
    QTest::addColumn<QByteArray>("expected");
    addRow("get_ups_configuration", [](Link& link) { link.getUpsConfiguration(); }, {});
    addRow(
        "get_network_configuration", [](Link& link) { link.getNetworkConfiguration(seven); }, "<id>7</id>");
    addRow("get_application_configuration", [](Link& link) { link.getApplicationConfiguration(); }, {});
    addRow("get_available_ports", [](Link& link) { link.getAvailablePorts(); }, {});
    addRow("get_ups_model_list", [](Link& link) { link.getUpsModel(); }, {});
    addRow("get_ups_current_status_list", [](Link& link) { link.getUpsCurrentStateList(); }, {});
    addRow("get_debugging_status", [](Link& link) { link.getDebuggingStatus(); }, {});
    addRow("get_service_version", [](Link& link) { link.getServiceVersion(); }, {});
    addRow("get_shutdown_timers", [](Link& link) { link.getShutdownTimers(); }, {});
    addRow(
        "remove_ups", [](Link& link) { link.sendRemoveDevice(seven); }, "<id>7</id>");
    addRow(
        "remove_computer", [](Link& link) { link.sendRemoveComputer(-1); }, "<id>-1</id>");
    addRow(
        "change_device_on_interface", [](Link& link) { link.sendChangeUpsOnInterface(12); }, "<id>12</id>");
    addRow("clear_logs_cache", [](Link& link) { link.sendMessage(QStringLiteral("clear_logs_cache")); }, {});

    const Utils::Ups ups;
    const QByteArray upsXml =
        "<model_name></model_name><id></id><communication></communication>"
        "<com_port></com_port><ip></ip><read></read><write></write><snmp_ver></snmp_ver>"
        "<serial_no></serial_no><log_file_size></log_file_size>"
        "<log_time_interval></log_time_interval><log_params></log_params>"
        "<reset_events_request>0</reset_events_request>"
        "<user_defined_name></user_defined_name>";
    addRow(
        "change_log_config", [ups](Link& link) { link.sendChangeLogConfig(ups); }, upsXml);
    addRow(
        "change_ups", [ups](Link& link) { link.sendChangeDevice(ups); }, upsXml);
    addRow(
        "set_new_ups", [ups](Link& link) { link.sendDeviceData(ups); }, upsXml);

    const QByteArray mailXml =
        "<smtp2_security_type></smtp2_security_type><smtp2_server></smtp2_server><smtp2_port>0</smtp2_port>"
        "<smtp2_timeout>0</smtp2_timeout><smtp2_sender_address></smtp2_sender_address>"
        "<smtp2_authentication>0</smtp2_authentication><smtp2_user></smtp2_user><smtp2_pass></smtp2_pass>";
    addRow(
        "smtp2_send_test_mail", [](Link& link) { link.sendTestMail({}); }, mailXml);
    addRow(
        "application_configuration",
        [](Link& link) {
            const Utils::ApplicationConfiguration configuration;
            link.sendAppConfiguration(&configuration);
        },
        mailXml + "<log_files_path></log_files_path><run_on_boot>0</run_on_boot>"
                  "<control_panel_path></control_panel_path>");
    addRow(
        "groups",
        [](Link& link) {
            const QVector<Group> groups;
            link.sendGroups(&groups, seven);
        },
        "<ups_id>7</ups_id>");
    addRow(
        "events",
        [](Link& link) {
            QVector<Event> events;
            link.sendEvents(&events, seven);
        },
        "<ups_id>7</ups_id>");
    addRow("all_computers",
           [](Link& link) {
               const QVector<Computer> computers;
               link.sendAllComputers(&computers);
           },
           {});

    const Parameters page{{QStringLiteral("type"), QStringLiteral("data")},
                          {QStringLiteral("age"), QStringLiteral("newer")}};
    const Parameters password{{QStringLiteral("password"), QStringLiteral("<&>")}};
    addRow(
        "get_ups_logs", [page](Link& link) { link.getUpsLogs(page); },
        "<age>newer</age>\n<type>data</type>\n");
    addRow("get_password", [](Link& link) { link.getPassword(); }, {});
    addRow(
        "get_netclient_pass", [page](Link& link) { link.getNetClientPassword(page); },
        "<age>newer</age>\n<type>data</type>\n");
    addRow(
        "set_ups_configuration", [page](Link& link) { link.setUpsConfiguration(page); },
        "<age>newer</age>\n<type>data</type>\n");
    addRow(
        "change_netclient_password", [password](Link& link) { link.changeNetclientPassword(password); },
        "<password><&></password>\n");
    addRow(
        "change_password", [password](Link& link) { link.changePassword(password); },
        "<password><&></password>\n");
}

void RequestsTest::asks()
{
    QFETCH(Ask, ask);
    QFETCH(QByteArray, expected);
    m_service.clearRequests();
    m_link->setAdminPass(QStringLiteral("&amp;ż"));
    ask(*m_link);
    QTRY_COMPARE(m_service.requests().size(), 1);
    QCOMPARE(m_service.requests().constFirst().xml, expected);
    QCOMPARE(m_service.requests().constFirst().name, QByteArray(QTest::currentDataTag()));
}

void RequestsTest::carriesAnEmptyPassword()
{
    m_service.clearRequests();
    m_link->setAdminPass(QString());
    m_link->getUpsModel();
    QTRY_COMPARE(m_service.requests().size(), 1);
    QCOMPARE(m_service.requests().constFirst().xml,
             QByteArray("<get_ups_model_list><pass></pass></get_ups_model_list>"));
}

QTEST_GUILESS_MAIN(RequestsTest)
#include "RequestsTest.moc"
