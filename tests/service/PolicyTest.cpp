// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "service/policy/DeviceConditions.h"
#include "service/policy/PostfixExpression.h"
#include "support/InProcessService.h"

#include <QTest>

using namespace Velmora;
using namespace Velmora::Service;

namespace {

QByteArray verdict(const QString& expression, const DeviceConditions& conditions)
{
    const std::optional<PostfixExpression> parsed = PostfixExpression::parse(expression);
    return !parsed ? "bad" : (parsed->isTrue(conditions) ? "true" : "false");
}

constexpr const char* batteryEvent =
    "<event><event_state>b</event_state><expressionIn>stateBatteryBackup,ON,==,</expressionIn>"
    "<expressionOut>stateNormal,ON,==,</expressionOut><event_parentId>0</event_parentId><actions>"
    "<message_action><message_text>Lost, &lt;all&gt;\n</message_text></message_action>"
    "<poweroff_action><type>shutdown</type><stanbyUps>1</stanbyUps><delay_time>40</delay_time>"
    "</poweroff_action><output_sock_action><second_sock_conf>1</second_sock_conf>"
    "<second_sock_delay>39</second_sock_delay></output_sock_action><other_action/></actions></event>";

} // namespace

class PolicyTest final : public QObject
{
    Q_OBJECT

private slots:
    void conditionFollowsFromTheReport();
    void dueActionsAreLoggedAndLaterOnesCancelled();
};

void PolicyTest::conditionFollowsFromTheReport()
{
    const DeviceState report{true,
                             true,
                             {{QStringLiteral("device_status"), QStringLiteral("on_battery")},
                              {QStringLiteral("messages"), QStringLiteral("2\n5\n77\n131")},
                              {QStringLiteral("battery_capacity"), QStringLiteral("19")},
                              {QStringLiteral("autonomy_time"), QStringLiteral("12.5")},
                              {QStringLiteral("output_load"), QStringLiteral("10/20/30")}}};
    // Model, expression, outcome.
    const QVector<QByteArrayList> rows{
        {"TarvexRT_USB", "stateBatteryBackup,ON,==,", "true"},
        {"TarvexRT_USB", "stateNormal,OFF,==,stateBatteryBackup,OFF,==,&&,", "false"},
        {"Tarvex33_USB", "OFF,stateNormal,==,paramBatteryCapacity,20,<,&&,", "true"},
        {"Tarvex33_USB", "12.5,paramAutonomyTime,<=,", "true"},
        {"Tarvex33_USB", "paramOutputLoadL3,30,>=,paramOutputLoadL1,30,>=,!=,", "true"},
        {"Tarvex33_USB", "paramInputFreq,50,!=,", "false"}, // not reported
        {"CormelRT_SNMP", "messageBatteryLowLevel,ON,==,alarmLowBattery,ON,==,&&,", "true"},
        {"Cormel_USB", "stateBatteryLowLevel,ON,==,stateOverload,ON,==,&&,", "true"},
        {"Borel_SNMP", "alarmWrnFuelLevelAN,ON,==,alarmWrnFuelLevelN,OFF,==,&&,", "true"},
        {"Quenta_USB", " stateNormal , ON,==,,stateBatteryBackup,ON,==,||", "true"},
        {"Cormel_USB", "stateNormal,ON,==,stateBatteryBackup,ON,||,", "true"}, // without the second "=="
        {"Cormel_USB", "stateNormal,ON,==,stateAvrActive,ON,||,", "false"}};
    for (const QByteArrayList& row : rows) {
        const DeviceConditions conditions(QString::fromLatin1(row.at(0)), report);
        QCOMPARE(row.mid(0, 2) << verdict(QString::fromLatin1(row.at(1)), conditions), row);
    }
    for (const char* bad : {",", "ON,", "==,", "stateNormal,ON,", "stateNormal,==,ON,", "stateNormal,5,==,",
                            "stateNormal,ON,<,", "paramOutputLoad,ON,==,", "paramOutputLoad,nan,<,",
                            "paramOutputLoad,1,&&,", "nonsense,ON,==,"})
        QVERIFY2(!PostfixExpression::parse(QString::fromLatin1(bad)), bad);
    // Well-formed, but longer than what is evaluated each second.
    const QString start = QStringLiteral("stateNormal,OFF,==,");
    const QString more = start + QStringLiteral("&&,");
    QVERIFY(PostfixExpression::parse(start + more.repeated(10)));
    QVERIFY(!PostfixExpression::parse(start + more.repeated(1000)));
}

void PolicyTest::dueActionsAreLoggedAndLaterOnesCancelled()
{
    Tests::InProcessService service;
    const auto ask = [&service](const QByteArray& name, const QByteArray& body) {
        return service.ask('<' + name + '>' + service.pass() + body + "</" + name + '>').value(0);
    };
    // Each twice, one of them broken; mains fails from second 45 to 85.
    QByteArray events = "<event><expressionIn>nonsense</expressionIn></event>";
    events += batteryEvent;
    (void)ask("events", "<ups_id>2</ups_id>" + events + events);
    (void)ask("change_device_on_interface", "<id>2</id>");
    for (int i = 0; i < 50; ++i)
        (void)ask("clear_logs_cache", {}); // each takes two seconds
    QByteArrayList noted;
    for (const QByteArray& line : ask("get_ups_logs", "<type>messages</type>").split('>')) {
        if (line.contains(",b: "))
            noted += line.left(line.indexOf('<'));
    }
    QByteArrayList expected;
    for (const char* line :
         {"05:00:45,b: message &quot;Lost; &lt;all&gt; &quot; on Default", "05:01:24,b: output_socket 2 off",
          "05:01:25,b: cancelled power_off shutdown on Default"}) {
        const QByteArray whole = QByteArray("2026-03-04,") + line;
        expected << whole << whole;
    }
    QCOMPARE(noted, expected);
}

QTEST_GUILESS_MAIN(PolicyTest)
#include "PolicyTest.moc"
