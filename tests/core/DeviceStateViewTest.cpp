// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "monitor/core/DeviceStateView.h"

#include <QTest>

using namespace Velmora;
using Part = QString (*)(const DeviceStateView&);
Q_DECLARE_METATYPE(Part)

namespace {

using Report = QMap<QString, QString>;

/// A report of `entries`, "key=value" each.
Report reportOf(const QString& entries)
{
    Report report;
    for (const QString& entry : entries.split(QLatin1Char(';'), Qt::SkipEmptyParts))
        report.insert(entry.section(QLatin1Char('='), 0, 0), entry.section(QLatin1Char('='), 1));
    return report;
}

/// Of a report large enough to tell of a device.
DeviceStateView viewOf(const QString& entries, const QString& configName = QStringLiteral("TarvexRT_USB"))
{
    return deviceStateView(reportOf(QLatin1String("a=;b=;c=;") + entries), configName, QStringLiteral("n/a"));
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

QString loadText(const DeviceStateView& view)
{
    const QStringList bars{barText(view.load.at(0)), barText(view.load.at(1)), barText(view.load.at(2))};
    return bars.join(QLatin1Char(' ')) + QLatin1Char(';') + view.report.value(QStringLiteral("output_load"));
}

QString storageText(const DeviceStateView& view)
{
    return barText(view.batteryState);
}

QString nameText(const DeviceStateView& view)
{
    return view.nameAndLocation.value_or(QStringLiteral("-")) +
           QLatin1String(view.nameAndLocationVisible ? "" : " (hidden)");
}

// Active and apparent power, autonomy, firmware, temperature, work mode.
QString fieldsText(const DeviceStateView& view)
{
    QStringList texts;
    for (const FieldView& field : {view.nominalActivePower, view.nominalSpuriousPower, view.autonomyTime,
                                   view.firmware, view.temperature, FieldView(view.workMode)})
        texts += field.value_or(QStringLiteral("-"));
    return texts.join(QLatin1Char(';'));
}

} // namespace

class DeviceStateViewTest final : public QObject
{
    Q_OBJECT

private slots:
    void failedReports_data();
    void failedReports();
    void shows_data();
    void shows();
    void messages();
    void equalityFollowsWhatIsShown();
};

void DeviceStateViewTest::failedReports_data()
{
    QTest::addColumn<QString>("entries");
    QTest::addColumn<bool>("failed");
    QTest::addColumn<bool>("extended");
    const auto row = [](const char* sentence, const char* entries, bool failed, bool extended) {
        QTest::newRow(sentence) << QString::fromLatin1(entries) << failed << extended;
    };
    row("an empty report", "", true, false);
    row("two entries are too few, but enable the extended information", "isUpsFound=1;output_load=1", true,
        true);
    row("three entries are enough", "isUpsFound=1;isProperDevice=1;output_load=1", false, true);
    row("the flags may be absent", "a=1;b=1;output_load=1", false, true);
    row("the device was not found", "isUpsFound=0;isProperDevice=1;a=1", true, false);
    row("another device was found", "isUpsFound=1;isProperDevice=0;a=1", true, false);
    row("only the exact text 0 counts", "isUpsFound=00;isProperDevice=;a=1", false, false);
}

void DeviceStateViewTest::failedReports()
{
    QFETCH(QString, entries);
    const DeviceStateView view = deviceStateView(reportOf(entries), QString(), QString());
    QTEST(view.failed, "failed");
    QTEST(view.extendedInformationAvailable, "extended");
}

void DeviceStateViewTest::shows_data()
{
    QTest::addColumn<Part>("part");
    QTest::addColumn<QString>("configName");
    QTest::addColumn<QString>("entries");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char* sentence, Part part, const char* configName, const char* entries,
                        const char* expected) {
        QTest::newRow(sentence) << part << QString::fromLatin1(configName) << QString::fromUtf8(entries)
                                << QString::fromUtf8(expected);
    };
    const char* plain = "Cormel_USB";
    row("no load: all bars to their default", loadText, plain, "", "default default default;");
    row("a single value leaves the other bars alone", loadText, plain, "output_load=42", "42 keep keep;42");
    row("three phases with blanks", loadText, plain, "output_load=10 / 20/30", "10 20 30;10/20/30");
    row("empty parts do not count", loadText, plain, "output_load=/10//20/30/", "10 20 30;/10//20/30/");
    row("two phases are no number", loadText, plain, "output_load=10/20", "0 keep keep;10/20");
    row("a broken phase reads as 0", loadText, plain, "output_load=10/x/130", "10 0 130;10/x/130");

