// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

class QCheckBox;
class QGridLayout;
class QLineEdit;
class QSpinBox;

/// Parameters of a system command that an event runs. Checks nothing.
class SysCommandWindow final : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(SysCommandWindow)

public:
    explicit SysCommandWindow(QWidget* parent);
    ~SysCommandWindow() override;

    void setCommand(const QString& command);
    void setOptions(const QString& options);
    /// Seconds, like getDelayTime().
    void setDelayTime(int delay);
    void setTurnOffUps(bool turnOff);
    void setTurnOffUpsEnabled(bool enabled);

    [[nodiscard]] QString getCommand() const;
    [[nodiscard]] QString getOptions() const;
    [[nodiscard]] int getDelayTime() const;
    [[nodiscard]] bool getTurnOffUps() const;

public slots:
    void openButtonClickHandler();

private:
    void addRow(QGridLayout* grid, const QString& text, QWidget* field);

    QLineEdit* m_command;
    QLineEdit* m_options;
    QSpinBox* m_delay;
    QCheckBox* m_turnOffUps;
};
