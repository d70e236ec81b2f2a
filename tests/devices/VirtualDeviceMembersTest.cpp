// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "devices/core/VirtualDeviceMembers.h"
#include "devices/AddVirtualUpsWindow.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QTest>
#include <QTreeWidget>

using namespace Velmora;
using Utils::Ups;

namespace {

Ups unit(const char* id, bool reports)
{
    Ups ups;
    ups.id = QLatin1String(id);
    ups.model_name = QStringLiteral("Tarvex33_SNMP");
    ups.parallel_unit = reports;
    ups.unit_address = QLatin1String("a") + ups.id;
    return ups;
}

} // namespace

class VirtualDeviceMembersTest final : public QObject
{
    Q_OBJECT

private slots:
    void rowsTellWhatCanBePicked_data()
    {
        QTest::addColumn<QList<Ups>>("all");
        QTest::addColumn<QList<Ups>>("ofAllVirtuals");
        QTest::addColumn<QList<Ups>>("members");
        QTest::addColumn<QString>("rows"); // id, state, enabled and checked of each
        const QList<Ups> none;
        QTest::newRow("nothing reports and nothing is taken")
            << QList<Ups>{unit("1", false)} << none << none << "";
        QTest::newRow("a free unit is offered while it reports")
            << QList<Ups>{unit("1", true), unit("2", false)} << none << none << "1:3e";
        QTest::newRow("a silent member stays picked")
            << QList<Ups>{unit("1", false)} << QList<Ups>{unit("1", false)} << QList<Ups>{unit("1", false)}
            << "1:4ec";
        QTest::newRow("a reporting member, listed twice, is available once")
            << QList<Ups>{unit("1", true), unit("1", true)} << QList<Ups>{unit("1", true)}
            << QList<Ups>{unit("1", true)} << "1:3ec";
        QTest::newRow("units of others are seen but not taken")
            << QList<Ups>{unit("1", true), unit("2", false), unit("3", true)}
            << QList<Ups>{unit("1", true), unit("2", false)} << none << "1:1|2:0|3:3e";
        QTest::newRow("a unit of two virtual devices is picked once")
            << QList<Ups>{unit("1", true)} << QList<Ups>{unit("1", true), unit("1", true)}
            << QList<Ups>{unit("1", true)} << "1:3ec|1:0";
        QTest::newRow("units without an id never match each other")
            << QList<Ups>{unit("", true)} << QList<Ups>{unit("", false), unit("", false)}
            << QList<Ups>{unit("", false)} << ":0|:0|:3e";
    }

    void rowsTellWhatCanBePicked()
    {
        QFETCH(QList<Ups>, all);
        QFETCH(QList<Ups>, ofAllVirtuals);
        QFETCH(QList<Ups>, members);
        QStringList rows;
        for (const VirtualMemberRow& row : virtualMemberRows(all, ofAllVirtuals, members)) {
            rows.append(row.id + QLatin1Char(':') + QString::number(static_cast<int>(row.state)) +
                        QLatin1String(row.enabled ? "e" : "") + QLatin1String(row.checked ? "c" : ""));
        }
        QTEST(rows.join(QLatin1Char('|')), "rows");
    }

    void nothingToPickCannotBeSaved()
    {
        AddVirtualUpsWindow window(nullptr);
        window.displayAvailableParallelDevices({unit("1", false)});
        QVERIFY(!window.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->isEnabled());
        QCOMPARE(window.findChild<QTreeWidget*>()->topLevelItemCount(), 1);
    }
};

QTEST_MAIN(VirtualDeviceMembersTest)
#include "VirtualDeviceMembersTest.moc"
