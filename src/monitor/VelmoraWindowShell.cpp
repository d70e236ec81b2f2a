// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "monitor/VelmoraWindow.h"

#include "admin/ApplicationConfigurationWindow.h"
#include "app/ControlPanelConfiguration.h"
#include "devices/UPSConfigurationWindow.h"
#include "link/UpsSocketController.h"
#include "logs/LoggingConfigurationWindow.h"
#include "monitor/UpsTreeWidget.h"
#include "monitor/core/PanelIdentity.h"
#include "monitor/widgets/DebugWarningWidget.h"
#include "monitor/widgets/VLStatusWidget.h"
#include "policy/NetworkConfigurationWindow.h"
#include "ui_VelmoraWindow.h"

#include <QCloseEvent>
#include <QDesktopServices>
#include <QLocalServer>
#include <QLocalSocket>
#include <QMessageBox>
#include <QMovie>
#include <QUrl>

using Velmora::VLStatusConnectionState;

// Closing, tray, administrator mode and what the service says of itself.

void VelmoraWindow::closeEvent(QCloseEvent* event)
{
    if (!reallyCloseRequested && isVisible()) {
        event->ignore();
        hide();
        nameToggleAction();
    } else {
        event->accept();
    }
}

void VelmoraWindow::toggleWindow(QSystemTrayIcon::ActivationReason reason)
{
    if (reason == QSystemTrayIcon::Trigger)
        toggleWindow();
}

void VelmoraWindow::toggleWindow()
{
    setVisible(isHidden());
    nameToggleAction();
}

void VelmoraWindow::nameToggleAction()
{
    toggleAction->setText(isHidden() ? tr("&Pokaż") : tr("&Ukryj"));
}

void VelmoraWindow::reallyClose()
{
    reallyCloseRequested = true;
    QCoreApplication::quit();
}

void VelmoraWindow::newLocalInstanceConnection()
{
    if (QLocalSocket* connection = localServer->nextPendingConnection()) {
        connection->disconnect();
        connection->deleteLater();
    }
    if (isHidden())
        toggleWindow();
}

void VelmoraWindow::enableAdministratorButtons()
{
    administratorMode = true;
    setEnabledStatus(true, QList<QWidget*>{ui->aplicationConfigurationButton, ui->networkConfigurationButton,
                                           ui->loggingConfigurationButton});
    setEnabledStatus(true, QList<QAction*>{ui->actionApplicationConfiguration, ui->actionNetworkConfiguration,
                                           ui->actionChangePassword, ui->actionLogout,
                                           ui->actionLoggingConfiguration});
    ui->actionActAsAdministrator->setEnabled(false);
    setWindowTitle(applicationTitle + QLatin1String(" (Administrator)"));
}

void VelmoraWindow::disableAdministratorButtons()
{
    administratorMode = false;
    socketController->setAdminPass(QString());
    setEnabledStatus(false, QList<QWidget*>{ui->aplicationConfigurationButton, ui->networkConfigurationButton,
                                            ui->upsConfigurationButton, ui->loggingConfigurationButton});
    setEnabledStatus(false, QList<QAction*>{ui->actionApplicationConfiguration, ui->actionChangePassword,
                                            ui->actionNetworkConfiguration, ui->actionUpsConfiguration,
                                            ui->actionLogout, ui->actionLoggingConfiguration});
    ui->actionActAsAdministrator->setEnabled(true);
    setWindowTitle(applicationTitle);
    if (applicationConfigurationWindow)
        applicationConfigurationWindow->setEnabledButtons(false);
    if (upsConfigurationWindow)
        upsConfigurationWindow->setEnabledButtons(false);
    if (networkConfigurationWindow)
        networkConfigurationWindow->setEnabledButtons(false);
    if (loggingConfigurationWindow)
        loggingConfigurationWindow->setEnabledButtons(false);
}

void VelmoraWindow::connectingInProgress()
{
    statusWidget->setServiceConnectionState(VLStatusConnectionState::Connecting,
                                            socketController->getServerAddress());
    statusWidget->setUpsConnectionState(VLStatusConnectionState::Disconnected);
    statusWidget->hidePowerOffTimer();
}

void VelmoraWindow::displayDaemonBusy(bool busy)
{
    upsTree->setEnabled(!busy);
    ui->centralWidget->setEnabled(!busy);
    if (busy) {
        busyMovie->start();
        ui->busyLabel->setMovie(busyMovie.get());
    } else {
        busyMovie->stop();
    }
    ui->busyLabel->setVisible(busy);
    if (applicationConfigurationWindow)
        applicationConfigurationWindow->setEnabledButtons(!busy);
}

QString VelmoraWindow::debugMarker()
{
    return tr(" [TRYB DEBUGGOWANIA]");
}

void VelmoraWindow::debugModeEnabled(bool enabled)
{
    if (enabled) {
        debugWarning->startDebugWarning();
        if (applicationTitle.contains(debugMarker()))
            return;
        applicationTitle += debugMarker();
        setWindowTitle(applicationTitle);
    } else {
        removeDebugMarker();
    }
}

void VelmoraWindow::removeDebugMarker()
{
    debugWarning->stopDebugWarning();
    applicationTitle.remove(debugMarker());
    setWindowTitle(applicationTitle);
}

void VelmoraWindow::showMessage(const QVector<QString>& messages)
{
    for (const QString& message : messages) {
        auto* box = new QMessageBox(this);
        box->setAttribute(Qt::WA_DeleteOnClose);
        box->setWindowTitle(tr("Komunikat"));
        box->setTextFormat(Qt::PlainText);
        box->setText(message);
        // Not exec(): this runs below a signal of the link, which would read no further while the box stands.
        box->open();
    }
}

void VelmoraWindow::serviceVersionReceived(const QString& version)
{
    statusWidget->setServiceVersion(version);
}

void VelmoraWindow::displaySmtp2TestStatus(int status, const QStringList& messages)
{
    if (applicationConfigurationWindow)
        applicationConfigurationWindow->updateSmtp2TestResultWindow(status, messages);
}

void VelmoraWindow::onlineHelpButtonClickHandler()
{
    const bool polish = ControlPanelConfiguration().getLanguage() == QLatin1String("polish");
    const QString manual =
        polish ? QStringLiteral("/VL/user_manual_pl.pdf") : QStringLiteral("/VL/user_manual_en.pdf");
    QDesktopServices::openUrl(QUrl(QLatin1String("https://") + Velmora::makerHost() + manual));
}
