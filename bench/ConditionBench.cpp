// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT

// What a keystroke costs in the editor of conditions while a condition of 10 kB stands in it: check, colour,
// layout and painting. Characters are typed at its start, in the middle and at its end. The dearest keystroke
// counts, against the same in a plain edit.

#include "bench/support/Costs.h"
#include "bench/support/PanelApplication.h"
#include "bench/support/Table.h"
#include "policy/AdvancedOptionsWindow.h"

#include <QApplication>
#include <QKeyEvent>
#include <QTextEdit>

#include <algorithm>
#include <cstdio>

using namespace Velmora::Bench;

namespace {

constexpr Limit limit{{}, 20}; // milliseconds
constexpr int conditionSize = 10 * 1000;

const QString group = QStringLiteral("(stateNormal == ON && paramInputVoltageL1 >= 207.5) || ");

QString longCondition()
{
    return group.repeated(conditionSize / group.size() + 1) + QStringLiteral("stateBypass==OFF");
}

/// An edit without highlighting or validation: what Qt's own layout and painting take.
void preparePlain(QTextEdit& plain, const QTextEdit& edit)
{
    plain.setFixedSize(edit.size());
    plain.show();
}

void putCursor(QTextEdit& edit, int position)
{
    edit.setPlainText(longCondition());
    QTextCursor cursor = edit.textCursor();
    cursor.setPosition(position);
    edit.setTextCursor(cursor);
    QCoreApplication::processEvents();
}

double millisecondsOf(QTextEdit& edit, QChar character)
{
    const double start = threadTime();
    QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, QString(character));
    QCoreApplication::sendEvent(&edit, &press);
    QCoreApplication::processEvents();
    return (threadTime() - start) / 1000;
}

/// `text` keeps the condition whole, so that the colour changes, and changes back at its end. False if it did
/// not.
bool typeAt(Table& table, const char* place, QTextEdit& edit, QTextEdit& plain, int position,
            const QString& text)
{
    putCursor(edit, position);
    putCursor(plain, position);
    double dearest = 0;
    double dearestPlain = 0;
    for (int round = 0; round < 5; ++round) {
        for (const QChar character : text) {
            dearest = std::max(dearest, millisecondsOf(edit, character));
            dearestPlain = std::max(dearestPlain, millisecondsOf(plain, character));
        }
    }
    table.add({QByteArray("keystroke at the ") + place + " of a condition of 10 kB", "ms", dearest,
               dearestPlain, limit});
    return edit.property("valid").toBool();
}

} // namespace

int main(int argc, char* argv[])
{
    const PanelApplication application(argc, argv);
    Velmora::Utils::Ups device;
    device.model_name = QStringLiteral("TARVEX33_USB");
    QVector<Event> events;
    AdvancedOptionsWindow dialog(device, {}, &events, nullptr);
    dialog.show();
    auto& edit = *dialog.findChild<QTextEdit*>(QStringLiteral("expressionTextIn"));
    QTextEdit plain;
    preparePlain(plain, edit);
    const int size = longCondition().size();
    const QString inFront = QStringLiteral("stateEco==ON && paramOutputLoadL1<=30||");
    const QString behind = QStringLiteral(" || stateEco==ON && paramOutputLoadL1<=30");
    Table table(argc, argv);
    bool whole = typeAt(table, "start", edit, plain, 0, inFront);
    whole = typeAt(table, "middle", edit, plain, conditionSize / group.size() / 2 * group.size(), inFront) &&
            whole;
    whole = typeAt(table, "end", edit, plain, size, behind) && whole;
    if (!whole)
        std::fprintf(stderr, "What was typed is no condition.\n");
    return whole ? table.exitStatus() : 2;
}
