// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT

// What a keystroke costs in the editor of conditions while a condition of 10 kB stands in it: check, colour,
// layout and painting. Characters are typed at its start, in the middle and at its end. Ends with status 1 if
// the dearest keystroke is above the bound.

#include "app/Startup.h"
#include "policy/AdvancedOptionsWindow.h"

#include <QApplication>
#include <QKeyEvent>
#include <QTextEdit>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <vector>

namespace {

constexpr double bound = 20; // milliseconds
constexpr int conditionSize = 10 * 1000;

const QString group = QStringLiteral("(stateNormal == ON && paramInputVoltageL1 >= 207.5) || ");

QString longCondition()
{
    return group.repeated(conditionSize / group.size() + 1) + QStringLiteral("stateBypass==OFF");
}

/// Milliseconds of processor time, which other programs on the machine do not add to.
double costOf(QTextEdit& edit, QChar character)
{
    const std::clock_t start = std::clock();
    QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, QString(character));
    QCoreApplication::sendEvent(&edit, &press);
    QCoreApplication::processEvents();
    return static_cast<double>(std::clock() - start) * 1000 / CLOCKS_PER_SEC;
}

/// `text` keeps the condition whole, so that the colour changes, and changes back at its end.
bool typeAt(const char* place, QTextEdit& edit, int position, const QString& text)
{
    edit.setPlainText(longCondition());
    QTextCursor cursor = edit.textCursor();
    cursor.setPosition(position);
    edit.setTextCursor(cursor);
    QCoreApplication::processEvents();
    std::vector<double> costs;
    for (int round = 0; round < 5; ++round) {
        for (const QChar character : text)
            costs.push_back(costOf(edit, character));
    }
    if (!edit.property("valid").toBool()) {
        std::printf("%s: what was typed is no condition\n", place);
        return false;
    }
    std::sort(costs.begin(), costs.end());
    const bool good = costs.back() < bound;
    std::printf("%-8s  %10.2f  %10.2f%s\n", place, costs[costs.size() / 2], costs.back(),
                good ? "" : "  above the bound");
    return good;
}

} // namespace

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    Q_INIT_RESOURCE(velmora);
    Velmora::Startup::setPanelStyleSheet();
    Velmora::Utils::Ups device;
    device.model_name = QStringLiteral("TARVEX33_USB");
    QVector<Event> events;
    AdvancedOptionsWindow dialog(device, {}, &events, nullptr);
    dialog.show();
    auto& edit = *dialog.findChild<QTextEdit*>(QStringLiteral("expressionTextIn"));
    const int size = longCondition().size();
    const QString inFront = QStringLiteral("stateEco==ON && paramOutputLoadL1<=30||");
    const QString behind = QStringLiteral(" || stateEco==ON && paramOutputLoadL1<=30");
    std::printf("%-8s  %10s  %10s\n", "typed at", "half [ms]", "most [ms]");
    bool good = typeAt("start", edit, 0, inFront);
    good = typeAt("middle", edit, conditionSize / group.size() / 2 * group.size(), inFront) && good;
    good = typeAt("end", edit, size, behind) && good;
    std::printf("bound %.0f ms for %d characters, %s\n", bound, size, good ? "kept" : "BROKEN");
    return good ? 0 : 1;
}
