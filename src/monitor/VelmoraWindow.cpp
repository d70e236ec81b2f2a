// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "monitor/VelmoraWindow.h"

#include "admin/core/UpdateChecker.h"
#include "app/ControlPanelConfiguration.h"
#include "link/UpsSocketController.h"
#include "monitor/DeviceStatePanel.h"
#include "monitor/SingleInstance.h"
#include "monitor/UpsTreeElement.h"
#include "monitor/UpsTreeWidget.h"
#include "monitor/core/PanelIdentity.h"
#include "monitor/widgets/DebugWarningWidget.h"
#include "monitor/widgets/Picture.h"
#include "monitor/widgets/VLStatusWidget.h"
#include "ui_VelmoraWindow.h"

#include <QLocalServer>
#include <QMenu>
#include <QMovie>
#include <QSessionManager>

#include <cstdlib>

using Velmora::UpsSocketController;

namespace {

constexpr int countdownInterval = 1000;
constexpr int treeBoxWidth = 186;
constexpr int stateBoxWidth = 465;
constexpr int minimumWindowWidth = 962;

} // namespace

VelmoraWindow::VelmoraWindow(QWidget* parent)
    : VelmoraWindow(Velmora::UpdateEnvironment(), parent)
{}

VelmoraWindow::VelmoraWindow(const Velmora::UpdateEnvironment& updates, QWidget* parent)
    : QMainWindow(parent)
    , applicationTitle(QLatin1String("Velmora Professional v. ") + Velmora::panelVersion())
    , ui(std::make_unique<Ui::VelmoraWindow>())
    , m_updates(updates)
    , notAvailableText(tr("N/D"))
{
    ui->setupUi(this);
    m_statePanel = std::make_unique<DeviceStatePanel>(ui.get());
    createStatusStrip();
    const ControlPanelConfiguration configuration;
    showAddUpsPrompt = !configuration.getDontShowAddUpsPrompt();
    createDeviceTree();
    guardSingleInstance();
    createTray();
    socketController = std::make_unique<UpsSocketController>(this);
    connectController();
    communicationFailedTimer.setObjectName(QStringLiteral("communicationFailedTimer"));
    socketErrorTimer.setObjectName(QStringLiteral("socketErrorTimer"));
    communicationFailedTimer.setInterval(watchdogInterval);
    socketErrorTimer.setInterval(watchdogInterval);
    connect(&communicationFailedTimer, &QTimer::timeout, this, &VelmoraWindow::upsCommunicationFailed);
    connect(&socketErrorTimer, &QTimer::timeout, this, &VelmoraWindow::socketError);
    setWindowTitle(applicationTitle);
    disableDeviceControls();

    socketController->setServerAddress(configuration.getServerAddress());
    socketController->connectToServer();
    connectingInProgress();

    setFixedSize(size());
    connectTree();
    connectForm();
    prepareDeviceMessages();
    countdownTimer = new QTimer(this);
    countdownTimer->setObjectName(QStringLiteral("countdownTimer"));
    countdownTimer->setInterval(countdownInterval);
    connect(countdownTimer, &QTimer::timeout, this, &VelmoraWindow::clockUpdate);
    busyMovie = std::make_unique<QMovie>(Velmora::animationFile(QStringLiteral(":/images/images/45.gif")));
    ui->busyLabel->setMovie(busyMovie.get());
    ui->busyLabel->hide();

    createUpdateChecker();
    if (configuration.getCheckForUpdates())
        checkForUpdates();

    ui->horizontalLayout_2->addStretch();
    debugWarning = new DebugWarningWidget(this);
    ui->horizontalLayout_2->addWidget(debugWarning);
    m_statePanel->hideOptionalFields();
    connect(this, &VelmoraWindow::signalEmptyUpsList, this, &VelmoraWindow::slotEmptyUpsList,
            Qt::QueuedConnection);
    ui->upsTreeGroupBox->setFixedWidth(treeBoxWidth);
    ui->upsBox->setFixedWidth(stateBoxWidth);
    setMinimumWidth(minimumWindowWidth);
}

