// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "service/simulation/SimulatedBackend.h"

#include <QSignalSpy>
#include <QTemporaryFile>
#include <QTest>

using namespace Velmora::Service;

namespace {

// Mains fails from second 20 to 60; the second feed stays away for long.
constexpr const char* mixedScenario = R"({
    "feeds": [ { "name": "short", "first_failure": 20, "interval": 400, "duration": 40, "countdown": 90 },
               { "name": "long", "first_failure": 20, "duration": 100000, "countdown": 30 } ],
    "devices": [
        { "id": 1, "model_name": "Tarvex33_USB", "simulation": { "load": [ 30, 45, 60 ] } },
        { "id": 2, "model_name": "TarvexRT_USB", "simulation": { "feed": "long", "load": [ 80 ], "charge": 60 } },
        { "id": 3, "model_name": "Borel_SNMP", "simulation": { "charge": 50 } },
        { "id": 4, "model_name": "Cormel_USB", "simulation": { "worn_battery": true } },
        { "id": 5, "model_name": "TarvexRT_USB", "simulation": { "steady": true } } ] })";

/// The scenario of this text, or the compiled-in one.
Scenario scenarioFrom(const char* json = nullptr)
{
    QTemporaryFile file;
    if (!file.open() || file.write(json) < 0 || !file.flush())
        qFatal("cannot write a scenario");
    QString reason;
    const std::optional<Scenario> scenario = readScenario(json ? file.fileName() : QString(), reason);
    if (!scenario)
        qFatal("%s", qPrintable(reason));
    return *scenario;
}

/// A simulation whose time the test sets.
class TimedBackend final
{
public:
    explicit TimedBackend(const Scenario& scenario, quint64 seed = 1, double speed = 1.0)
        : m_backend(scenario, seed,
                    {QDateTime(QDate(2026, 3, 4), QTime(5, 6, 7)), speed, [this] { return m_milliseconds; }})
    {
        m_backend.setDevices(scenario.initial.devices, {});
        m_backend.start();
    }

    /// Seconds on the wall clock.
    void setTime(double seconds) { m_milliseconds = static_cast<qint64>(seconds * 1000.0); }
    bool set(int id, const char* key, const char* value = "1")
    {
        return m_backend.applySetting(id, QLatin1String(key), QLatin1String(value)).accepted;
    }
    SimulatedBackend* operator->() { return &m_backend; }
    QByteArray value(int id, const char* key)
    {
        return m_backend.state(id).values.value(QLatin1String(key)).toUtf8();
    }
    QByteArray modeAt(double seconds, int id)
    {
        setTime(seconds);
        return value(id, "device_status");
    }
    int number(int id, const char* key) { return value(id, key).toInt(); }
    bool reports(int id, const char* code) { return value(id, "messages").split('\n').contains(code); }
    QVector<KeyValues> everything()
    {
        QVector<KeyValues> all;
        for (const DeviceStatus& device : m_backend.devices())
            all << m_backend.state(device.id).values
                << KeyValues{{device.status, m_backend.eventHistory(device.id)}};
        return all;
    }

private:
    qint64 m_milliseconds = 0;
    SimulatedBackend m_backend;
};

} // namespace

class SimulationTest final : public QObject
{
    Q_OBJECT

private slots:
    void courseDependsOnTheSeedAlone();
    void mainsFailureShowsInEveryReport();
    void countdownIsAnnouncedAndWithdrawn();
    void settingIsCheckedAndFollowed();
    void batteryTestReportsForAWhile();
    void groupAddsItsUnitsAndComplains();
    void defaultScenarioShowsTheWholeRange();
};

void SimulationTest::courseDependsOnTheSeedAlone()
{
    const Scenario scenario = scenarioFrom(mixedScenario);
    TimedBackend asked(scenario, 7);
    TimedBackend left(scenario, 7);
    TimedBackend other(scenario, 8);
    const KeyValues steady = asked->state(5).values;
    int changes = 0;
    for (int second = 0; second <= 150; ++second) {
        const KeyValues before = asked->state(1).values;
        asked.setTime(second);
        changes += second < 18 && asked->state(1).values != before ? 1 : 0;
    }
    QVERIFY2(changes >= 2 && changes <= 4, "values hold still for some seconds");
    QCOMPARE(asked->state(5).values, steady);
    for (TimedBackend* backend : {&asked, &left, &other})
        backend->setTime(430.5);
    QCOMPARE(asked.everything(), left.everything());
    QVERIFY(asked.everything() != other.everything());
}

