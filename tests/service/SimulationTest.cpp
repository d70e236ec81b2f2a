// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "service/simulation/SimulatedBackend.h"

#include <QTemporaryFile>
#include <QTest>

using namespace Velmora::Service;

namespace {

// Mains fails from second 20 to 60; the second feed stays away for long.
constexpr const char* mixedScenario = R"({
    "feeds": [ { "name": "short", "first_failure": 20, "interval": 400, "duration": 40 },
               { "name": "long", "first_failure": 20, "duration": 100000 } ],
    "devices": [
        { "id": 1, "model_name": "Tarvex33_USB", "simulation": { "load": [ 30, 45, 60 ] } },
        { "id": 2, "model_name": "TarvexRT_USB", "simulation": { "feed": "long", "load": [ 80 ], "charge": 60 } },
        { "id": 3, "model_name": "Borel_SNMP", "simulation": { "charge": 50 } },
        { "id": 5, "model_name": "TarvexRT_USB", "simulation": { "steady": true } } ] })";

Scenario mixed()
{
    QTemporaryFile file;
    QString reason;
    if (!file.open() || file.write(mixedScenario) < 0 || !file.flush())
        qFatal("cannot write a scenario");
    return readScenario(file.fileName(), reason).value();
}

/// A simulation whose time the test sets.
class TimedBackend final
{
public:
    explicit TimedBackend(const Scenario& scenario, quint64 seed = 1)
        : m_backend(scenario, seed,
                    {QDateTime(QDate(2026, 3, 4), QTime(5, 6, 7)), 1.0, [this] { return m_milliseconds; }})
    {
        m_backend.setDevices(scenario.initial.devices, {});
        m_backend.start();
    }

    /// Seconds on the wall clock.
    void setTime(double seconds) { m_milliseconds = static_cast<qint64>(seconds * 1000.0); }
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
    void settingIsCheckedAndFollowed();
};

void SimulationTest::courseDependsOnTheSeedAlone()
{
    const Scenario scenario = mixed();
    TimedBackend asked(scenario, 7);
    TimedBackend left(scenario, 7);
    TimedBackend other(scenario, 8);
    const KeyValues steady = asked->state(5).values;
    for (int second = 0; second <= 150; ++second) {
        asked.setTime(second);
        (void)asked->state(1);
    }
    QCOMPARE(asked->state(5).values, steady);
    for (TimedBackend* backend : {&asked, &left, &other})
        backend->setTime(430.5);
    QCOMPARE(asked.everything(), left.everything());
    QVERIFY(asked.everything() != other.everything());
}

void SimulationTest::mainsFailureShowsInEveryReport()
{
    TimedBackend backend(mixed());
    QCOMPARE(backend.modeAt(19, 1), QByteArray("on_power_line"));
    QVERIFY(!backend.reports(1, "38"));
    QCOMPARE(backend.modeAt(59, 1), QByteArray("on_battery"));
    QCOMPARE(backend->devices().first().status, QStringLiteral("on_battery"));
    QCOMPARE(backend.value(1, "input_voltage"), QByteArray("0.0/0.0/0.0"));
    QVERIFY(backend.reports(1, "38") && backend.value(1, "battery_current").startsWith('-'));
    QVERIFY(backend->eventHistory(1).startsWith(QLatin1String("7;3;4;5;6;27|")));
    QCOMPARE(backend.modeAt(60, 1), QByteArray("on_power_line"));
    QVERIFY(backend.reports(1, "9"));                         // charging
    QCOMPARE(backend.modeAt(65, 3), QByteArray("genset_on")); // cools down

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
        TimedBackend backend(mixed());
        const int device = row.at(0).toInt();
        const QString key = QLatin1String(row.at(1));
        const SettingOutcome outcome = backend->applySetting(device, key, QLatin1String(row.at(2)));
        QCOMPARE(outcome.reason.isEmpty(), outcome.accepted);
        const QByteArray configuration = backend->configuration(device).value(key).toUtf8();
        const QByteArray voltage = backend.value(device, "output_voltage").left(row.at(4).size());
        QCOMPARE(row.mid(0, 3) << configuration << voltage, row);
    }
}

QTEST_GUILESS_MAIN(SimulationTest)
#include "SimulationTest.moc"
