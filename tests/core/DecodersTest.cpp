// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "monitor/core/DeviceMessages.h"
#include "monitor/core/EventCodes.h"
#include "monitor/core/ExtendedInformation.h"
#include "monitor/core/WorkModes.h"

#include <QTest>

using namespace Velmora;

class DecodersTest final : public QObject
{
    Q_OBJECT

private slots:
    void messages_data();
    void messages();
    void everyNumericCodeHasAText();
    void messageBlocks_data();
    void messageBlocks();
    void eventNames_data();
    void eventNames();
    void eventHistory_data();
    void eventHistory();
    void extendedInformationWorthOpening_data();
    void extendedInformationWorthOpening();
    void extendedInformationOfAGenset();
};

void DecodersTest::messages_data()
{
    QTest::addColumn<QString>("code");
    QTest::addColumn<QString>("text");
    QTest::newRow("the last code before the genset's") << "102"
                                                       << "Przegrzanie falownika";
    QTest::newRow("the first band's first code") << "103"
                                                 << "! Niski poziom paliwa - Wrn";
    QTest::newRow("the first band marks its second code") << "104"
                                                          << "! Niski poziom paliwa - Sd";
    QTest::newRow("the second band leaves that code unmarked") << "132"
                                                               << "Niski poziom paliwa - Sd";
    QTest::newRow("the third band leaves it unmarked too") << "160"
                                                           << "Niski poziom paliwa - Sd";
    QTest::newRow("the second band has its own mark") << "131"
                                                      << "!* Niski poziom paliwa - Wrn";
    QTest::newRow("the first band's last code") << "130"
                                                << "! Serwis - Wrn";
    QTest::newRow("the third band's last code") << "186"
                                                << "* Serwis - Wrn";
    QTest::newRow("the first code after the genset's") << "187"
                                                       << "Brak oleju";
    QTest::newRow("the last code") << "208" << QStringLiteral("Ładowarka - za wysokie napięcie");
    QTest::newRow("lost communication is a message of its own") << "no_communication"
                                                                << "Brak komunikacji";
    QTest::newRow("a work mode among the messages") << "on_power_line"
                                                    << "Tryb pracy - Sieciowy";
    QTest::newRow("a code beyond the table") << "300"
                                             << "Tryb pracy - 300";
    QTest::newRow("a negative code") << "-1"
                                     << "Tryb pracy - -1";
    QTest::newRow("a code with a leading zero") << "07"
                                                << "Tryb pracy - 07";
    QTest::newRow("a code with a sign") << "+7"
                                        << "Tryb pracy - +7";
    QTest::newRow("an empty code") << ""
                                   << "Tryb pracy - ";
    QTest::newRow("a work mode in another case") << "Unknown"
                                                 << "Tryb pracy - Unknown";
}

void DecodersTest::messages()
{
    QFETCH(QString, code);
    QTEST(Utils::decodeMessages(code), "text");
}

void DecodersTest::everyNumericCodeHasAText()
{
    for (int code = 0; code <= 208; ++code) {
        const QString text = Utils::decodeMessages(QString::number(code));
        QVERIFY2(!text.startsWith(QLatin1String("Tryb pracy - ")), qPrintable(text));
    }
}

void DecodersTest::messageBlocks_data()
{
    QTest::addColumn<QString>("codes");
    QTest::addColumn<QString>("alarms");
    QTest::addColumn<QString>("warnings");
    QTest::addColumn<QString>("notices");
    QTest::newRow("no codes leave all blocks empty") << ""
                                                     << ""
                                                     << ""
                                                     << "";
    QTest::newRow("codes of one text can be of two classes")
        << "83 84 7 12"
        << "Awaria bypass"
        << "<FONT COLOR=orange>Bypass<br>Bypass</FONT>"
        << QStringLiteral("<FONT COLOR=#59595B>Status ładowania akumulatorów</FONT>");
    QTest::newRow("an unknown code is an alarm, shown as it came") << "<b>07</b> 15"
                                                                   << "Tryb pracy - <b>07</b>\nAktywne EPO"
                                                                   << ""
                                                                   << "";
}

