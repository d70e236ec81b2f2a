// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "link/UpsSocketController.h"
#include "support/ScriptedService.h"

#include <QTest>

using namespace Velmora;
using Tests::ScriptedService;

namespace {

// Stands behind each tested document; its signal tells that all before it was handled.
const QByteArray lastDocument("<service_version>last</service_version>");
const QString lastSignal(QStringLiteral("serviceVersionReceived(last)"));

QString joined(const QMap<QString, QString>& map)
{
    QStringList entries;
    for (auto entry = map.cbegin(); entry != map.cend(); ++entry)
        entries += entry.key() + QLatin1Char('=') + entry.value();
    return entries.join(QLatin1Char(','));
}

template <typename Records, typename Name>
QString names(const Records& records, Name name)
{
    QStringList all;
    for (const auto& record : records)
        all += name(record);
    return all.join(QLatin1Char(','));
}

// Keeps every signal of a message as "name(arguments)".
class SignalLog final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(SignalLog)

public:
    explicit SignalLog(const UpsSocketController& link);
    ~SignalLog() override = default;

    QStringList entries;

private:
    template <typename... Arguments, typename Text>
    void keep(const UpsSocketController& link, void (UpsSocketController::*signal)(Arguments...),
              const char* name, Text text)
    {
        connect(&link, signal, this, [this, name, text](const Arguments&... arguments) {
            entries +=
                QLatin1String(name) + QLatin1Char('(') + QString(text(arguments...)) + QLatin1Char(')');
        });
    }
};

SignalLog::SignalLog(const UpsSocketController& link)
{
    using Link = UpsSocketController;
    const auto map = [](const QMap<QString, QString>& values) { return joined(values); };
    const auto text = [](const QString& value) { return value; };
    const auto flag = [](bool value) { return QString::number(int(value)); };
    const auto nothing = [] { return QString(); };
    const auto list = [](const auto& lines) {
        return names(lines, [](const QString& line) { return line; });
    };
    const auto named = [](const auto& all) { return names(all, [](const auto& one) { return one.name; }); };
    keep(link, &Link::dataFromUps, "dataFromUps", text);
    keep(link, &Link::upsDeviceState, "upsDeviceState", map);
    keep(link, &Link::upsConfiguration, "upsConfiguration", map);
    keep(link, &Link::showMessage, "showMessage", list);
    keep(link, &Link::discoveredComputer, "discoveredComputer", text);
    keep(link, &Link::smpt2TestStatus, "smpt2TestStatus", [list](int status, const QStringList& lines) {
        return QString(QString::number(status) + QLatin1Char(':') + list(lines));
    });
    keep(link, &Link::adminPassFromConfig, "adminPassFromConfig", text);
    keep(link, &Link::netclientPass, "netclientPass", text);
    keep(link, &Link::passwordChanged, "passwordChanged", nothing);
    keep(link, &Link::daemonIsBusy, "daemonIsBusy", flag);
    keep(link, &Link::upsLogs, "upsLogs", list);
    keep(link, &Link::debugModeEnabled, "debugModeEnabled", flag);
    keep(link, &Link::showCountdownTimer, "showCountdownTimer", [](const QList<QPair<int, int>>& timers) {
        return names(timers, [](const auto& timer) {
            return QString(QString::number(timer.first) + QLatin1Char('/') + QString::number(timer.second));
        });
    });
    keep(link, &Link::groupReceived, "groupReceived", named);
    keep(link, &Link::eventsReceived, "eventsReceived", [](const QVector<Event>& events) {
        return names(events, [](const Event& event) { return event.getState(); });
    });
    keep(link, &Link::allComputersReceived, "allComputersReceived", named);
    keep(link, &Link::appConfifuratioReceived, "appConfifuratioReceived",
         [](const Utils::ApplicationConfiguration& all) { return all.server; });
    keep(link, &Link::serviceVersionReceived, "serviceVersionReceived", text);
    keep(link, &Link::availablePortsReceived, "availablePortsReceived", named);
    keep(link, &Link::upsModelMessageReceived, "upsModelMessageReceived", [](const QVector<Utils::Ups>& all) {
        return names(all, [](const Utils::Ups& ups) { return ups.id; });
    });
    keep(link, &Link::upsCurrentStatusListReceived, "upsCurrentStatusListReceived",
         [](const QVector<Utils::currentDeviceStatus>& rows) {
             return names(rows, [](const auto& row) { return QString::number(row.id); });
         });
}

