// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

#include <memory>

namespace Ui {
class PowerOffWindow;
}

class QRadioButton;

/// How a system goes down; the number of an option is its place in the dialog.
namespace TurnOffOption {

enum Option { Shutdown, ForcedShutdown, Hibernation, Reboot };

} // namespace TurnOffOption

/// Parameters of the shutdown that an event starts. Checks nothing.
class PowerOffWindow final : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(PowerOffWindow)

public:
    explicit PowerOffWindow(QWidget* parent);
    ~PowerOffWindow() override;

    /// Seconds, like getDelay().
    void setDelay(int delay);
    void setTurnOffUps(bool turnOff);
    void setTurnOffUpsEnabled(bool enabled);
    /// Changes nothing if `option` is none of the four.
    void setTurnOffMode(TurnOffOption::Option option);

    [[nodiscard]] int getDelay() const;
    [[nodiscard]] bool isTurnOffUps() const;
    /// 4 if no option is chosen.
    [[nodiscard]] int getTurnOffMode() const;

private:
    [[nodiscard]] QList<QRadioButton*> modeButtons() const;

    std::unique_ptr<Ui::PowerOffWindow> ui;
};
