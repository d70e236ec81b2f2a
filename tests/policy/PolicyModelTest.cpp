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

template <typename ActionType>
void addWith(const QString& delay, std::shared_ptr<ActionType>& slot, int ActionType::*field)
{
    bool given = false;
    const int seconds = delay.toInt(&given);
    if (!given)
        return;
    slot = std::make_shared<ActionType>();
    (*slot).*field = seconds;
}

constexpr char simple[] = "Quenta_USB";
constexpr char advanced[] = "Tarvex33_SNMP";

} // namespace

class PolicyModelTest final : public QObject
{
    Q_OBJECT

private slots:
    void workModesFollowTheModel();
    void savesAreRefused_data();
    void savesAreRefused();
    void editedEventSurvivesNewAnswers();
    void conditionsOfAnAdvancedDevice();
    void computersLeaveGroupsByTheButtonPressed();
    void addressesAndNamesAreJudged();
};

void PolicyModelTest::workModesFollowTheModel()
{
    QCOMPARE(workModeKeys(QStringLiteral("LumoPro_Rack_RS232")).size(), 3);
    const QStringList keys = workModeKeys(QStringLiteral("CormelJ_USB"));
    QCOMPARE(workMode(QStringLiteral("CormelJ_USB"), keys.at(2)).expressionOut,
             QStringLiteral("stateNormal,ON,==,stateAvrActive,ON,||,"));
}

void PolicyModelTest::savesAreRefused_data()
{
    using Verdict = EventVerdict;
    QTest::addColumn<QString>("model");
    QTest::addColumn<QString>("key");
    // Delays of command, shutdown and second socket; "-" for no such action, "?" for one without parameters.
    QTest::addColumn<QString>("actions");
    QTest::addColumn<int>("verdict");
    const auto row = [](const char* name, const char* model, const char* key, const char* actions,
                        Verdict verdict) { QTest::newRow(name) << model << key << actions << int(verdict); };
    row("the mode stands in another group", simple, "stateNormal", "- - -", Verdict::Accepted);
    row("the mode stands in the same group", simple, "stateAvrActive", "- - -", Verdict::Duplicate);
    row("the name stands in any group", advanced, "stateNormal", "- - -", Verdict::Duplicate);
    row("shutdown is looked at first", simple, "stateFault", "? ? ?", Verdict::NoShutdownParameters);
    row("then the command", simple, "stateFault", "? 60 ?", Verdict::NoCommandParameters);
    row("then the socket", simple, "stateFault", "60 60 ?", Verdict::NoSocketParameters);
    row("equal delays", simple, "stateFault", "60 60 -", Verdict::CommandNotBeforeShutdown);
    row("delays in order", simple, "stateFault", "59 60 0", Verdict::Accepted);
    row("socket too late", simple, "stateFault", "- 60 60", Verdict::SocketNotBeforeShutdown);
}

void PolicyModelTest::savesAreRefused()
{
    QFETCH(QString, model);
    QFETCH(QString, key);
    QFETCH(QString, actions);
    QFETCH(int, verdict);
    PolicyModel policy = modelOf(qPrintable(model));
    policy.setEvents({makeEvent("stateNormal", 4, 1), makeEvent("stateAvrActive", 9, 2)});
    policy.addEvent();
    Event& edited = *policy.editedEvent();
    QCOMPARE(edited.number, 10);
    const QStringList delays = actions.split(QLatin1Char(' '));
    addWith(delays.at(0), edited.sysCommandAction, &SysCommandAction::delay_time);
    addWith(delays.at(1), edited.powerOffAction, &PowerOffAction::delay_time);
    addWith(delays.at(2), edited.outputSocketAction, &OutputSocketControlAction::second_sock_delay);
    if (edited.outputSocketAction)
        edited.outputSocketAction->second_sock_conf = true;
    EventEntry said = entry(qPrintable(key), 2);
    said.systemCommand = delays.at(0) != QLatin1String("-");
    said.shutdownSystem = delays.at(1) != QLatin1String("-");
    said.outputSocket = delays.at(2) != QLatin1String("-");
    QCOMPARE(int(policy.saveEvent(said)), verdict);

    const bool accepted = verdict == int(EventVerdict::Accepted);
    const Event& saved = policy.events().constLast();
    QCOMPARE(policy.isEditing(), !accepted);
    QCOMPARE(saved.parentId, accepted ? 2 : 0);
    QCOMPARE(saved.state, verdict == int(EventVerdict::Duplicate) ? QString() : key);
    policy.cancelEvent();
    QCOMPARE(policy.events().size(), accepted ? 3 : 2);
}

void PolicyModelTest::editedEventSurvivesNewAnswers()
{
    for (const bool isNew : {true, false}) {
        PolicyModel policy = modelOf(simple);
        policy.setEvents({makeEvent("stateNormal", 1)});
        if (isNew)
            policy.addEvent();
        else
            QVERIFY(policy.editEvent(makeEvent("", 1)));
        policy.editedEvent()->messageAction = std::make_shared<MessageAction>();
        policy.setEvents(QVector<Event>(50, makeEvent("stateFault", isNew ? 2 : 1)));
        QCOMPARE(policy.events().size(), isNew ? 51 : 50);
        policy.setEvents({makeEvent("stateFault", 2)}); // without the edited one
        QCOMPARE(policy.events().size(), 2);
        QCOMPARE(policy.editedEvent()->number, isNew ? 3 : 1);
        QVERIFY(policy.editedEvent()->messageAction);
        QCOMPARE(policy.saveEvent(entry("stateAvrActive", 7)), EventVerdict::Accepted);
        QCOMPARE(policy.eventsOfGroup(7).size(), 1);
    }
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
    policy.setGroups({{QString(), {3, 1, 3}, 0}});
    policy.removeComputer(3);
    QCOMPARE(policy.group(0)->computers, (QVector<int>{1, 3}));
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
    QCOMPARE(checkGroupName(QStringLiteral("biuro"), taken), GroupNameVerdict::Accepted);
}

QTEST_APPLESS_MAIN(PolicyModelTest)
#include "PolicyModelTest.moc"