void addRow(const char* name, const QByteArray& document, const QByteArray& expected)
{
    QTest::newRow(name) << document
                        << QString::fromUtf8(expected).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

} // namespace

class DispatchTest final : public QObject
{
    Q_OBJECT

    void addKnownDocuments();
    void addStateDocuments();
    void addUnknownDocuments();
    void addTruncatedDocuments();

    ScriptedService m_service;
    std::unique_ptr<UpsSocketController> m_link;

private slots:
    void initTestCase();
    void emitsWhatADocumentSays_data();
    void emitsWhatADocumentSays();
    void emitsAgainWhatArrivesAgain();
    void abortsOnABadDocument_data();
    void abortsOnABadDocument();
};

void DispatchTest::initTestCase()
{
    QVERIFY(m_service.start());
    m_link = std::make_unique<UpsSocketController>();
    m_link->setServerAddress(ScriptedService::testAddress());
    m_link->connectToServer();
    QVERIFY(m_service.waitForRequest("get_ups_configuration"));
}

void DispatchTest::addKnownDocuments()
{
    addRow("messages to show", "<show_message><message>a</message><message>b</message></show_message>",
           "showMessage(a,b)");
    addRow("a discovered computer", "<discovered_message>10.0.0.9</discovered_message>",
           "discoveredComputer(10.0.0.9)");
    addRow("the outcome of a test mail",
           "<smtp2_test_status><current_status>1</current_status><msg_1>ok</msg_1></smtp2_test_status>",
           "smpt2TestStatus(1:ok)");
    addRow("the administrator's password", "<get_password>abc</get_password>", "adminPassFromConfig(abc)");
    addRow("an empty password is announced once", "<get_password></get_password>", "adminPassFromConfig()");
    addRow("a client's password", "<netclient_password>x&amp;y</netclient_password>", "netclientPass(x&y)");
    addRow("a client's password was changed", "<netclient_password_changed/>", "passwordChanged()");
    addRow("the administrator's password was changed", "<admin_password_changed/>", "passwordChanged()");
    addRow(
        "groups",
        "<groups><group><group_name>a</group_name></group><group><group_name>b</group_name></group></groups>",
        "groupReceived(a,b)");
    addRow("no groups", "<groups/>", "groupReceived()");
    addRow("events",
           "<events><event><event_state>a</event_state><actions><message_action/></actions></event></events>",
           "eventsReceived(a)");
    addRow("every computer, with nothing between them",
           "<all_computers><computer><computer_name>a</computer_name></computer><computer><computer_name>b"
           "</computer_name></computer></all_computers>",
           "allComputersReceived(a,b)");
    addRow("every computer, line by line",
           "<all_computers>\n<computer>\n<computer_name>a</computer_name>\n</computer>\n<computer>\n"
           "<computer_name>b</computer_name>\n</computer>\n</all_computers>\n",
           "allComputersReceived(a,b)");
    addRow("no computer", "<all_computers/>", "allComputersReceived()");
    addRow("the service's settings",
           "<application_configuration><smtp2_server>h</smtp2_server></application_configuration>",
           "appConfifuratioReceived(h)");
    addRow("the service's version", "<service_version>2.5.1</service_version>",
           "serviceVersionReceived(2.5.1)");
    addRow("ports",
           "<available_ports><com_port>S0</com_port><is_port_free>1</is_port_free></available_ports>",
           "availablePortsReceived(S0)");
    addRow("devices",
           "<ups_model_list><id>1</id><log_params>1</log_params><id>2</id><log_params>1</log_params></"
           "ups_model_list>",
           "upsModelMessageReceived(1,2)");
    addRow("no device", "<ups_model_list></ups_model_list>", "upsModelMessageReceived()");
    addRow("statuses",
           "<ups_current_status_list><id>4</id><ups_shutdown_supported>1</ups_shutdown_supported></"
           "ups_current_status_list>",
           "upsCurrentStatusListReceived(4)");
    addRow("the service is busy", "<daemon_is_busy/>", "daemonIsBusy(1)");
    addRow("the service is ready, behind a declaration",
           "<?xml version=\"1.0\"?>\n<daemon_is_ready></daemon_is_ready>\n", "daemonIsBusy(0)");
    addRow("log lines", "<ups_logs><log_1>a;b</log_1><log_2>c</log_2></ups_logs>", "upsLogs(a;b,c)");
    addRow("debugging is on", "<debugging_enabled/>", "debugModeEnabled(1)");
    addRow("debugging is off", "<debugging_disabled/>", "debugModeEnabled(0)");
    addRow("timers", "<show_countdown><timer_id>1</timer_id><time>60</time></show_countdown>",
           "showCountdownTimer(1/60)");
}

