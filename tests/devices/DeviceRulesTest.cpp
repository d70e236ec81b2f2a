// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "devices/core/DeviceRegistrationRules.h"
#include "devices/core/DeviceTreeLayout.h"
#include "devices/core/ModelCatalogue.h"
#include "devices/core/ModelRules.h"
#include "devices/core/UpsConfigurationChecks.h"
#include "devices/core/VirtualDeviceMembers.h"
#include "link/FreeId.h"

#include <QSet>
#include <QTest>

#include <functional>

using namespace Velmora;
using namespace Velmora::Utils;
using Rule = QString (*)(const QString&);
Q_DECLARE_METATYPE(Rule)

namespace {

QString configName(const QString& nameAndInterface)
{
    return getModelConfigName(nameAndInterface.section(QLatin1Char(','), 0, 0),
                              nameAndInterface.section(QLatin1Char(','), 1));
}

QString interfaces(const QString& shortName)
{
    return getInterfaceType(shortName).join(QLatin1Char(' '));
}

// Virtual, genset, large, three phases.
QString families(const QString& name)
{
    QString flags;
    for (const bool belongs :
         {isVirtualDevice(name), isGenset(name), isLargeDevice(name), showsThreePhases(name)})
        flags += QString::number(int(belongs));
    return flags;
}

QString freeId(const QString& taken)
{
    QVector<int> ids;
    for (const QString& id : taken.split(QLatin1Char(' '), Qt::SkipEmptyParts))
        ids.append(id.toInt());
    return QString::number(getFreeId(ids));
}

/// Devices as text: "1" is a TarvexRT_USB, "5?" one of an unknown model, "9=2+1" a virtual device of two
/// units.
QVector<Ups> devicesOf(const QString& text)
{
    QVector<Ups> devices;
    for (const QString& entry : text.split(QLatin1Char(' '))) {
        Ups ups;
        ups.id = entry.section(QLatin1Char('='), 0, 0).remove(QLatin1Char('?'));
        ups.phy_ids = entry.section(QLatin1Char('='), 1).split(QLatin1Char('+'));
        ups.model_name = QLatin1String(entry.contains(QLatin1Char('='))   ? "Virtual_Device"
                                       : entry.contains(QLatin1Char('?')) ? "Foreign_USB"
                                                                          : "TarvexRT_USB");
        devices.append(ups);
    }
    return devices;
}

// The id of each row, "-" for none, with its children in parentheses.
QString outline(const std::vector<DeviceTreeRow>& rows)
{
    QStringList parts;
    for (const DeviceTreeRow& row : rows) {
        const QString children = outline(row.children);
        parts.append((row.ups.id.isEmpty() ? QStringLiteral("-") : row.ups.id) +
                     (children.isEmpty() ? QString() : QLatin1Char('(') + children + QLatin1Char(')')));
    }
    return parts.join(QLatin1Char(' '));
}

QString layout(const QString& devices)
{
    return outline(deviceTreeLayout(devicesOf(devices)));
}

// Of models: present, added, replaced.
QString registration(const QString& models)
{
    const QStringList names = models.split(QLatin1Char(' '));
    Ups present;
    present.model_name = names.at(0);
    return QLatin1String(registrationAllowed(names.at(1), {Ups(), present}, names.value(2)) ? "yes" : "no");
}

// Of new model and interface and the same of the old one: what becomes of the events.
QString change(const QString& given)
{
    const QStringList parts = given.split(QLatin1Char(','));
    return QLatin1String(changeResetsEvents(parts.at(0), parts.at(1), parts.at(2), parts.at(3)) ? "reset"
                                                                                                : "kept");
}

QString addresses(const QString& texts)
{
    QStringList found = texts.split(QLatin1Char(','));
    found.erase(std::remove_if(found.begin(), found.end(), std::not_fn(isDottedAddress)), found.end());
    return found.join(QLatin1Char(','));
}

/// Units by their ids; "!" behind it marks one that reports, "-" stands for none.
QList<Ups> units(const QString& ids)
{
    QList<Ups> all;
    for (const QString& id : ids.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        Ups ups;
        ups.id = id.startsWith(QLatin1Char('-')) ? QString() : id.left(1);
        ups.parallel_unit = id.endsWith(QLatin1Char('!'));
        all.append(ups);
    }
    return all;
}

// Of all units, those of all virtual devices and members: id, state, enabled and checked of each row.
QString members(const QString& given)
{
    const QStringList ids = given.split(QLatin1Char(','));
    QStringList rows;
    for (const auto& row : virtualMemberRows(units(ids.at(0)), units(ids.at(1)), units(ids.at(2)))) {
        rows.append(row.id + QLatin1Char(':') + QString::number(static_cast<int>(row.state)) +
                    QLatin1String(row.enabled ? "e" : "") + QLatin1String(row.checked ? "c" : ""));
    }
    return rows.join(QLatin1Char(' '));
}

// Of model, key and value: information, question, warning, notice, refusal.
QString prompts(const QString& given)
{
    const QStringList parts = given.split(QLatin1Char(' '));
    QString kinds;
    for (const auto& prompt : configurationPrompts(parts.at(0), parts.at(1), parts.at(2)))
        kinds += QLatin1Char("IQWNR"[static_cast<int>(prompt.kind)]);
    return kinds;
}

} // namespace

