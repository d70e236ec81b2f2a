// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "monitor/WindowFixture.h"
#include "support/PaintCounter.h"

#include <QPlainTextEdit>
#include <QSignalSpy>
#include <QTest>

using namespace Velmora::Tests;

namespace {

const QByteArray goodReport =
    stateReport("<output_load>42</output_load><battery_capacity>130</battery_capacity>"
                "<firmware_version>1.02</firmware_version><messages>3</messages>");

QByteArray messages(const char* codes)
{
    return stateReport(QByteArray("<messages>") + codes + "</messages>");
}

QByteArray countdown(int seconds)
{
    return "<show_countdown><timer_id>1</timer_id><time>" + QByteArray::number(seconds) +
           "</time></show_countdown>";
}

} // namespace

/// The middle of the window, from reports on the wire to what a reader sees.
class WindowStateTest final : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { panel.reset(); }
    void reportReachesTheControls_data();
    void reportReachesTheControls();
    void messagesAreRedAndRedrawnOnlyWhenTheyChange();
    void unchangedPollRepaintsNothing();
    void failedReportsBlankTheFieldsAfterTheWatchdog();
    void lostServiceIsShownAfterTheWatchdog();
    void countdownRunsDown();

private:
    std::unique_ptr<WindowFixture> panel;
};

void WindowStateTest::init()
{
    panel = std::make_unique<WindowFixture>();
    QVERIFY(panel->open(deviceList({device(1, "CormelRT_USB", "U"), device(2, "Tarvex33_SNMP", "T"),
                                    device(3, "Borel_SNMP", "G"), device(4, "Hedrix_SNMP", "H")})));
}

void WindowStateTest::reportReachesTheControls_data()
{
    QTest::addColumn<QString>("device");
    QTest::addColumn<QByteArray>("values");
    QTest::addColumn<QString>("shown"); // object names with what a reader sees there
    const auto row = [](const char* name, const char* device, const char* values, const char* shown) {
        QTest::newRow(name) << QString::fromLatin1(device) << QByteArray(values) << QString::fromUtf8(shown);
    };
    row("single-phase device with every value", "U",
        "<output_load>42</output_load><battery_capacity>130</battery_capacity>"
        "<device_status>on_battery</device_status><nominal_active_power>900.5</nominal_active_power>"
        "<autonomy_time>17</autonomy_time><firmware_version>1.02</firmware_version>"
        "<temperature>31</temperature><snmp_sys_name> rack </snmp_sys_name>",
        "upsBox=UPS|modelNameEdit=Cormel RT (USB)|loadLabel=Obciążenie|loadProgressBar=42 % [42]|"
        "loadProgressBar_2=-|batteryStateProgressBar=130 % [100]|workModeEdit=Rezerwowy|"
        "nominalActivePowerEdit=900.5 W|nominalSpuriousPowerEdit=N/D?|autonomyTimeEdit=17 min.|"
        "firmwareEdit=1.02|temperatureEdit=31 °C|upsEventsButton=-|"
        "nameAndLocalizationEdit=rack - <nieokreślona lokalizacja>");
    row("three-phase device", "T",
        "<output_load>10 ; 20;130</output_load><nominal_spurious_power>20500</nominal_spurious_power>"
        "<snmp_sys_name> </snmp_sys_name>",
        "loadLabel=Obciążenie L1|loadLabel_2=Obciążenie L2|loadProgressBar=10 % [10]|"
        "loadProgressBar_2=20 % [20]|loadProgressBar_3=130 % [100]|nominalSpuriousPowerEdit=20 kVA|"
        "workModeEdit=N/D|batteryStateProgressBar=N/D [0]?|nameAndLocalizationEdit=-|"
        "upsEventsButton=Zdarzenia");
    row("genset", "G",
        "<fuel_level>73</fuel_level><serial_number>B-7</serial_number>"
        "<tot_fuel_consum>812</tot_fuel_consum><run_time>91</run_time>"
        "<snmp_sys_location>yard</snmp_sys_location>",
        "upsBox=Agregat|modelNameLabel=Typ urządzenia|firmwareLabel=Model sterownika|"
        "nominalActivePowerLabel=Numer seryjny sterownika|nominalActivePowerEdit=B-7|"
        "workModeLabel=Tryb pracy agregatu|batteryStateLabel=Poziom paliwa|"
        "batteryStateProgressBar=73 % [73]|autonomyTimeLabel=Całkowite zużycie paliwa|"
        "autonomyTimeEdit=812 l|temperatureLabel=Całkowity czas pracy|temperatureEdit=91 h|"
        "upsConfigurationButton=Konfiguracja agregatu|deviceText=Połączono z agregatem|"
        "nameAndLocalizationEdit=<nieokreślona nazwa> - yard");
}

