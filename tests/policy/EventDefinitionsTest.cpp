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

EventDefinitions definitions(const QString& stem, bool parallel = true, bool compensation = true)
{
    Utils::Ups device;
    device.parallel_unit = parallel;
    device.power_compensation = compensation;
    return readEventDefinitions(eventDefinitionsPath(stem), device, QStringLiteral("polish"));
}

} // namespace

class EventDefinitionsTest final : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { Q_INIT_RESOURCE(velmora); }
    void resourcesHoldTheVocabulary();
    void capabilitiesDecideWhatIsOffered();
    void brokenFileKeepsWhatCameBefore();
};

void EventDefinitionsTest::resourcesHoldTheVocabulary()
{
    QStringList stemsAndKeys;
    const QStringList stems = eventDefinitionStems();
    for (const QString& stem : stems) {
        const EventDefinitions read = definitions(stem);
        stemsAndKeys += stem;
        stemsAndKeys += read.eventKeys;
        // A label that two keys share could not be told apart.
        QStringList labels = read.eventLabels.values();
        QVERIFY(!labels.contains(QString()) && labels.removeDuplicates() == 0);
        QCOMPARE(labels.size(), read.eventKeys.size());
    }
    const QByteArray text = stemsAndKeys.join(QLatin1Char(' ')).toUtf8();
    QCOMPARE(QCryptographicHash::hash(text, QCryptographicHash::Md5).toHex(), QByteArray(keysSum));
}

void EventDefinitionsTest::capabilitiesDecideWhatIsOffered()
{
    const EventDefinitions bare = definitions(QStringLiteral("Tarvex33_USB"), false, false);
    QCOMPARE(bare.eventKeys.size(), 107 - 9);
    QCOMPARE(bare.eventLabels.size(), 107);
    QCOMPARE(definitions(QStringLiteral("Tarvex33_USB"), true, false).eventKeys.size(), 106);
    QCOMPARE(definitions(QStringLiteral("Virtual_Device"), false, false).eventKeys.size(), 24);
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
    QVERIFY(
        definitions(QStringLiteral("../x")).failureText().endsWith(QLatin1String(" :/data/data/../x.xml")));
}

QTEST_APPLESS_MAIN(EventDefinitionsTest)
#include "EventDefinitionsTest.moc"