VelmoraWindow::~VelmoraWindow()
{
    // Neither rows nor connections that end here may reach a half-deleted window.
    const QSignalBlocker blocker(upsTree);
    socketController->disconnect(this);
    upsTree->clear();
    ui->busyLabel->setMovie(nullptr);
}

void VelmoraWindow::createStatusStrip()
{
    statusWidget = new VLStatusWidget(this);
    auto* layout = new QVBoxLayout;
    layout->addWidget(statusWidget);
    ui->statusBox->setLayout(layout);
}

void VelmoraWindow::createDeviceTree()
{
    upsTree = new UpsTreeWidget(&administratorMode, ui->upsTreeGroupBox);
    upsTree->setObjectName(QStringLiteral("upsTree"));
    upsTree->setAccessibleName(ui->upsTreeGroupBox->title());
    upsTree->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    // Made after the form, it would be the last to get the focus.
    upsTree->setFocus();
}

void VelmoraWindow::guardSingleInstance()
{
    if (Velmora::SingleInstance::anotherPanelRuns())
        std::exit(1);
    localServer = Velmora::SingleInstance::listenForPanels(this);
    connect(localServer, &QLocalServer::newConnection, this, &VelmoraWindow::newLocalInstanceConnection);
}

void VelmoraWindow::createTray()
{
    trayMenu = std::make_unique<QMenu>();
    toggleAction = trayMenu->addAction(tr("&Ukryj"), this, qOverload<>(&VelmoraWindow::toggleWindow));
    quitAction = trayMenu->addAction(tr("&Zakończ"), this, &VelmoraWindow::reallyClose);
    // A panel that starts in the tray was never hidden by anybody.
    connect(trayMenu.get(), &QMenu::aboutToShow, this, &VelmoraWindow::nameToggleAction);
    trayIcon = std::make_unique<QSystemTrayIcon>(QIcon(QStringLiteral(":/images/images/appicon_32.png")));
    trayIcon->setContextMenu(trayMenu.get());
    connect(trayIcon.get(), &QSystemTrayIcon::activated, this,
            qOverload<QSystemTrayIcon::ActivationReason>(&VelmoraWindow::toggleWindow));
    trayIcon->show();
    QGuiApplication::setQuitOnLastWindowClosed(false);
    // A session that ends asks its windows to close: hiding instead would hold up the user's logout.
    connect(qApp, &QGuiApplication::commitDataRequest, this,
            [this](QSessionManager& /*manager*/) { reallyCloseRequested = true; });
}

void VelmoraWindow::connectController()
{
    auto* controller = socketController.get();
    connect(controller, &UpsSocketController::upsConnected, this,
            &VelmoraWindow::upsCommunicationFailedTrigger);
    connect(controller, &UpsSocketController::upsDeviceState, this, &VelmoraWindow::upsDeviceState);
    connect(controller, &UpsSocketController::upsConfiguration, this, &VelmoraWindow::upsConfiguration);
    connect(controller, &UpsSocketController::showMessage, this, &VelmoraWindow::showMessage);
    connect(controller, &UpsSocketController::socketError, this, &VelmoraWindow::socketErrorTrigger);
    connect(controller, &UpsSocketController::smpt2TestStatus, this, &VelmoraWindow::displaySmtp2TestStatus);
    connect(controller, &UpsSocketController::daemonIsBusy, this, &VelmoraWindow::displayDaemonBusy);
    connect(controller, &UpsSocketController::debugModeEnabled, this, &VelmoraWindow::debugModeEnabled);
    connect(controller, &UpsSocketController::showCountdownTimer, this, &VelmoraWindow::showCountdownTimer);
    connect(controller, &UpsSocketController::upsModelMessageReceived, this,
            &VelmoraWindow::upsModelMessageReceived);
    connect(controller, &UpsSocketController::upsCurrentStatusListReceived, this,
            &VelmoraWindow::upsCurrentStatusListMessageReceived);
    connect(controller, &UpsSocketController::availablePortsReceived, this,
            &VelmoraWindow::availablePortsMessageReceived);
    connect(controller, &UpsSocketController::discoveredComputer, this, &VelmoraWindow::discoveredComputer);
    connect(controller, &UpsSocketController::serviceVersionReceived, this,
            &VelmoraWindow::serviceVersionReceived);
}

