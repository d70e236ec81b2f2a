// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "monitor/core/DeviceMessages.h"
#include "monitor/core/DeviceStateView.h"
#include "monitor/core/EventCodes.h"
#include "monitor/core/ShutdownTimersData.h"

#include <QTest>

using namespace Velmora;
using Rule = QString (*)(const QString&);
Q_DECLARE_METATYPE(Rule)

namespace {

// Alarms, warnings and notices, one line each.
QString messageBlocks(const QString& codes)
{
    const DeviceMessageBlocks blocks = deviceMessageBlocks(codes.split(QLatin1Char(' '), Qt::SkipEmptyParts));
    return blocks.alarms + QLatin1Char('\n') + blocks.warningsHtml + QLatin1Char('\n') + blocks.noticesHtml;
}

/// Of a report of "model;key=value;key=value".
DeviceStateView viewOf(const QString& given)
{
    QMap<QString, QString> report;
    for (const QString& entry : given.split(QLatin1Char(';')).mid(1))
        report.insert(entry.section(QLatin1Char('='), 0, 0), entry.section(QLatin1Char('='), 1));
    return deviceStateView(report, given.section(QLatin1Char(';'), 0, 0), QStringLiteral("n/a"));
}

/// The same of a report large enough to tell of a device.
DeviceStateView goodViewOf(const QString& given)
{
    return viewOf(given + QLatin1String(";a=;b=;c="));
}

QString outcome(const QString& given)
{
    const DeviceStateView view = viewOf(given);
    return QLatin1String(view.failed ? "failed" : "good") +
           QLatin1String(view.extendedInformationAvailable ? " extended" : "");
}

QString bars(const QString& given)
{
    const DeviceStateView view = goodViewOf(given);
    QStringList texts;
    for (const BarView& bar : {view.load.at(0), view.load.at(1), view.load.at(2), view.batteryState})
        texts += bar.action == BarView::ShowValue     ? QString::number(bar.value)
                 : bar.action == BarView::ShowDefault ? QStringLiteral("default")
                                                      : QStringLiteral("keep");
    return texts.join(QLatin1Char(' '));
}

// Active and apparent power, autonomy, temperature, work mode.
QString fields(const QString& given)
{
    const DeviceStateView view = goodViewOf(given);
    QStringList texts;
    for (const FieldView& field : {view.nominalActivePower, view.nominalSpuriousPower, view.autonomyTime,
                                   view.temperature, FieldView(view.workMode)})
        texts += field.value_or(QStringLiteral("-"));
    return texts.join(QLatin1Char(';'));
}

// What becomes of the clock, and its next second, with timers 2 of 50 s and 9 of 90 s running.
QString countdown(const QString& announced)
{
    ShutdownTimersData timers;
    timers.addTimer({2, 50});
    timers.addTimer({9, 90});
    QList<QPair<int, int>> pairs;
    for (const QString& timer : announced.split(QLatin1Char(' '), Qt::SkipEmptyParts))
        pairs.append(
            {timer.section(QLatin1Char('='), 0, 0).toInt(), timer.section(QLatin1Char('='), 1).toInt()});
    const CountdownOutcome taken = takeCountdown(timers, pairs);
    return QLatin1String(taken == CountdownOutcome::Cancel  ? "cancel "
                         : taken == CountdownOutcome::Leave ? "leave "
                                                            : "start ") +
           QString::number(timers.tickTimers());
}

} // namespace

class MonitorRulesTest final : public QObject
{
    Q_OBJECT

private slots:
    void rules_data();
    void rules();
    void everyNumericCodeHasAText();
};

