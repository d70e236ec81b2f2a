// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "monitor/core/DeviceMessages.h"
#include "monitor/core/EventCodes.h"
#include "monitor/core/ExtendedInformation.h"

#include <QTest>

using namespace Velmora;
using Decode = QString (*)(const QString&);
Q_DECLARE_METATYPE(Decode)

namespace {

// Alarms, warnings and notices, one line each.
QString messageBlocks(const QString& codes)
{
    const DeviceMessageBlocks blocks = deviceMessageBlocks(codes.split(QLatin1Char(' '), Qt::SkipEmptyParts));
    return blocks.alarms + QLatin1Char('\n') + blocks.warningsHtml + QLatin1Char('\n') + blocks.noticesHtml;
}

QString historyLines(const QString& events)
{
    return formatEventHistory(events).join(QLatin1Char('\n'));
}

} // namespace

class DecodersTest final : public QObject
{
    Q_OBJECT

private slots:
    void decodes_data();
    void decodes();
    void everyNumericCodeHasAText();
    void extendedInformationWorthOpening();
    void extendedInformationOfAGenset();
};

void DecodersTest::decodes_data()
{
    QTest::addColumn<Decode>("decode");
    QTest::addColumn<QString>("received");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char* sentence, Decode decode, const char* received, const char* expected) {
        QTest::newRow(sentence) << decode << QString::fromUtf8(received) << QString::fromUtf8(expected);
    };
    const Decode message = Utils::decodeMessages;
    row("the first band of the genset's codes", message, "104", "! Niski poziom paliwa - Sd");
    row("the first band's last code", message, "130", "! Serwis - Wrn");
    row("the second band has its own mark", message, "131", "!* Niski poziom paliwa - Wrn");
    row("the second band leaves a code unmarked", message, "132", "Niski poziom paliwa - Sd");
    row("the third band's last code", message, "186", "* Serwis - Wrn");
    row("the first code after the genset's", message, "187", "Brak oleju");
    row("the last code", message, "208", "Ładowarka - za wysokie napięcie");
    row("lost communication is a message of its own", message, "no_communication", "Brak komunikacji");
    row("a work mode among the messages", message, "on_power_line", "Tryb pracy - Sieciowy");
    row("a code beyond the table", message, "300", "Tryb pracy - 300");
    row("a negative code", message, "-1", "Tryb pracy - -1");
    row("a code with a leading zero", message, "07", "Tryb pracy - 07");

    row("codes of one text can be of two classes", messageBlocks, "83 84 7 12",
        "Awaria bypass\n<FONT COLOR=orange>Bypass<br>Bypass</FONT>\n"
        "<FONT COLOR=#59595B>Status ładowania akumulatorów</FONT>");
    row("an unknown code is an alarm, shown as it came", messageBlocks, "<b>07</b>",
        "Tryb pracy - <b>07</b>\n\n");

    row("a leading zero of an event does not count", eventCodeName, "07", "Tryb pracy - Rezerwowa");
    row("event code 1 has no name", eventCodeName, "1", "----");
    row("a gap in the numbering has no name", eventCodeName, "17", "----");
    row("the last event code", eventCodeName, "79", "Dynamiczna kompensacja mocy biernej aktywna: Stop");
    row("one beyond it", eventCodeName, "80", "----");

    row("single digits are padded, two stay, and order and unnamed codes too", historyLines,
        "1;12;31;23;59;59|3;1;1;0;0;0|", "12-31 23:59:59 - ----\n01-01 00:00:00 - Tryb pracy - Stop");
    row("a record short of a field is dropped", historyLines, "2;3;4;5;6", "");
    row("a record with a field too many is dropped", historyLines, "2;3;4;5;6;7;8", "");
    row("empty fields do not count", historyLines, "2;;3;4;5;6;7;",
        "03-04 05:06:07 - Tryb pracy - Inicjalizacja");
}

void DecodersTest::decodes()
{
    QFETCH(Decode, decode);
    QFETCH(QString, received);
    QTEST(decode(received), "expected");
}

void DecodersTest::everyNumericCodeHasAText()
{
    for (int code = 0; code <= 208; ++code) {
        const QString text = Utils::decodeMessages(QString::number(code));
        QVERIFY2(!text.startsWith(QLatin1String("Tryb pracy - ")), qPrintable(text));
    }
}

void DecodersTest::extendedInformationWorthOpening()
{
    // What only identifies the device is not enough.
    QMap<QString, QString> report;
    for (const char* key : {"ups_input_output_phase", "snmp_sys_name", "ups_serial_number", "device_status"})
        report.insert(QString::fromLatin1(key), QStringLiteral("1"));
    QVERIFY(!containsAny(report));
    report.insert(QStringLiteral("d_plus"), QString());
    QVERIFY(containsAny(report));
}

void DecodersTest::extendedInformationOfAGenset()
{
    const QList<ExInformation> plain = extendedInformationCatalogue(false);
    const QList<ExInformation> genset = extendedInformationCatalogue(true);
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
