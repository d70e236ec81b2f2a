// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "policy/core/EventDefinitions.h"

#include <QCryptographicHash>
#include <QRegularExpression>
#include <QSet>
#include <QTemporaryFile>
#include <QTest>

using namespace Velmora;

namespace {

// States, messages, alarms and parameters of each resource.
constexpr const char* resources[] = {
    "Borel_SNMP 3 3 81 0",
    "CormelRT 8 13 9 14",
    "CormelRT_SNMP 5 0 13 13",
    "CormelRT_XL 8 13 9 14",
    "Cormel_HID 6 7 2 0",
    "Fenna_Avr 7 9 3 8",
    "Hedrix 12 7 6 0",
    "LumoPro_Avr 6 6 5 12",
    "Tarvex33 12 22 9 64",
    "TarvexRT 11 13 8 0",
    "TarvexRTPlus6_10_RS232 10 9 3 17",
    "TarvexRTPlus6_10_SNMP 10 9 3 13",
    "TarvexRTPlus6_10_USB 10 9 3 12",
    "TarvexRT_6_10 11 14 5 0",
    "TarvexRT_SNMP 11 14 4 0",
    "Tarvex_NOIR_RS232 6 6 6 19",
    "Tarvex_NOIR_SNMP 6 6 6 19",
    "Tarvex_Dual31_SNMP 11 14 4 0",
    "Tarvex_KOMBI_10k_20k_RS232 10 10 7 37",
    "Tarvex_KOMBI_10k_20k_SNMP 10 9 7 35",
    "Tarvex_RT_PRO_1k_3k_RS232 10 9 6 12",
    "Tarvex_RT_PRO_1k_3k_SNMP 10 9 6 16",
    "Tarvex_RT_PRO_1k_3k_USB 10 25 7 15",
    "Tarvex_RT_Plus 8 12 4 10",
    "Tarvex_RT_Plus_SNMP 8 8 2 10",
    "Virtual_Device 12 3 9 0",
};

// Services evaluate the keys letter by letter: MD5 of each class's keys in order of appearance, a blank
// between.
constexpr const char* vocabulary[][2] = {{"state", "5e09f3e8db24a114adb07b625ce13723"},
                                         {"message", "0792907134f8c2f71c50e9050baa9da2"},
                                         {"alarm", "7415d036fc8880d0ed61601e46daf4a3"},
                                         {"param", "f7cb858222aa5f51aa7427372e0a50f5"}};

EventDefinitions definitions(const QString& stem, const char* language, bool parallel = true,
                             bool compensation = true)
{
    Utils::Ups device;
    device.parallel_unit = parallel;
    device.power_compensation = compensation;
    return readEventDefinitions(eventDefinitionsPath(stem), device, QString::fromLatin1(language));
}

int sharedLabels(EventDefinitions read)
{
    const QStringList labels = read.getEventList();
    return labels.size() - QSet<QString>(labels.cbegin(), labels.cend()).size();
}

} // namespace

class EventDefinitionsTest final : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { Q_INIT_RESOURCE(velmora); }
    void resourcesHoldTheVocabulary();
    void capabilitiesDecideWhatIsOffered();
    void labelsLeadToKeys();
    void brokenFileKeepsWhatCameBefore();
};

