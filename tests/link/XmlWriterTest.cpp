// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "link/XmlWriter.h"

#include <QTest>

using namespace Velmora::Utils;

namespace {

// Every field different, and special characters wherever a text may hold them.

Ups device()
{
    Ups ups;
    ups.id = QStringLiteral("4");
    ups.model_name = QStringLiteral("TarvexRT_SNMP");
    ups.communication = QStringLiteral("SNMP");
    ups.com_port = QStringLiteral("/dev/ttyS0");
    ups.ip = QStringLiteral("10.0.0.1");
    ups.read = QStringLiteral("public");
    ups.write = QStringLiteral("<private>");
    ups.snmp_ver = QStringLiteral("2c");
    ups.phy_ids = QStringList{QStringLiteral("7"), QStringLiteral("8")};
    ups.serial_no = QStringLiteral("SN1");
    ups.log_time_interval = QStringLiteral("60");
    ups.log_file_size = QStringLiteral("512");
    ups.log_params = QStringLiteral("3");
    ups.user_defined_name = QStringLiteral("Zażółć & \"co\"");
    ups.reset_events_request = true;
    ups.power_compensation = true; // not on the wire, like the other flags
    return ups;
}

SmtpConfig mail()
{
    SmtpConfig config;
    config.security_type = QStringLiteral("t<s");
    config.server = QStringLiteral("s&rver");
    config.port = 25;
    config.timeout = -1;
    config.sender_address = QStringLiteral("\"a\"@b");
    config.authentication = true;
    config.user = QStringLiteral("o'neil");
    config.pass = QStringLiteral("a>b");
    return config;
}

const char mailXml[] =
    "<smtp2_security_type>t&lt;s</smtp2_security_type><smtp2_server>s&amp;rver</smtp2_server>"
    "<smtp2_port>25</smtp2_port><smtp2_timeout>-1</smtp2_timeout>"
    "<smtp2_sender_address>&quot;a&quot;@b</smtp2_sender_address>"
    "<smtp2_authentication>1</smtp2_authentication><smtp2_user>o&apos;neil</smtp2_user>"
    "<smtp2_pass>a&gt;b</smtp2_pass>";

QVector<Group> groups()
{
    return {{QStringLiteral("R&D"), {3, 5}, 1}, {QString(), {}, 2}};
}

QVector<Computer> computers()
{
    Computer computer;
    computer.name = QStringLiteral("a&b");
    computer.address = QStringLiteral("10.0.0.2");
    computer.reserved1 = QStringLiteral("kept to oneself");
    computer.password = QStringLiteral("p<w");
    return {computer};
}

Event fullEvent()
{
    Event event;
    event.state = QStringLiteral("on & off");
    event.expressionIn = QStringLiteral("a,b,<,");
    event.expressionOut = QStringLiteral("a,b,>,");
    event.number = 2;
    event.parentId = 9;
    event.messageAction = std::make_shared<MessageAction>();
    event.messageAction->message = QStringLiteral("Fish & \"chips\"");
    event.sysCommandAction = std::make_shared<SysCommandAction>();
    event.sysCommandAction->command_line = QStringLiteral("a && b");
    event.sysCommandAction->command_options = QStringLiteral("< c");
    event.sysCommandAction->stanbyUps = true;
    event.sysCommandAction->delay_time = 30;
    event.powerOffAction = std::make_shared<PowerOffAction>();
    event.powerOffAction->type = QStringLiteral("shutdown_Force");
    event.powerOffAction->delay_time = 40;
    event.sendMailAction = std::make_shared<SendMailAction>();
    event.sendMailAction->charCode = QStringLiteral("utf&8");
    event.sendMailAction->sender = QStringLiteral("<s>");
    event.sendMailAction->subject = QStringLiteral("it's");
    event.sendMailAction->body = QStringLiteral("1\n2");
    event.sendMailAction->receipent = QStringLiteral("\"r\"");
    event.outputSocketAction = std::make_shared<OutputSocketControlAction>();
    event.outputSocketAction->first_sock_ena = true;
    event.outputSocketAction->first_sock_delay = 5;
    event.outputSocketAction->second_sock_conf = true;
    event.outputSocketAction->second_sock_delay = 6;
    return event;
}

const char fullEventXml[] =
    "<ups_id>7</ups_id><event><event_state>on & off</event_state><expressionIn>a,b,&lt;,</expressionIn>"
    "<expressionOut>a,b,&gt;,</expressionOut><event_number>2</event_number><event_parentId>9</event_parentId>"
    "<actions><message_action><message_text>Fish &amp; &quot;chips&quot;</message_text></message_action>"
    "<syscommand_action><command_line>a && b</command_line><command_options>< c</command_options>"
    "<stanbyUps>1</stanbyUps><delay_time>30</delay_time></syscommand_action>"
    "<poweroff_action><type>shutdown_Force</type><stanbyUps>0</stanbyUps><delay_time>40</delay_time>"
    "</poweroff_action>"
    "<sendmail_action><charCode>utf&amp;8</charCode><sender>&lt;s&gt;</sender><subject>it&apos;s</subject>"
    "<body>1\n2</body><receipent>&quot;r&quot;</receipent></sendmail_action>"
    "<output_sock_action><first_sock_conf>0</first_sock_conf><first_sock_ena>1</first_sock_ena>"
    "<first_sock_delay>5</first_sock_delay><second_sock_conf>1</second_sock_conf>"
    "<second_sock_ena>0</second_sock_ena><second_sock_delay>6</second_sock_delay></output_sock_action>"
    "</actions></event>";

} // namespace

