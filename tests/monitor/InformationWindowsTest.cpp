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

QStringList lines(const QDialog& dialog)
{
    const QAbstractItemModel* model = dialog.findChild<QListView*>()->model();
    QStringList found;
    for (int row = 0; row < model->rowCount(); ++row)
        found.append(model->index(row, 0).data().toString());
    return found;
}

} // namespace

/// Extended information and event history: what stands in them after a row of reports.
class InformationWindowsTest final : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void gridShowsTheReports_data();
    void gridShowsTheReports();
    void refreshKeepsTheCells();
    void listShowsTheHistory_data();
    void listShowsTheHistory();
    void sameHistoryKeepsThePlace();
};

void InformationWindowsTest::initTestCase()
{
    Q_INIT_RESOURCE(velmora);
}

void InformationWindowsTest::gridShowsTheReports_data()
{
    QTest::addColumn<bool>("genset");
    QTest::addColumn<QStringList>("reports");
    QTest::addColumn<QStringList>("expected");
    const auto row = [](const char* name, bool genset, const char* reports, const char* expected) {
        QTest::newRow(name) << genset << QString::fromUtf8(reports).split(QLatin1Char('|'))
                            << QString::fromUtf8(expected).split(QLatin1Char('|'), Qt::SkipEmptyParts);
    };

    row("the catalogue's order, three to the line, and a blank even without a unit", false,
        "fuel_level=70,output_load=10/20/30,mac_address=00:00:5E:00:53:01,input_voltage=230.1",
        "0/0 Napięcie wejściowe: 230.1 V.|0/1 Obciążenie: 10/20/30 %.|0/2 Adres MAC: 00:00:5E:00:53:01 .|"
        "1/0 Poziom paliwa: 70 %.");
    row("a genset measures the mains", true, "input_voltage=230,input_frequency=50,output_voltage=231",
        "0/0 Napięcie fazowe w sieci elektrycznej: 230 V.|0/1 Częstotliwość w sieci elektrycznej: 50 Hz.|"
        "0/2 Napięcie wyjściowe: 231 V.");
    row("what only identifies a device is shown too", false,
        "ups_serial_number=T33,snmp_sys_name=<b>a</b>,rated_va_per_ups_module=900",
        "0/0 Numer fabryczny UPS: T33 .|0/1 Nazwa urządzenia: <b>a</b> .|"
        "0/2 Znamionowa moc pozorna pojedynczego\nmodułu UPS: 900 VA.");
    row("behind a vanished key the grid closes up, and the last cell stays", false,
        "input_voltage=230,d_plus=1,fuel_level=70,run_time=5|input_voltage=229,fuel_level=69,run_time=6",
        "0/0 Napięcie wejściowe: 229 V.|0/1 Poziom paliwa: 69 %.|0/2 Całkowity czas pracy: 6 h.|"
        "1/0 Całkowity czas pracy: 5 h.");
    row("a key that comes back takes the stale cell again", false,
        "d_plus=1,run_time=5|run_time=6|d_plus=2,run_time=7", "0/0 D+: 2 V.|0/1 Całkowity czas pracy: 7 h.");
}

void InformationWindowsTest::gridShowsTheReports()
{
    QFETCH(bool, genset);
    QFETCH(QStringList, reports);
    ExtendInformationWindow dialog(genset, nullptr);
    for (const QString& text : qAsConst(reports))
        dialog.updateControls(report(text));
    QTEST(cells(dialog), "expected");
    dialog.show();
    QCOMPARE(dialog.size(), QSize(800, 300));
}

void InformationWindowsTest::refreshKeepsTheCells()
{
    ExtendInformationWindow dialog(false, nullptr);
    dialog.updateControls(report(QStringLiteral("input_voltage=230,d_plus=1,fuel_level=70,run_time=5")));
    dialog.show();
    const QList<QLineEdit*> fields = dialog.findChildren<QLineEdit*>();
    const QList<QLabel*> captions = dialog.findChildren<QLabel*>();
    QCOMPARE(fields.size(), 4);
    // What the user has selected to copy stays selected while other values change.
    fields.constLast()->selectAll();
    dialog.updateControls(report(QStringLiteral("input_voltage=231,d_plus=2,fuel_level=71,run_time=5")));
    QCOMPARE(dialog.findChildren<QLineEdit*>(), fields);
    QCOMPARE(dialog.findChildren<QLabel*>(), captions);
    QCOMPARE(fields.constFirst()->text(), QStringLiteral("231 V"));
    QCOMPARE(fields.constLast()->selectedText(), QStringLiteral("5 h"));
    for (const QLineEdit* field : fields)
        QVERIFY(field->isReadOnly() && field->size() == QSize(220, 25));
}

void InformationWindowsTest::listShowsTheHistory_data()
{
    QTest::addColumn<QStringList>("histories");
    QTest::addColumn<QStringList>("expected");
    const QString start = QStringLiteral("2;3;4;5;6;7");
    const QString unnamed = QStringLiteral("1;12;31;23;59;59");

    QTest::newRow("no history yet") << QStringList{QString()}
                                    << QStringList{QStringLiteral("Pobieranie zdarzeń...")};
    QTest::newRow("a history in the service's order")
        << QStringList{QString(), QString(unnamed + QLatin1Char('|') + start + QLatin1Char('|'))}
        << QStringList{QStringLiteral("12-31 23:59:59 - ----"),
                       QStringLiteral("03-04 05:06:07 - Tryb pracy - Inicjalizacja")};
    QTest::newRow("a report without a history leaves the last one")
        << QStringList{unnamed, QString()} << QStringList{QStringLiteral("12-31 23:59:59 - ----")};
    QTest::newRow("nothing but broken records empties the list")
        << QStringList{unnamed, QStringLiteral("2;3;4;5;6|x")} << QStringList{};
    QTest::newRow("a shorter history replaces a longer one")
        << QStringList{QString(start + QLatin1Char('|') + unnamed), unnamed}
        << QStringList{QStringLiteral("12-31 23:59:59 - ----")};
}

void InformationWindowsTest::listShowsTheHistory()
{
    QFETCH(QStringList, histories);
    UpsEventsWindow dialog(nullptr);
    for (const QString& history : qAsConst(histories))
        dialog.updateControls(history);
    QTEST(lines(dialog), "expected");
}

void InformationWindowsTest::sameHistoryKeepsThePlace()
{
    UpsEventsWindow dialog(nullptr);
    QString history;
    for (int minute = 0; minute < 60; ++minute)
        history += QStringLiteral("2;3;4;5;%1;0|").arg(minute);
    dialog.updateControls(history);
    dialog.show();
    QCOMPARE(dialog.size(), QSize(475, 458));
    auto* list = dialog.findChild<QListView*>();
    list->setCurrentIndex(list->model()->index(40, 0));
    QTRY_VERIFY(list->verticalScrollBar()->value() > 0);
    const int place = list->verticalScrollBar()->value();
    dialog.updateControls(history);
    QCOMPARE(list->currentIndex().row(), 40);
    QCOMPARE(list->verticalScrollBar()->value(), place);

    dialog.updateControls(QString(QStringLiteral("3;1;1;1;1;1|") + history));
    QCOMPARE(list->model()->rowCount(), 61);
}

QTEST_MAIN(InformationWindowsTest)
#include "InformationWindowsTest.moc"
