// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "devices/core/DeviceTreeLayout.h"
#include "devices/core/ModelCatalogue.h"
#include "devices/core/ModelRules.h"
#include "link/FreeId.h"

#include <QSet>
#include <QTest>

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

// Row and child that become current, one step behind the other; the id that was current stands first.
QString selection(const QString& given)
{
    QString steps;
    const auto rows = deviceTreeLayout(devicesOf(given.section(QLatin1Char(' '), 1)));
    for (const auto& step : deviceSelectionSteps(rows, given.section(QLatin1Char(' '), 0, 0)))
        steps += QStringLiteral("%1/%2 ").arg(step.top).arg(step.child);
    return steps.trimmed();
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
        QTest::newRow(sentence) << rule << QString::fromLatin1(given) << QString::fromLatin1(expected);
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
    row("current ids are compared as numbers", selection, "02 1 2", "1/-1");
    row("a later top-level row takes over from a child and ends the search", selection, "1 8=1 1= 9=1 1",
        "0/0 1/-1");
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
