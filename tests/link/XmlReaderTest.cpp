// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "link/DeviceReaders.h"
#include "link/PolicyReaders.h"
#include "link/SettingsReaders.h"
#include "link/XmlParser.h"

#include <QTest>
#include <QXmlStreamReader>

#include <functional>

#include <unistd.h>

using namespace Velmora;
using namespace Velmora::Utils;

// A reader and its result as text: fields joined by '|', records by a line feed.
using Dump = std::function<QString(QXmlStreamReader&)>;
Q_DECLARE_METATYPE(Dump)

namespace {

template <typename... Values>
QString fields(const Values&... values)
{
    return QStringList{QVariant(values).toString()...}.join(QLatin1Char('|'));
}

template <typename Records, typename DumpRecord>
QString records(const Records& all, DumpRecord dump)
{
    QStringList lines;
    for (const auto& record : all)
        lines += dump(record);
    return lines.join(QLatin1Char('\n'));
}

QString dumpOf(const Ups& ups)
{
    return fields(ups.id, ups.model_name, ups.communication, ups.com_port, ups.ip, ups.read, ups.write,
                  ups.snmp_ver, ups.serial_no, ups.log_file_size, ups.log_time_interval, ups.log_params,
                  ups.user_defined_name, ups.phy_ids.join(QLatin1Char(',')), int(ups.reset_events_request));
}

QString dumpOf(const currentDeviceStatus& row)
{
    return fields(row.id, QString::fromStdString(row.status), int(row.connected), int(row.parallel_unit),
                  QString::fromStdString(row.unit_address), int(row.master), int(row.power_compensation),
                  int(row.output_socket1), int(row.output_socket2), int(row.ups_shutdown_supported));
}

QString dumpOf(const Computer& computer)
{
    return fields(computer.name, computer.address, computer.password, computer.id);
}

QString dumpOf(const QVector<int>& ids)
{
    return records(ids, [](int id) { return QString::number(id); })
        .replace(QLatin1Char('\n'), QLatin1Char(','));
}

QString dumpOf(const MessageAction& action)
{
    return action.message;
}

QString dumpOf(const SysCommandAction& action)
{
    return fields(action.command_line, action.command_options, int(action.stanbyUps), action.delay_time);
}

QString dumpOf(const PowerOffAction& action)
{
    return fields(action.type, int(action.stanbyUps), action.delay_time);
}

QString dumpOf(const SendMailAction& action)
{
    return fields(action.charCode, action.sender, action.subject, action.body, action.receipent);
}

QString dumpOf(const OutputSocketControlAction& action)
{
    return fields(int(action.first_sock_conf), int(action.first_sock_ena), action.first_sock_delay,
                  int(action.second_sock_conf), int(action.second_sock_ena), action.second_sock_delay);
}

template <typename Slot>
QString slotDump(const Slot& slot)
{
    return slot ? QLatin1Char('[') + dumpOf(*slot) + QLatin1Char(']') : QStringLiteral("-");
}

QString dumpOf(const Event& event)
{
    return fields(event.getState(), event.expressionIn, event.expressionOut, event.number, event.parentId,
                  slotDump(event.messageAction), slotDump(event.sysCommandAction),
                  slotDump(event.powerOffAction), slotDump(event.sendMailAction),
                  slotDump(event.outputSocketAction));
}

const auto dumpEach = [](const auto& record) { return dumpOf(record); };

QString readDevices(QXmlStreamReader& reader)
{
    return records(parseUpsModelList(reader), dumpEach);
}

QString readStatuses(QXmlStreamReader& reader)
{
    return records(XmlParser().parseUpsStatusList(reader), dumpEach);
}

QString readPorts(QXmlStreamReader& reader)
{
    return records(parseAvailablePorts(reader),
                   [](const SerialPort& port) { return fields(port.name, int(port.free)); });
}

QString readSettings(QXmlStreamReader& reader)
{
    const auto all = parseAppConfiguration(reader);
    return fields(all->security_type, all->server, all->port, all->timeout, all->sender_address,
                  int(all->authentication), all->user, all->pass, all->log_files_path, int(all->run_on_boot),
                  all->control_panel_path);
}

QString readMessages(QXmlStreamReader& reader)
{
    return QStringList(parseMessagesToShow(reader).toList()).join(QLatin1Char('\n'));
}

QString readLogs(QXmlStreamReader& reader)
{
    return XmlParser().parseUpsLogsList(reader).join(QLatin1Char('\n'));
}

QString readTestStatus(QXmlStreamReader& reader)
{
    int status = 99;
    QStringList messages{QStringLiteral("old")};
    XmlParser().parseSmtpTestStatus(reader, status, messages);
    return fields(status, messages.join(QLatin1Char(',')));
}

QString readCountdown(QXmlStreamReader& reader)
{
    return records(XmlParser().parseCountdownTimer(reader),
                   [](const QPair<int, int>& timer) { return fields(timer.first, timer.second); });
}

QString readGroups(QXmlStreamReader& reader)
{
    return records(parseGroups(reader),
                   [](const Group& group) { return fields(group.name, group.id, dumpOf(group.computers)); });
}

QString readEvents(QXmlStreamReader& reader)
{
    return records(parseEvents(reader), dumpEach);
}

QString readComputer(QXmlStreamReader& reader)
{
    return dumpOf(parseComputers(reader));
}

QString readComputerIds(QXmlStreamReader& reader)
{
    return dumpOf(parseComputersId(reader));
}

const char wholeEvent[] =
    "<event><event_state>s</event_state><expressionIn>a,&lt;,</expressionIn><expressionOut>b,</expressionOut>"
    "<event_number>2</event_number><event_parentId>9</event_parentId><actions>"
    "<message_action><message_text>a &amp; b</message_text></message_action>"
    "<syscommand_action><command_line>c</command_line><command_options>o</command_options>"
    "<stanbyUps>1</stanbyUps><delay_time>30</delay_time></syscommand_action>"
    "<poweroff_action><type>reboot</type><stanbyUps>0</stanbyUps><delay_time>x</delay_time></poweroff_action>"
    "<sendmail_action><charCode>u</charCode><sender>f</sender><subject>t</subject><body>b</body>"
    "<receipent>r</receipent></sendmail_action>"
    "<output_sock_action><first_sock_conf>1</first_sock_conf><first_sock_ena>2</first_sock_ena>"
    "<first_sock_delay>3</first_sock_delay><second_sock_conf>-1</second_sock_conf>"
    "<second_sock_ena>0</second_sock_ena><second_sock_delay>6</second_sock_delay></output_sock_action>"
    "</actions></event>";

void addRow(const char* name, const Dump& read, const QByteArray& xml, const char* expected)
{
    QTest::newRow(name) << read << xml << QString::fromUtf8(expected);
}

} // namespace

