// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "monitor/VelmoraWindow.h"

#include "devices/UPSConfigurationWindow.h"
#include "devices/core/ModelRules.h"
#include "link/UpsSocketController.h"
#include "monitor/DeviceStatePanel.h"
#include "monitor/ExtendInformationWindow.h"
#include "monitor/UpsEventsWindow.h"
#include "monitor/UpsTreeElement.h"
#include "monitor/UpsTreeWidget.h"
#include "monitor/core/IndicatorNames.h"
#include "monitor/widgets/AbstractWidget.h"
#include "monitor/widgets/VLStatusWidget.h"
#include "ui_VelmoraWindow.h"

using Velmora::VLStatusConnectionState;

// The selected device's state, the watchdogs over it and the countdown.

void VelmoraWindow::setEnabledStatus(bool enabled, const QList<QWidget*>& widgets)
{
    for (QWidget* widget : widgets) {
        if (auto* valueWidget = dynamic_cast<AbstractWidget*>(widget))
            valueWidget->setEnabled(enabled);
        else
            widget->setEnabled(enabled); // NOLINT(clang-analyzer-core.CallAndMessage): the lists hold no null
    }
}

void VelmoraWindow::setEnabledStatus(bool enabled, const QList<QAction*>& actions)
{
    for (QAction* action : actions)
        action->setEnabled(enabled);
}

void VelmoraWindow::setDeviceFieldsEnabled(bool enabled)
{
    setEnabledStatus(enabled,
                     QList<QWidget*>{ui->nameAndLocalizationEdit, ui->temperatureEdit, ui->autonomyTimeEdit,
                                     ui->nominalSpuriousPowerEdit, ui->nominalActivePowerEdit,
                                     ui->loadProgressBar, ui->loadProgressBar_2, ui->loadProgressBar_3,
                                     ui->batteryStateProgressBar, ui->workModeEdit, ui->firmwareEdit});
}

void VelmoraWindow::disableDeviceControls()
{
    setEnabledStatus(false,
                     QList<QWidget*>{ui->exInfoButton, ui->upsConfigurationButton, ui->upsEventsButton});
    setEnabledStatus(false, QList<QAction*>{ui->actionExtendInformation, ui->actionUpsConfiguration});
}

const Velmora::DeviceStateView& VelmoraWindow::viewOf(const QMap<QString, QString>& report)
{
    if (!m_view || report != m_viewReport || currentDevice.model_name != m_viewModel) {
        m_viewReport = report;
        m_viewModel = currentDevice.model_name;
        m_view = Velmora::deviceStateView(report, m_viewModel, notAvailableText);
    }
    return *m_view;
}

void VelmoraWindow::upsDeviceState(const QMap<QString, QString>& parameters)
{
    const Velmora::DeviceStateView& view = viewOf(parameters);
    setEnabledStatus(view.extendedInformationAvailable,
                     QList<QWidget*>{ui->exInfoButton, ui->upsEventsButton});
    ui->actionExtendInformation->setEnabled(view.extendedInformationAvailable);
    // A failed report leaves the old values until the watchdog fires.
    if (view.failed) {
        upsCommunicationFailedTrigger();
        return;
    }
    upsConnected();
    m_statePanel->showState(view);
    if (extendInformationWindow)
        extendInformationWindow->updateControls(view.report);
    else
        lastDeviceState = view.report;
    if (upsEventsWindow)
        upsEventsWindow->updateControls(view.events);
}

void VelmoraWindow::upsConfiguration(const QMap<QString, QString>& parameters)
{
    const QList<QWidget*> widgets{ui->upsConfigurationButton};
    const QList<QAction*> actions{ui->actionUpsConfiguration};
    if (parameters.isEmpty()) {
        setEnabledStatus(false, widgets);
        setEnabledStatus(false, actions);
    } else if (administratorMode && Velmora::hasEditableConfiguration(currentDevice.model_name)) {
        setEnabledStatus(true, widgets);
        setEnabledStatus(true, actions);
    }
    // The dialog's device may have gone and the report be another one's.
    if (pendingConfiguration.isEmpty() && upsConfigurationWindow &&
        upsConfigurationWindow->ups().id == currentDevice.id)
        upsConfigurationWindow->setConfiguration(parameters);
    pendingConfiguration.clear();
}

void VelmoraWindow::upsConnected()
{
    communicationFailedTimer.stop();
    socketErrorTimer.stop();
    statusWidget->setServiceConnectionState(VLStatusConnectionState::Connected,
                                            socketController->getServerAddress());
    statusWidget->setUpsConnectionState(VLStatusConnectionState::Connected);
    setDeviceFieldsEnabled(true);
}

void VelmoraWindow::upsCommunicationFailed()
{
    statusWidget->setServiceConnectionState(VLStatusConnectionState::Connected,
                                            socketController->getServerAddress());
    statusWidget->setUpsConnectionState(VLStatusConnectionState::Disconnected);
    setDeviceFieldsEnabled(false);
    disableDeviceControls();
    m_statePanel->hideMessages();
}

void VelmoraWindow::upsCommunicationFailedTrigger()
{
    socketErrorTimer.stop();
    if (!communicationFailedTimer.isActive())
        communicationFailedTimer.start();
}

void VelmoraWindow::socketError()
{
    statusWidget->setServiceConnectionState(VLStatusConnectionState::Disconnected,
                                            socketController->getServerAddress());
    statusWidget->setUpsConnectionState(VLStatusConnectionState::Disconnected);
    setDeviceFieldsEnabled(false);
    disableDeviceControls();
    m_statePanel->hideMessages();
    statusWidget->hidePowerOffTimer();
    disableAdministratorButtons();
    {
        const QSignalBlocker blocker(upsTree);
        for (UpsTreeElement* element : upsTree->allElements())
            upsTree->showIndicator(element, Velmora::lostServiceIndicatorPath());
    }
    removeDebugMarker();
    clockCancel();
}

void VelmoraWindow::socketErrorTrigger()
{
    communicationFailedTimer.stop();
    if (!socketErrorTimer.isActive())
        socketErrorTimer.start();
    // A busy service that went away cannot say that it is ready.
    if (!ui->busyLabel->isHidden())
        displayDaemonBusy(false);
}

void VelmoraWindow::showCountdownTimer(const QList<QPair<int, int>>& timers)
{
    switch (Velmora::takeCountdown(shutdownTimers, timers)) {
    case Velmora::CountdownOutcome::Cancel:
        clockCancel();
        break;
    case Velmora::CountdownOutcome::Leave:
        break;
    case Velmora::CountdownOutcome::TickStart:
        clockUpdate();
        countdownTimer->start();
        break;
    }
}

void VelmoraWindow::clockUpdate()
{
    const int left = shutdownTimers.tickTimers();
    if (left < 1)
        clockCancel();
    else
        statusWidget->showPowerOffTimer(left);
}

void VelmoraWindow::clockCancel()
{
    countdownTimer->stop();
    statusWidget->hidePowerOffTimer();
    shutdownTimers.removeAllTimers();
}
