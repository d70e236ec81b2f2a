// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "service/TestScenario.h"
#include "service/simulation/UpsBattery.h"

#include <QSignalSpy>
#include <QTest>

using namespace Velmora::Service;
using namespace Velmora::Tests;

namespace {

// Mains fails from second 20 to 60; the second feed stays away for long.
constexpr const char* mixedScenario = R"({
    'feeds': [ { 'name': 'short', 'first_failure': 20, 'interval': 400, 'duration': 40, 'countdown': 90 },
               { 'name': 'long', 'first_failure': 20, 'duration': 100000, 'countdown': 30 } ],
    'devices': [
        { 'id': 1, 'model_name': 'Tarvex33_USB', 'simulation': { 'load': [ 30, 45, 60 ] } },
        { 'id': 2, 'model_name': 'TarvexRT_USB', 'simulation': { 'feed': 'long', 'load': [ 80 ], 'charge': 60 } },
        { 'id': 3, 'model_name': 'Borel_SNMP', 'simulation': { 'charge': 50 } },
        { 'id': 4, 'model_name': 'Cormel_USB', 'simulation': { 'worn_battery': true } },
        { 'id': 5, 'model_name': 'TarvexRT_USB', 'simulation': { 'steady': true } } ] })";

// Two parallel units, and a group whose members and leader vary by test.
Scenario parallelScenario(bool withMaster, double load)
{
    Scenario scenario = scenarioFrom(R"({ 'devices': [
        { 'id': 1, 'model_name': 'Virtual_Device', 'phy_ids': [ 2, 3 ] },
        { 'id': 2, 'model_name': 'Tarvex33_USB', 'simulation': { 'parallel_unit': true } },
        { 'id': 3, 'model_name': 'Tarvex33_USB', 'simulation': { 'parallel_unit': true } } ] })");
    scenario.profiles[2].master = withMaster;
    for (const int id : {2, 3})
        scenario.profiles[id].load = {load, load, load};
    return scenario;
}

QVector<KeyValues> allStates(TimedBackend& backend, const Scenario& scenario)
{
    QVector<KeyValues> states;
    for (const DeviceRegistration& device : scenario.initial.devices) {
        states.append(backend->state(device.id).values);
        states.last().insert(QStringLiteral("events"), backend->eventHistory(device.id));
    }
    return states;
}

} // namespace

class SimulationTest final : public QObject
{
    Q_OBJECT

private slots:
    void mainsFollowsItsSchedule_data();
    void mainsFollowsItsSchedule();
    void batteryDrainsByLoad_data();
    void batteryDrainsByLoad();
    void stateDoesNotDependOnTheRhythmOfAsking();
    void anotherSeedTakesAnotherCourse();
    void valuesHoldStillBetweenChanges();
    void steadyDeviceNeverChanges();
    void mainsFailureShowsInEveryReport();
    void batteryRunsEmptyAndTheOutputGoesOff();
    void gensetStartsAndCoolsDown();
    void countdownIsAnnouncedAndWithdrawn();
    void countdownCountsWallSeconds();
    void settingIsCheckedAndFollowed_data();
    void settingIsCheckedAndFollowed();
    void batteryTestReports_data();
    void batteryTestReports();
    void switchedOffDeviceComesBack();
    void networkCardReportsItsName();
    void groupAddsItsUnits();
    void groupComplains_data();
    void groupComplains();
    void defaultScenarioShowsTheWholeRange();
};

void SimulationTest::mainsFollowsItsSchedule_data()
{
    QTest::addColumn<qint64>("interval");
    QTest::addColumn<qint64>("second");
    QTest::addColumn<bool>("present");
    QTest::newRow("is there before the first failure") << qint64(240) << qint64(44) << true;
    QTest::newRow("fails at the given second") << qint64(240) << qint64(45) << false;
    QTest::newRow("is still away in the last second") << qint64(240) << qint64(84) << false;
    QTest::newRow("is back after the duration") << qint64(240) << qint64(85) << true;
    QTest::newRow("fails again after the interval") << qint64(240) << qint64(285) << false;
    QTest::newRow("failed before the start too") << qint64(240) << qint64(-195) << false;
    QTest::newRow("fails only once without an interval") << qint64(0) << qint64(285) << true;
    QTest::newRow("did not fail before without an interval") << qint64(0) << qint64(-195) << true;
}