void DispatchTest::addStateDocuments()
{
    const char* state = "upsDeviceState(a=x / y,events=1;2,isProperDevice=1,isUpsFound=1)";
    addRow("a state, with nothing between its values",
           "<ups_device_state isUpsFound=\"1\" isProperDevice=\"1\"><a>x;y</a><events>1;2</events><b></b>"
           "</ups_device_state>",
           state);
    addRow("a state, line by line",
           "<ups_device_state isUpsFound=\"1\" "
           "isProperDevice=\"1\">\n<a>x;y</a>\n<events>1;2</events>\n<b></b>\n"
           "</ups_device_state>\n",
           state);
    addRow("a state without attributes has both keys all the same",
           "<ups_device_state><a>1</a></ups_device_state>",
           "upsDeviceState(a=1,isProperDevice=,isUpsFound=)");
    addRow("a state cut short says what came", "<ups_device_state isUpsFound=\"1\"><a>1</a><b>2</b><c",
           "upsDeviceState(a=1,b=2,isProperDevice=,isUpsFound=1)");
    addRow("an empty state", "<ups_device_state/>", "upsDeviceState(isProperDevice=,isUpsFound=)");
    addRow("a configuration keeps its semicolons",
           "<ups_configuration isUpsFound=\"1\"><a>1;2</a><b></b><c>ż</c></ups_configuration>",
           "upsConfiguration(a=1;2,c=ż)");
    addRow("an empty configuration", "<ups_configuration></ups_configuration>", "upsConfiguration()");
}

void DispatchTest::addUnknownDocuments()
{
    addRow("an unknown root", "<foo/>", "dataFromUps(foo)");
    addRow("an unknown root with a text", "<foo>text</foo>", "dataFromUps(foo)");
    addRow("an unknown root with a child", "<foo><a>1</a></foo>", "dataFromUps(foo)\ndataFromUps()");
    addRow("names are compared by case", "<Daemon_Is_Busy/>", "dataFromUps(Daemon_Is_Busy)");
    addRow("the end of a known root is no second message", "<daemon_is_busy><pass></pass></daemon_is_busy>",
           "daemonIsBusy(1)\ndataFromUps(daemon_is_busy)");
    addRow("a comment before the root hides it", "<!-- c --><daemon_is_busy/>", "dataFromUps()");
    addRow("so does a document type, with its entities that would expand for ever",
           "<!DOCTYPE a [<!ENTITY a \"&b;&b;\"><!ENTITY b \"&a;&a;\">]><daemon_is_busy>&a;</daemon_is_busy>",
           "dataFromUps()");
    addRow("a declared encoding does not count", "<?xml version=\"1.0\" encoding=\"ISO-8859-2\"?><foż/>",
           "dataFromUps(foż)");
    addRow("invalid UTF-8 reads as replacement characters", "<service_version>\xFF</service_version>",
           "serviceVersionReceived(\uFFFD)");
    addRow("characters beyond the basic plane", "<service_version>😀</service_version>",
           "serviceVersionReceived(😀)");
    addRow("a text of 40 kB is one text", "<service_version>" + QByteArray(40000, 'x') + "</service_version>",
           "serviceVersionReceived(" + QByteArray(40000, 'x') + ')');
}