class XmlReaderTest final : public QObject
{
    Q_OBJECT

private slots:
    void reads_data();
    void reads();
    void returnsFromBrokenDocuments_data() { reads_data(); }
    void returnsFromBrokenDocuments();
};

void XmlReaderTest::reads_data()
{
    QTest::addColumn<Dump>("read");
    QTest::addColumn<QByteArray>("xml");
    QTest::addColumn<QString>("expected");

    addRow(
        "a device is closed by log_params, and what the next one omits it inherits, except phy_id",
        readDevices,
        "<ups_model_list><model_name>M</model_name><id>1</id><communication>SNMP</communication>"
        "<com_port>p</com_port><ip>10.0.0.1</ip><read>r</read><write>w</write><snmp_ver>1</snmp_ver>"
        "<serial_no>s</serial_no><log_file_size>5</log_file_size><log_time_interval>6</log_time_interval>"
        "<user_defined_name>Zażółć &amp; co</user_defined_name><reset_events_request>1</reset_events_request>"
        "<phy_id>7</phy_id><old_phy_id>8</old_phy_id><log_params>3</log_params>\n"
        "<id>2</id><ip></ip><log_params>1</log_params><id>3</id></ups_model_list>",
        "1|M|SNMP|p|10.0.0.1|r|w|1|s|5|6|3|Zażółć & co|7,8|0\n"
        "2|M|SNMP|p||r|w|1|s|5|6|1|Zażółć & co||0");
    addRow("a device as the panel writes it loses what stands behind log_params", readDevices,
           "<ups_model_list><id>1</id><log_params>3</log_params><user_defined_name>n</user_defined_name>"
           "<phy_id>7</phy_id></ups_model_list>",
           "1|||||||||||3|||0");
    addRow("flat status rows are closed by their last element", readStatuses,
           "<ups_current_status_list><id>1</id><status>on_battery</status><connected>1</connected>"
           "<parallel_unit>2</parallel_unit><unit_address>ż</unit_address><master>1</master>"
           "<power_compensation>1</power_compensation><output_socket1>1</output_socket1>"
           "<output_socket2>1</output_socket2><ups_shutdown_supported>0</ups_shutdown_supported>\n"
           "<id>2</id><ups_shutdown_supported>1</ups_shutdown_supported><id>3</id></ups_current_status_list>",
           "1|on_battery|1|1|ż|1|1|1|1|0\n2||0|0||0|0|0|0|1");
    addRow("a wrapper called ups closes a second, empty row of the same id", readStatuses,
           "<ups_current_status_list><ups><id>1</id><status>s</status><ups_shutdown_supported>0"
           "</ups_shutdown_supported></ups></ups_current_status_list>",
           "1|s|0|0||0|0|0|0|0\n1||0|0||0|0|0|0|1");
    addRow("ports are pairs of neighbours; one without its flag is dropped, the next one survives", readPorts,
           "<available_ports><com_port0>/dev/ttyS0</com_port0><is_port_free0>1</is_port_free0>"
           "<com_port>lost</com_port><com_port>S1</com_port><is_port_free>2</is_port_free>"
           "<com_port>indented</com_port>\n<is_port_free>1</is_port_free>"
           "<com_port></com_port><is_port_free>1</is_port_free></available_ports>",
           "/dev/ttyS0|1\nS1|0");
    addRow("an empty port alone", readPorts, "<available_ports><com_port/></available_ports>", "");
    addRow(
        "settings, all but the path of the panel", readSettings,
        "<application_configuration><smtp2_security_type>tls</smtp2_security_type><smtp2_server>h"
        "</smtp2_server><smtp2_port>25</smtp2_port><smtp2_timeout>9</smtp2_timeout><smtp2_sender_address>a@b"
        "</smtp2_sender_address><smtp2_authentication>0</smtp2_authentication><smtp2_user>u</smtp2_user>"
        "<smtp2_pass>p&gt;</smtp2_pass><log_files_path>/l</log_files_path><run_on_boot>1</run_on_boot>"
        "<control_panel_path>/p</control_panel_path></application_configuration>",
        "tls|h|25|9|a@b|0|u|p>|/l|1|");
    addRow("a switch that is there but empty is on, an absent one off", readSettings,
           "<application_configuration><smtp2_authentication></smtp2_authentication></"
           "application_configuration>",
           "||0|0||1||||0|");
    addRow("settings only from their own element", readSettings,
           "<other><smtp2_server>h</smtp2_server></other>", "||0|0||0||||0|");
    addRow(
        "message lines, by their exact name", readMessages,
        "<show_message><message>a</message><messages>no</messages><message>b &lt; c</message></show_message>",
        "a\nb < c");
    addRow("log lines, by a part of the name", readLogs,
           "<ups_logs>\n<log_1>a;b</log_1><x>no</x><my_log_2>c</my_log_2><log_3/></ups_logs>", "a;b\nc\n");
    addRow("the outcome of a test mail", readTestStatus,
           "<smtp2_test_status><msg_1>a</msg_1><current_status>2</current_status><msg_2>b</msg_2>"
           "</smtp2_test_status>",
           "2|a,b");
    addRow("an outcome without contents forgets the last one", readTestStatus, "<smtp2_test_status/>", "0|");
    addRow("timers; an id that is not repeated holds on", readCountdown,
           "<show_countdown><timer_id>1</timer_id><time>60</time><timer_id>2</timer_id><time>-5</time>"
           "<time>x</time></show_countdown>",
           "1|60\n2|-5\n2|0");
    addRow("groups; the device's id is not read", readGroups,
           "<groups><ups_id>7</ups_id><group><group_name>R&amp;D</group_name>\n<group_configId>1</"
           "group_configId>\n"
           "<computers><computer><computer_configId>3</computer_configId></computer><computer>"
           "<computer_configId>5</computer_configId></computer></computers></group><group></group></groups>",
           "R&D|1|3,5\n|0|");
    addRow("an event with every action, and one without", readEvents,
           QByteArray("<events><ups_id>7</ups_id>") + wholeEvent +
               "<event><actions></actions></event></events>",
           "s|a,<,|b,|2|9|[a & b]|[c|o|1|30]|[reboot|0|0]|[u|f|t|b|r]|[1|1|3|1|0|6]\n|||0|0|-|-|-|-|-");
    addRow("actions at any depth, absent fields at rest", readEvents,
           "<events><event><poweroff_action></poweroff_action><a><b><output_sock_action/></b></a></event></"
           "events>",
           "|||0|0|-|-|[|0|0]|-|[0|0|0|0|0|0]");
    addRow(
        "a computer", readComputer,
        "<computer><computer_name>n</computer_name><computer_address>a</computer_address><computer_password>p"
        "</computer_password><computer_configId>4</computer_configId></computer>",
        "n|a|p|4");
    addRow("a computer without an id", readComputer, "<computer/>", "|||-1");
    addRow(
        "member ids", readComputerIds,
        "<computers><computer_configId>1</computer_configId><x><computer_configId>2</computer_configId></x>"
        "</computers>",
        "1,2");
}

