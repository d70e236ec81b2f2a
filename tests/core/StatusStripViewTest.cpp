// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "monitor/core/StatusStripView.h"
#include "monitor/core/IndicatorNames.h"
#include "monitor/core/PanelIdentity.h"
#include "monitor/core/ShutdownTimersData.h"

#include <QTest>

using namespace Velmora;

Q_DECLARE_METATYPE(Velmora::VLStatusConnectionState)
Q_DECLARE_METATYPE(Velmora::StatusIcon)
Q_DECLARE_METATYPE(Velmora::CountdownOutcome)

namespace {

using State = VLStatusConnectionState;
using Timers = QList<QPair<int, int>>;

} // namespace

class StatusStripViewTest final : public QObject
{
    Q_OBJECT

private slots:
    void serviceLines_data();
    void serviceLines();
    void deviceStateUnderAService();
    void powerOff();
    void announcements_data();
    void announcements();
    void indicators();
};

void StatusStripViewTest::serviceLines_data()
{
    QTest::addColumn<State>("state");
    QTest::addColumn<QString>("version");
    QTest::addColumn<StatusIcon>("icon");
    QTest::addColumn<QString>("note");
    const auto row = [](const char* sentence, State state, const QString& version, StatusIcon icon,
                        const QString& note) { QTest::newRow(sentence) << state << version << icon << note; };
    const QString own = panelVersion();
    const QString differs = QStringLiteral("Niezgodna wersja usługi");
    const QString other = QStringLiteral("2.5.1b");
    row("connecting says nothing of versions", State::Connecting, {}, StatusIcon::Spinner, {});
    row("connected to the same version", State::Connected, own, StatusIcon::Ok, {});
    row("connected to another version", State::Connected, other, StatusIcon::Warning,
        differs + QLatin1String(" (v. 2.5.1b)"));
    row("connected, version not told yet", State::Connected, {}, StatusIcon::Warning, differs);
    row("nothing to show yet", State::Initial, own, StatusIcon::None, {});
}

void StatusStripViewTest::serviceLines()
{
    QFETCH(State, state);
    QFETCH(QString, version);
    const ServiceStatusView view = serviceStatusView(state, QStringLiteral("host"), version);
    QTEST(view.icon, "icon");
    QTEST(view.note, "note");
    QCOMPARE(view.title.isEmpty(), state == State::Initial);
    QCOMPARE(view.address.isEmpty(), state == State::Initial);
    QCOMPARE(view.noteStyle.isEmpty(), view.note.isEmpty());
}

void StatusStripViewTest::deviceStateUnderAService()
{
    QVERIFY(shownDeviceState(State::Connected, State::Disconnected) == State::Disconnected);
    QVERIFY(shownDeviceState(State::Connecting, State::Connected) == State::Connecting);
    QVERIFY(shownDeviceState(State::Initial, State::Disconnected) == State::Initial);
    QVERIFY(shownDeviceState(State::Disconnected, State::Connected) == State::Unknown);
}

void StatusStripViewTest::powerOff()
{
    QCOMPARE(shownPowerOffSeconds(State::Connecting, 30), 0);
    QCOMPARE(shownPowerOffSeconds(State::Connected, 30), 30);
    QCOMPARE(shownPowerOffSeconds(State::Connected, -1), 0);
    QCOMPARE(powerOffText(30), QStringLiteral("Wyłączenie za 30 s"));
    QCOMPARE(powerOffText(0), QString());
}

void StatusStripViewTest::announcements_data()
{
    QTest::addColumn<Timers>("announced");
    QTest::addColumn<CountdownOutcome>("outcome");
    QTest::addColumn<int>("nextTick"); // with timers 2 of 50 s and 9 of 90 s already running
    const auto row = [](const char* sentence, const Timers& announced, CountdownOutcome outcome, int next) {
        QTest::newRow(sentence) << announced << outcome << next;
    };
    row("an empty announcement cancels", {}, CountdownOutcome::Cancel, 49);
    row("new timers start the clock", {{1, 30}, {3, 40}}, CountdownOutcome::TickStart, 29);
    row("a known timer is not shortened", {{2, 10}}, CountdownOutcome::TickStart, 49);
    row("a withdrawn timer ends the announcement", {{1, 70}, {2, -1}, {3, 40}}, CountdownOutcome::Leave, 69);
    row("a timer unknown is withdrawn in vain", {{7, -1}}, CountdownOutcome::Leave, 49);
    row("zero seconds are a shutdown, not a withdrawal", {{1, 0}}, CountdownOutcome::TickStart, -1);
}

void StatusStripViewTest::announcements()
{
    QFETCH(Timers, announced);
    ShutdownTimersData timers;
    timers.addTimer({2, 50});
    timers.addTimer({9, 90});
    QTEST(takeCountdown(timers, announced), "outcome");
    QTEST(timers.tickTimers(), "nextTick");
}

void StatusStripViewTest::indicators()
{
    const auto name = [](const char* status, bool master) {
        return indicatorPath(status, master).section(QLatin1Char('/'), -1);
    };
    QCOMPARE(name("on_power_line", true), QStringLiteral("green_m.png"));
    QCOMPARE(name("genset_on", false), QStringLiteral("green.png"));
    // A genset that leads is orange whether it runs or rests, like any word that is not known.
    for (const char* status : {"genset_on", "genset_off", "overload", "", "Unknown"})
        QCOMPARE(name(status, true), QStringLiteral("orange_m.png"));
    QCOMPARE(name("overload", false), QStringLiteral("orange.png"));
}

QTEST_GUILESS_MAIN(StatusStripViewTest)

#include "StatusStripViewTest.moc"
