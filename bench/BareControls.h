// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QTreeWidget>

#include <array>

namespace Velmora::Bench {

/// What the main window shows a report, a status list and a device list in, as Qt's plain controls of the
/// same number and size. What is the same already is set again.
class BareControls final
{
    Q_DISABLE_COPY_MOVE(BareControls)

public:
    BareControls();

    // Each paints what it changes.
    void showValues(int turn);
    void showStates(int turn);
    void buildTree(int count);

private:
    QWidget m_window;
    QTreeWidget m_tree;
    std::array<QLineEdit, 8> m_fields;
    std::array<QProgressBar, 4> m_bars;
    QPlainTextEdit m_messages;
    std::array<QIcon, 2> m_icons;
};

} // namespace Velmora::Bench
