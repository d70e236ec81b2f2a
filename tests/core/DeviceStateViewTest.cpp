// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "monitor/core/DeviceStateView.h"
#include "monitor/core/DeviceCaptions.h"

#include <QTest>

using namespace Velmora;

namespace {

using Report = QMap<QString, QString>;

/// A report of `entries`, "key=value" each, filled up to the size that a good one needs at least.
Report reportOf(const QStringList& entries)
{
    Report report{{QStringLiteral("isUpsFound"), QStringLiteral("1")},
                  {QStringLiteral("isProperDevice"), QStringLiteral("1")},
                  {QStringLiteral("filler"), QString()}};
    for (const QString& entry : entries)
        report.insert(entry.section(QLatin1Char('='), 0, 0), entry.section(QLatin1Char('='), 1));
    return report;
}

DeviceStateView viewOf(const QStringList& entries, const char* configName = "TarvexRT_USB")
{
    return deviceStateView(reportOf(entries), QString::fromLatin1(configName), QStringLiteral("n/a"));
}

QString barText(const BarView& bar)
{
    switch (bar.action) {
    case BarView::Keep:
        return QStringLiteral("keep");
    case BarView::ShowDefault:
        return QStringLiteral("default");
    case BarView::ShowValue:
        break;
    }
    return QString::number(bar.value);
}

QString fieldText(const FieldView& field)
{
    return field.value_or(QStringLiteral("default"));
}

} // namespace

class DeviceStateViewTest final : public QObject
{
    Q_OBJECT

private slots:
    void failedReports_data();
    void failedReports();
    void load_data();
    void load();
    void storage_data();
    void storage();
    void fields_data();
    void fields();
    void nameAndLocation_data();
    void nameAndLocation();
    void messagesAndEvents();
    void equalityFollowsWhatIsShown();
    void captionsFollowTheModel();
};

void DeviceStateViewTest::failedReports_data()
{
    const QString found = QStringLiteral("isUpsFound");
    const QString proper = QStringLiteral("isProperDevice");
    const QString load = QStringLiteral("output_load");
    const QString yes = QStringLiteral("1");
    const QString no = QStringLiteral("0");
    QTest::addColumn<QMap<QString, QString>>("report");
    QTest::addColumn<bool>("failed");
    QTest::addColumn<bool>("extended");
    QTest::newRow("an empty report") << Report{} << true << false;
    QTest::newRow("two entries are too few, but enable the extended information")
        << Report{{found, yes}, {load, yes}} << true << true;
    QTest::newRow("three entries are enough")
        << Report{{found, yes}, {proper, yes}, {load, yes}} << false << true;
    QTest::newRow("the flags may be absent")
        << Report{{load, yes}, {QStringLiteral("a"), yes}, {QStringLiteral("b"), yes}} << false << true;
    QTest::newRow("the device was not found")
        << Report{{found, no}, {proper, yes}, {load, yes}} << true << true;
    QTest::newRow("another device was found")
        << Report{{found, yes}, {proper, no}, {load, yes}} << true << true;
    QTest::newRow("only the exact text 0 counts")
        << Report{{found, QStringLiteral("00")}, {proper, QString()}, {QStringLiteral("a"), yes}} << false
        << false;
}

void DeviceStateViewTest::failedReports()
{
    using Map = QMap<QString, QString>;
    QFETCH(Map, report);
    const DeviceStateView view = deviceStateView(report, QStringLiteral("TarvexRT_USB"), QString());
    QTEST(view.failed, "failed");
    QTEST(view.extendedInformationAvailable, "extended");
}

