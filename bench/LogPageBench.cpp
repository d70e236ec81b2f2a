// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT

// What a large page of a log costs the panel: the time until it is on screen, against a bare table with the
// same text in the same run, and the memory that is left behind by paging.

#include "bench/support/Costs.h"
#include "bench/support/PanelApplication.h"
#include "bench/support/Table.h"
#include "logs/UpsLogsWindow.h"
#include "support/PaintCounter.h"

#include <QApplication>
#include <QRandomGenerator>
#include <QStandardItemModel>
#include <QTableView>
#include <QVBoxLayout>

#include <malloc.h>

using namespace Velmora::Bench;

namespace {

constexpr int lineCount = 10000;
constexpr int columnCount = 20;
constexpr int rounds = 15;
constexpr int pageCount = 20;
constexpr Limit timeLimit{1.3, {}};
constexpr Limit growthLimit{{}, 64}; // kB of the heap in use, of some 100 MB a page

QStringList page()
{
    QStringList lines{QStringLiteral("date;time;device_status")};
    for (int group = 0; group < 5; ++group) {
        for (const char* phase : {"_L1", "_L2", "_L3"})
            lines[0] += QStringLiteral(";input_voltage") + QLatin1String(phase);
    }
    lines[0] += QStringLiteral(";temperature;battery_capacity");
    QRandomGenerator random(1); // the same page on every run
    for (int row = 0; row < lineCount; ++row) {
        QString line = QStringLiteral("2026-03-01;12:%1:%2;on_power_line")
                           .arg(row / 60 % 60, 2, 10, QLatin1Char('0'))
                           .arg(row % 60, 2, 10, QLatin1Char('0'));
        for (int column = 3; column < columnCount; ++column)
            line += QLatin1Char(';') + QString::number(random.bounded(4000) / 10.0);
        lines.append(line);
    }
    return lines;
}

void showUntilPainted(QWidget& window, QWidget* viewport)
{
    Velmora::Tests::PaintCounter paints;
    viewport->installEventFilter(&paints);
    window.show();
    while (paints.count == 0)
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    window.repaint();
}

/// Processor time from here on. Both sides start on a tidy heap: the one that allocates next would pay for
/// what the other freed.
class Stopwatch final
{
public:
    Stopwatch()
    {
        malloc_trim(0);
        m_begin = threadTime();
    }
    [[nodiscard]] double milliseconds() const { return (threadTime() - m_begin) / 1000; }

private:
    double m_begin = 0;
};

/// Fills and shows, no more: neither splits lines nor sizes columns and rows.
double bareTime(const QVector<QStringList>& fields, const QSize& size)
{
    const Stopwatch watch;
    QDialog window;
    window.setFixedSize(size);
    auto* table = new QTableView;
    auto* layout = new QVBoxLayout(&window);
    layout->addWidget(table);
    QStandardItemModel model(lineCount, columnCount);
    for (int row = 0; row < lineCount; ++row) {
        for (int column = 0; column < columnCount; ++column)
            model.setItem(row, column, new QStandardItem(fields.at(row).at(column)));
    }
    table->setModel(&model);
    showUntilPainted(window, table->viewport());
    return watch.milliseconds();
}

double panelTime(const QStringList& lines)
{
    const Stopwatch watch;
    UpsLogsWindow window(nullptr);
    window.setLogType(QStringLiteral("parameters"));
    window.setLogs(lines);
    showUntilPainted(window, window.findChild<QTableView*>()->viewport());
    return watch.milliseconds();
}

qint64 heapInUse()
{
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    const struct mallinfo2 use = mallinfo2();
    return static_cast<qint64>(use.uordblks) + static_cast<qint64>(use.hblkhd);
}

qint64 growthByPaging(const QStringList& lines)
{
    UpsLogsWindow window(nullptr);
    window.setLogType(QStringLiteral("parameters"));
    window.show();
    const auto turnPage = [&] {
        window.setLogs(lines);
        QApplication::processEvents();
    };
    for (int warmUp = 0; warmUp < 3; ++warmUp)
        turnPage();
    const qint64 before = heapInUse();
    for (int turned = 0; turned < pageCount; ++turned)
        turnPage();
    return heapInUse() - before;
}

} // namespace

int main(int argc, char** argv)
{
    const PanelApplication application(argc, argv);
    const QStringList lines = page();
    QVector<QStringList> fields;
    for (int row = 1; row < lines.size(); ++row)
        fields.append(lines.at(row).split(QLatin1Char(';')));
    const QSize size = UpsLogsWindow(nullptr).size();
    std::vector<double> bare;
    std::vector<double> panel;
    for (int round = 0; round < rounds; ++round) {
        bare.push_back(bareTime(fields, size));
        panel.push_back(panelTime(lines));
    }
    Table table(argc, argv);
    table.add(
        {"log page of 10000 lines, 20 columns, on screen", "ms", median(panel), median(bare), timeLimit});
    const double growth = static_cast<double>(growthByPaging(lines)) / 1024;
    table.add({"heap grown by turning 20 such pages", "kB", growth, {}, growthLimit});
    return table.exitStatus();
}