void SimulationTest::mainsFailureShowsInEveryReport()
{
    TimedBackend backend(scenarioFrom(mixedScenario));
    QCOMPARE(backend.modeAt(19, 1), QByteArray("on_power_line"));
    QVERIFY(!backend.reports(1, "38"));
    QCOMPARE(backend.modeAt(21, 3), QByteArray("genset_off"));
    QVERIFY(backend.reports(3, "188")); // prestart
    const int starts = backend.number(3, "num_starts");
    QCOMPARE(backend.modeAt(45, 3), QByteArray("genset_on"));
    QCOMPARE(backend.number(3, "num_starts"), starts + 1);
    QVERIFY(backend.number(3, "output_load") > 0);
    QCOMPARE(backend.modeAt(59, 1), QByteArray("on_battery"));
    QCOMPARE(backend->devices().first().status, QStringLiteral("on_battery"));
    QCOMPARE(backend.value(1, "input_voltage"), QByteArray("0.0/0.0/0.0"));
    QVERIFY(backend.reports(1, "38") && backend.value(1, "battery_current").startsWith('-'));
    QCOMPARE(backend.number(1, "seconds_on_battery"), 40);
    QVERIFY(backend->eventHistory(1).startsWith(QLatin1String("7;3;4;5;6;27|")));

    // Mains is back at 60 and fails again at 420; in between the engine cools down.
    QCOMPARE(backend.modeAt(60, 1), QByteArray("on_power_line"));
    QVERIFY(backend.reports(1, "9")); // charging
    QCOMPARE(backend.modeAt(65, 3), QByteArray("genset_on"));
    QCOMPARE(backend.number(3, "output_load"), 0);
    QCOMPARE(backend.modeAt(90, 3), QByteArray("genset_off"));

    // Where mains stays away, the battery runs empty, with a warning before, and the output goes off.
    bool warned = false;
    int lastPercent = 100;
    for (int second = 120; second < 7200; second += 60) {
        backend.setTime(second);
        const int percent = backend.number(2, "battery_capacity");
        QVERIFY(percent <= lastPercent);
        QCOMPARE(backend.reports(2, "5"), percent <= 20);
        warned = warned || (percent > 0 && percent <= 20);
        lastPercent = percent;
    }
    QVERIFY(warned && lastPercent == 0);
    QCOMPARE(backend.modeAt(7200, 2), QByteArray("shutdown"));
    QCOMPARE(backend.value(2, "output_voltage"), QByteArray("0.0"));
}

void SimulationTest::countdownIsAnnouncedAndWithdrawn()
{
    TimedBackend backend(scenarioFrom(mixedScenario), 1, 2.0);
    QSignalSpy changes(backend.operator->(), &DeviceBackend::shutdownTimerChanged);
    backend.setTime(15); // on the wall, where half as many seconds pass
    QCOMPARE(backend->shutdownTimers().size(), 2);
    QCOMPARE(backend->shutdownTimers().first().seconds, 40);
    backend.setTime(35);
    QVERIFY(backend->shutdownTimers().isEmpty());
    // The first was withdrawn when mains returned; the second ran out and needs no withdrawal.
    QCOMPARE(changes.size(), 3);
    QCOMPARE(changes.at(0), (QVariantList{1, 45}));
    QCOMPARE(changes.at(2), (QVariantList{1, -1}));
}