void DeviceStateViewTest::load_data()
{
    QTest::addColumn<QStringList>("entries");
    QTest::addColumn<QString>("bars");
    QTest::addColumn<QString>("loadInReport");
    const auto row = [](const char* sentence, const char* load, const char* bars, const char* inReport) {
        QTest::newRow(sentence) << QStringList{QLatin1String("output_load=") + QLatin1String(load)}
                                << QString::fromLatin1(bars) << QString::fromLatin1(inReport);
    };
    QTest::newRow("no load: all bars to their default")
        << QStringList{} << "default default default" << QString();
    row("a single value leaves the other bars alone", "42", "42 keep keep", "42");
    row("three phases with blanks", "10 / 20/30", "10 20 30", "10/20/30");
    row("empty parts do not count", "/10//20/30/", "10 20 30", "/10//20/30/");
    row("two phases are no number", "10/20", "0 keep keep", "10/20");
    row("four phases are no number", "1/2/3/4", "0 keep keep", "1/2/3/4");
    row("a broken phase reads as 0", "10/x/130", "10 0 130", "10/x/130");
    row("an empty value reads as 0", "", "0 keep keep", "");
    row("blanks inside a number join", "1 0", "10 keep keep", "10");
}

void DeviceStateViewTest::load()
{
    QFETCH(QStringList, entries);
    const DeviceStateView view = viewOf(entries);
    const QStringList bars{barText(view.load.at(0)), barText(view.load.at(1)), barText(view.load.at(2))};
    QTEST(bars.join(QLatin1Char(' ')), "bars");
    QTEST(view.report.value(QStringLiteral("output_load")), "loadInReport");
}

void DeviceStateViewTest::storage_data()
{
    QTest::addColumn<QStringList>("entries");
    QTest::addColumn<QString>("bar");
    const QString fuel = QStringLiteral("fuel_level=60");
    QTest::newRow("neither battery nor fuel") << QStringList{} << "default";
    QTest::newRow("fuel stands in for a battery") << QStringList{fuel} << "60";
    QTest::newRow("a battery goes first") << QStringList{fuel, QStringLiteral("battery_capacity=80")} << "80";
    QTest::newRow("a broken battery value is 0 and still goes first")
        << QStringList{fuel, QStringLiteral("battery_capacity=?")} << "0";
}

void DeviceStateViewTest::storage()
{
    QFETCH(QStringList, entries);
    QTEST(barText(viewOf(entries).batteryState), "bar");
}

void DeviceStateViewTest::fields_data()
{
    QTest::addColumn<QString>("configName");
    QTest::addColumn<QStringList>("entries");
    QTest::addColumn<QStringList>("expected"); // active, apparent, autonomy, firmware, temperature, work mode
    const auto row = [](const char* sentence, const char* configName, const char* entries,
                        const char* expected) {
        QTest::newRow(sentence) << QString::fromLatin1(configName)
                                << QString::fromUtf8(entries).split(QLatin1Char(';'), Qt::SkipEmptyParts)
                                << QString::fromUtf8(expected).split(QLatin1Char(';'));
    };
    row("nothing reported", "Cormel_USB", "", "default;default;default;default;default;n/a");
    row("a plain device", "Cormel_USB",
        "nominal_active_power=900;nominal_spurious_power=1000;autonomy_time=12;firmware_version=1.2;"
        "temperature=31;device_status=on_battery",
        "900 W;1000 VA;12 min.;1.2;31 °C;Rezerwowy");
    row("a large device in thousands, cut off", "Hedrix_SNMP",
        "nominal_active_power=999;nominal_spurious_power=19999", "0 kW;19 kVA;default;default;default;n/a");
    row("a large device with a broken power", "tarvex33_USB", "nominal_active_power=x",
        "0 kW;default;default;default;default;n/a");
    row("a plain device with a broken power", "Cormel_USB", "nominal_active_power=x",
        "x W;default;default;default;default;n/a");
    row("a genset", "Borel_SNMP", "serial_number=AB1;tot_fuel_consum=7;run_time=300;device_status=genset_on",
        "AB1;default;7 l;default;300 h;Włączony");
    row("the serial number gives way to a power", "Borel_SNMP", "serial_number=AB1;nominal_active_power=5",
        "5 W;default;default;default;default;n/a");
    row("radiator and battery temperature together", "Cormel_USB",
        "radiator_temperature=40;battery_temperature=25;run_time=3",
        "default;default;default;default;40 / 25 °C;n/a");
    row("one of them alone does not count", "Cormel_USB", "radiator_temperature=40;run_time=3",
        "default;default;default;default;3 h;n/a");
    row("an unknown work mode as received", "Cormel_USB", "device_status=On_Battery",
        "default;default;default;default;default;On_Battery");
}

