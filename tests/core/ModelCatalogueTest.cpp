// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "devices/core/ModelCatalogue.h"
#include "devices/core/ModelRules.h"

#include <QSet>
#include <QTest>
#include <QTranslator>

using namespace Velmora;
using namespace Velmora::Utils;

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

} // namespace

class ModelCatalogueTest final : public QObject
{
    Q_OBJECT

private slots:
    void configNamesAreUnique();
    void namesFollowTheInstalledLanguage();
    void configNameOfABoxSelection_data();
    void configNameOfABoxSelection();
    void interfacesOfAShortName_data();
    void interfacesOfAShortName();
    void eventDefinitions_data();
    void eventDefinitions();
    void advancedOptionsAndEventDefinitionsKeepStep();
    void families_data();
    void families();
};

void ModelCatalogueTest::configNamesAreUnique()
{
    QSet<QString> configNames;
    QSet<QString> shortNames;
    const QList<Model> models = getAllSuportedModelList();
    for (const Model& model : models) {
        configNames.insert(model.configName);
        shortNames.insert(model.shortName);
    }
    QCOMPARE(configNames.size(), models.size());
    QCOMPARE(models.size(), 70);
    QCOMPARE(shortNames.size(), 36);
}

void ModelCatalogueTest::namesFollowTheInstalledLanguage()
{
    QCOMPARE(getModelShortName(QStringLiteral("Virtual_Device")), QStringLiteral("WIRTUALNY UPS"));
    BracketTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    QCOMPARE(getModelShortName(QStringLiteral("Virtual_Device")), QStringLiteral("<WIRTUALNY UPS>"));
    QCOMPARE(getModelShortName(QStringLiteral("Borel_SNMP")), QStringLiteral("<AGREGAT BOREL>"));
    QCOMPARE(getModelShortName(QStringLiteral("Tarvex_RS232")), QStringLiteral("TARVEX"));
    QCoreApplication::removeTranslator(&translator);
}

void ModelCatalogueTest::configNameOfABoxSelection_data()
{
    QTest::addColumn<QString>("shortName");
    QTest::addColumn<QString>("interface");
    QTest::addColumn<QString>("configName");
    const auto row = [](const char* sentence, const char* shortName, const char* interface,
                        const char* config) {
        QTest::newRow(sentence) << QString::fromLatin1(shortName) << QString::fromLatin1(interface)
                                << QString::fromLatin1(config);
    };
    row("the interface is matched in upper case only", "TARVEX RT", "usb", "unknown");
    row("a model split over two places is found whole", "CORMEL RACK", "USB", "Cormel_Rack_USB");
    row("short names are upper case throughout", "TARVEX RT PLUS 6K/10K", "USB", "TarvexRTPlus6_10_USB");
    row("the display name is no key", "TARVEX RT PLUS 6k/10k", "USB", "unknown");
    row("the virtual device has no interface", "WIRTUALNY UPS", "", "Virtual_Device");
    row("a model lacks the interface", "CORMEL RT", "RS232", "unknown");
}

void ModelCatalogueTest::configNameOfABoxSelection()
{
    QFETCH(QString, shortName);
    QFETCH(QString, interface);
    QTEST(getModelConfigName(shortName, interface), "configName");
}

void ModelCatalogueTest::interfacesOfAShortName_data()
{
    QTest::addColumn<QString>("shortName");
    QTest::addColumn<QString>("interfaces");
    QTest::newRow("one interface only") << "TARVEX 31 DUAL"
                                        << "SNMP";
    QTest::newRow("interfaces come in catalogue order") << "CORMEL RT"
                                                        << "USB SNMP";
    QTest::newRow("later entries of a model are not forgotten") << "CORMEL PRO"
                                                                << "RS232 USB SNMP";
    QTest::newRow("an unknown name has none") << "CORMEL"
                                                 "X"
                                              << "";
}

void ModelCatalogueTest::interfacesOfAShortName()
{
    QFETCH(QString, shortName);
    QFETCH(QString, interfaces);
    QCOMPARE(getInterfaceType(shortName), interfaces.split(QLatin1Char(' '), Qt::SkipEmptyParts));
}

