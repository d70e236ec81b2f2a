// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "devices/core/DeviceRegistrationRules.h"

#include <QTest>

using namespace Velmora;

class DeviceRegistrationRulesTest final : public QObject
{
    Q_OBJECT

private slots:
    void onlyOneOfAClassIsMonitored_data()
    {
        QTest::addColumn<QString>("models"); // present, added, replaced
        QTest::addColumn<bool>("allowed");
        const auto row = [](const char* name, const char* models, bool allowed) {
            QTest::newRow(name) << QString::fromLatin1(models) << allowed;
        };
        row("a second one of a shared class is refused", "LumoLCD_USB Quenta_USB", false);
        row("a model may change within its class", "Quenta_USB LumoLCD_USB Quenta_USB", true);
        row("a model may not move into a class that is taken", "Fenna_Avr_USB Fenna_Avr_USB TarvexRT_USB",
            false);
        row("the same model over a serial line is no matter", "TarvexRT_USB TarvexRT_RS232", true);
        row("two classes stand side by side", "TarvexRT_USB TarvexRT_6_10_USB", true);
        row("an unknown new model is in no class", "Quenta_USB unknown", true);
    }

    void onlyOneOfAClassIsMonitored()
    {
        QFETCH(QString, models);
        const QStringList names = models.split(QLatin1Char(' '));
        QList<Utils::Ups> devices;
        for (const QString& name : {QStringLiteral("Borel_SNMP"), names.at(0)}) {
            devices.append(Utils::Ups());
            devices.last().model_name = name;
        }
        QTEST(registrationAllowed(names.at(1), devices, names.value(2)), "allowed");
    }

    void changeOfTypeResetsEvents()
    {
        // New model and interface, the same of the old one; whether its events are reset.
        for (const char* row : {"CORMEL RT|USB|CORMEL RT XL|USB|1", "TARVEX RT|RS232|TARVEX RT|usb|0",
                                "TARVEX RT|SNMP|TARVEX RT|usb|1", "CORMEL RT XL|USB|CORMEL RT XL|snmp|1",
                                "TARVEX RT|SNMP|TARVEX RT|snmp|0", "HEDRIX|SNMP|HEDRIX|usb|0"}) {
            const QStringList change = QString::fromLatin1(row).split(QLatin1Char('|'));
            const bool resets = changeResetsEvents(change.at(0), change.at(1), change.at(2), change.at(3));
            QVERIFY2(resets == (change.at(4) == QLatin1String("1")), row);
        }
    }

    void addressesAreJudged()
    {
        QVERIFY(isDottedAddress(QStringLiteral("192.0.2.1")) && isDottedAddress(QStringLiteral("999.1.1.1")));
        for (const char* address :
             {"", "192.0.2", "192.0.2.1.1", "1920.0.2.1", "192.0.2.1\n", " 192.0.2.1", "ups"})
            QVERIFY2(!isDottedAddress(QLatin1String(address)), address);
    }
};

QTEST_GUILESS_MAIN(DeviceRegistrationRulesTest)
#include "DeviceRegistrationRulesTest.moc"