class DeviceRulesTest final : public QObject
{
    Q_OBJECT

private slots:
    void rules_data();
    void rules();
    void advancedOptionsAndEventDefinitionsKeepStep();
};

void DeviceRulesTest::rules_data()
{
    QTest::addColumn<Rule>("rule");
    QTest::addColumn<QString>("given");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char* sentence, Rule rule, const char* given, const char* expected) {
        QTest::newRow(sentence) << rule << QString::fromUtf8(given) << QString::fromUtf8(expected);
    };
    row("the interface is matched in upper case only", configName, "TARVEX RT,usb", "unknown");
    row("a model split over two places is found whole", configName, "CORMEL RACK,USB", "Cormel_Rack_USB");
    row("the display name is no key", configName, "TARVEX RT PLUS 6k/10k,USB", "unknown");
    row("the virtual device has no interface", configName, "WIRTUALNY UPS,", "Virtual_Device");
    row("interfaces come in catalogue order", interfaces, "CORMEL PRO", "RS232 USB SNMP");
    row("the XL model shares the SNMP events", eventDefinitionStem, "CormelRT_XL_SNMP", "CormelRT_SNMP");
    row("Verde shares the three-phase ones in any case", eventDefinitionStem, "tarvex33verde_USB",
        "Tarvex33");
    row("rules on a family heed case", eventDefinitionStem, "cormelrt_USB", "cormelrt_USB");

    row("a virtual device is large and three-phase", families, "Virtual_Device", "1011");
    row("in lower case it is no virtual device, but shown as one", families, "virtual_device", "0011");
    row("the three-phase family in any case", families, "TARVEX33_SNMP", "0011");
    row("Hedrix is large with a single phase", families, "Hedrix_USB", "0010");
    row("a genset anywhere in the name", families, "My_Borel_SNMP", "0100");
    row("a genset in exact case only", families, "borel_SNMP", "0000");

    row("the first id is 0", freeId, "1 2", "0");
    row("a gap is filled", freeId, "3 0 1", "2");
    row("a duplicate id counts as one of its own", freeId, "0 0 1", "3");
    row("so does a negative one", freeId, "-1 0", "2");

    row("units stand in the order of the virtual device's list", layout, "1 2 9=2+1", "9(2 1)");
    row("a unit of two virtual devices stands under both and not by itself", layout, "8=2 9=2 2",
        "8(2) 9(2)");
    row("a unit that no device matches adds no row", layout, "2 9=7", "9 2");
    row("a unit of an unknown model is blank and still taken", layout, "9=3 3?", "9(-)");
    row("unit ids are compared as text", layout, "9=02 2", "9 2");
    row("taken ids are compared as numbers", layout, "9=2 2 02", "9(2)");
    row("a virtual device in another one stands at the top as well", layout, "8= 9=8", "8 9(8)");

    row("a second one of a shared class", registration, "LumoLCD_USB Quenta_USB", "no");
    row("a change within the class", registration, "Quenta_USB LumoLCD_USB Quenta_USB", "yes");
    row("a move into a class that is taken", registration, "Fenna_Avr_USB Fenna_Avr_USB TarvexRT_USB", "no");
    row("the same model over a serial line", registration, "TarvexRT_USB TarvexRT_RS232", "yes");
    row("two classes side by side", registration, "TarvexRT_USB TarvexRT_6_10_USB", "yes");
    row("an unknown new model is in no class", registration, "Quenta_USB unknown", "yes");
    row("another model of the family", change, "CORMEL RT,USB,CORMEL RT XL,USB", "reset");
    row("from one line to another", change, "TARVEX RT,RS232,TARVEX RT,usb", "kept");
    row("to SNMP", change, "TARVEX RT,SNMP,TARVEX RT,usb", "reset");
    row("from SNMP", change, "CORMEL RT XL,USB,CORMEL RT XL,snmp", "reset");
    row("with SNMP all along", change, "TARVEX RT,SNMP,TARVEX RT,snmp", "kept");
    row("to SNMP in a family of one definition", change, "HEDRIX,SNMP,HEDRIX,usb", "kept");
    row("four short numbers are an address", addresses,
        ",192.0.2.1,999.1.1.1,192.0.2,192.0.2.1.1,1920.0.2.1,192.0.2.1\n, 192.0.2.1,ups",
        "192.0.2.1,999.1.1.1");

    row("a free unit is offered while it reports", members, "1! 2,,", "1:3e");
    row("a silent member stays picked", members, "1,1,1", "1:4ec");
    row("a reporting member, listed twice, is available once", members, "1! 1!,1!,1!", "1:3ec");
    row("units of others are seen but not taken", members, "1! 2 3!,1! 2,", "1:1 2:0 3:3e");
    row("a unit of two virtual devices is picked once", members, "1!,1! 1!,1!", "1:3ec 1:0");
    row("units without an id never match each other", members, "-!,- -,-", ":0 :0 :3e");

    row("a test is announced", prompts, "LumoLCD_USB battery_short_test 1", "I");
    row("EPO asks", prompts, "Tarvex_Dual31_SNMP epo 1", "Q");
    row("EPO of another family does not", prompts, "Tarvex_NOIR_SNMP epo 1", "");
    row("the wear counter warns", prompts, "CormelRT_XL_USB reset_battery_error 1", "W");
    row("a mask waits for the card to restart", prompts, "CormelRT_SNMP network_mask 999.1.1.1", "N");
    row("an address is checked", prompts, "CormelRT_SNMP snmp_agent_ip 1.1.1.1\n", "R");
    row("that of notifications counts at once", prompts, "CormelRT_SNMP snmp_notification_ip 1.1.1.1", "");
    row("30 characters", prompts, "CormelRT_SNMP read_community xxxxxxxxxxxxxxxxxxxxxxxxxxxxxx", "");
    row("31 characters", prompts, "CormelRT_SNMP read_community xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx", "R");
    row("31 characters for another card", prompts,
        "TarvexRT_SNMP read_community xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx", "");
    row("a letter beyond ASCII", prompts, "CormelRT_SNMP http_service_user ł", "R");
    row("the longest delay", prompts, "CormelRT_USB standby_delay 65534", "");
    row("a delay too long", prompts, "CormelRT_USB standby_delay 65535", "R");
    row("a delay beyond all numbers", prompts, "CormelRT_USB standby_delay 99999999999", "R");
}

void DeviceRulesTest::rules()
{
    QFETCH(Rule, rule);
    QFETCH(QString, given);
    QTEST(rule(given), "expected");
}

void DeviceRulesTest::advancedOptionsAndEventDefinitionsKeepStep()
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

QTEST_GUILESS_MAIN(DeviceRulesTest)
#include "DeviceRulesTest.moc"
