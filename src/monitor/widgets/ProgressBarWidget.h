// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include "monitor/widgets/AbstractWidget.h"

#include <QWidget>

class QProgressBar;
class QPushButton;

/// A percentage of the state panel, which can say that the value is not available, and why.
class ProgressBarWidget final : public QWidget, public AbstractWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ProgressBarWidget)

public:
    explicit ProgressBarWidget(QWidget* parent = nullptr);

    /// Percent. A value outside 0 to 100 fills the bar to its end and is printed as it came.
    void setValue(int value);
    /// Shows "not available" with the help button.
    void setDefaultValue();
    /// A disabled bar empties itself.
    void setEnabled(bool enabled) override;

public slots:
    void on_helpButton_clicked();

private:
    void show(int barValue, const QString& text, bool withHelp);

    QProgressBar* progressBar;
    QPushButton* helpButton;
};
