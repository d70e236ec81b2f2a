// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include "monitor/core/ExtendedInformation.h"

#include <QDialog>
#include <QList>
#include <QMap>

#include <memory>

class QGridLayout;
class QLabel;
class QLineEdit;

namespace Ui {
class ExtendInformationWindow;
}

/// Every measurement of the current device that the state panel has no field for, kept live while open.
class ExtendInformationWindow final : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ExtendInformationWindow)

public:
    ExtendInformationWindow(bool isGenset, QWidget* parent);
    ~ExtendInformationWindow() override;

    /// Shows a state report. Cells beyond the last one that it fills keep what they show.
    void updateControls(const QMap<QString, QString>& report);

    /// Whether a state report has anything that makes the dialog worth opening.
    [[nodiscard]] static bool containsAny(const QMap<QString, QString>& report);

private:
    struct Cell
    {
        QLabel* caption;
        QLineEdit* value;
    };
    /// The cell at this place of the grid, made if there is none.
    [[nodiscard]] Cell cellAt(int index);

    std::unique_ptr<Ui::ExtendInformationWindow> ui;
    QList<Velmora::ExInformation> m_catalogue;
    QGridLayout* m_grid;
    QList<Cell> m_cells; ///< in the order of the grid, never fewer than were once shown
};
