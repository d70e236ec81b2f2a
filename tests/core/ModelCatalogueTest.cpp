// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "devices/core/ModelCatalogue.h"
#include "devices/core/ModelRules.h"

#include <QSet>
#include <QTest>
#include <QTranslator>

using namespace Velmora;
using namespace Velmora::Utils;
using Decode = QString (*)(const QString&);
Q_DECLARE_METATYPE(Decode)

namespace {

/// Translates every text to itself in angle brackets.
class BracketTranslator final : public QTranslator
{
public:
    QString translate(const char*, const char* sourceText, const char*, int) const override
    {
        return QLatin1Char('<') + QString::fromUtf8(sourceText) + QLatin1Char('>');
    }
    bool isEmpty() const override { return false; }
};

QString configName(const QString& nameAndInterface)
{
    return getModelConfigName(nameAndInterface.section(QLatin1Char(','), 0, 0),
                              nameAndInterface.section(QLatin1Char(','), 1));
}

QString interfaces(const QString& shortName)
{
    return getInterfaceType(shortName).join(QLatin1Char(' '));
}

} // namespace

class ModelCatalogueTest final : public QObject
{
    Q_OBJECT

private slots:
    void namesFollowTheInstalledLanguage();
    void names_data();
    void names();
    void advancedOptionsAndEventDefinitionsKeepStep();
    void families_data();
    void families();
};

void ModelCatalogueTest::namesFollowTheInstalledLanguage()
{
    BracketTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    QCOMPARE(getModelShortName(QStringLiteral("Virtual_Device")), QStringLiteral("<WIRTUALNY UPS>"));
    QCOMPARE(getModelShortName(QStringLiteral("Tarvex_RS232")), QStringLiteral("TARVEX"));
    QCoreApplication::removeTranslator(&translator);
}

void ModelCatalogueTest::names_data()
{
    QTest::addColumn<Decode>("function");
    QTest::addColumn<QString>("given");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char* sentence, Decode function, const char* given, const char* expected) {
        QTest::newRow(sentence) << function << QString::fromLatin1(given) << QString::fromLatin1(expected);
    };
    row("the interface is matched in upper case only", configName, "TARVEX RT,usb", "unknown");
    row("a model split over two places is found whole", configName, "CORMEL RACK,USB", "Cormel_Rack_USB");
    row("the display name is no key", configName, "TARVEX RT PLUS 6k/10k,USB", "unknown");
    row("the virtual device has no interface", configName, "WIRTUALNY UPS,", "Virtual_Device");
    row("interfaces come in catalogue order", interfaces, "CORMEL PRO", "RS232 USB SNMP");
    row("an unknown name has no interface", interfaces, "CORMELX", "");
    row("the XL model has its own events on USB", eventDefinitionStem, "CormelRT_XL_USB", "CormelRT_XL");
    row("the XL model shares the SNMP ones", eventDefinitionStem, "CormelRT_XL_SNMP", "CormelRT_SNMP");
    row("the large RT has its own on RS232", eventDefinitionStem, "TarvexRT_6_10_RS232", "TarvexRT_6_10");
    row("spelling is the resource's, not the model's", eventDefinitionStem, "TARVEX_RT_PLUS_USB",
        "Tarvex_RT_Plus");
    row("Verde shares the three-phase ones in any case", eventDefinitionStem, "tarvex33verde_USB",
        "Tarvex33");
    row("rules on a family heed case", eventDefinitionStem, "cormelrt_USB", "cormelrt_USB");
}

void ModelCatalogueTest::names()
{
    QFETCH(Decode, function);
    QFETCH(QString, given);
    QTEST(function(given), "expected");
}

void ModelCatalogueTest::advancedOptionsAndEventDefinitionsKeepStep()
{
    const QStringList stems = eventDefinitionStems();
    QSet<QString> reached;
    const QList<Model> models = getAllSuportedModelList();
    for (const Model& model : models) {
        const QString stem = eventDefinitionStem(model.configName);
        QVERIFY2(hasAdvancedEventOptions(model.configName) == stems.contains(stem),
                 qPrintable(model.configName));
        if (stems.contains(stem))
            reached.insert(stem);
    }
    QCOMPARE(reached, QSet<QString>(stems.cbegin(), stems.cend()));
    QVERIFY(hasAdvancedEventOptions(QStringLiteral("VIRTUAL_DEVICE")));
}

void ModelCatalogueTest::families_data()
{
    QTest::addColumn<QString>("configName");
    QTest::addColumn<QString>("expected"); // virtual, genset, large, three phases
    const auto row = [](const char* sentence, const char* name, const char* expected) {
        QTest::newRow(sentence) << QString::fromLatin1(name) << QString::fromLatin1(expected);
    };
    row("a virtual device is large and three-phase", "Virtual_Device", "1011");
    row("in lower case it is no virtual device, but shown as one", "virtual_device", "0011");
    row("the three-phase family in any case", "TARVEX33_SNMP", "0011");
    row("Hedrix is large with a single phase", "Hedrix_USB", "0010");
    row("a genset anywhere in the name", "My_Borel_SNMP", "0100");
    row("a genset in exact case only", "borel_SNMP", "0000");
}

void ModelCatalogueTest::families()
{
    QFETCH(QString, configName);
    QString families;
    for (const bool belongs : {isVirtualDevice(configName), isGenset(configName), isLargeDevice(configName),
                               showsThreePhases(configName)})
        families += QString::number(int(belongs));
    QTEST(families, "expected");
}

QTEST_GUILESS_MAIN(ModelCatalogueTest)

#include "ModelCatalogueTest.moc"
