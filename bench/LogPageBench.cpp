// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT

// What a large page of a log costs the panel: the time until it is on screen, against a bare table with the
// same text in the same run, and the memory that is left behind by paging. Ends with status 1 if one of them
// is above its bound.

#include "logs/UpsLogsWindow.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QStandardItemModel>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>
#include <cstdio>
#include <malloc.h>
#include <memory>

namespace {

constexpr int lineCount = 10000;
constexpr int columnCount = 20;
constexpr int rounds = 7;
constexpr int pageCount = 20;
constexpr double largestRatio = 1.3;
constexpr qint64 largestGrowth = 64 * 1024; // bytes of the heap in use, of some 100 MB a page

/// Sees when a widget is painted.
class PaintWatch final : public QObject
{
public:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        painted = painted || event->type() == QEvent::Paint;
        return QObject::eventFilter(watched, event);
    }
    bool painted = false;
};

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
    PaintWatch watch;
    viewport->installEventFilter(&watch);
    window.show();
    while (!watch.painted)
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    window.repaint();
}

double milliseconds(const QElapsedTimer& clock)
{
    return static_cast<double>(clock.nsecsElapsed()) / 1e6;
}

// Fills and shows, no more: neither splits lines nor sizes columns and rows.
double bareTime(const QVector<QStringList>& fields, const QSize& size)
{
    QElapsedTimer clock;
    clock.start();
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
    return milliseconds(clock);
}

double panelTime(const QStringList& lines)
{
    QElapsedTimer clock;
    clock.start();
    UpsLogsWindow window(nullptr);
    window.setLogType(QStringLiteral("parameters"));
    window.setLogs(lines);
    showUntilPainted(window, window.findChild<QTableView*>()->viewport());
    return milliseconds(clock);
}

qint64 heapInUse()
{
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    const struct mallinfo2 use = mallinfo2();
    return static_cast<qint64>(use.uordblks + use.hblkhd);
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
    QApplication application(argc, argv);
    const QStringList lines = page();
    QVector<QStringList> fields;
    for (int row = 1; row < lines.size(); ++row)
        fields.append(lines.at(row).split(QLatin1Char(';')));
    const QSize size = UpsLogsWindow(nullptr).size();
    double bare = bareTime(fields, size);
    double panel = panelTime(lines);
    for (int round = 1; round < rounds; ++round) {
        bare = std::min(bare, bareTime(fields, size));
        panel = std::min(panel, panelTime(lines));
    }
    const double ratio = panel / bare;
    const bool quick = ratio <= largestRatio;
    std::printf(
        "%d lines of %d columns on screen: panel %.1f ms, bare table %.1f ms, ratio %.3f, bound %.2f, %s\n",
        lineCount, columnCount, panel, bare, ratio, largestRatio, quick ? "kept" : "BROKEN");
    const qint64 growth = growthByPaging(lines);
    const bool steady = growth <= largestGrowth;
    std::printf("heap after %d such pages: %+lld bytes, bound %lld, %s\n", pageCount,
                static_cast<long long>(growth), static_cast<long long>(largestGrowth),
                steady ? "kept" : "BROKEN");
    return quick && steady ? 0 : 1;
}