void XmlReaderTest::reads()
{
    QFETCH(Dump, read);
    QFETCH(QByteArray, xml);
    QFETCH(QString, expected);
    QXmlStreamReader reader(QString::fromUtf8(xml));
    QVERIFY(reader.readNextStartElement());
    QCOMPARE(read(reader), expected);
}

void XmlReaderTest::returnsFromBrokenDocuments()
{
    QFETCH(Dump, read);
    QFETCH(QByteArray, xml);
    int run = 0;
    const auto tryOn = [&](const QByteArray& broken) {
        QXmlStreamReader reader(QString::fromUtf8(broken));
        reader.readNextStartElement();
        read(reader);
        ++run;
    };
    alarm(30); // a reader that does not return ends the test
    for (int pos = 0; pos <= xml.size(); ++pos) {
        tryOn(xml.left(pos));
        tryOn(QByteArray(xml).insert(pos, "<q>"));
        if (pos == xml.size())
            break;
        tryOn(QByteArray(xml).remove(pos, 1));
        for (const char byte : {'<', '>', '/', '&', '\x01', '\xFF'})
            tryOn(QByteArray(xml).replace(pos, 1, &byte, 1));
    }
    alarm(0);
    QCOMPARE(run, 9 * xml.size() + 2);
}

QTEST_APPLESS_MAIN(XmlReaderTest)
#include "XmlReaderTest.moc"