void SimulationTest::mainsFollowsItsSchedule()
{
    QFETCH(qint64, interval);
    QFETCH(qint64, second);
    const MainsFeed feed{QStringLiteral("feed"), 45, interval, 40, 0};
    QTEST(feed.isPresent(second), "present");
}

void SimulationTest::batteryDrainsByLoad_data()
{
    QTest::addColumn<double>("watts");
    QTest::addColumn<int>("seconds");
    QTest::addColumn<int>("percent");
    // 15 W feed the unit itself, so 985 W take the 1000 Wh in an hour.
    QTest::newRow("half in half an hour at full load") << 985.0 << 1800 << 50;
    QTest::newRow("a quarter in that time at half load") << 485.0 << 1800 << 75;
    QTest::newRow("nothing is left after the whole time") << 985.0 << 3600 << 0;
    QTest::newRow("never below nothing") << 985.0 << 7200 << 0;
    QTest::newRow("slowly without load") << 0.0 << 3600 << 99;
}

void SimulationTest::batteryDrainsByLoad()
{
    QFETCH(double, watts);
    QFETCH(int, seconds);
    UpsBattery battery(1000.0, 100.0);
    const int autonomy = battery.autonomyMinutes(watts);
    for (int i = 0; i < seconds; ++i)
        battery.drain(watts, 1.0);
    QTEST(battery.percent(), "percent");
    if (!battery.isEmpty())
        QVERIFY(battery.autonomyMinutes(watts) < autonomy || autonomy == 999);
    for (int i = 0; i < 7200; ++i)
        battery.charge(1.0);
    QCOMPARE(battery.percent(), 100);
}

void SimulationTest::stateDoesNotDependOnTheRhythmOfAsking()
{
    const Scenario scenario = scenarioFrom(mixedScenario);
    TimedBackend asked(scenario, 7);
    TimedBackend left(scenario, 7);
    for (int tenths = 0; tenths <= 1500; tenths += 7) {
        asked.setTime(tenths / 10.0);
        static_cast<void>(allStates(asked, scenario));
    }
    for (const double second : {150.0, 151.0, 400.0, 430.5}) {
        asked.setTime(second);
        left.setTime(second);
        QCOMPARE(allStates(asked, scenario), allStates(left, scenario));
    }
}

void SimulationTest::anotherSeedTakesAnotherCourse()
{
    const Scenario scenario = scenarioFrom(mixedScenario);
    TimedBackend first(scenario, 7);
    TimedBackend second(scenario, 8);
    first.setTime(18);
    second.setTime(18);
    QVERIFY(first->state(1).values != second->state(1).values);
}

void SimulationTest::valuesHoldStillBetweenChanges()
{
    TimedBackend backend(scenarioFrom(mixedScenario));
    int changes = 0;
    KeyValues last = backend->state(1).values;
    for (int second = 1; second <= 18; ++second) {
        backend.setTime(second);
        const KeyValues now = backend->state(1).values;
        changes += now != last ? 1 : 0;
        last = now;
    }
    QVERIFY2(changes >= 2 && changes <= 4, qPrintable(QString::number(changes)));
}

void SimulationTest::steadyDeviceNeverChanges()
{
    TimedBackend backend(scenarioFrom(mixedScenario));
    const KeyValues before = backend->state(5).values;
    QVERIFY(before.size() > 10);
    for (const int second : {10, 30, 300}) {
        backend.setTime(second);
        QCOMPARE(backend->state(5).values, before);
    }
}

void SimulationTest::mainsFailureShowsInEveryReport()
{
    TimedBackend backend(scenarioFrom(mixedScenario));
    backend.setTime(19);
    QCOMPARE(backend.value(1, "device_status"), QStringLiteral("on_power_line"));
    QCOMPARE(backend.value(1, "output_load").count(QLatin1Char('/')), 2);
    QVERIFY(!backend.messages(1).contains(QStringLiteral("38")));
    backend.setTime(59);
    QCOMPARE(backend.value(1, "device_status"), QStringLiteral("on_battery"));
    QCOMPARE(backend->devices().first().status, QStringLiteral("on_battery"));
    QCOMPARE(backend.value(1, "input_voltage"), QStringLiteral("0.0/0.0/0.0"));
    QVERIFY(backend.value(1, "battery_current").startsWith(QLatin1Char('-')));
    QVERIFY(backend.messages(1).contains(QStringLiteral("38")));
    QCOMPARE(backend.number(1, "seconds_on_battery"), 40);
    QVERIFY(backend.number(1, "battery_capacity") < 100);
    const QStringList events = backend->eventHistory(1).split(QLatin1Char('|'));
    QCOMPARE(events.first(), QStringLiteral("7;3;4;5;6;27"));
    backend.setTime(60);
    QCOMPARE(backend.value(1, "device_status"), QStringLiteral("on_power_line"));
    QVERIFY(backend.messages(1).contains(QStringLiteral("9"))); // charging
}

