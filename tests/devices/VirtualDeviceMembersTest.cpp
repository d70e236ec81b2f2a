// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "devices/core/VirtualDeviceMembers.h"

#include <QTest>

using namespace Velmora;
using Utils::Ups;

namespace {

/// Units by their ids; "!" behind it marks one that reports, "-" stands for none.
QList<Ups> units(const QByteArray& ids)
{
    QList<Ups> all;
    for (const QString& id : QString::fromLatin1(ids).split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        Ups ups;
        ups.id = id.startsWith(QLatin1Char('-')) ? QString() : id.left(1);
        ups.model_name = QStringLiteral("Tarvex33_SNMP");
        ups.parallel_unit = id.endsWith(QLatin1Char('!'));
        ups.unit_address = QLatin1String("a") + ups.id;
        all.append(ups);
    }
    return all;
}

} // namespace

class VirtualDeviceMembersTest final : public QObject
{
    Q_OBJECT

private slots:
    void rowsTellWhatCanBePicked_data()
    {
        QTest::addColumn<QByteArrayList>("units"); // all, those of all virtual devices, members
        QTest::addColumn<QString>("rows");         // id, state, enabled and checked of each
        const auto row = [](const char* name, const QByteArrayList& units, const char* rows) {
            QTest::newRow(name) << units << QString::fromLatin1(rows);
        };
        row("a free unit is offered while it reports", {"1! 2", "", ""}, "1:3e");
        row("a silent member stays picked", {"1", "1", "1"}, "1:4ec");
        row("a reporting member, listed twice, is available once", {"1! 1!", "1!", "1!"}, "1:3ec");
        row("units of others are seen but not taken", {"1! 2 3!", "1! 2", ""}, "1:1|2:0|3:3e");
        row("a unit of two virtual devices is picked once", {"1!", "1! 1!", "1!"}, "1:3ec|1:0");
        row("units without an id never match each other", {"-!", "- -", "-"}, ":0|:0|:3e");
    }

    void rowsTellWhatCanBePicked()
    {
        QFETCH(QByteArrayList, units);
        QStringList rows;
        for (const VirtualMemberRow& row :
             virtualMemberRows(::units(units.at(0)), ::units(units.at(1)), ::units(units.at(2)))) {
            rows.append(row.id + QLatin1Char(':') + QString::number(static_cast<int>(row.state)) +
                        QLatin1String(row.enabled ? "e" : "") + QLatin1String(row.checked ? "c" : ""));
        }
        QTEST(rows.join(QLatin1Char('|')), "rows");
    }
};

QTEST_GUILESS_MAIN(VirtualDeviceMembersTest)
#include "VirtualDeviceMembersTest.moc"