void DeviceStateViewTest::fields()
{
    QFETCH(QString, configName);
    QFETCH(QStringList, entries);
    const DeviceStateView view = viewOf(entries, configName.toLatin1().constData());
    const QStringList shown{fieldText(view.nominalActivePower), fieldText(view.nominalSpuriousPower),
                            fieldText(view.autonomyTime),       fieldText(view.firmware),
                            fieldText(view.temperature),        view.workMode};
    QTEST(shown, "expected");
}

void DeviceStateViewTest::nameAndLocation_data()
{
    QTest::addColumn<QStringList>("entries");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("visible");
    const QString name = QStringLiteral("snmp_sys_name= UPS 1 ");
    const QString location = QStringLiteral("snmp_sys_location=Hall");
    const QString nameless = QStringLiteral("<nieokreślona nazwa> - ");
    QTest::newRow("neither reported: hidden, text untouched") << QStringList{} << "default" << false;
    QTest::newRow("both reported and trimmed") << QStringList{name, location} << "UPS 1 - Hall" << true;
    QTest::newRow("a location alone")
        << QStringList{location} << QString(nameless + QLatin1String("Hall")) << true;
    QTest::newRow("a name alone") << QStringList{name} << QStringLiteral("UPS 1 - <nieokreślona lokalizacja>")
                                  << true;
    QTest::newRow("both blank: text set, hidden")
        << QStringList{QStringLiteral("snmp_sys_name= "), QStringLiteral("snmp_sys_location=")}
        << QString(nameless + QStringLiteral("<nieokreślona lokalizacja>")) << false;
}

void DeviceStateViewTest::nameAndLocation()
{
    QFETCH(QStringList, entries);
    const DeviceStateView view = viewOf(entries);
    QTEST(fieldText(view.nameAndLocation), "text");
    QTEST(view.nameAndLocationVisible, "visible");
}

void DeviceStateViewTest::messagesAndEvents()
{
    QVERIFY(!viewOf({}).messages.has_value());
    const DeviceStateView silent = viewOf({QStringLiteral("messages=")});
    QVERIFY(silent.messages.has_value() && silent.messages->isEmpty());
    const DeviceStateView view =
        viewOf({QStringLiteral("messages=5\n\n61\n"), QStringLiteral("events=2;1|")});
    QCOMPARE(*view.messages, (QStringList{QStringLiteral("5"), QStringLiteral("61")}));
    QCOMPARE(view.events, QStringLiteral("2;1|"));
}

void DeviceStateViewTest::equalityFollowsWhatIsShown()
{
    const QStringList entries{QStringLiteral("output_load=10/20/30"), QStringLiteral("temperature=30")};
    QVERIFY(viewOf(entries) == viewOf(entries));
    QVERIFY(viewOf(entries) == viewOf({QStringLiteral("output_load=10 / 20 / 30"), entries.at(1)}));
    QVERIFY(viewOf(entries) != viewOf({QStringLiteral("output_load=10/20/31"), entries.at(1)}));
    QVERIFY(viewOf(entries) != viewOf({entries.at(0), QStringLiteral("temperature=31")}));
    QVERIFY(viewOf({}) != viewOf({QStringLiteral("messages=")}));
}

void DeviceStateViewTest::captionsFollowTheModel()
{
    QCOMPARE(deviceCaptions(QStringLiteral("Borel_SNMP")).nominalActivePower,
             QStringLiteral("Numer seryjny sterownika"));
    QCOMPARE(deviceCaptions(QStringLiteral("Cormel_USB")).load, QStringLiteral("Obciążenie"));
    QCOMPARE(deviceCaptions(QStringLiteral("Virtual_Device")).load, QStringLiteral("Obciążenie L1"));
    QVERIFY(!missingValueReasons(QStringLiteral("CormelRT_USB")).temperature);
    QVERIFY(!missingValueReasons(QStringLiteral("tarvex_dual31_snmp")).firmware);
}

QTEST_GUILESS_MAIN(DeviceStateViewTest)

#include "DeviceStateViewTest.moc"