void VelmoraWindow::connectTree()
{
    connect(upsTree, &UpsTreeWidget::editActionTriggered, this, &VelmoraWindow::editActionHandler);
    connect(upsTree, &UpsTreeWidget::addUpsActionTriggered, this, &VelmoraWindow::addUpsActionHandler);
    connect(upsTree, &UpsTreeWidget::deleteActionTriggered, this, &VelmoraWindow::deleteActionHandler);
    connect(upsTree, &QTreeWidget::currentItemChanged, this,
            &VelmoraWindow::upsTreeCurrentIndexChangedHandler);
    connect(upsTree, &QTreeView::expanded, this, &VelmoraWindow::upsTreeExpandedHandler);
}

void VelmoraWindow::connectForm()
{
    connect(ui->upsConfigurationButton, &QPushButton::clicked, this,
            &VelmoraWindow::upsConfigurationButtonClickHandler);
    connect(ui->actionUpsConfiguration, &QAction::triggered, this,
            &VelmoraWindow::upsConfigurationButtonClickHandler);
    connect(ui->exInfoButton, &QPushButton::clicked, this,
            &VelmoraWindow::extendInformationButtonClickHandler);
    connect(ui->actionExtendInformation, &QAction::triggered, this,
            &VelmoraWindow::extendInformationButtonClickHandler);
    connect(ui->upsEventsButton, &QPushButton::clicked, this, &VelmoraWindow::upsEventsButtonClickHandler);
    connect(ui->networkConfigurationButton, &QPushButton::clicked, this,
            &VelmoraWindow::networkConfigurationButtonClickHandler);
    connect(ui->actionNetworkConfiguration, &QAction::triggered, this,
            &VelmoraWindow::networkConfigurationButtonClickHandler);
    connect(ui->loggingConfigurationButton, &QPushButton::clicked, this,
            &VelmoraWindow::loggingConfigurationButtonClickHandler);
    connect(ui->actionLoggingConfiguration, &QAction::triggered, this,
            &VelmoraWindow::loggingConfigurationButtonClickHandler);
    connect(ui->actionActAsAdministrator, &QAction::triggered, this, &VelmoraWindow::logIn);
    connect(ui->actionChangePassword, &QAction::triggered, this, &VelmoraWindow::changeAdminPass);
    connect(ui->actionConnectWithService, &QAction::triggered, this, &VelmoraWindow::connectWithService);
    connect(ui->actionExit, &QAction::triggered, this, &VelmoraWindow::reallyClose);
    connect(ui->actionLogout, &QAction::triggered, this, &VelmoraWindow::disableAdministratorButtons);
    connect(ui->actionOnlineHelp, &QAction::triggered, this, &VelmoraWindow::onlineHelpButtonClickHandler);
    connect(ui->aplicationConfigurationButton, &QPushButton::clicked, this,
            &VelmoraWindow::applicationConfigurationButtonClickHandler);
    connect(ui->actionApplicationConfiguration, &QAction::triggered, this,
            &VelmoraWindow::applicationConfigurationButtonClickHandler);
    connect(ui->actionCheckForUpdates, &QAction::triggered, this, &VelmoraWindow::checkForUpdates);
    connect(ui->actionAbout, &QAction::triggered, this, &VelmoraWindow::aboutButtonClickHandler);
}

void VelmoraWindow::prepareDeviceMessages()
{
    const QColor alarmColour(220, 20, 20);
    QWidget* viewport = ui->deviceMessages->viewport();
    viewport->setAutoFillBackground(false);
    viewport->setStyleSheet(QStringLiteral("color: rgb(220,20,20)"));
    // The text is drawn with the palette of the edit itself, which the sheet of its viewport does not reach.
    QPalette palette = ui->deviceMessages->palette();
    palette.setColor(QPalette::Text, alarmColour);
    ui->deviceMessages->setPalette(palette);
}
