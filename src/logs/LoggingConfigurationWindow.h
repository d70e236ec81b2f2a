// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include "link/DeviceRecords.h"

#include <QDialog>
#include <QPointer>

#include <memory>

class UpsLogsWindow;

namespace Ui {
class LoggingConfigurationWindow;
}

namespace Velmora {
class UpsSocketController;
}

/// Sets what the service logs of a device, and opens the logs that it keeps.
class LoggingConfigurationWindow final : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(LoggingConfigurationWindow)

public:
    explicit LoggingConfigurationWindow(QWidget* parent);
    ~LoggingConfigurationWindow() override;

    /// `controller` outlives the dialog.
    void setSocketController(Velmora::UpsSocketController* controller);
    void setUps(const Velmora::Utils::Ups& ups);
    /// Every button but the one that cancels.
    void setEnabledButtons(bool enabled);

public slots:
    void accept() override;
    /// Opens the log that belongs to the button which sent the signal.
    void showLogsButtonClickHandler();

private:
    std::unique_ptr<Ui::LoggingConfigurationWindow> ui;
    Velmora::UpsSocketController* m_controller = nullptr;
    Velmora::Utils::Ups m_record;
    QPointer<UpsLogsWindow> m_logsWindow; ///< null unless it is open
};