void SimulationTest::batteryRunsEmptyAndTheOutputGoesOff()
{
    TimedBackend backend(scenarioFrom(mixedScenario));
    int lastPercent = 60;
    bool warned = false;
    for (int second = 60; backend.number(2, "battery_capacity") > 0; second += 60) {
        QVERIFY(second < 7200);
        backend.setTime(second);
        const int percent = backend.number(2, "battery_capacity");
        QVERIFY(percent <= lastPercent);
        lastPercent = percent;
        QCOMPARE(backend.messages(2).contains(QStringLiteral("5")), percent <= 20);
        warned = warned || percent <= 20;
    }
    QVERIFY(warned);
    QTRY_COMPARE(backend.value(2, "device_status"), QStringLiteral("shutdown"));
    QCOMPARE(backend.value(2, "output_voltage"), QStringLiteral("0.0"));
    QVERIFY(backend.messages(2).contains(QStringLiteral("60")));
}

void SimulationTest::gensetStartsAndCoolsDown()
{
    TimedBackend backend(scenarioFrom(mixedScenario));
    backend.setTime(21);
    QCOMPARE(backend.value(3, "device_status"), QStringLiteral("genset_off"));
    QVERIFY(backend.messages(3).contains(QStringLiteral("188"))); // prestart
    const int starts = backend.number(3, "num_starts");
    backend.setTime(45);
    QCOMPARE(backend.value(3, "device_status"), QStringLiteral("genset_on"));
    QCOMPARE(backend.number(3, "num_starts"), starts + 1);
    QVERIFY(backend.number(3, "output_load") > 0);
    backend.setTime(65); // mains is back, the engine cools down
    QCOMPARE(backend.value(3, "device_status"), QStringLiteral("genset_on"));
    QCOMPARE(backend.number(3, "output_load"), 0);
    backend.setTime(90);
    QCOMPARE(backend.value(3, "device_status"), QStringLiteral("genset_off"));
    static_cast<void>(backend->applySetting(3, QStringLiteral("remote_turn_on_genset"), QStringLiteral("1")));
    backend.setTime(400);
    QCOMPARE(backend.value(3, "device_status"), QStringLiteral("genset_on"));
    QVERIFY(backend.number(3, "fuel_level") <= 50);
    static_cast<void>(
        backend->applySetting(3, QStringLiteral("controller_mode_option"), QStringLiteral("OFF")));
    backend.setTime(440); // mains failed again at 420
    QCOMPARE(backend.value(3, "device_status"), QStringLiteral("genset_off"));
}

void SimulationTest::countdownIsAnnouncedAndWithdrawn()
{
    TimedBackend backend(scenarioFrom(mixedScenario));
    QSignalSpy changes(backend.operator->(), &DeviceBackend::shutdownTimerChanged);
    backend.setTime(30);
    QCOMPARE(backend->shutdownTimers().size(), 2);
    QCOMPARE(backend->shutdownTimers().first().seconds, 80);
    QCOMPARE(changes.size(), 2);
    QCOMPARE(changes.at(0), (QVariantList{1, 90}));
    backend.setTime(70);
    QVERIFY(backend->shutdownTimers().isEmpty());
    // The first was withdrawn when mains returned; the second ran out and needs no withdrawal.
    QCOMPARE(changes.size(), 3);
    QCOMPARE(changes.at(2), (QVariantList{1, -1}));
}

void SimulationTest::countdownCountsWallSeconds()
{
    TimedBackend backend(scenarioFrom(mixedScenario), 1, 10.0);
    backend.setTime(3);
    QCOMPARE(backend->shutdownTimers().first().seconds, 8);
}

