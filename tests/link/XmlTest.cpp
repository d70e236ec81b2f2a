// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "link/DeviceReaders.h"
#include "link/PolicyReaders.h"
#include "link/SettingsReaders.h"
#include "link/XmlParser.h"
#include "link/XmlWriter.h"

#include <QTest>
#include <QXmlStreamReader>

#include <functional>

using namespace Velmora;
using namespace Velmora::Utils;

// A reader and what it read: as the writer of the same records writes it or, where there is none, fields
// joined by '|' and records by a line feed.
using Dump = std::function<QByteArray(QXmlStreamReader&)>;
Q_DECLARE_METATYPE(Dump)

namespace {

template <typename... Values>
QString fields(const Values&... values)
{
    return QStringList{QVariant(values).toString()...}.join(QLatin1Char('|'));
}

template <typename Records, typename DumpRecord>
QByteArray records(const Records& all, DumpRecord dump)
{
    QStringList lines;
    for (const auto& record : all)
        lines += dump(record);
    return lines.join(QLatin1Char('\n')).toUtf8();
}

QByteArray readDevices(QXmlStreamReader& reader)
{
    return records(parseUpsModelList(reader), [](const Ups& ups) { return QString::fromUtf8(makeXml(ups)); });
}

QByteArray readStatuses(QXmlStreamReader& reader)
{
    return records(XmlParser().parseUpsStatusList(reader), [](const currentDeviceStatus& row) {
        return fields(row.id, QString::fromStdString(row.status), int(row.connected), int(row.parallel_unit),
                      QString::fromStdString(row.unit_address), int(row.master), int(row.power_compensation),
                      int(row.output_socket1), int(row.output_socket2), int(row.ups_shutdown_supported));
    });
}

QByteArray readPorts(QXmlStreamReader& reader)
{
    return records(parseAvailablePorts(reader),
                   [](const SerialPort& port) { return fields(port.name, int(port.free)); });
}

QByteArray readSettings(QXmlStreamReader& reader)
{
    return makeXml(parseAppConfiguration(reader).get());
}

QByteArray readTestStatus(QXmlStreamReader& reader)
{
    int status = 99;
    QStringList messages{QStringLiteral("old")};
    XmlParser().parseSmtpTestStatus(reader, status, messages);
    return fields(status, messages.join(QLatin1Char(','))).toUtf8();
}

QByteArray readCountdown(QXmlStreamReader& reader)
{
    return records(XmlParser().parseCountdownTimer(reader),
                   [](const QPair<int, int>& timer) { return fields(timer.first, timer.second); });
}

QByteArray readGroups(QXmlStreamReader& reader)
{
    const auto groups = parseGroups(reader);
    return makeXml(&groups, QString());
}

QByteArray readEvents(QXmlStreamReader& reader)
{
    auto events = parseEvents(reader);
    return makeXml(&events, QString());
}

QByteArray readComputer(QXmlStreamReader& reader)
{
    const QVector<Computer> computers{parseComputers(reader)};
    return makeXml(&computers);
}

QByteArray within(const QByteArray& tag, const QByteArray& content)
{
    return '<' + tag + '>' + content + "</" + tag + '>';
}

// An element for each "tag=text" of `pairs`, which stand apart by '|'.
QByteArray elements(const QByteArray& pairs)
{
    QByteArray xml;
    for (const QByteArray& pair : pairs.split('|')) {
        const int equals = pair.indexOf('=');
        xml += within(pair.left(equals), pair.mid(equals + 1));
    }
    return xml;
}

QByteArray wholeEvent()
{
    return within(
        "event",
        elements(
            "event_state=s|expressionIn=a,&lt;,|expressionOut=b,&amp;,|event_number=2|event_parentId=9") +
            within("actions",
                   within("message_action", elements("message_text=a &amp; &quot;b&quot;")) +
                       within("syscommand_action",
                              elements("command_line=c &lt;|command_options=o|stanbyUps=1|delay_time=30")) +
                       within("poweroff_action", elements("type=reboot|stanbyUps=0|delay_time=40")) +
                       within("sendmail_action", elements("charCode=u&gt;|sender=&lt;f|subject=it&apos;s|"
                                                          "body=1\n2&amp;|receipent=&quot;r")) +
                       within("output_sock_action",
                              elements("first_sock_conf=0|first_sock_ena=1|first_sock_delay=5|second_sock_"
                                       "conf=1|second_sock_ena=0|second_sock_delay=6"))));
}

} // namespace

class XmlTest final : public QObject
{
    Q_OBJECT

private slots:
    void reads_data();
    void reads();
    void readsSwitchesAndWritesWhatIsNeverRead();
    void consumesEvents();
};