void SimulationTest::settingIsCheckedAndFollowed()
{
    // Device, key, value; the configuration and the beginning of the voltage that follow.
    const QVector<QByteArrayList> rows{
        {"1", "output_voltage", "231,5", "231,5", "231.5/"},
        {"1", "output_voltage", "300", "230", "230.0/"},
        {"1", "output_voltage", "", "230", "230.0/"},
        {"2", "output_voltage_option", "220", "220;208;220;230;240", "220.0"},
        {"2", "output_voltage_option", "208;220", "230;208;220;230;240", "230.0"},
        {"2", "eco_mode", "yes", "0", "230.0"},
        {"2", "battery_short_test", "1", "0", "230.0"}, // a command leaves nothing behind
        {"2", "output_voltage", "220", "", "230.0"},    // another model's
        {"99", "output_voltage", "230", "", ""}};
    for (const QByteArrayList& row : rows) {
        TimedBackend backend(scenarioFrom(mixedScenario));
        const int device = row.at(0).toInt();
        const QString key = QLatin1String(row.at(1));
        const SettingOutcome outcome = backend->applySetting(device, key, QLatin1String(row.at(2)));
        QCOMPARE(outcome.reason.isEmpty(), outcome.accepted);
        const QByteArray configuration = backend->configuration(device).value(key).toUtf8();
        const QByteArray voltage = backend.value(device, "output_voltage").left(row.at(4).size());
        QCOMPARE(row.mid(0, 3) << configuration << voltage, row);
    }
}

void SimulationTest::batteryTestReportsForAWhile()
{
    Scenario scenario = scenarioFrom(mixedScenario);
    scenario.feeds[0].firstFailure = -1;
    TimedBackend backend(scenario);
    QVERIFY(backend.set(1, "batt_test") && backend.set(4, "battery_short_test"));
    QVERIFY(backend.modeAt(5, 1) == "battery_test" && backend.reports(1, "40") && !backend.reports(1, "44"));
    QCOMPARE(backend.modeAt(15, 1), QByteArray("on_power_line"));
    QVERIFY(backend.reports(1, "44"));
    QVERIFY(backend.reports(4, "45")); // fails with a worn battery
    backend.setTime(300);
    QVERIFY(!backend.reports(1, "44") && !backend.reports(4, "45"));
}

void SimulationTest::groupAddsItsUnitsAndComplains()
{
    Scenario scenario = scenarioFrom(); // 0 is a group of 2, which leads, and 3
    TimedBackend backend(scenario);
    backend.setTime(12);
    QCOMPARE(backend.number(0, "nominal_active_power"), 2 * backend.number(2, "nominal_active_power"));
    const int sum = backend.number(2, "output_active_power") + backend.number(3, "output_active_power");
    QVERIFY(qAbs(backend.number(0, "output_active_power") - sum) <= 2);
    QCOMPARE(backend.value(0, "messages"), QByteArray("27"));
    QVERIFY(backend.reports(2, "28") && backend.reports(3, "29"));
    QVERIFY(backend.set(3, "bypass"));
    QCOMPARE(backend.modeAt(13, 0), QByteArray("bypass"));

    scenario.profiles[2].master = false;
    scenario.profiles[2].load = scenario.profiles[3].load = {75.0, 75.0, 75.0};
    TimedBackend poor(scenario);
    // No unit leads, one could not carry the load alone, none is missing until it is removed.
    QVERIFY(poor.reports(0, "37") && poor.reports(0, "32") && !poor.reports(0, "36"));
    poor->setDevices(scenario.initial.devices.mid(0, 2), {});
    QVERIFY(poor.reports(0, "36"));
}

void SimulationTest::defaultScenarioShowsTheWholeRange()
{
    TimedBackend backend(scenarioFrom());
    QVERIFY(!backend->eventHistory(2).isEmpty()); // from the time before the start
    QCOMPARE(backend.modeAt(60, 2), QByteArray("on_battery"));
    QCOMPARE(backend.modeAt(60, 9), QByteArray("genset_on"));
    QVERIFY(backend.modeAt(60, 7) == "avr_on" && backend.reports(7, "0"));
    // The network card reports the name that is set, until defaults bring back the one it came with.
    QVERIFY(backend.set(2, "snmp_sysname", "other"));
    QCOMPARE(backend.value(2, "snmp_sys_name"), QByteArray("other"));
    QVERIFY(backend.set(2, "reset_control_parameters"));
    QCOMPARE(backend.value(2, "snmp_sys_name"), QByteArray("ups-a"));
}

QTEST_GUILESS_MAIN(SimulationTest)
#include "SimulationTest.moc"
