// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "monitor/ServiceRun.h"

#include <QProcess>
#include <QRegularExpression>
#include <QTest>

using namespace Velmora::Tests;

/// The real window against the real service, each as it ships, over the real port.
class EndToEndTest final : public QObject
{
    Q_OBJECT

private slots:
    void panelFollowsTheServiceThroughLossAndReturn();
};

void EndToEndTest::panelFollowsTheServiceThroughLossAndReturn()
{
    QProcess service;
    QVERIFY(startService(service));
    WindowFixture panel;
    QVERIFY(openOnService(panel, QStringLiteral("Server room")));
    const auto select = [&panel](const char* name) {
        UpsTreeElement* row = panel.row(QString::fromUtf8(name));
        if (row)
            panel.tree()->setCurrentItem(row);
        return row != nullptr;
    };
    const auto shows = [&panel](const char* name, const char* pattern) {
        const QRegularExpression expression(QRegularExpression::anchoredPattern(QString::fromUtf8(pattern)));
        return expression.match(panel.shown(name)).hasMatch();
    };
    constexpr char percent[] = "\\d+ % \\[\\d+\\]";

    QTRY_COMPARE_WITH_TIMEOUT(panel.tree()->allElements().size(), std::size_t(12), patience);
    QStringList rows;
    for (const UpsTreeElement* row : panel.tree()->allElements())
        rows.append(row->parent() ? QLatin1Char('+') + row->text(0) : row->text(0));
    QCOMPARE(rows.join(QLatin1Char('|')),
             QStringLiteral(
                 "Server room|+Server room A|+Server room B|Production hall|Tarvex RT (USB)|"
                 "Office network|Reception|Cash desk|Backup genset|Magazyn Łódź|Quenta (USB)|<NIEZNANY>"));

    QCOMPARE(panel.tree()->currentElement(), panel.row(QStringLiteral("Server room")));
    QTRY_VERIFY_WITH_TIMEOUT(shows("loadProgressBar", percent), patience);
    QCOMPARE(panel.shown("modelNameEdit"), QStringLiteral("Wirtualny UPS"));
    QCOMPARE(panel.shown("serviceTitle"), QStringLiteral("Połączono z usługą:"));
    QTRY_COMPARE(panel.shown("serviceNote"), QStringLiteral("-"));
    QTRY_VERIFY(panel.rowShows(panel.row(QStringLiteral("Server room A")), "green_m"));
    QTRY_VERIFY(panel.rowShows(panel.row(QStringLiteral("Magazyn Łódź")), "red"));

    QVERIFY(select("Production hall"));
    QCOMPARE(panel.shown("loadLabel"), QStringLiteral("Obciążenie L1"));
    QTRY_VERIFY_WITH_TIMEOUT(shows("firmwareEdit", "\\S.*") && shows("nominalActivePowerEdit", "\\d+ kW"),
                             patience);
    for (const char* bar : {"loadProgressBar", "loadProgressBar_2", "loadProgressBar_3"})
        QVERIFY2(shows(bar, percent), qPrintable(panel.shown(bar)));

    QVERIFY(select("Backup genset"));
    QCOMPARE(panel.shown("batteryStateLabel"), QStringLiteral("Poziom paliwa"));
    QTRY_VERIFY_WITH_TIMEOUT(shows("autonomyTimeEdit", "[\\d.]+ l"), patience);
    QVERIFY2(shows("temperatureEdit", "\\d+ h"), qPrintable(panel.shown("temperatureEdit")));
    QVERIFY(shows("batteryStateProgressBar", percent));
    QCOMPARE(panel.shown("nominalActivePowerEdit"), QStringLiteral("15037421"));
    QCOMPARE(panel.shown("deviceText"), QStringLiteral("Połączono z agregatem"));

    panel.timer("socketErrorTimer")->setInterval(1);
    QVERIFY(stopService(service));
    QTRY_COMPARE(panel.shown("serviceTitle"), QStringLiteral("Błąd połączenia z usługą:"));
    for (const UpsTreeElement* row : panel.tree()->allElements())
        QVERIFY(panel.rowShows(row, "red"));
    QCOMPARE(panel.shown("autonomyTimeEdit"), QString());

    QVERIFY(startService(service));
    QTRY_VERIFY(panel.timer("reconnectTimer"));
    panel.timer("reconnectTimer")->setInterval(50);
    QTRY_VERIFY_WITH_TIMEOUT(shows("autonomyTimeEdit", "[\\d.]+ l"), patience);
    QCOMPARE(panel.shown("serviceTitle"), QStringLiteral("Połączono z usługą:"));
    QCOMPARE(panel.tree()->currentElement(), panel.row(QStringLiteral("Backup genset")));
    QTRY_VERIFY(panel.rowShows(panel.row(QStringLiteral("Server room A")), "green_m"));
    QVERIFY(stopService(service));
}

QTEST_MAIN(EndToEndTest)
#include "EndToEndTest.moc"
