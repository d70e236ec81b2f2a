// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "faults/Messages.h"

#include "link/UpsSocketController.h"
#include "service/wire/Replies.h"
#include "support/Feed.h"
#include "support/InProcessService.h"
#include "support/ScriptedService.h"

namespace Velmora::Tests {

namespace {

constexpr const char* everyAction =
    "<event><event_state>stateBatteryBackup</event_state>"
    "<expressionIn>stateBatteryBackup,ON,==,</expressionIn><expressionOut>stateNormal,ON,==,</expressionOut>"
    "<actions><message_action><message_text>Ala &amp; &lt;kot&gt; żółw</message_text></message_action>"
    "<syscommand_action><command_line>/bin/true</command_line><command_options>-a</command_options>"
    "<stanbyUps>1</stanbyUps><delay_time>60</delay_time></syscommand_action>"
    "<poweroff_action><type>shutdown</type><stanbyUps>0</stanbyUps><delay_time>180</delay_time>"
    "</poweroff_action><sendmail_action><charCode>UTF-8</charCode><sender>a@velmora.example</sender>"
    "<subject>s</subject><body>b</body><receipent>c@velmora.example</receipent></sendmail_action>"
    "<output_sock_action><first_sock_conf>1</first_sock_conf><first_sock_ena>0</first_sock_ena>"
    "<first_sock_delay>5</first_sock_delay><second_sock_conf>1</second_sock_conf>"
    "<second_sock_ena>1</second_sock_ena><second_sock_delay>6</second_sock_delay></output_sock_action>"
    "</actions></event>";

// What is not answered to a request, or only by a service in trouble.
const QVector<QByteArray> unasked{
    "<daemon_is_busy></daemon_is_busy>",
    "<daemon_is_ready></daemon_is_ready>",
    "<debugging_enabled></debugging_enabled>",
    "<discovered_message>127.0.0.1</discovered_message>",
    "<admin_password_changed></admin_password_changed>",
    "<netclient_password_changed></netclient_password_changed>",
    "<show_message><message>Error</message><message>żółw</message></show_message>",
    "<show_countdown><timer_id>2</timer_id><time>90</time></show_countdown>",
    "<smtp2_test_status><current_status>1</current_status><msg_0>a</msg_0></smtp2_test_status>",
};

// Asks for what the link does not ask by itself and, of every record that arrives, for its change.
void answerEverything(UpsSocketController& link)
{
    const auto answer = [&link](auto slot, auto signal) { QObject::connect(&link, signal, &link, slot); };
    using Link = UpsSocketController;
    answer([&link](auto groups) { link.sendGroups(&groups, QStringLiteral("2")); }, &Link::groupReceived);
    answer([&link](auto events) { link.sendEvents(&events, QStringLiteral("2")); }, &Link::eventsReceived);
    answer([&link](auto computers) { link.sendAllComputers(&computers); }, &Link::allComputersReceived);
    answer([&link](auto values) { link.setUpsConfiguration(values); }, &Link::upsConfiguration);
    answer([&link](auto settings) { link.sendAppConfiguration(&settings); }, &Link::appConfifuratioReceived);
    answer(
        [&link](auto devices) {
            link.sendChangeDevice(devices.constLast());
            link.sendDeviceData(devices.constLast());
            link.sendChangeLogConfig(devices.constLast());
        },
        &Link::upsModelMessageReceived);
}

void askForEverything(UpsSocketController& link)
{
    const QString id = QStringLiteral("2");
    const auto entries = [](const char* one, const char* two) {
        return QMap<QString, QString>{{QLatin1String(one), QStringLiteral("127.0.0.1")},
                                      {QLatin1String(two), QStringLiteral("messages")}};
    };
    for (const char* name :
         {"get_ups_model_list", "get_ups_current_status_list", "get_ups_device_state",
          "get_ups_configuration", "get_available_ports", "get_debugging_status", "get_service_version",
          "get_shutdown_timers", "get_application_configuration", "get_password", "clear_logs_cache"})
        link.sendMessage(QLatin1String(name));
    link.sendChangeUpsOnInterface(2);
    link.getNetworkConfiguration(id);
    link.getUpsLogs(entries("age", "type"));
    link.getNetClientPassword(entries("netclient_address", "type"));
    link.changeNetclientPassword(entries("netclient_address", "password"));
    link.changePassword(entries("age", "new_password"));
    link.sendRemoveComputer(1);
    link.sendRemoveDevice(id);
}

} // namespace

QVector<QByteArray> serviceMessages()
{
    InProcessService service;
    const auto request = [&service](const QByteArray& name, const QByteArray& body = {}) {
        return service.ask('<' + name + '>' + service.pass() + body + "</" + name + '>');
    };
    QVector<QByteArray> messages = request("change_device_on_interface", "<id>2</id>");
    messages += request("events", QByteArray("<ups_id>2</ups_id>") + everyAction);
    for (const char* name : {"get_ups_model_list", "get_ups_current_status_list", "get_ups_device_state",
                             "get_ups_configuration", "get_available_ports", "get_debugging_status",
                             "get_service_version", "get_application_configuration", "get_password"})
        messages += request(name);
    messages += request("get_network_configuration", "<id>2</id>");
    messages += request("get_ups_logs", "<age>first</age><type>parameters</type>");
    messages += request("get_netclient_pass", "<netclient_address>127.0.0.1</netclient_address>");
    return messages + unasked;
}

QVector<QByteArray> panelRequests(const QVector<QByteArray>& messages)
{
    ScriptedService service;
    UpsSocketController link;
    link.setServerAddress(ScriptedService::testAddress());
    link.connectToServer();
    if (!service.start() || !service.waitForRequest("get_ups_configuration"))
        qFatal("the link does not connect");
    service.clearRequests();
    link.setAdminPass(QString::fromLatin1(InProcessService().pass().mid(6, 32)));
    answerEverything(link);
    for (const QByteArray& message : messages)
        feed(link, frame(message));
    askForEverything(link);
    if (!service.waitForRequest("remove_ups"))
        qFatal("the requests do not arrive");
    QVector<QByteArray> requests;
    for (const Request& request : service.requests())
        requests.append(request.xml);
    return requests;
}

} // namespace Velmora::Tests
