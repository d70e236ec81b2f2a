// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "policy/core/PolicyModel.h"
#include "policy/core/NetworkRules.h"
#include "policy/core/WorkModeTable.h"

#include <QTest>

using namespace Velmora;

namespace {

PolicyModel modelOf(const char* configName)
{
    Utils::Ups device;
    device.model_name = QLatin1String(configName);
    device.output_socket1 = true;
    return PolicyModel(device);
}

Event makeEvent(const char* state, int number, int parentId = 0)
{
    Event event;
    event.state = QString::fromUtf8(state);
    event.expressionIn = event.state + QLatin1String(" in");
    event.expressionOut = event.state + QLatin1String(" out");
    event.number = number;
    event.parentId = parentId;
    return event;
}

EventEntry entry(const char* key, int groupId)
{
    EventEntry entry;
    entry.key = QString::fromUtf8(key);
    entry.groupId = groupId;
    return entry;
}

constexpr char simple[] = "Quenta_USB";
constexpr char advanced[] = "Tarvex33_SNMP";

} // namespace

class PolicyModelTest final : public QObject
{
    Q_OBJECT

private slots:
    void workModesFollowTheModel_data();
    void workModesFollowTheModel();
    void savesAreRefused_data();
    void savesAreRefused();
    void editedEventSurvivesNewAnswers_data();
    void editedEventSurvivesNewAnswers();
    void conditionsOfAnAdvancedDevice();
    void computersLeaveGroupsByTheButtonPressed();
    void addressesAndNamesAreJudged();
};

void PolicyModelTest::workModesFollowTheModel_data()
{
    QTest::addColumn<QString>("keys");
    QTest::addColumn<QString>("lowBatteryEnds");
    const char usual[] = "stateNormal,ON,==,";
    QTest::newRow("Fenna_USB") << "Normal BatteryBackup BatteryLowLevel NoCommunication" << usual;
    QTest::newRow("LumoPro_Rack_RS232") << "Normal BatteryBackup BatteryLowLevel" << usual;
    QTest::newRow("Quenta_USB") << "Normal BatteryBackup BatteryLowLevel NoCommunication AvrActive Fault"
                                << usual;
    const char cormel[] = "Normal BatteryBackup BatteryLowLevel Overload Shortcut AvrActive NoCommunication";
    QTest::newRow("Cormel_HID_USB") << cormel << usual;
    QTest::newRow("CormelJ_USB") << cormel << "stateNormal,ON,==,stateAvrActive,ON,||,";
}

void PolicyModelTest::workModesFollowTheModel()
{
    QFETCH(QString, keys);
    const QString model = QLatin1String(QTest::currentDataTag());
    QStringList expected = keys.split(QLatin1Char(' '));
    for (QString& key : expected)
        key.prepend(QLatin1String("state"));
    QCOMPARE(workModeKeys(model), expected);
    for (const QString& key : qAsConst(expected))
        QVERIFY(workMode(model, key).label != key);
    QTEST(workMode(model, expected.at(2)).expressionOut, "lowBatteryEnds");
}

void PolicyModelTest::savesAreRefused_data()
{
    using Verdict = EventVerdict;
    QTest::addColumn<QString>("model");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("boxes");  // m, c, e, s, o: message, command, email, shutdown, socket
    QTest::addColumn<QString>("delays"); // of the actions that have parameters: c, s, 1, 2 and a number
    QTest::addColumn<int>("verdict");
    const auto row = [](const char* name, const char* model, const char* key, const char* boxes,
                        const char* delays, Verdict verdict) {
        QTest::newRow(name) << model << key << boxes << delays << int(verdict);
    };
    row("nothing but a message", simple, "stateFault", "m", "", Verdict::Accepted);
    row("the mode stands in another group", simple, "stateNormal", "", "", Verdict::Accepted);
    row("the mode stands in the same group", simple, "stateAvrActive", "", "", Verdict::Duplicate);
    row("the name stands in any group", advanced, "stateNormal", "", "", Verdict::Duplicate);
    row("shutdown comes before command", simple, "stateFault", "cs", "", Verdict::NoShutdownParameters);
    row("command comes before e-mail", simple, "stateFault", "ce", "", Verdict::NoCommandParameters);
    row("e-mail comes before socket", simple, "stateFault", "eo", "", Verdict::NoEmailParameters);
    row("socket", simple, "stateFault", "o", "", Verdict::NoSocketParameters);
    row("equal delays", simple, "stateFault", "cs", "c60 s60", Verdict::CommandNotBeforeShutdown);
    row("command in time", simple, "stateFault", "cs", "c59 s60", Verdict::Accepted);
    row("command unchecked", simple, "stateFault", "s", "c60 s60", Verdict::Accepted);
    row("second socket too late", simple, "stateFault", "so", "s60 260", Verdict::SocketNotBeforeShutdown);
    row("socket that takes no part", simple, "stateFault", "so", "s60 x60", Verdict::Accepted);
}