void DecodersTest::messageBlocks()
{
    QFETCH(QString, codes);
    const DeviceMessageBlocks blocks = deviceMessageBlocks(codes.split(QLatin1Char(' '), Qt::SkipEmptyParts));
    QTEST(blocks.alarms, "alarms");
    QTEST(blocks.warningsHtml, "warnings");
    QTEST(blocks.noticesHtml, "notices");
}

void DecodersTest::eventNames_data()
{
    QTest::addColumn<QString>("code");
    QTest::addColumn<QString>("name");
    QTest::newRow("a leading zero does not count") << "07"
                                                   << "Tryb pracy - Rezerwowa";
    QTest::newRow("what is no number has no name") << "abc"
                                                   << "----";
    QTest::newRow("code 1 has no name") << "1"
                                        << "----";
    QTest::newRow("a gap in the numbering has no name") << "17"
                                                        << "----";
    QTest::newRow("the last code") << "79"
                                   << "Dynamiczna kompensacja mocy biernej aktywna: Stop";
    QTest::newRow("one beyond it") << "80"
                                   << "----";
}

void DecodersTest::eventNames()
{
    QFETCH(QString, code);
    QTEST(eventCodeName(code), "name");
}

void DecodersTest::eventHistory_data()
{
    QTest::addColumn<QString>("events");
    QTest::addColumn<QStringList>("lines");
    QTest::newRow("single digits are padded")
        << "2;3;4;5;6;7" << QStringList{QStringLiteral("03-04 05:06:07 - Tryb pracy - Inicjalizacja")};
    QTest::newRow("two digits stay, and order and unnamed codes too")
        << "1;12;31;23;59;59|3;1;1;0;0;0|"
        << QStringList{QStringLiteral("12-31 23:59:59 - ----"),
                       QStringLiteral("01-01 00:00:00 - Tryb pracy - Stop")};
    QTest::newRow("a record short of a field is dropped") << "2;3;4;5;6" << QStringList{};
    QTest::newRow("a record with a field too many is dropped") << "2;3;4;5;6;7;8" << QStringList{};
    QTest::newRow("empty fields do not count")
        << "2;;3;4;5;6;7;" << QStringList{QStringLiteral("03-04 05:06:07 - Tryb pracy - Inicjalizacja")};
}

void DecodersTest::eventHistory()
{
    QFETCH(QString, events);
    QTEST(formatEventHistory(events), "lines");
}

void DecodersTest::extendedInformationWorthOpening_data()
{
    QTest::addColumn<QString>("keys");
    QTest::addColumn<bool>("worthOpening");
    QTest::newRow("an empty report has nothing") << "" << false;
    QTest::newRow("what only identifies the device is not enough")
        << "ups_input_output_phase rated_va_per_ups_module maximum_number_of_ups_module "
           "snmp_agent_firmware_version snmp_sys_contact snmp_sys_location snmp_sys_name ups_serial_number "
           "battery_remaining_time_limit device_status isUpsFound"
        << false;
    QTest::newRow("one measurement is enough") << "device_status d_plus" << true;
    QTest::newRow("the controller's serial number is enough") << "serial_number" << true;
}

void DecodersTest::extendedInformationWorthOpening()
{
    QFETCH(QString, keys);
    QMap<QString, QString> report;
    const QStringList keyList = keys.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (const QString& key : keyList)
        report.insert(key, QStringLiteral("1"));
    QTEST(containsAny(report), "worthOpening");
}

void DecodersTest::extendedInformationOfAGenset()
{
    const QList<ExInformation> plain = extendedInformationCatalogue(false);
    const QList<ExInformation> genset = extendedInformationCatalogue(true);
    QCOMPARE(plain.size(), 92);
    QCOMPARE(genset.size(), plain.size());
    QStringList different;
    for (int row = 0; row < plain.size(); ++row) {
        if (genset.at(row).label != plain.at(row).label)
            different.append(plain.at(row).key);
    }
    QCOMPARE(different, (QStringList{QStringLiteral("input_voltage"), QStringLiteral("input_frequency")}));
    QCOMPARE(plain.at(17).unit, QString(QChar(0xB0) + QLatin1Char('C')));
}

QTEST_GUILESS_MAIN(DecodersTest)

#include "DecodersTest.moc"