void EventDefinitionsTest::resourcesHoldTheVocabulary()
{
    QStringList all;
    for (const char* resource : resources) {
        const QString stem = QString::fromLatin1(resource).section(QLatin1Char(' '), 0, 0);
        const EventDefinitions english = definitions(stem, "english");
        QString counts = stem;
        QStringList inOrder;
        for (const auto& [prefix, sum] : vocabulary) {
            const QStringList keys =
                english.eventKeys.filter(QRegularExpression(QLatin1Char('^') + QLatin1String(prefix)));
            counts += QLatin1Char(' ') + QString::number(keys.size());
            inOrder += keys;
        }
        QCOMPARE(counts, QString::fromLatin1(resource));
        QCOMPARE(english.eventKeys, inOrder);
        QCOMPARE(english.failure, EventDefinitions::Failure::None);
        all += english.eventKeys;

        // The genset's mains voltage and the Pro line's stop share an English label, one genset entry has
        // none.
        const bool genset = stem == QLatin1String("Borel_SNMP");
        const EventDefinitions polish = definitions(stem, "polish");
        QVERIFY(!polish.eventLabels.values().contains(QString()));
        QCOMPARE(polish.eventLabels.size(), polish.eventKeys.size());
        QCOMPARE(english.eventLabels.size(), english.eventKeys.size() - (genset ? 1 : 0));
        QCOMPARE(sharedLabels(polish), 0);
        QCOMPARE(sharedLabels(english), genset ? 2 : stem.contains(QLatin1String("_PRO_")) ? 1 : 0);
    }
    all.removeDuplicates();
    for (const auto& [prefix, sum] : vocabulary) {
        const QStringList keys = all.filter(QRegularExpression(QLatin1Char('^') + QLatin1String(prefix)));
        const QByteArray text = keys.join(QLatin1Char(' ')).toUtf8();
        QCOMPARE(QCryptographicHash::hash(text, QCryptographicHash::Md5).toHex(), QByteArray(sum));
    }
}

void EventDefinitionsTest::capabilitiesDecideWhatIsOffered()
{
    const EventDefinitions bare = definitions(QStringLiteral("Tarvex33_USB"), "polish", false, false);
    QCOMPARE(bare.eventKeys.size(), 107 - 9);
    QCOMPARE(bare.eventLabels.size(), 107);
    QVERIFY(!bare.isEventState(QStringLiteral("message2LcdError")));
    QVERIFY(bare.isParam(QStringLiteral("paramInputFreq")));
    QVERIFY(!bare.isEventState(QStringLiteral("paramInputFreq")));
    const EventDefinitions parallel = definitions(QStringLiteral("Tarvex33_USB"), "polish", true, false);
    QVERIFY(!parallel.isEventState(QStringLiteral("message2PowerCompensation")));
    QCOMPARE(parallel.eventKeys.size(), 106);
    QCOMPARE(definitions(QStringLiteral("Virtual_Device"), "polish", false, false).eventKeys.size(), 24);
}

void EventDefinitionsTest::labelsLeadToKeys()
{
    EventDefinitions genset = definitions(QStringLiteral("Borel_SNMP"), "Polish");
    QVERIFY(genset.getEventList().contains(QString()));
    QCOMPARE(genset.eventKey(QString()), QStringLiteral("messageTemperatureIncrease"));
    QCOMPARE(genset.eventKey(QStringLiteral("!* Mains Lx >,< V - BOC")), QStringLiteral("alarm2MainsLN"));
    QCOMPARE(genset.eventKey(QStringLiteral("alarm2MainsLN")), QString());
}

void EventDefinitionsTest::brokenFileKeepsWhatCameBefore()
{
    QTemporaryFile file;
    QVERIFY(file.open());
    file.write("<any><stateNormal en='a'/><alarmOff en='b' parallel_ready='0'/><ups_x/>"
               "<deep><paramLoad en='c'/></deep><stateLost");
    file.close();
    const EventDefinitions read = readEventDefinitions(file.fileName(), {}, {});
    QCOMPARE(read.eventKeys, (QStringList{QStringLiteral("stateNormal"), QStringLiteral("paramLoad")}));
    QCOMPARE(read.failureText(), QLatin1String("Plik ") + file.fileName() + QStringLiteral(" zawiera błędy"));
    QVERIFY(read.isFound());

    const EventDefinitions missing = definitions(QStringLiteral("../Quenta_USB"), "polish");
    QVERIFY(!missing.isFound());
    QVERIFY(missing.failureText().endsWith(QLatin1String(" :/data/data/../Quenta_USB.xml")));
}

QTEST_APPLESS_MAIN(EventDefinitionsTest)
#include "EventDefinitionsTest.moc"