void DispatchTest::addTruncatedDocuments()
{
    addRow("a known root alone", "<daemon_is_busy>", "daemonIsBusy(1)");
    addRow("three bytes that start an unknown one", "<a>", "dataFromUps(a)");
    addRow("devices, the last one cut", "<ups_model_list><id>1</id><log_params>1</log_params><id>2</id>",
           "upsModelMessageReceived(1)");
    addRow("groups, the last one cut",
           "<groups><group><group_name>a</group_name></group><group><group_name>b</group_name>",
           "groupReceived(a)");
    addRow("events, cut within an action",
           "<events><event><event_state>a</event_state><actions><message_action>", "eventsReceived()");
    addRow("computers, cut, say nothing",
           "<all_computers><computer><computer_name>a</computer_name></computer>", "");
    addRow("statuses, cut", "<ups_current_status_list><id>4</id>", "upsCurrentStatusListReceived()");
    addRow("ports, cut", "<available_ports><com_port>S0</com_port>", "availablePortsReceived()");
    addRow("log lines, cut", "<ups_logs><log_1>a</log_1><log_2>b</log_2>", "upsLogs(a,b)");
    addRow("messages, cut", "<show_message><message>a</message>", "showMessage(a)");
    addRow("timers, cut", "<show_countdown><timer_id>1</timer_id><time>60</time><timer_id>2",
           "showCountdownTimer(1/60)");
    addRow("a broken tail", "<service_version>1</service_version><<<", "serviceVersionReceived(1)");
}

void DispatchTest::emitsWhatADocumentSays_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::addColumn<QStringList>("expected");
    addKnownDocuments();
    addStateDocuments();
    addUnknownDocuments();
    addTruncatedDocuments();
}

void DispatchTest::emitsWhatADocumentSays()
{
    QFETCH(QByteArray, document);
    QFETCH(QStringList, expected);
    const int connections = m_service.connectionCount();
    SignalLog log(*m_link);
    m_service.send(document);
    m_service.send(lastDocument);
    QTRY_VERIFY(log.entries.endsWith(lastSignal));
    QCOMPARE(log.entries, expected + QStringList{lastSignal});
    QCOMPARE(m_service.connectionCount(), connections);
}

void DispatchTest::emitsAgainWhatArrivesAgain()
{
    const QByteArray one("<ups_device_state isUpsFound=\"1\"><a>1</a></ups_device_state>");
    const QByteArray two("<ups_device_state isUpsFound=\"1\"><a>2</a></ups_device_state>");
    const QByteArray configuration("<ups_configuration><a>1</a></ups_configuration>");
    SignalLog log(*m_link);
    m_service.sendTogether({one, one, configuration, two, configuration, one, lastDocument});
    QTRY_VERIFY(log.entries.endsWith(lastSignal));
    const QString state = QStringLiteral("upsDeviceState(a=%1,isProperDevice=,isUpsFound=1)");
    const QString configured = QStringLiteral("upsConfiguration(a=1)");
    QCOMPARE(log.entries, (QStringList{state.arg(1), state.arg(1), configured, state.arg(2), configured,
                                       state.arg(1), lastSignal}));
}

void DispatchTest::abortsOnABadDocument_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::newRow("an empty one") << QByteArray();
    QTest::newRow("no XML") << QByteArray("garbage");
    QTest::newRow("an unfinished tag") << QByteArray("<daemon_is_busy");
}

void DispatchTest::abortsOnABadDocument()
{
    QFETCH(QByteArray, document);
    const int connections = m_service.connectionCount();
    SignalLog log(*m_link);
    m_service.clearRequests();
    m_service.sendTogether({document, lastDocument});
    QVERIFY(m_service.waitForConnections(connections + 1));
    QVERIFY(m_service.waitForRequest("get_ups_model_list"));
    QCOMPARE(log.entries, QStringList());
}

QTEST_GUILESS_MAIN(DispatchTest)
#include "DispatchTest.moc"