void SimulationTest::settingIsCheckedAndFollowed_data()
{
    QTest::addColumn<int>("device");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");
    QTest::addColumn<bool>("accepted");
    QTest::addColumn<QString>("configuration");
    QTest::addColumn<QString>("reported"); // beginning of the voltage that follows
    const QString voltage = QStringLiteral("output_voltage");
    const QString choice = QStringLiteral("output_voltage_option");
    const QString options = QStringLiteral("208;220;230;240");
    QTest::newRow("number within its range") << 1 << voltage << "240" << true << "240"
                                             << "240.0/";
    QTest::newRow("number with a comma") << 1 << voltage << "231,5" << true << "231,5"
                                         << "231.5/";
    QTest::newRow("number out of its range") << 1 << voltage << "300" << false << "230"
                                             << "230.0/";
    QTest::newRow("text for a number") << 1 << voltage << "high" << false << "230"
                                       << "230.0/";
    QTest::newRow("nothing for a number") << 1 << voltage << "" << false << "230"
                                          << "230.0/";
    QTest::newRow("one of the options")
        << 2 << choice << "220" << true << QString(QStringLiteral("220;") + options) << "220.0";
    QTest::newRow("none of the options")
        << 2 << choice << "221" << false << QString(QStringLiteral("230;") + options) << "230.0";
    QTest::newRow("two options at once")
        << 2 << choice << "208;220" << false << QString(QStringLiteral("230;") + options) << "230.0";
    QTest::newRow("flag") << 2 << "eco_mode"
                          << "1" << true << "1"
                          << "";
    QTest::newRow("word for a flag") << 2 << "eco_mode"
                                     << "yes" << false << "0"
                                     << "230.0";
    QTest::newRow("command leaves nothing behind") << 2 << "battery_short_test"
                                                   << "1" << true << "0"
                                                   << "230.0";
    QTest::newRow("setting of another model") << 2 << voltage << "230" << false << QString() << "";
    QTest::newRow("device that is not there") << 99 << voltage << "230" << false << QString() << "";
}

void SimulationTest::settingIsCheckedAndFollowed()
{
    QFETCH(int, device);
    QFETCH(QString, key);
    QFETCH(QString, value);
    TimedBackend backend(scenarioFrom(mixedScenario));
    const SettingOutcome outcome = backend->applySetting(device, key, value);
    QTEST(outcome.accepted, "accepted");
    QCOMPARE(outcome.reason.isEmpty(), outcome.accepted);
    QTEST(backend->configuration(device).value(key), "configuration");
    QFETCH(QString, reported);
    QVERIFY(reported.isEmpty() || backend.value(device, "output_voltage").startsWith(reported));
}

void SimulationTest::batteryTestReports_data()
{
    QTest::addColumn<int>("device");
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("result");
    QTest::newRow("a good battery passes") << 5 << "battery_short_test"
                                           << "44";
    QTest::newRow("a worn one fails") << 4 << "battery_short_test"
                                      << "45";
    QTest::newRow("a three-phase unit passes") << 1 << "batt_test"
                                               << "44";
}

void SimulationTest::batteryTestReports()
{
    QFETCH(int, device);
    QFETCH(QString, command);
    QFETCH(QString, result);
    Scenario scenario = scenarioFrom(mixedScenario);
    scenario.profiles[5].steady = false;
    scenario.feeds[0].firstFailure = -1;
    TimedBackend backend(scenario);
    QVERIFY(backend->applySetting(device, command, QStringLiteral("1")).accepted);
    backend.setTime(5);
    QCOMPARE(backend.value(device, "device_status"), QStringLiteral("battery_test"));
    QVERIFY(backend.messages(device).contains(QStringLiteral("40")));
    QVERIFY(!backend.messages(device).contains(result));
    backend.setTime(15);
    QCOMPARE(backend.value(device, "device_status"), QStringLiteral("on_power_line"));
    QVERIFY(backend.messages(device).contains(result));
    backend.setTime(300);
    QVERIFY(!backend.messages(device).contains(result));
}

