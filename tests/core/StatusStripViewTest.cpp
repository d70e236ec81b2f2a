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
    void deviceStateUnderAService_data();
    void deviceStateUnderAService();
    void unknownDeviceReadsLikeAConnectingOne();
    void powerOff();
    void timersKeepTheFirstValueOfAnId();
    void announcements_data();
    void announcements();
    void indicators_data();
    void indicators();
};

void StatusStripViewTest::serviceLines_data()
{
    QTest::addColumn<State>("state");
    QTest::addColumn<QString>("version");
    QTest::addColumn<StatusIcon>("icon");
    QTest::addColumn<QString>("titleStyle");
    QTest::addColumn<QString>("address");
    QTest::addColumn<QString>("note");
    const QString own = panelVersion();
    const QString address = QStringLiteral("host");
    const QString normal = QStringLiteral("color: #59595B; font: bold;");
    const QString differs = QStringLiteral("Niezgodna wersja usługi");
    QTest::newRow("connecting says nothing of versions")
        << State::Connecting << QString() << StatusIcon::Spinner
        << QStringLiteral("color: #FF6600; font: bold;") << address << QString();
    QTest::newRow("connected to the same version")
        << State::Connected << own << StatusIcon::Ok << normal << address << QString();
    QTest::newRow("connected to another version")
        << State::Connected << QStringLiteral("2.5.1b") << StatusIcon::Warning << normal << address
        << QString(differs + QLatin1String(" (v. 2.5.1b)"));
    QTest::newRow("connected, version not told yet")
        << State::Connected << QString() << StatusIcon::Warning << normal << address << differs;
    QTest::newRow("disconnected") << State::Disconnected << QStringLiteral("1") << StatusIcon::Error
                                  << QStringLiteral("color: #de1414; font: bold;") << address << QString();
    QTest::newRow("nothing to show yet")
        << State::Initial << own << StatusIcon::None << QString() << QString() << QString();
}

void StatusStripViewTest::serviceLines()
{
    QFETCH(State, state);
    QFETCH(QString, version);
    const ServiceStatusView view = serviceStatusView(state, QStringLiteral("host"), version);
    QTEST(view.icon, "icon");
    QTEST(view.titleStyle, "titleStyle");
    QTEST(view.address, "address");
    QTEST(view.note, "note");
    QCOMPARE(view.title.isEmpty(), state == State::Initial);
    QCOMPARE(view.noteStyle.isEmpty(), view.note.isEmpty());
}

void StatusStripViewTest::deviceStateUnderAService_data()
{
    QTest::addColumn<State>("service");
    QTest::addColumn<State>("device");
    QTest::addColumn<State>("shown");
    QTest::newRow("a connected service tells")
        << State::Connected << State::Disconnected << State::Disconnected;
    QTest::newRow("connecting hides what was known")
        << State::Connecting << State::Connected << State::Connecting;
    QTest::newRow("nothing shown of either at start")
        << State::Initial << State::Disconnected << State::Initial;
    QTest::newRow("a lost service knows nothing")
        << State::Disconnected << State::Connected << State::Unknown;
}

void StatusStripViewTest::deviceStateUnderAService()
{
    QFETCH(State, service);
    QFETCH(State, device);
    QTEST(shownDeviceState(service, device), "shown");
}

void StatusStripViewTest::unknownDeviceReadsLikeAConnectingOne()
{
    const DeviceStatusView unknown = deviceStatusView(State::Unknown, VLDeviceType::Genset);
    QCOMPARE(unknown.text, QStringLiteral("Komunikacja z agregatem\nnieznana"));
    QCOMPARE(unknown.text, deviceStatusView(State::Connecting, VLDeviceType::Genset).text);
    QCOMPARE(unknown.icon, StatusIcon::Unknown);
    QVERIFY(!deviceStatusView(State::Initial, VLDeviceType::Genset).style.has_value());
}

void StatusStripViewTest::powerOff()
{
    QCOMPARE(shownPowerOffSeconds(State::Connecting, 30), 0);
    QCOMPARE(shownPowerOffSeconds(State::Connected, 30), 30);
    QCOMPARE(shownPowerOffSeconds(State::Connected, -1), 0);
    QCOMPARE(powerOffText(30), QStringLiteral("Wyłączenie za 30 s"));
    QCOMPARE(powerOffText(0), QString());
}

void StatusStripViewTest::timersKeepTheFirstValueOfAnId()
{
    ShutdownTimersData timers;
    QCOMPARE(timers.tickTimers(), 0);
    timers.addTimer({1, 30});
    timers.addTimer({2, 20});
    timers.addTimer({1, 5});
    QCOMPARE(timers.tickTimers(), 19);
    timers.removeTimer(7);
    timers.removeTimer(2);
    QCOMPARE(timers.tickTimers(), 28);
    timers.removeAllTimers();
    QCOMPARE(timers.tickTimers(), 0);
}

void StatusStripViewTest::announcements_data()
{
    QTest::addColumn<Timers>("announced");
    QTest::addColumn<CountdownOutcome>("outcome");
    QTest::addColumn<int>("nextTick"); // with timers 2 of 50 s and 9 of 90 s already running
    QTest::newRow("an empty announcement cancels") << Timers{} << CountdownOutcome::Cancel << 49;
    QTest::newRow("new timers start the clock")
        << Timers{{1, 30}, {3, 40}} << CountdownOutcome::TickStart << 29;
    QTest::newRow("a known timer is not shortened") << Timers{{2, 10}} << CountdownOutcome::TickStart << 49;
    QTest::newRow("a withdrawn timer ends the announcement")
        << Timers{{1, 70}, {2, -1}, {3, 40}} << CountdownOutcome::Leave << 69;
    QTest::newRow("zero seconds are a shutdown, not a withdrawal")
        << Timers{{1, 0}} << CountdownOutcome::TickStart << -1;
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

void StatusStripViewTest::indicators_data()
{
    QTest::addColumn<QString>("status");
    QTest::addColumn<QString>("unit");
    QTest::addColumn<QString>("master");
    QTest::newRow("on mains") << "on_power_line"
                              << "green"
                              << "green_m";
    QTest::newRow("a running genset that leads is orange") << "genset_on"
                                                           << "green"
                                                           << "orange_m";
    QTest::newRow("a resting genset that leads is orange too") << "genset_off"
                                                               << "yellow"
                                                               << "orange_m";
    QTest::newRow("any other word") << "overload"
                                    << "orange"
                                    << "orange_m";
    QTest::newRow("no word at all") << ""
                                    << "orange"
                                    << "orange_m";
    QTest::newRow("case counts") << "Unknown"
                                 << "orange"
                                 << "orange_m";
}

void StatusStripViewTest::indicators()
{
    QFETCH(QString, status);
    QFETCH(QString, unit);
    QFETCH(QString, master);
    const auto path = [](const QString& name) {
        return QString(QLatin1String(":/indicators/images/indicators/") + name + QLatin1String(".png"));
    };
    QCOMPARE(indicatorPath(status.toStdString(), false), path(unit));
    QCOMPARE(indicatorPath(status.toStdString(), true), path(master));
}

QTEST_GUILESS_MAIN(StatusStripViewTest)

#include "StatusStripViewTest.moc"
