// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "logs/core/LogLines.h"

#include <QTest>

using namespace Velmora;

class LogLinesTest final : public QObject
{
    Q_OBJECT

private slots:
    void headerIsReadFromTheNames_data();
    void headerIsReadFromTheNames();
    void linesMayBeRagged();
};

void LogLinesTest::headerIsReadFromTheNames_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QString>("expected"); // cells, columns / column of the work mode
    const auto row = [](const char* name, const char* line, const char* expected) {
        QTest::newRow(name) << QByteArray(line) << QString::fromUtf8(expected);
    };
    row("names, work mode and an unknown name", "date;time;device_status\n;new_key",
        "Data|Czas|Tryb pracy|new_key 4/2");
    row("three phases make a group", "input_voltage_L1;input_voltage_L2;input_voltage_L3;output_load",
        "Napięcie wejściowe [V]+L1+L2+L3|Obciążenie [%] 4/-1");
    row("longer names match some rows", "my_battery_voltage;my_output_load;time_on_battery_2",
        "Napięcie akumulatorów [V]|my_output_load|Czas pracy autonomicznej [min] 3/-1");
    row("an unfinished group swallows what follows", "date;input_pf_L1;time;input_pf_L2", "Data 4/-1");
    row("a new group replaces it", "input_pf_L1;d_plus_L1;d_plus_L2;d_plus_L3;bypass_voltage_L1_L2_L3;time",
        "D+ [V]+L1+L2+L3 6/-1");
    row("phases without their group", "date;input_pf_L2;input_pf_L3;time", "Data|Czas 4/-1");
    row("empty names count as columns", "date;;time;", "Data||Czas| 4/-1");
}

void LogLinesTest::headerIsReadFromTheNames()
{
    QFETCH(QByteArray, line);
    const ParametersHeader header = readParametersHeader(QString::fromUtf8(line));
    QStringList cells;
    for (const LogHeaderCell& cell : header.cells)
        cells.append((QStringList(cell.caption) + cell.phases).join(u'+'));
    QTEST(QString(cells.join(u'|') + QStringLiteral(" %1/%2").arg(header.columns).arg(header.workModeColumn)),
          "expected");
}

void LogLinesTest::linesMayBeRagged()
{
    const auto list = [](const char* texts) { return QString::fromUtf8(texts).split(u'|'); };
    const ParametersHeader header = readParametersHeader(QStringLiteral("date;output_load;device_status"));
    QCOMPARE(parametersFields(QStringLiteral("d;;on_battery;4"), header), list("d||Rezerwowy"));
    QCOMPARE(parametersFields(QStringLiteral("d;4"), header), list("d|4"));
    QCOMPARE(messagesFields(QStringLiteral("d,,t,2,on_battery,")),
             list("d|t|Przeciążenie zasilacza, Tryb pracy - Rezerwowy"));
    QCOMPARE(messagesFields(QStringLiteral("d")), list("d||"));
    QCOMPARE(compensationFields(QStringLiteral("1;;2;3;4;5;6;7;8;9")), list("1|2|3|4|5|6|7|8"));
}

QTEST_APPLESS_MAIN(LogLinesTest)
#include "LogLinesTest.moc"
