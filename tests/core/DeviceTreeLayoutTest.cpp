// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "devices/core/DeviceTreeLayout.h"

#include <QTest>

using namespace Velmora;
using Velmora::Utils::Ups;
Q_DECLARE_METATYPE(std::vector<DeviceTreePosition>)

namespace {

/// Devices as text: "1" is a TarvexRT_USB, "5?" one of an unknown model, "9=2+1" a virtual device of two
/// units.
QVector<Ups> devicesOf(const QString& text)
{
    QVector<Ups> devices;
    for (const QString& entry : text.split(QLatin1Char(' '))) {
        Ups ups;
        ups.id = entry.section(QLatin1Char('='), 0, 0).remove(QLatin1Char('?'));
        ups.phy_ids = entry.section(QLatin1Char('='), 1).split(QLatin1Char('+'));
        ups.model_name = QStringLiteral("TarvexRT_USB");
        if (entry.contains(QLatin1Char('=')))
            ups.model_name = QStringLiteral("Virtual_Device");
        else if (entry.contains(QLatin1Char('?')))
            ups.model_name = QStringLiteral("Foreign_USB");
        else if (ups.id == QLatin1String("2"))
            ups.user_defined_name = QStringLiteral("Two");
        devices.append(ups);
    }
    return devices;
}

/// "id:text" of each row with its children in parentheses; "-" stands for an empty id or text.
QString outline(const std::vector<DeviceTreeRow>& rows)
{
    QStringList parts;
    for (const DeviceTreeRow& row : rows) {
        const QString none = QStringLiteral("-");
        QString part = (row.ups.id.isEmpty() ? none : row.ups.id) + QLatin1Char(':') +
                       (row.text.isEmpty() ? none : row.text);
        if (!row.children.empty())
            part += QLatin1Char('(') + outline(row.children) + QLatin1Char(')');
        parts.append(part);
    }
    return parts.join(QLatin1String(", "));
}

} // namespace

class DeviceTreeLayoutTest final : public QObject
{
    Q_OBJECT

private slots:
    void layout_data();
    void layout();
    void selection_data();
    void selection();
};

void DeviceTreeLayoutTest::layout_data()
{
    QTest::addColumn<QString>("devices");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char* sentence, const char* devices, const char* expected) {
        QTest::newRow(sentence) << QString::fromLatin1(devices) << QString::fromUtf8(expected);
    };
    row("virtual devices stand before physical ones", "1 9=", "9:Wirtualny UPS, 1:Tarvex RT (USB)");
    row("units stand in the order of the virtual device's list", "1 2 9=2+1",
        "9:Wirtualny UPS(2:Two, 1:Tarvex RT (USB))");
    row("a unit of two virtual devices stands under both and not by itself", "8=2 9=2 2",
        "8:Wirtualny UPS(2:Two), 9:Wirtualny UPS(2:Two)");
    row("a unit that no device matches adds no row", "9=7 2", "9:Wirtualny UPS, 2:Two");
    row("a unit of an unknown model is blank and still taken", "9=3 3?", "9:Wirtualny UPS(-:-)");
    row("unit ids are compared as text", "9=02 2", "9:Wirtualny UPS, 2:Two");
    row("taken ids are compared as numbers", "9=2 2 02", "9:Wirtualny UPS(2:Two)");
    row("a virtual device in another one stays at the top as well", "8= 9=8",
        "8:Wirtualny UPS, 9:Wirtualny UPS(8:Wirtualny UPS)");
    row("an unknown model has no record", "5?", "-:<NIEZNANY>");
}

void DeviceTreeLayoutTest::layout()
{
    QFETCH(QString, devices);
    QTEST(outline(deviceTreeLayout(devicesOf(devices))), "expected");
}

void DeviceTreeLayoutTest::selection_data()
{
    using Steps = std::vector<DeviceTreePosition>;
    QTest::addColumn<QString>("devices");
    QTest::addColumn<QString>("currentId");
    QTest::addColumn<Steps>("expected");
    const auto row = [](const char* sentence, const char* devices, const char* currentId,
                        const Steps& expected) {
        QTest::newRow(sentence) << QString::fromLatin1(devices) << QString::fromLatin1(currentId) << expected;
    };
    row("ids are compared as numbers", "1 2", "02", {{1, -1}});
    row("a vanished device gives way to the first row", "1 2", "7", {{0, -1}});
    row("a later top-level row takes over from a child and ends the search", "8=1 1= 9=1 1", "1",
        {{0, 0}, {1, -1}});
    row("no selection so far means device 0, which an unknown row reads as", "1 5?", "", {{1, -1}});
}

void DeviceTreeLayoutTest::selection()
{
    QFETCH(QString, devices);
    QFETCH(QString, currentId);
    QTEST(deviceSelectionSteps(deviceTreeLayout(devicesOf(devices)), currentId), "expected");
}

QTEST_GUILESS_MAIN(DeviceTreeLayoutTest)

#include "DeviceTreeLayoutTest.moc"
