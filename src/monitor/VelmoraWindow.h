// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include "admin/core/UpdateEnvironment.h"
#include "link/DeviceRecords.h"
#include "monitor/core/DeviceStateView.h"
#include "monitor/core/ShutdownTimersData.h"

#include <QAction>
#include <QList>
#include <QMainWindow>
#include <QMap>
#include <QPointer>
#include <QSystemTrayIcon>
#include <QTimer>

#include <memory>
#include <optional>

class ApplicationConfigurationWindow;
class ConnectWithServiceWindow;
class DebugWarningWidget;
class DeviceStatePanel;
class ExtendInformationWindow;
class LogiInWindow;
class LoggingConfigurationWindow;
class NetworkConfigurationWindow;
class PasswordChangeWindow;
class QLocalServer;
class QMenu;
class QMovie;
class UpdateChecker;
class UPSConfigurationWindow;
class UpsEventsWindow;
class UpsTreeElement;
class UpsTreeWidget;
class VLStatusWidget;

namespace Ui {
class VelmoraWindow;
}

namespace Velmora {
class UpsSocketController;
}

/// The panel's main window and root object: owns the link to the service, the tray icon and every dialog
/// while it runs. Slots hand on to the pieces that decide and show.
class VelmoraWindow final : public QMainWindow
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(VelmoraWindow)

public:
    /// Ends the process with status 1 if another panel runs.
    explicit VelmoraWindow(QWidget* parent = nullptr);
    /// Takes its updates from elsewhere than the maker.
    explicit VelmoraWindow(const Velmora::UpdateEnvironment& updates, QWidget* parent = nullptr);
    ~VelmoraWindow() override;

signals:
    /// The first device list of this run was empty. Connected queued, so that the prompt opens after the
    /// rebuild.
    void signalEmptyUpsList();

public slots:
    void applicationConfigurationButtonClickHandler();
    void upsConfigurationButtonClickHandler();
    void networkConfigurationButtonClickHandler();
    void extendInformationButtonClickHandler();
    void aboutButtonClickHandler();
    void upsEventsButtonClickHandler();
    void loggingConfigurationButtonClickHandler();
    void onlineHelpButtonClickHandler();

    void upsDeviceState(const QMap<QString, QString>& parameters);
    void upsConfiguration(const QMap<QString, QString>& parameters);
    void upsConnected();
    void upsCommunicationFailed();
    void upsCommunicationFailedTrigger();
    void socketError();
    void socketErrorTrigger();
    void showMessage(const QVector<QString>& messages);
    void upsModelMessageReceived(const QVector<Velmora::Utils::Ups>& upsModels);
    void upsCurrentStatusListMessageReceived(const QVector<Velmora::Utils::currentDeviceStatus>& statuses);
    void availablePortsMessageReceived(const QList<Velmora::Utils::SerialPort>& ports);
    void displayDaemonBusy(bool busy);
    void debugModeEnabled(bool enabled);
    void serviceVersionReceived(const QString& version);
    void showCountdownTimer(const QList<QPair<int, int>>& timers);
    void discoveredComputer(const QString& ip);

    void displaySmtp2TestStatus(int status, const QStringList& messages);
    /// Offers the version if it is newer; says that there is none if the user asked.
    void displayAvailableUpdateInfo(bool userRequested, const QString& version);

    void toggleWindow(QSystemTrayIcon::ActivationReason reason);
    void toggleWindow();
    void reallyClose();
    void newLocalInstanceConnection();

    void logIn();
    void enableAdministratorButtons();
    void disableAdministratorButtons();
    void changeAdminPass();
    /// The user's own request if an action is the sender.
    void checkForUpdates();
    void connectWithService();
    void connectingInProgress();

    void editActionHandler(int row);
    void deleteActionHandler(int row);
    void addUpsActionHandler();
    void upsTreeCurrentIndexChangedHandler();
    void upsTreeExpandedHandler();
    void clockUpdate();
    void clockCancel();

protected:
    void closeEvent(QCloseEvent* event) override;

private slots:
    void networkUnavailable();
    void slotEmptyUpsList();

