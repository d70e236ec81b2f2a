// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT

// Whatever lines a log has, a page of them is shown, and another one after it. The first byte chooses the
// log.

#include "Require.h"
#include "logs/UpsLogsWindow.h"

#include <QApplication>
#include <QHeaderView>
#include <QTableView>

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static int argumentCount = 1;
    static char name[] = "LogPagesFuzz";
    static char* arguments[] = {name, nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // Never deleted: at the end of the program it would look for what Qt has already cleared away.
    [[maybe_unused]] static const auto* const application = new QApplication(argumentCount, arguments);
    if (size == 0)
        return 0;
    const char* const logs[] = {"parameters", "messages", "compensation"};
    const QString text =
        QString::fromUtf8(reinterpret_cast<const char*>(data + 1), static_cast<int>(size - 1));
    const QStringList lines = text.split(QLatin1Char('\n'));

    UpsLogsWindow window(nullptr);
    window.setLogType(QLatin1String(logs[data[0] % 3]));
    auto* table = window.findChild<QTableView*>();
    for (const QStringList& page : {lines, QStringList(lines.mid(1))}) {
        window.setLogs(page);
        const auto* model = table->model();
        const int headerLines = data[0] % 3 == 1 ? 0 : 1;
        Velmora::Fuzz::require(page.isEmpty() || model->rowCount() == page.size() - headerLines,
                               "a line is a row");
        (void)table->horizontalHeader()->grab();
    }
    return 0;
}
