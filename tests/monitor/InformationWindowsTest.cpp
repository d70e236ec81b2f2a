// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "monitor/ExtendInformationWindow.h"
#include "monitor/UpsEventsWindow.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>

namespace {

using Report = QMap<QString, QString>;

/// "key=value,key=value"
Report report(const QString& text)
{
    Report values;
    const QStringList entries = text.split(QLatin1Char(','), Qt::SkipEmptyParts);
    for (const QString& entry : entries)
        values.insert(entry.section(QLatin1Char('='), 0, 0), entry.section(QLatin1Char('='), 1));
    return values;
}

/// Line, column, caption and value of every cell of the grid.
QStringList cells(const QDialog& dialog)
{
    auto* grid = qobject_cast<QGridLayout*>(dialog.findChild<QScrollArea*>()->widget()->layout());
    QStringList found;
    for (int line = 0; line < grid->rowCount(); ++line) {
        for (int column = 0; column < grid->columnCount(); ++column) {
            QLayoutItem* cell = grid->itemAtPosition(line, column);
            if (!cell)
                continue;
            const auto* caption = qobject_cast<QLabel*>(cell->layout()->itemAt(0)->widget());
            const auto* value = qobject_cast<QLineEdit*>(cell->layout()->itemAt(1)->widget());
            found.append(QStringLiteral("%1/%2 ").arg(line).arg(column) + caption->text() +
                         QLatin1String(": ") + value->text() + QLatin1Char('.'));
        }
    }
    return found;
}

} // namespace

/// Extended information and event history: what stands in them after a row of reports.
class InformationWindowsTest final : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { Q_INIT_RESOURCE(velmora); }
    void gridShowsTheReports_data();
    void gridShowsTheReports();
    void refreshKeepsTheCells();
    void listFollowsTheHistoryAndKeepsThePlace();
};

void InformationWindowsTest::gridShowsTheReports_data()
{
    QTest::addColumn<QStringList>("reports");
    QTest::addColumn<QStringList>("expected");
    const auto row = [](const char* name, const char* reports, const char* expected) {
        QTest::newRow(name) << QString::fromUtf8(reports).split(QLatin1Char('|'))
                            << QString::fromUtf8(expected).split(QLatin1Char('|'), Qt::SkipEmptyParts);
    };

    row("the catalogue's order, three to the line, and a blank even without a unit",
        "fuel_level=70,snmp_sys_name=<b>a</b>,mac_address=00:00:5E:00:53:01,input_voltage=230.1",
        "0/0 Napięcie wejściowe: 230.1 V.|0/1 Adres MAC: 00:00:5E:00:53:01 .|0/2 Poziom paliwa: 70 %.|"
        "1/0 Nazwa urządzenia: <b>a</b> .");
    row("behind a vanished key the grid closes up, and the last cell stays",
        "input_voltage=230,d_plus=1,fuel_level=70,run_time=5|input_voltage=229,fuel_level=69,run_time=6",
        "0/0 Napięcie wejściowe: 229 V.|0/1 Poziom paliwa: 69 %.|0/2 Całkowity czas pracy: 6 h.|"
        "1/0 Całkowity czas pracy: 5 h.");
}

void InformationWindowsTest::gridShowsTheReports()
{
    QFETCH(QStringList, reports);
    ExtendInformationWindow dialog(false, nullptr);
    for (const QString& text : qAsConst(reports))
        dialog.updateControls(report(text));
    QTEST(cells(dialog), "expected");
}

void InformationWindowsTest::refreshKeepsTheCells()
{
    ExtendInformationWindow dialog(false, nullptr);
    dialog.updateControls(report(QStringLiteral("input_voltage=230,run_time=5")));
    auto* kept = dialog.findChildren<QLineEdit*>().constLast();
    // What the user has selected to copy stays selected while other values change.
    kept->selectAll();
    dialog.updateControls(report(QStringLiteral("input_voltage=231,run_time=5")));
    QCOMPARE(kept->selectedText(), QStringLiteral("5 h"));
    QVERIFY(kept->isReadOnly());
}

void InformationWindowsTest::listFollowsTheHistoryAndKeepsThePlace()
{
    UpsEventsWindow dialog(nullptr);
    dialog.show();
    auto* list = dialog.findChild<QListView*>();
    const auto lines = [list] {
        QStringList found;
        for (int row = 0; row < list->model()->rowCount(); ++row)
            found.append(list->model()->index(row, 0).data().toString());
        return found.join(QLatin1Char('|'));
    };
    const QString named = QStringLiteral("03-04 05:06:07 - Tryb pracy - Inicjalizacja");
    // In the service's order. A report without a history leaves the last one, broken records are nothing.
    const QVector<QPair<QString, QString>> steps{
        {QString(), QStringLiteral("Pobieranie zdarzeń...")},
        {QStringLiteral("1;12;31;23;59;59|2;3;4;5;6;7|"), QStringLiteral("12-31 23:59:59 - ----|") + named},
        {QStringLiteral("2;;3;4;5;6;7;"), named},
        {QString(), named},
        {QStringLiteral("2;3;4;5;6|2;3;4;5;6;7;8"), QString()}};
    for (const auto& [history, shown] : steps) {
        dialog.updateControls(history);
        QCOMPARE(lines(), shown);
    }

    const QString history = QStringLiteral("2;3;4;5;6;0|").repeated(60);
    dialog.updateControls(history);
    list->setCurrentIndex(list->model()->index(40, 0));
    QTRY_VERIFY(list->verticalScrollBar()->value() > 0);
    const int place = list->verticalScrollBar()->value();
    dialog.updateControls(history);
    QCOMPARE(list->currentIndex().row(), 40);
    QCOMPARE(list->verticalScrollBar()->value(), place);
}

QTEST_MAIN(InformationWindowsTest)
#include "InformationWindowsTest.moc"