class XmlWriterTest final : public QObject
{
    Q_OBJECT

private slots:
    void writes_data();
    void writes();
    void consumesEvents();
};

void XmlWriterTest::writes_data()
{
    QTest::addColumn<QByteArray>("written");
    QTest::addColumn<QByteArray>("expected");
    const QString seven = QStringLiteral("7");
    QTest::newRow("an id, unescaped") << makeXml(QStringLiteral("ż<")) << QByteArray("<id>ż<</id>");
    QTest::newRow("a device, all its texts unescaped")
        << makeXml(device())
        << QByteArray(
               "<model_name>TarvexRT_SNMP</model_name><id>4</id><communication>SNMP</communication>"
               "<com_port>/dev/ttyS0</com_port><ip>10.0.0.1</ip><read>public</read>"
               "<write><private></write><snmp_ver>2c</snmp_ver><serial_no>SN1</serial_no>"
               "<log_file_size>512</log_file_size><log_time_interval>60</log_time_interval>"
               "<log_params>3</log_params><reset_events_request>1</reset_events_request>"
               "<user_defined_name>Zażółć & \"co\"</user_defined_name><phy_id>7</phy_id><phy_id>8</phy_id>");
    QTest::newRow("the mail settings, all escaped") << makeXml(mail()) << QByteArray(mailXml);

    ApplicationConfiguration configuration;
    static_cast<SmtpConfig&>(configuration) = mail();
    configuration.log_files_path = QStringLiteral("/a&b");
    configuration.control_panel_path = QStringLiteral("/c<d");
    QTest::newRow("the service's settings, the mail part escaped")
        << makeXml(&configuration)
        << QByteArray(mailXml) + "<log_files_path>/a&b</log_files_path><run_on_boot>0</run_on_boot>"
                                 "<control_panel_path>/c<d</control_panel_path>";

    const QVector<Group> someGroups = groups();
    QTest::newRow("groups, with line feeds and unescaped names")
        << makeXml(&someGroups, seven)
        << QByteArray(
               "<ups_id>7</ups_id><group><group_name>R&D</group_name>\n<group_configId>1</group_configId>\n"
               "<computers><computer><computer_configId>3</computer_configId></computer><computer>"
               "<computer_configId>5</computer_configId></computer></computers></group>"
               "<group><group_name></group_name>\n<group_configId>2</group_configId>\n"
               "<computers></computers></group>");
    const QVector<Computer> someComputers = computers();
    QTest::newRow("computers, without an id of the device")
        << makeXml(&someComputers)
        << QByteArray(
               "<computer><computer_name>a&b</computer_name><computer_address>10.0.0.2</computer_address>"
               "<computer_password>p<w</computer_password><computer_configId>-1</computer_configId>"
               "</computer>");

    QVector<Event> events;
    QTest::newRow("no events") << makeXml(&events, seven) << QByteArray("<ups_id>7</ups_id>");
    events.append(Event());
    QTest::newRow("an event without actions keeps the element for them")
        << makeXml(&events, seven)
        << QByteArray("<ups_id>7</ups_id><event><event_state></event_state><expressionIn></expressionIn>"
                      "<expressionOut></expressionOut><event_number>0</event_number>"
                      "<event_parentId>0</event_parentId><actions></actions></event>");
    events = {fullEvent()};
    QTest::newRow("an event with every action") << makeXml(&events, seven) << QByteArray(fullEventXml);
}

void XmlWriterTest::writes()
{
    QFETCH(QByteArray, written);
    QFETCH(QByteArray, expected);
    QCOMPARE(written, expected);
}

void XmlWriterTest::consumesEvents()
{
    const Event original = fullEvent();
    QVector<Event> events{original, original};
    QCOMPARE(makeXml(&events, QStringLiteral("7")).count("<message_text>"), 2);
    for (const Event& event : qAsConst(events)) {
        QVERIFY(!event.messageAction && !event.sysCommandAction);
        QVERIFY(!event.powerOffAction && !event.sendMailAction);
        QCOMPARE(event.outputSocketAction, original.outputSocketAction);
    }
    QVERIFY(original.messageAction);
}

QTEST_APPLESS_MAIN(XmlWriterTest)
#include "XmlWriterTest.moc"