void WindowStateTest::reportReachesTheControls()
{
    QFETCH(QString, device);
    QFETCH(QByteArray, values);
    QFETCH(QString, shown);
    // By way of the others, so that what belongs to them must be taken back.
    for (const QString& row : {QStringLiteral("G"), QStringLiteral("T"), QStringLiteral("H"), device})
        panel->tree()->setCurrentItem(panel->row(row));
    QVERIFY(panel->send(stateReport(values)));
    for (const QString& entry : shown.split(QLatin1Char('|'))) {
        const QString control = entry.section(QLatin1Char('='), 0, 0);
        QCOMPARE(QString(control + QLatin1Char('=') + panel->shown(qPrintable(control))), entry);
    }
}

void WindowStateTest::messagesAreRedAndRedrawnOnlyWhenTheyChange()
{
    auto* box = panel->find<QPlainTextEdit>("deviceMessages");
    QVERIFY(panel->send(messages("3\n0\n7")));
    QCOMPARE(box->toPlainText().count(QLatin1Char('\n')), 2);
    QCOMPARE(box->palette().color(QPalette::Text), QColor(220, 20, 20));
    int redrawn = 0;
    connect(box, &QPlainTextEdit::textChanged, box, [&redrawn] { ++redrawn; });
    QVERIFY(panel->send(messages("3\n\n0\n7")));
    QCOMPARE(redrawn, 0);
    QVERIFY(panel->send(messages("3\n7\n0")));
    QVERIFY(redrawn > 0);

    QVERIFY(panel->send(stateReport("<output_load>1</output_load>")));
    QCOMPARE(box->toPlainText(), QStringLiteral("Brak"));
    QVERIFY(panel->send(messages("3\n7\n0")));
    QVERIFY2(box->toPlainText() != QLatin1String("Brak"), "codes are drawn anew behind an empty report");
    redrawn = 0;
    panel->tree()->setCurrentItem(panel->row(QStringLiteral("T")));
    QVERIFY(panel->send(messages("3\n7\n0")));
    QVERIFY2(redrawn > 0, "the same codes of another device are drawn anew");
}

void WindowStateTest::unchangedPollRepaintsNothing()
{
    const auto poll = [this](const QByteArray& report) {
        return panel->send("<ups_configuration><buzzer>1</buzzer></ups_configuration>") &&
               panel->send(statusList({{1, "on_power_line"}, {2, "on_battery*"}})) && panel->send(report);
    };
    QVERIFY(poll(goodReport) && poll(goodReport));
    PaintCounter paints;
    qApp->installEventFilter(&paints);
    QSignalSpy rows(panel->tree()->model(), &QAbstractItemModel::dataChanged);
    QVERIFY(poll(goodReport) && poll(goodReport));
    QCOMPARE(paints.count, 0);
    QCOMPARE(rows.count(), 0);
    QVERIFY(poll(stateReport("<output_load>43</output_load>")));
    QTRY_VERIFY2(paints.count > 0, "a new value is painted");
}