void ModelCatalogueTest::eventDefinitions_data()
{
    QTest::addColumn<QString>("configName");
    QTest::addColumn<QString>("stem");
    QTest::newRow("the XL model has its own on USB") << "CormelRT_XL_USB"
                                                     << "CormelRT_XL";
    QTest::newRow("the XL model shares the SNMP one") << "CormelRT_XL_SNMP"
                                                      << "CormelRT_SNMP";
    QTest::newRow("the large RT shares the SNMP one too") << "TarvexRT_6_10_SNMP"
                                                          << "TarvexRT_SNMP";
    QTest::newRow("the large RT has its own on RS232") << "TarvexRT_6_10_RS232"
                                                       << "TarvexRT_6_10";
    QTest::newRow("spelling is the resource's, not the model's") << "TARVEX_RT_PLUS_USB"
                                                                 << "Tarvex_RT_Plus";
    QTest::newRow("SNMP goes before its family") << "TARVEX_RT_PLUS_SNMP"
                                                 << "Tarvex_RT_Plus_SNMP";
    QTest::newRow("the PLUS 6-10 is no RT") << "TarvexRTPlus6_10_USB"
                                            << "TarvexRTPlus6_10_USB";
    QTest::newRow("Verde shares the three-phase one in any case") << "tarvex33verde_USB"
                                                                  << "Tarvex33";
    QTest::newRow("Meridian shares that of Hedrix") << "CormelMeridian_SNMP"
                                                    << "Hedrix";
    QTest::newRow("rules on a family heed case") << "cormelrt_USB"
                                                 << "cormelrt_USB";
    QTest::newRow("the rest is named after itself") << "Borel_SNMP"
                                                    << "Borel_SNMP";
}

void ModelCatalogueTest::eventDefinitions()
{
    QFETCH(QString, configName);
    QTEST(eventDefinitionStem(configName), "stem");
}

void ModelCatalogueTest::advancedOptionsAndEventDefinitionsKeepStep()
{
    const QStringList stems = eventDefinitionStems();
    QSet<QString> reached;
    int advanced = 0;
    const QList<Model> models = getAllSuportedModelList();
    for (const Model& model : models) {
        const QString stem = eventDefinitionStem(model.configName);
        QVERIFY2(hasAdvancedEventOptions(model.configName) == stems.contains(stem),
                 qPrintable(model.configName));
        if (stems.contains(stem)) {
            reached.insert(stem);
            ++advanced;
        }
    }
    QCOMPARE(reached, QSet<QString>(stems.cbegin(), stems.cend()));
    QCOMPARE(reached.size(), 26);
    QCOMPARE(advanced, 43);
    QVERIFY(hasAdvancedEventOptions(QStringLiteral("VIRTUAL_DEVICE")));
}

void ModelCatalogueTest::families_data()
{
    QTest::addColumn<QString>("configName");
    QTest::addColumn<bool>("virtualDevice");
    QTest::addColumn<bool>("genset");
    QTest::addColumn<bool>("large");
    QTest::addColumn<bool>("threePhases");
    QTest::newRow("a virtual device is large and three-phase")
        << "Virtual_Device" << true << false << true << true;
    QTest::newRow("in lower case it is no virtual device, but shown as one")
        << "virtual_device" << false << false << true << true;
    QTest::newRow("the three-phase family in any case") << "TARVEX33_SNMP" << false << false << true << true;
    QTest::newRow("Hedrix is large with a single phase") << "Hedrix_USB" << false << false << true << false;
    QTest::newRow("a genset anywhere in the name") << "My_Borel_SNMP" << false << true << false << false;
    QTest::newRow("a genset in exact case only") << "borel_SNMP" << false << false << false << false;
}

void ModelCatalogueTest::families()
{
    QFETCH(QString, configName);
    QTEST(isVirtualDevice(configName), "virtualDevice");
    QTEST(isGenset(configName), "genset");
    QTEST(isLargeDevice(configName), "large");
    QTEST(showsThreePhases(configName), "threePhases");
}

QTEST_GUILESS_MAIN(ModelCatalogueTest)

#include "ModelCatalogueTest.moc"