void SimulationTest::switchedOffDeviceComesBack()
{
    TimedBackend backend(scenarioFrom(mixedScenario));
    const QString one = QStringLiteral("1");
    QVERIFY(backend->applySetting(1, QStringLiteral("remote_turn_off_ups"), one).accepted);
    backend.setTime(1);
    QCOMPARE(backend.value(1, "device_status"), QStringLiteral("ups_off"));
    QCOMPARE(backend.value(1, "output_load"), QStringLiteral("0/0/0"));
    backend.setTime(30); // without mains it stays off and needs no battery
    QCOMPARE(backend.value(1, "device_status"), QStringLiteral("ups_off"));
    QVERIFY(backend->applySetting(1, QStringLiteral("remote_turn_on_ups"), one).accepted);
    backend.setTime(31);
    QCOMPARE(backend.value(1, "device_status"), QStringLiteral("on_battery"));
}

void SimulationTest::networkCardReportsItsName()
{
    TimedBackend backend(defaultScenario());
    QCOMPARE(backend.value(2, "snmp_sys_name"), QStringLiteral("ups-a"));
    const QString name = QStringLiteral("główny UPS");
    QVERIFY(backend->applySetting(2, QStringLiteral("snmp_sysname"), name).lasting);
    QCOMPARE(backend.value(2, "snmp_sys_name"), name);
    // Defaults of the UPS include the name that the card came with.
    const SettingOutcome reset =
        backend->applySetting(2, QStringLiteral("reset_control_parameters"), QStringLiteral("1"));
    QVERIFY(reset.restoredDefaults && !reset.lasting);
    QCOMPARE(backend.value(2, "snmp_sys_name"), QStringLiteral("ups-a"));
}

void SimulationTest::groupAddsItsUnits()
{
    TimedBackend backend(parallelScenario(true, 30.0));
    backend.setTime(12);
    QCOMPARE(backend.number(1, "nominal_active_power"), 2 * backend.number(2, "nominal_active_power"));
    const int sum = backend.number(2, "output_active_power") + backend.number(3, "output_active_power");
    QVERIFY(qAbs(backend.number(1, "output_active_power") - sum) <= 2);
    QCOMPARE(backend.messages(1), QStringList{QStringLiteral("27")});
    QVERIFY(backend.messages(2).contains(QStringLiteral("28")));
    QVERIFY(backend.messages(3).contains(QStringLiteral("29")));
    static_cast<void>(backend->applySetting(3, QStringLiteral("bypass"), QStringLiteral("1")));
    backend.setTime(13);
    QCOMPARE(backend.value(1, "device_status"), QStringLiteral("bypass"));
}

void SimulationTest::groupComplains_data()
{
    QTest::addColumn<bool>("master");
    QTest::addColumn<double>("load");
    QTest::addColumn<bool>("removeUnit");
    QTest::addColumn<QString>("code");
    QTest::newRow("no unit leads") << false << 30.0 << false << "37";
    QTest::newRow("one unit could not carry the load") << true << 75.0 << false << "32";
    QTest::newRow("a unit is missing") << true << 10.0 << true << "36";
}

void SimulationTest::groupComplains()
{
    QFETCH(bool, master);
    QFETCH(double, load);
    QFETCH(bool, removeUnit);
    QFETCH(QString, code);
    const Scenario scenario = parallelScenario(master, load);
    TimedBackend backend(scenario);
    if (removeUnit)
        backend->setDevices(scenario.initial.devices.mid(0, 2), {});
    backend.setTime(1);
    QVERIFY(backend.messages(1).contains(code));
}

void SimulationTest::defaultScenarioShowsTheWholeRange()
{
    const Scenario scenario = defaultScenario();
    TimedBackend backend(scenario);
    QSet<QString> words;
    QSet<QString> codes;
    for (int second = 0; second < 600; second += 5) {
        backend.setTime(second);
        for (const DeviceStatus& device : backend->devices()) {
            words.insert(device.status);
            for (const QString& code : backend.messages(device.id))
                codes.insert(code);
        }
    }
    for (const char* word :
         {"on_power_line", "on_battery", "genset_on", "genset_off", "avr_on", "no_communication", "unknown"})
        QVERIFY2(words.contains(QLatin1String(word)), word);
    // An alarm, a warning and a notice.
    for (const char* code : {"38", "0", "27"})
        QVERIFY2(codes.contains(QLatin1String(code)), code);
    QVERIFY(!backend->eventHistory(2).isEmpty());
    QVERIFY(!backend->state(10).found);
    QVERIFY(backend->state(11).found && !backend->state(11).proper);
}

QTEST_GUILESS_MAIN(SimulationTest)
#include "SimulationTest.moc"
