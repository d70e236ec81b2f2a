// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "devices/core/DeviceRegistrationRules.h"

#include <QTest>

using namespace Velmora;

namespace {

QList<Utils::Ups> devicesOf(const QStringList& configNames)
{
    QList<Utils::Ups> devices;
    for (const QString& name : configNames) {
        Utils::Ups device;
        device.model_name = name;
        devices.append(device);
    }
    return devices;
}

} // namespace

class DeviceRegistrationRulesTest final : public QObject
{
    Q_OBJECT

private slots:
    void onlyOneOfAClassIsMonitored_data()
    {
        QTest::addColumn<QString>("present");
        QTest::addColumn<QString>("added");
        QTest::addColumn<QString>("replaced");
        QTest::addColumn<bool>("allowed");
        QTest::newRow("a second one of a shared class is refused") << "LumoLCD_USB"
                                                                   << "Quenta_USB"
                                                                   << "" << false;
        QTest::newRow("a model may change within its class") << "Quenta_USB"
                                                             << "LumoLCD_USB"
                                                             << "Quenta_USB" << true;
        QTest::newRow("a model may not move into a class that is taken") << "Fenna_Avr_USB"
                                                                         << "Fenna_Avr_USB"
                                                                         << "TarvexRT_USB" << false;
        QTest::newRow("the same model over a serial line is no matter") << "TarvexRT_USB"
                                                                        << "TarvexRT_RS232"
                                                                        << "" << true;
        QTest::newRow("two classes stand side by side") << "TarvexRT_USB"
                                                        << "TarvexRT_6_10_USB"
                                                        << "" << true;
        QTest::newRow("an unknown new model is in no class") << "Quenta_USB"
                                                             << "unknown"
                                                             << "" << true;
    }

    void onlyOneOfAClassIsMonitored()
    {
        QFETCH(QString, present);
        QFETCH(QString, added);
        QFETCH(QString, replaced);
        const QList<Utils::Ups> devices = devicesOf({QStringLiteral("Borel_SNMP"), present});
        QTEST(registrationAllowed(added, devices, replaced), "allowed");
    }

    void changeOfTypeResetsEvents_data()
    {
        QTest::addColumn<QStringList>("change"); // new model, new interface, old model, old interface
        QTest::addColumn<bool>("resets");
        const auto row = [](const char* name, const char* change, bool resets) {
            QTest::newRow(name) << QString::fromLatin1(change).split(QLatin1Char('|')) << resets;
        };
        row("another model", "CORMEL RT|USB|CORMEL RT XL|USB", true);
        row("cable to cable", "TARVEX RT|RS232|TARVEX RT|usb", false);
        row("cable to network", "TARVEX RT|SNMP|TARVEX RT|usb", true);
        row("network to cable", "CORMEL RT XL|USB|CORMEL RT XL|snmp", true);
        row("network to network", "TARVEX RT|SNMP|TARVEX RT|snmp", false);
        row("a family with one set of events", "HEDRIX|SNMP|HEDRIX|usb", false);
    }

    void changeOfTypeResetsEvents()
    {
        QFETCH(QStringList, change);
        QTEST(changeResetsEvents(change.at(0), change.at(1), change.at(2), change.at(3)), "resets");
    }

    void snmpOptionsFollowTheModel_data()
    {
        QTest::addColumn<bool>("versionSelectable");
        for (const char* model : {"TARVEX RT", "TARVEX RT 6000/10000", "TARVEX RT PRO 1K-3K",
                                  "TARVEX 31 DUAL", "TARVEX RT PLUS 6K/10K", "TARVEX NOIR"})
            QTest::newRow(model) << true;
        for (const char* model : {"TARVEX RT PLUS", "TARVEX 33", "HEDRIX", "AGREGAT BOREL"})
            QTest::newRow(model) << false;
    }

    void snmpOptionsFollowTheModel()
    {
        const QString model = QString::fromLatin1(QTest::currentDataTag());
        QTEST(isSnmpVersionSelectable(model), "versionSelectable");
        QCOMPARE(hasControllerSerialNumber(model), model.contains(QLatin1String("BOREL")));
    }

    void addressesAreFourGroupsOfDigits_data()
    {
        QTest::addColumn<bool>("valid");
        QTest::newRow("192.0.2.1") << true;
        QTest::newRow("999.1.1.1") << true;
        for (const char* address :
             {"", "192.0.2", "192.0.2.1.1", "1920.0.2.1", "192.0.2.1\n", " 192.0.2.1", "ups"})
            QTest::newRow(address) << false;
    }

    void addressesAreFourGroupsOfDigits()
    {
        QTEST(isDottedAddress(QString::fromLatin1(QTest::currentDataTag())), "valid");
    }
};

QTEST_GUILESS_MAIN(DeviceRegistrationRulesTest)
#include "DeviceRegistrationRulesTest.moc"