void XmlTest::reads_data()
{
    QTest::addColumn<Dump>("read");
    QTest::addColumn<QByteArray>("xml");
    QTest::addColumn<QByteArray>("expected");
    const auto row = [](const char* name, const Dump& read, const QByteArray& xml,
                        const QByteArray& expected) { QTest::newRow(name) << read << xml << expected; };
    const QByteArray shared =
        elements("communication=SNMP|com_port=p|ip=10.0.0.1|read=r|write=w|snmp_ver=1|serial_no=s|"
                 "log_file_size=5|log_time_interval=6");
    const QByteArray kept = elements("reset_events_request=0|user_defined_name=Zażółć & co");
    row("a device is closed by log_params, and what the next one omits it inherits, except phy_id; written "
        "unescaped",
        readDevices,
        within("ups_model_list", elements("model_name=M|id=1") + shared +
                                     elements("user_defined_name=Zażółć &amp; co|reset_events_request=1|"
                                              "phy_id=7|old_phy_id=8|log_params=3") +
                                     '\n' + elements("id=2|log_params=1|id=3")),
        elements("model_name=M|id=1") + shared + elements("log_params=3") + kept +
            elements("phy_id=7|phy_id=8") + '\n' + elements("model_name=M|id=2") + shared +
            elements("log_params=1") + kept);
    row("flat status rows are closed by their last element", readStatuses,
        within("ups_current_status_list",
               elements("id=1|status=on_battery|connected=1|parallel_unit=2|unit_address=ż|master=1|"
                        "power_compensation=1|output_socket1=1|output_socket2=1|ups_shutdown_supported=0|id="
                        "2|ups_shutdown_supported=1|id=3")),
        "1|on_battery|1|1|ż|1|1|1|1|0\n2||0|0||0|0|0|0|1");
    row("a wrapper called ups closes a second, empty row of the same id", readStatuses,
        within("ups_current_status_list", within("ups", elements("id=1|status=s|ups_shutdown_supported=0"))),
        "1|s|0|0||0|0|0|0|0\n1||0|0||0|0|0|0|1");
    row("ports are pairs of neighbours; one without its flag is dropped, the next one survives", readPorts,
        within("available_ports",
               elements("com_port0=/dev/"
                        "ttyS0|is_port_free0=1|com_port=lost|com_port=S1|is_port_free=2|com_port=indented") +
                   '\n' + elements("is_port_free=1|com_port=|is_port_free=1")),
        "/dev/ttyS0|1\nS1|0");
    const QByteArray mail =
        elements("smtp2_security_type=t&lt;s|smtp2_server=s&amp;amp;r|smtp2_port=25|smtp2_timeout=-1|"
                 "smtp2_sender_address=&quot;a&quot;@b|smtp2_authentication=1|smtp2_user=o&apos;neil|smtp2_"
                 "pass=a&gt;b");
    row("settings, all but the path of the panel, are written with the mail part escaped", readSettings,
        within("application_configuration",
               mail + elements("log_files_path=/&amp;|run_on_boot=0|control_panel_path=/p")),
        mail + elements("log_files_path=/&|run_on_boot=0|control_panel_path="));
    row("the outcome of a test mail", readTestStatus,
        within("smtp2_test_status", elements("msg_1=a|current_status=2|msg_2=b")), "2|a,b");
    row("timers; an id that is not repeated holds on", readCountdown,
        within("show_countdown", elements("timer_id=1|time=60|timer_id=2|time=-5|time=x")),
        "1|60\n2|-5\n2|0");
    const QByteArray members = "\n<group_configId>1</group_configId>\n" +
                               within("computers", within("computer", elements("computer_configId=3")) +
                                                       within("computer", elements("computer_configId=5"))) +
                               "</group>";
    row("groups, one cut short; the device's id is not read, names are written unescaped, with line feeds",
        readGroups,
        "<groups>" + elements("ups_id=7") + "<group><group_name>R&amp;D</group_name>" + members +
            "<group><group_name>",
        "<ups_id></ups_id><group><group_name>R&D</group_name>" + members);
    row("an event with every action, commands written unescaped, and one cut short", readEvents,
        "<events><ups_id>7</ups_id>" + wholeEvent() + "<event><actions><message_action>",
        "<ups_id></ups_id>" + wholeEvent().replace("c &lt;", "c <"));
    row("actions at any depth, absent fields at rest, no number is 0", readEvents,
        "<events><event><a><b>" + within("poweroff_action", elements("delay_time=x")) +
            "</b></a></event></events>",
        elements("ups_id=") +
            within("event",
                   elements("event_state=|expressionIn=|expressionOut=|event_number=0|event_parentId=0") +
                       within("actions",
                              within("poweroff_action", elements("type=|stanbyUps=0|delay_time=0")))));
    row("a computer, written unescaped", readComputer,
        within("computer",
               elements("computer_name=a&amp;b|computer_address=a|computer_password=p|computer_configId=4")),
        within("computer",
               elements("computer_name=a&b|computer_address=a|computer_password=p|computer_configId=4")));
}

void XmlTest::reads()
{
    QFETCH(Dump, read);
    QFETCH(QByteArray, xml);
    QFETCH(QByteArray, expected);
    QXmlStreamReader reader(QString::fromUtf8(xml));
    QVERIFY(reader.readNextStartElement());
    QCOMPARE(read(reader), expected);
}

void XmlTest::readsSwitchesAndWritesWhatIsNeverRead()
{
    const QByteArray emptySwitch = within("application_configuration", elements("smtp2_authentication="));
    QXmlStreamReader reader(QString::fromUtf8(emptySwitch));
    reader.readNextStartElement();
    const auto configuration = parseAppConfiguration(reader);
    QVERIFY(configuration->authentication && !configuration->run_on_boot);
    configuration->control_panel_path = QStringLiteral("/c<d");
    QVERIFY(makeXml(configuration.get()).endsWith("<control_panel_path>/c<d</control_panel_path>"));
    Ups ups;
    ups.reset_events_request = true;
    QVERIFY(makeXml(ups).contains("<reset_events_request>1</reset_events_request>"));
}

void XmlTest::consumesEvents()
{
    QXmlStreamReader reader(QString::fromUtf8(wholeEvent()));
    QVector<Event> events = parseEvents(reader);
    const Event original = events.constFirst();
    QVERIFY(!makeXml(&events, QString()).isEmpty());
    const Event& sent = events.constFirst();
    QVERIFY(!sent.messageAction && !sent.sysCommandAction && !sent.powerOffAction && !sent.sendMailAction);
    QCOMPARE(sent.outputSocketAction, original.outputSocketAction);
    QVERIFY(original.messageAction);
}

QTEST_APPLESS_MAIN(XmlTest)
#include "XmlTest.moc"