private:
    void createStatusStrip();
    void createDeviceTree();
    void guardSingleInstance();
    void createTray();
    void nameToggleAction();
    void connectController();
    void connectTree();
    void connectForm();
    void prepareDeviceMessages();
    void createUpdateChecker();

    [[nodiscard]] bool updateWanted(const QString& version);
    void beginUpdate();
    void downloadUpdate();

    void editPhysicalDevice(const Velmora::Utils::Ups& ups);
    void editVirtualDevice(const UpsTreeElement& element);
    void saveConfiguration(const UPSConfigurationWindow& dialog);

    void expandTree();
    void setCurrentDevice(UpsTreeElement* element);
    void setUpsModelText(const QString& text);
    void setUpsModelImage(const QString& modelName);
    /// Each unit of a virtual device stands twice in the result; callers only search it.
    [[nodiscard]] QList<Velmora::Utils::Ups> getAllUps() const;
    [[nodiscard]] QList<Velmora::Utils::Ups> getAllUpsAssignedToVirtualDevice() const;
    void showStatus(UpsTreeElement* element, const Velmora::Utils::currentDeviceStatus& status);

    static void setEnabledStatus(bool enabled, const QList<QWidget*>& widgets);
    static void setEnabledStatus(bool enabled, const QList<QAction*>& actions);
    void setDeviceFieldsEnabled(bool enabled);
    [[nodiscard]] const Velmora::DeviceStateView& viewOf(const QMap<QString, QString>& report);
    void disableDeviceControls();
    void removeDebugMarker();
    [[nodiscard]] static QString debugMarker();

    QString applicationTitle;
    std::unique_ptr<Ui::VelmoraWindow> ui;
    std::unique_ptr<DeviceStatePanel> m_statePanel;
    std::unique_ptr<Velmora::UpsSocketController> socketController;

    // Null unless the dialog is open; replies that concern it are handed on.
    QPointer<UPSConfigurationWindow> upsConfigurationWindow;
    QPointer<NetworkConfigurationWindow> networkConfigurationWindow;
    QPointer<LogiInWindow> logInWindow;
    QPointer<PasswordChangeWindow> passwordChangeWindow;
    QPointer<ApplicationConfigurationWindow> applicationConfigurationWindow;
    QPointer<ConnectWithServiceWindow> connectWithServiceWindow;
    QPointer<ExtendInformationWindow> extendInformationWindow;
    QPointer<UpsEventsWindow> upsEventsWindow;
    QPointer<LoggingConfigurationWindow> loggingConfigurationWindow;

    std::unique_ptr<QMenu> trayMenu;
    std::unique_ptr<QSystemTrayIcon> trayIcon;
    QAction* quitAction = nullptr;
    QAction* toggleAction = nullptr;
    bool reallyCloseRequested = false;
    QLocalServer* localServer = nullptr;

    QTimer communicationFailedTimer{this};
    QTimer socketErrorTimer{this};
    int watchdogInterval = 3000;

    UpsTreeWidget* upsTree = nullptr;
    std::unique_ptr<QMovie> busyMovie;
    DebugWarningWidget* debugWarning = nullptr;
    QTimer* countdownTimer = nullptr;
    Velmora::ShutdownTimersData shutdownTimers;
    VLStatusWidget* statusWidget = nullptr;

    Velmora::UpdateEnvironment m_updates;
    std::unique_ptr<UpdateChecker> updateChecker;
    bool m_updateOffered = false; ///< the user is being asked, or an installer is on its way

    bool administratorMode = false;
    bool showAddUpsPrompt = true;
    QString notAvailableText;

    Velmora::Utils::Ups currentDevice; ///< outlives rebuilds of the tree and so carries the selection
    QList<Velmora::Utils::SerialPort> m_serialPorts;
    QString m_reportingDevice; ///< id of the device that reports are of
    QMap<QString, QString> lastDeviceState;
    /// Settings that were sent and of which no report has come since.
    QMap<QString, QString> pendingConfiguration;

    // The last view of a report, and what it was made from.
    QMap<QString, QString> m_viewReport;
    QString m_viewModel;
    std::optional<Velmora::DeviceStateView> m_view;
};
