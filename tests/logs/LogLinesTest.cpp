// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "logs/core/LogLines.h"

#include <QTest>

using namespace Velmora;

class LogLinesTest final : public QObject
{
    Q_OBJECT

private slots:
    void headersAndRaggedLinesAreRead();
};

void LogLinesTest::headersAndRaggedLinesAreRead()
{
    // Cells and phases as they are captioned, then the number of columns and that of the work mode.
    const auto header = [](const char* line) {
        const ParametersHeader read = readParametersHeader(QLatin1String(line));
        QStringList cells;
        for (const LogHeaderCell& cell : read.cells)
            cells.append((QStringList(cell.caption) + cell.phases).join(u'+'));
        return QString(cells.join(u'|') +
                       QStringLiteral(" %1/%2").arg(read.columns).arg(read.workModeColumn));
    };
    QCOMPARE(header("date;time;device_status\n;new_key;"),
             QStringLiteral("Data|Czas|Tryb pracy|new_key| 5/2"));
    QCOMPARE(header("input_voltage_L1;input_voltage_L2;input_voltage_L3;my_output_load;my_battery_voltage"),
             QStringLiteral("Napięcie wejściowe [V]+L1+L2+L3|my_output_load|Napięcie akumulatorów [V] 5/-1"));
    // Unfinished groups swallow what follows and give way to the next one; phases without a group are
    // nothing.
    QCOMPARE(header("d_plus_L2;date;run_time_L1;time;d_plus_L1;d_plus_L2;d_plus_L3;input_pf_L1_L2_L3;time"),
             QStringLiteral("Data|D+ [V]+L1+L2+L3 9/-1"));

    const auto list = [](const char* texts) { return QString::fromUtf8(texts).split(u'|'); };
    const ParametersHeader three = readParametersHeader(QStringLiteral("date;output_load;device_status"));
    QCOMPARE(parametersFields(QStringLiteral("d;;on_battery;4"), three), list("d||Rezerwowy"));
    QCOMPARE(parametersFields(QStringLiteral("d;4"), three), list("d|4"));
    QCOMPARE(messagesFields(QStringLiteral("d,,t,2,eco,")),
             list("d|t|Przeciążenie zasilacza, Tryb pracy - ECO"));
    QCOMPARE(messagesFields(QStringLiteral("d")), list("d||"));
    QCOMPARE(compensationFields(QStringLiteral("1;;2;3;4;5;6;7;8;9")), list("1|2|3|4|5|6|7|8"));
}

QTEST_APPLESS_MAIN(LogLinesTest)
#include "LogLinesTest.moc"