void MonitorRulesTest::rules_data()
{
    QTest::addColumn<Rule>("rule");
    QTest::addColumn<QString>("given");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char* sentence, Rule rule, const char* given, const char* expected) {
        QTest::newRow(sentence) << rule << QString::fromUtf8(given) << QString::fromUtf8(expected);
    };
    const Rule message = Utils::decodeMessages;
    row("the first band of the genset's codes ends", message, "130", "! Serwis - Wrn");
    row("the second band has its own mark", message, "131", "!* Niski poziom paliwa - Wrn");
    row("the second band leaves a code unmarked", message, "132", "Niski poziom paliwa - Sd");
    row("the third band ends", message, "186", "* Serwis - Wrn");
    row("lost communication is a message of its own", message, "no_communication", "Brak komunikacji");
    row("a code beyond the table", message, "300", "Tryb pracy - 300");
    row("a code with a leading zero", message, "07", "Tryb pracy - 07");
    row("codes of one text can be of two classes", messageBlocks, "83 84 7 12",
        "Awaria bypass\n<FONT COLOR=orange>Bypass<br>Bypass</FONT>\n"
        "<FONT COLOR=#59595B>Status ładowania akumulatorów</FONT>");
    row("an unknown code is an alarm, shown as it came", messageBlocks, "<b>07</b>",
        "Tryb pracy - <b>07</b>\n\n");
    row("a leading zero of an event does not count", eventCodeName, "07", "Tryb pracy - Rezerwowa");
    row("a gap in the numbering of events has no name", eventCodeName, "17", "----");
    row("the last event", eventCodeName, "79", "Dynamiczna kompensacja mocy biernej aktywna: Stop");

    row("two entries are too few, but enable the extended information", outcome,
        ";isUpsFound=1;output_load=1", "failed extended");
    row("the flags may be absent", outcome, ";a=1;b=1;output_load=1", "good extended");
    row("the device was not found", outcome, ";isUpsFound=0;isProperDevice=1;a=1", "failed");
    row("another device was found", outcome, ";isUpsFound=1;isProperDevice=0;a=1", "failed");
    row("only the exact text 0 counts", outcome, ";isUpsFound=00;isProperDevice=;a=1", "good");
    row("what only identifies the device is no extended information", outcome,
        ";ups_input_output_phase=1;snmp_sys_name=1;ups_serial_number=1;device_status=1", "good");

    row("without a load all bars go to their default", bars, "", "default default default default");
    row("empty phases do not count", bars, ";output_load=/10//20/30/", "10 20 30 default");
    row("two phases are no number", bars, ";output_load=10/20", "0 keep keep default");
    const Rule load = [](const QString& given) {
        return goodViewOf(given).report.value(QStringLiteral("output_load"));
    };
    row("the load goes on without blanks", load, ";output_load=10 / 20/30", "10/20/30");
    row("a broken phase reads as 0", bars, ";output_load=10 / x/130", "10 0 130 default");
    row("a battery goes before fuel, also with a broken value", bars,
        ";output_load=1;fuel_level=60;battery_capacity=?", "1 keep keep 0");

    row("a large device in thousands, cut off, a broken power 0", fields,
        "tarvex33_USB;nominal_active_power=x;nominal_spurious_power=19999", "0 kW;19 kVA;-;-;n/a");
    row("serial number, consumption and run time give way", fields,
        "Borel_SNMP;serial_number=A;nominal_active_power=5;tot_fuel_consum=7;autonomy_time=12;run_time=3;"
        "temperature=31",
        "5 W;-;12 min.;31 °C;n/a");
    row("radiator and battery temperature together", fields,
        ";radiator_temperature=40;battery_temperature=25;run_time=3", "-;-;-;40 / 25 °C;n/a");
    row("one of them alone does not count", fields, ";radiator_temperature=40;run_time=3", "-;-;-;3 h;n/a");
    row("an unknown work mode as received", fields, ";device_status=On_Battery", "-;-;-;-;On_Battery");

    row("an empty announcement cancels", countdown, "", "cancel 49");
    row("a known timer is not shortened", countdown, "2=10 3=60", "start 49");
    row("a withdrawn timer ends the announcement", countdown, "1=70 2=-1 3=40", "leave 69");
    row("zero seconds are a shutdown, not a withdrawal", countdown, "1=0", "start -1");
}

void MonitorRulesTest::rules()
{
    QFETCH(Rule, rule);
    QFETCH(QString, given);
    QTEST(rule(given), "expected");
}

void MonitorRulesTest::everyNumericCodeHasAText()
{
    for (int code = 0; code <= 208; ++code) {
        const QString text = Utils::decodeMessages(QString::number(code));
        QVERIFY2(!text.startsWith(QLatin1String("Tryb pracy - ")), qPrintable(text));
    }
}

QTEST_GUILESS_MAIN(MonitorRulesTest)
#include "MonitorRulesTest.moc"
