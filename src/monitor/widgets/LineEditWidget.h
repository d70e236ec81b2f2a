// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include "monitor/widgets/AbstractWidget.h"

#include <QWidget>

class QLineEdit;
class QPushButton;

/// A read-only text value of the state panel, which can say that the value is not available, and why.
class LineEditWidget final : public QWidget, public AbstractWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(LineEditWidget)

public:
    explicit LineEditWidget(QWidget* parent = nullptr);

    [[nodiscard]] QString text() const;
    void setText(const QString& text);
    /// Shows "not available" with the help button.
    void setDefaultText();
    /// A disabled field empties itself.
    void setEnabled(bool enabled) override;
    /// The reason that the help button gives: true blames the model, false the interface in use.
    void defaultTooltip(bool modelReason);

public slots:
    void on_helpButton_clicked();

private:
    void show(const QString& text, bool withHelp);

    QString m_modelTooltip;
    QString m_interfaceTooltip;
    QLineEdit* lineEdit;
    QPushButton* helpButton;
};
