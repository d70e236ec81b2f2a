// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "devices/core/DeviceTreeLayout.h"

#include <QTest>

using namespace Velmora;
using Velmora::Utils::Ups;

namespace {

Ups device(const char* id, const char* modelName, const QStringList& unitIds = {},
           const QString& userName = {})
{
    Ups ups;
    ups.id = QString::fromLatin1(id);
    ups.model_name = QString::fromLatin1(modelName);
    ups.phy_ids = unitIds;
    ups.user_defined_name = userName;
    return ups;
}

QStringList ids(const char* text)
{
    return QString::fromLatin1(text).split(QLatin1Char(' '), Qt::SkipEmptyParts);
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

QString steps(const std::vector<DeviceTreePosition>& positions)
{
    QStringList parts;
    for (const DeviceTreePosition& position : positions)
        parts.append(QString::number(position.top) + QLatin1Char('/') + QString::number(position.child));
    return parts.join(QLatin1Char(' '));
}

const QString unitName = QStringLiteral("Tarvex RT (USB)");

} // namespace

class DeviceTreeLayoutTest final : public QObject
{
    Q_OBJECT

private slots:
    void layout_data();
    void layout();
    void rowKeepsTheModelNameBesideTheUsersName();
    void unknownAndBlankRowsLookDifferent();
    void selection_data();
    void selection();
};

void DeviceTreeLayoutTest::layout_data()
{
    QTest::addColumn<QVector<Ups>>("devices");
    QTest::addColumn<QString>("expected");
    const Ups unit1 = device("1", "TarvexRT_USB");
    const Ups unit2 = device("2", "TarvexRT_USB", {}, QStringLiteral("Two"));

    QTest::newRow("no devices, no rows") << QVector<Ups>{} << QString();
    QTest::newRow("virtual devices stand before physical ones")
        << QVector<Ups>{unit1, device("9", "Virtual_Device")} << "9:Wirtualny UPS, 1:Tarvex RT (USB)";
    QTest::newRow("units stand in the order of the virtual device's list")
        << QVector<Ups>{unit1, unit2, device("9", "Virtual_Device", ids("2 1"))}
        << "9:Wirtualny UPS(2:Two, 1:Tarvex RT (USB))";
    QTest::newRow("a unit of two virtual devices stands under both and not by itself")
        << QVector<Ups>{device("8", "Virtual_Device", ids("1")), device("9", "Virtual_Device", ids("1")),
                        unit1}
        << "8:Wirtualny UPS(1:Tarvex RT (USB)), 9:Wirtualny UPS(1:Tarvex RT (USB))";
    QTest::newRow("a unit that no device matches adds no row")
        << QVector<Ups>{device("9", "Virtual_Device", ids("7")), unit1}
        << "9:Wirtualny UPS, 1:Tarvex RT (USB)";
    QTest::newRow("a unit of an unknown model is blank and still taken")
        << QVector<Ups>{device("9", "Virtual_Device", ids("3")), device("3", "Foreign_USB")}
        << "9:Wirtualny UPS(-:-)";
    QTest::newRow("unit ids are compared as text")
        << QVector<Ups>{device("9", "Virtual_Device", ids("01")), unit1}
        << "9:Wirtualny UPS, 1:Tarvex RT (USB)";
    QTest::newRow("taken ids are compared as numbers")
        << QVector<Ups>{device("9", "Virtual_Device", ids("1")), unit1, device("01", "TarvexRT_USB")}
        << "9:Wirtualny UPS(1:Tarvex RT (USB))";
    QTest::newRow("a virtual device in another one stays at the top as well")
        << QVector<Ups>{device("8", "Virtual_Device"), device("9", "Virtual_Device", ids("8"))}
        << "8:Wirtualny UPS, 9:Wirtualny UPS(8:Wirtualny UPS)";
    QTest::newRow("an unknown model has no record")
        << QVector<Ups>{device("5", "Foreign_USB")} << "-:<NIEZNANY>";
}

void DeviceTreeLayoutTest::layout()
{
    QFETCH(QVector<Ups>, devices);
    QTEST(outline(deviceTreeLayout(devices)), "expected");
}

void DeviceTreeLayoutTest::rowKeepsTheModelNameBesideTheUsersName()
{
    const auto rows = deviceTreeLayout({device("2", "TarvexRT_USB", {}, QStringLiteral("Two"))});
    QCOMPARE(rows.front().text, QStringLiteral("Two"));
    QCOMPARE(rows.front().modelFullName, unitName);
}

void DeviceTreeLayoutTest::unknownAndBlankRowsLookDifferent()
{
    const auto rows =
        deviceTreeLayout({device("9", "Virtual_Device", ids("3")), device("3", "A"), device("4", "B")});
    QCOMPARE(rows.at(0).iconPath, QStringLiteral(":/indicators/images/indicators/grey.png"));
    QCOMPARE(rows.at(0).children.at(0).iconPath, QString());
    QCOMPARE(rows.at(1).iconPath, QStringLiteral(":/indicators/images/indicators/unknown.png"));
}

void DeviceTreeLayoutTest::selection_data()
{
    QTest::addColumn<QVector<Ups>>("devices");
    QTest::addColumn<QString>("currentId");
    QTest::addColumn<QString>("expected");
    const Ups unit1 = device("1", "TarvexRT_USB");
    const Ups unit2 = device("2", "TarvexRT_USB");
    const Ups virtual8 = device("8", "Virtual_Device", ids("1"));
    const Ups virtual9 = device("9", "Virtual_Device", ids("1"));

    QTest::newRow("nothing to select in an empty tree") << QVector<Ups>{} << "1"
                                                        << "";
    QTest::newRow("ids are compared as numbers") << QVector<Ups>{unit1, unit2} << "02"
                                                 << "1/-1";
    QTest::newRow("a vanished device gives way to the first row") << QVector<Ups>{unit1, unit2} << "7"
                                                                  << "0/-1";
    QTest::newRow("a child is found below its parent") << QVector<Ups>{virtual9, unit1} << "1"
                                                       << "0/0";
    QTest::newRow("a later child takes over from an earlier one")
        << QVector<Ups>{virtual8, virtual9, unit1} << "1"
        << "0/0 1/0";
    QTest::newRow("a later top-level row takes over and ends the search")
        << QVector<Ups>{virtual8, device("1", "Virtual_Device"), virtual9, unit1} << "1"
        << "0/0 1/-1";
    QTest::newRow("no selection so far means device 0, which an unknown row reads as")
        << QVector<Ups>{unit1, device("5", "Foreign_USB")} << ""
        << "1/-1";
}

void DeviceTreeLayoutTest::selection()
{
    QFETCH(QVector<Ups>, devices);
    QFETCH(QString, currentId);
    QTEST(steps(deviceSelectionSteps(deviceTreeLayout(devices), currentId)), "expected");
}

QTEST_GUILESS_MAIN(DeviceTreeLayoutTest)

#include "DeviceTreeLayoutTest.moc"