void PolicyModelTest::savesAreRefused()
{
    QFETCH(QString, model);
    QFETCH(QString, key);
    QFETCH(QString, boxes);
    QFETCH(QString, delays);
    QFETCH(int, verdict);
    PolicyModel policy = modelOf(qPrintable(model));
    policy.setEvents({makeEvent("stateNormal", 4, 1), makeEvent("stateAvrActive", 9, 2)});
    policy.addEvent();
    Event& edited = *policy.editedEvent();
    QCOMPARE(edited.number, 10);
    for (const QString& delay : delays.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        const int seconds = delay.midRef(1).toInt();
        if (delay.startsWith(QLatin1Char('c'))) {
            edited.sysCommandAction = std::make_shared<SysCommandAction>();
            edited.sysCommandAction->delay_time = seconds;
        } else if (delay.startsWith(QLatin1Char('s'))) {
            edited.powerOffAction = std::make_shared<PowerOffAction>();
            edited.powerOffAction->delay_time = seconds;
        } else {
            edited.outputSocketAction = std::make_shared<OutputSocketControlAction>();
            edited.outputSocketAction->second_sock_conf = delay.startsWith(QLatin1Char('2'));
            edited.outputSocketAction->second_sock_delay = seconds;
        }
    }
    EventEntry said = entry(qPrintable(key), 2);
    said.showMessage = boxes.contains(QLatin1Char('m'));
    said.message = QStringLiteral("text");
    said.systemCommand = boxes.contains(QLatin1Char('c'));
    said.sendEmail = boxes.contains(QLatin1Char('e'));
    said.shutdownSystem = boxes.contains(QLatin1Char('s'));
    said.outputSocket = boxes.contains(QLatin1Char('o'));
    QCOMPARE(int(policy.saveEvent(said)), verdict);

    const bool accepted = verdict == int(EventVerdict::Accepted);
    const Event& saved = policy.events().constLast();
    QCOMPARE(policy.isEditing(), !accepted);
    QCOMPARE(saved.parentId, accepted ? 2 : 0);
    QCOMPARE(saved.messageAction != nullptr, said.showMessage);
    QCOMPARE(saved.state, verdict == int(EventVerdict::Duplicate) ? QString() : key);
    if (accepted) // an event saved as it is does not stand in its own way
        QVERIFY(policy.editEvent(saved) && policy.saveEvent(said) == EventVerdict::Accepted);
    policy.cancelEvent();
    QCOMPARE(policy.events().size(), accepted ? 3 : 2);
}

void PolicyModelTest::editedEventSurvivesNewAnswers_data()
{
    QTest::addColumn<bool>("isNew");
    QTest::addColumn<bool>("sentAgain");
    QTest::newRow("a new event") << true << true;
    QTest::newRow("an event that is sent again") << false << true;
    QTest::newRow("an event that is gone") << false << false;
}

void PolicyModelTest::editedEventSurvivesNewAnswers()
{
    QFETCH(bool, isNew);
    QFETCH(bool, sentAgain);
    PolicyModel policy = modelOf(simple);
    policy.setEvents({makeEvent("stateNormal", 1)});
    if (isNew)
        policy.addEvent();
    else
        QVERIFY(policy.editEvent(makeEvent("", 1)));
    policy.editedEvent()->messageAction = std::make_shared<MessageAction>();
    for (const int count : {1, 50}) {
        QVector<Event> answer;
        for (int i = 0; i < count; ++i)
            answer.append(makeEvent("stateFault", sentAgain ? i + 1 : i + 100, i));
        policy.setEvents(answer);
        QCOMPARE(policy.events().size(), count + (isNew || !sentAgain ? 1 : 0));
        QVERIFY(policy.editedEvent()->messageAction);
        QCOMPARE(policy.editedEvent()->number, isNew ? count + 1 : 1);
    }
    QCOMPARE(policy.saveEvent(entry("stateAvrActive", 7)), EventVerdict::Accepted);
    QCOMPARE(policy.eventsOfGroup(7).size(), 2); // one of the answer
}

