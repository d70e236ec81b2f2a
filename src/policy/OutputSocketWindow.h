// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

#include <memory>

namespace Ui {
class OutputSocketWindow;
}

/// What an event does with the two switchable output sockets of a UPS. Checks nothing.
class OutputSocketWindow final : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(OutputSocketWindow)

public:
    /// Without its second socket a device is not shown one.
    OutputSocketWindow(bool firstAvailable, bool secondAvailable, QWidget* parent);
    ~OutputSocketWindow() override;

    // "Configured": the socket takes part. "Enabled": it is switched on, otherwise off. Delays are seconds.
    void setFirstOutputSocketConfigured(bool configured);
    void setFirstOutputSocketEnabled(bool enabled);
    void setFirstDelayTime(int delay);
    void setSecondOutputSocketConfigured(bool configured);
    void setSecondOutputSocketEnabled(bool enabled);
    void setSecondDelayTime(int delay);

    [[nodiscard]] bool isFirstOutputSocketConfigured() const;
    [[nodiscard]] bool isFirstOutputSocketEnabled() const;
    [[nodiscard]] int getFirstDelayTime() const;
    [[nodiscard]] bool isSecondOutputSocketConfigured() const;
    [[nodiscard]] bool isSecondOutputSocketEnabled() const;
    [[nodiscard]] int getSecondDelayTime() const;

public slots:
    void enableOutputSocket1Controls();
    void enableOutputSocket2Controls();

private:
    void hideSecondSocket();

    std::unique_ptr<Ui::OutputSocketWindow> ui;
};
