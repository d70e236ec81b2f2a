// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "policy/core/EventDefinitions.h"
#include "devices/core/ModelRules.h"

#include <QCryptographicHash>
#include <QTemporaryFile>
#include <QTest>

using namespace Velmora;

namespace {

// Services evaluate the keys letter by letter: MD5 of all resources' stems and keys, a blank between each.
constexpr const char keysSum[] = "9a6dbe415b2d38f6fb5012a87d4cb9ec";

EventDefinitions definitions(const QString& stem, const char* language, bool parallel = true,
                             bool compensation = true)
{
    Utils::Ups device;
    device.parallel_unit = parallel;
    device.power_compensation = compensation;
    return readEventDefinitions(eventDefinitionsPath(stem), device, QString::fromLatin1(language));
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
    const auto sharedLabels = [](EventDefinitions read) {
        QStringList labels = read.getEventList();
        return labels.removeDuplicates();
    };
    QStringList stemsAndKeys;
    const QStringList stems = eventDefinitionStems();
    for (const QString& stem : stems) {
        const EventDefinitions polish = definitions(stem, "polish");
        const EventDefinitions english = definitions(stem, "english");
        stemsAndKeys += stem;
        stemsAndKeys += english.eventKeys;
        // The genset's mains voltage and the Pro line's stop share an English label, one genset entry has
        // none.
        const bool genset = stem == QLatin1String("Borel_SNMP");
        QVERIFY(!polish.eventLabels.values().contains(QString()));
        QCOMPARE(polish.eventLabels.size(), polish.eventKeys.size());
        QCOMPARE(english.eventLabels.size(), english.eventKeys.size() - (genset ? 1 : 0));
        QCOMPARE(sharedLabels(polish), 0);
        QCOMPARE(sharedLabels(english), genset ? 2 : stem.contains(QLatin1String("_PRO_")) ? 1 : 0);
    }
    const QByteArray text = stemsAndKeys.join(QLatin1Char(' ')).toUtf8();
    QCOMPARE(QCryptographicHash::hash(text, QCryptographicHash::Md5).toHex(), QByteArray(keysSum));
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