void PolicyModelTest::conditionsOfAnAdvancedDevice()
{
    const QString prefix = QStringLiteral("Zdarzenie ");
    PolicyModel policy = modelOf(advanced);
    policy.setEvents({makeEvent("Zdarzenie 2", 1), makeEvent("Zdarzenie 1", 2)});
    policy.addEvent();
    // One pass: the number that it proposes is taken.
    QCOMPARE(policy.expressionsToEdit(QStringLiteral("?"), prefix), QStringList(prefix + QLatin1Char('2')));
    QCOMPARE(policy.expressionsToEdit(QStringLiteral("Zdarzenie 1"), prefix),
             (QStringList{prefix + QLatin1Char('2'), QStringLiteral("Zdarzenie 1 in"),
                          QStringLiteral("Zdarzenie 1 out")}));
    policy.cancelEvent();
    QCOMPARE(policy.events().size(), 2);
    // Cancelling brings back conditions but no actions.
    QVERIFY(policy.editEvent(policy.events().at(1)));
    (void)policy.expressionsToEdit(QStringLiteral("Zdarzenie 1"), prefix);
    policy.storeExpressions({QStringLiteral("C"), QStringLiteral("x"), QStringLiteral("y")});
    policy.editedEvent()->powerOffAction = std::make_shared<PowerOffAction>();
    policy.cancelEvent();
    QCOMPARE(policy.events().at(1).state, QStringLiteral("Zdarzenie 1"));
    QCOMPARE(policy.events().at(1).expressionOut, QStringLiteral("Zdarzenie 1 out"));
    QVERIFY(policy.events().at(1).powerOffAction);
}

void PolicyModelTest::computersLeaveGroupsByTheButtonPressed()
{
    PolicyModel policy = modelOf(simple);
    policy.setComputers({{}, {}});
    Group group;
    group.name = QStringLiteral("A");
    group.computers = {3, 1, 3, 4};
    policy.setGroups({group});
    QVERIFY(!policy.isComplete());
    QCOMPARE(policy.addToGroup(QStringLiteral("A"), 4), Membership::AlreadyMember);
    QCOMPARE(policy.addToGroup(QStringLiteral("B"), 4), Membership::NoSuchGroup);
    policy.removeComputer(3);
    QCOMPARE(policy.group(0)->computers, (QVector<int>{1, 3, 4}));
    policy.setGroupMembers(0, {3, 1, 3});
    policy.removeFromGroup(0, 3);
    QCOMPARE(policy.group(0)->computers, QVector<int>{1});
}

void PolicyModelTest::addressesAndNamesAreJudged()
{
    const QString service = QStringLiteral("ups.example.com");
    for (const char* local : {"127.0.0.1", "localhost", "ups.example.com"})
        QCOMPARE(shownAddress(QLatin1String(local), service), service);
    QVERIFY(!isLocalAddress(QStringLiteral("LOCALHOST"), service));
    QCOMPARE(addressWithoutPort(QStringLiteral("192.0.2.7:1234")), QStringLiteral("192.0.2.7"));
    QVERIFY(isDefaultGroup(QStringLiteral("default office (3)")));
    const QStringList taken{QStringLiteral("Biuro")};
    for (const char* broken : {"a&b", "a\"", "'", "<", ">"})
        QCOMPARE(checkGroupName(QLatin1String(broken), taken), GroupNameVerdict::ForbiddenCharacter);
    QCOMPARE(checkGroupName(taken.constFirst(), taken), GroupNameVerdict::Taken);
    QCOMPARE(checkGroupName(QStringLiteral("biuro"), taken), GroupNameVerdict::Accepted);
}

QTEST_APPLESS_MAIN(PolicyModelTest)
#include "PolicyModelTest.moc"