    row("neither battery nor fuel", storageText, plain, "", "default");
    row("fuel stands in for a battery", storageText, plain, "fuel_level=60", "60");
    row("a battery goes first, also with a broken value", storageText, plain,
        "fuel_level=60;battery_capacity=?", "0");

    row("nothing reported", fieldsText, plain, "", "-;-;-;-;-;n/a");
    row("a plain device", fieldsText, plain,
        "nominal_active_power=900;nominal_spurious_power=1000;autonomy_time=12;firmware_version=1.2;"
        "temperature=31;device_status=on_battery",
        "900 W;1000 VA;12 min.;1.2;31 °C;Rezerwowy");
    row("a large device in thousands, cut off, a broken power 0", fieldsText, "tarvex33_USB",
        "nominal_active_power=x;nominal_spurious_power=19999", "0 kW;19 kVA;-;-;-;n/a");
    row("a plain device with a broken power", fieldsText, plain, "nominal_active_power=x", "x W;-;-;-;-;n/a");
    row("a genset", fieldsText, "Borel_SNMP",
        "serial_number=AB1;tot_fuel_consum=7;run_time=300;device_status=genset_on",
        "AB1;-;7 l;-;300 h;Włączony");
    row("the serial number gives way to a power", fieldsText, "Borel_SNMP",
        "serial_number=AB1;nominal_active_power=5", "5 W;-;-;-;-;n/a");
    row("radiator and battery temperature together", fieldsText, plain,
        "radiator_temperature=40;battery_temperature=25;run_time=3", "-;-;-;-;40 / 25 °C;n/a");
    row("one of them alone does not count", fieldsText, plain, "radiator_temperature=40;run_time=3",
        "-;-;-;-;3 h;n/a");
    row("an unknown work mode as received", fieldsText, plain, "device_status=On_Battery",
        "-;-;-;-;-;On_Battery");

    row("neither name nor location: hidden, text untouched", nameText, plain, "", "- (hidden)");
    row("both reported and trimmed", nameText, plain, "snmp_sys_name= UPS 1 ;snmp_sys_location=Hall",
        "UPS 1 - Hall");
    row("a location alone", nameText, plain, "snmp_sys_location=Hall", "<nieokreślona nazwa> - Hall");
    row("a name alone", nameText, plain, "snmp_sys_name=UPS", "UPS - <nieokreślona lokalizacja>");
    row("both blank: text set, hidden", nameText, plain,
        "snmp_sys_name= ;snmp_sys_location=", "<nieokreślona nazwa> - <nieokreślona lokalizacja> (hidden)");
}

void DeviceStateViewTest::shows()
{
    QFETCH(Part, part);
    QFETCH(QString, configName);
    QFETCH(QString, entries);
    QTEST(part(viewOf(entries, configName)), "expected");
}

void DeviceStateViewTest::messages()
{
    QVERIFY(!viewOf({}).messages.has_value());
    QCOMPARE(*viewOf(QStringLiteral("messages=")).messages, QStringList());
    QCOMPARE(*viewOf(QStringLiteral("messages=5\n\n61\n")).messages,
             (QStringList{QStringLiteral("5"), QStringLiteral("61")}));
}

void DeviceStateViewTest::equalityFollowsWhatIsShown()
{
    const QString entries = QStringLiteral("output_load=10/20/30;temperature=30");
    QVERIFY(viewOf(entries) == viewOf(QStringLiteral("output_load=10 / 20 / 30;temperature=30")));
    QVERIFY(viewOf(entries) != viewOf(QStringLiteral("output_load=10/20/31;temperature=30")));
    QVERIFY(viewOf(entries) != viewOf(QStringLiteral("output_load=10/20/30;temperature=31")));
    QVERIFY(viewOf({}) != viewOf(QStringLiteral("messages=")));
}

QTEST_GUILESS_MAIN(DeviceStateViewTest)

#include "DeviceStateViewTest.moc"