void WindowStateTest::failedReportsBlankTheFieldsAfterTheWatchdog()
{
    const QByteArray failed = stateReport("<output_load>1</output_load>", false);
    QTimer* watchdog = panel->timer("communicationFailedTimer");
    QVERIFY(panel->send(goodReport));
    QVERIFY(!watchdog->isActive());
    QVERIFY(panel->send(failed));
    QCOMPARE(panel->shown("loadProgressBar"), QStringLiteral("42 % [42]"));
    QCOMPARE(watchdog->interval(), 3000);
    QTRY_VERIFY(watchdog->remainingTime() < 2950);
    QVERIFY(panel->send(failed));
    QVERIFY2(watchdog->remainingTime() < 2950, "a second failed report leaves the watchdog running");
    QVERIFY(panel->send(goodReport));
    QVERIFY2(!watchdog->isActive(), "a good report between failed ones calls the watchdog off");

    watchdog->setInterval(1);
    QVERIFY(panel->send(failed));
    QTRY_COMPARE(panel->shown("deviceText"), QStringLiteral("Brak komunikacji z UPS"));
    QCOMPARE(panel->shown("serviceTitle"), QStringLiteral("Połączono z usługą:"));
    QCOMPARE(panel->shown("firmwareEdit"), QString());
    QCOMPARE(panel->shown("loadProgressBar"), QStringLiteral(" [0]"));
    QCOMPARE(panel->shown("deviceMessages"), QStringLiteral("-"));
    QVERIFY(!panel->find<QWidget>("exInfoButton")->isEnabled());
    QVERIFY(panel->send(goodReport));
    QCOMPARE(panel->shown("loadProgressBar"), QStringLiteral("42 % [42]"));
    QCOMPARE(panel->shown("deviceText"), QStringLiteral("Połączono z UPS"));
    QVERIFY(panel->find<QWidget>("deviceMessages")->isVisible());
}

void WindowStateTest::lostServiceIsShownAfterTheWatchdog()
{
    for (const QByteArray& document : {statusList({{1, "on_power_line"}, {3, "genset_on"}}), goodReport,
                                       QByteArray("<debugging_enabled/>"), countdown(100)})
        QVERIFY(panel->send(document));
    panel->window->enableAdministratorButtons();
    QTimer* watchdog = panel->timer("socketErrorTimer");
    panel->service.stop();
    QTRY_VERIFY(watchdog->isActive());
    QCOMPARE(watchdog->interval(), 3000);
    QCOMPARE(panel->shown("loadProgressBar"), QStringLiteral("42 % [42]"));

    watchdog->setInterval(1);
    QTRY_COMPARE(panel->shown("serviceTitle"), QStringLiteral("Błąd połączenia z usługą:"));
    QCOMPARE(panel->shown("loadProgressBar"), QStringLiteral(" [0]"));
    QCOMPARE(panel->shown("countdownText"), QStringLiteral("-"));
    QVERIFY(!panel->timer("countdownTimer")->isActive());
    // Neither debug marker nor administrator mode outlive the link.
    QCOMPARE(panel->window->windowTitle(), QStringLiteral("Velmora Professional v. " VELMORA_VERSION));
    QVERIFY(!panel->find<QWidget>("networkConfigurationButton")->isEnabled());
}

void WindowStateTest::countdownRunsDown()
{
    const auto shown = [this] { return panel->shown("countdownText"); };
    QVERIFY(panel->send(goodReport));
    QTimer* clock = panel->timer("countdownTimer");
    QVERIFY(panel->send(countdown(100)));
    QCOMPARE(shown(), QStringLiteral("Wyłączenie za 99 s"));
    QCOMPARE(clock->interval(), 1000);
    QVERIFY(panel->send(countdown(-1)));
    QVERIFY(panel->send(countdown(3)));
    clock->setInterval(1);
    QTRY_COMPARE(shown(), QStringLiteral("-"));
    QVERIFY(!clock->isActive());
    clock->setInterval(1000);
    QVERIFY(panel->send(countdown(9)));
    QCOMPARE(shown(), QStringLiteral("Wyłączenie za 8 s"));
    QVERIFY(panel->send("<show_countdown></show_countdown>"));
    QCOMPARE(shown(), QStringLiteral("-"));
}

QTEST_MAIN(WindowStateTest)
#include "WindowStateTest.moc"
