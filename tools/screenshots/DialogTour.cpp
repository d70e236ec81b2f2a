// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "screenshots/DialogTour.h"

#include "admin/UpdateDownloadWindow.h"
#include "admin/core/PasswordRules.h"
#include "link/ServiceEndpoint.h"
#include "monitor/UpsTreeWidget.h"
#include "policy/DiscoverWindow.h"
#include "screenshots/Album.h"
#include "screenshots/PanelDriver.h"

#include <QApplication>
#include <QDialog>
#include <QHostAddress>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QUdpSocket>

#include <algorithm>
#include <cstdio>

namespace {

/// A window that a user can bring up.
struct Station
{
    const char* name;
    const char* caption;
    const char* device; ///< beginning of the config name of the device that has to be selected; null: any
    /// A line of steps for each window on the way, as PanelDriver::take reads them. The last step of a line
    /// opens the next window.
    const char* way;
    const char* within; ///< steps to take in the window before its picture is taken
};

constexpr Station openStations[] = {
    {"login", "the login", nullptr, "actionActAsAdministrator", ""},
    {"service-address", "the service's address", nullptr, "actionConnectWithService", ""},
    {"about", "version and licence", nullptr, "actionAbout", ""},
    {"extended-information", "every measurement of a UPS", "Tarvex33_", "exInfoButton", ""},
    {"extended-information-genset", "every measurement of a genset", "Borel", "exInfoButton", ""},
    {"events", "the event history", "Tarvex33_", "upsEventsButton", ""},
};

constexpr Station administratorStations[] = {
    {"password", "a new administrator password", nullptr, "actionChangePassword", ""},

    {"new-device", "a new device", nullptr, "upsTree.addUpsActionTriggered", ""},
    {"changed-device", "a device that is changed", "Tarvex33Verde", "upsTree.editActionTriggeredSlot", ""},
    {"snmp-options", "how a device is reached by SNMP", "Borel",
     "upsTree.editActionTriggeredSlot\nsnmpOptionsButton", ""},
    {"virtual-device", "the units of a virtual device", "Virtual_Device", "upsTree.editActionTriggeredSlot",
     ""},
    {"removed-device", "the question before a device is removed", "Tarvex33Verde",
     "upsTree.deleteActionTriggeredSlot", ""},
    {"device-settings", "the settings of a three-phase UPS", "Tarvex33_", "upsConfigurationButton",
     "output_voltage?"},
    {"genset-settings", "the settings of a genset", "Borel", "upsConfigurationButton",
     "controller_mode_option?"},

    {"log-settings", "what is logged of a device", "Tarvex33_", "loggingConfigurationButton", ""},
    {"log-data", "measurements of a three-phase UPS", "Tarvex33_",
     "loggingConfigurationButton\nshowDataButton", "logTable?"},
    {"log-messages", "logged messages", "Tarvex33_", "loggingConfigurationButton\nshowEventsButton",
     "logTable?"},
    {"log-compensation", "logged compensation of power", "Tarvex33Verde",
     "loggingConfigurationButton\nshowCompensationButton", "logTable?"},

    {"policy-simple", "the policy of a simple device", "LumoPro_Rack", "networkConfigurationButton",
     "addGroupButton? addEventButton showMessageBox messageEdit=The_mains_are_back saveEventButton"},
    {"policy", "an event of an advanced device", "CormelRT_XL", "networkConfigurationButton",
     "addEventButton showMessageBox messageEdit=Mains_failure systemCommandBox"},
    {"conditions", "the conditions of an event", "CormelRT_XL",
     "networkConfigurationButton\naddEventButton advancedConfigurationButton",
     "eventNameTextEdit=Mains_failure expressionTextIn=stateBatteryBackup==ON "
     "expressionTextOut=stateBatteryBackup eventStatesListIn?"},
    {"action-command", "the action: a command", "CormelRT_XL",
     "networkConfigurationButton\naddEventButton systemCommandBox systemCommandConfigurationButton", ""},
    {"action-mail", "the action: a mail", "CormelRT_XL",
     "networkConfigurationButton\naddEventButton sendEmailBox sendEmailConfigurationButton", ""},
    {"action-shutdown", "the action: a shutdown", "CormelRT_XL",
     "networkConfigurationButton\naddEventButton shutdownSystemBox shutdownSystemConfigurationButton", ""},
    {"action-sockets", "the action: output sockets", "CormelRT_XL",
     "networkConfigurationButton\naddEventButton outputSocketBox outputSocketConfigurationButton", ""},
    {"group", "a group of computers", "CormelRT_XL", "networkConfigurationButton\naddGroupButton",
     "availableComputersTree"},
    {"group-choice", "the choice of a group", "CormelRT_XL",
     "networkConfigurationButton\naddGroupButton? availableComputers arrowDownButton", ""},
    {"computer", "a new computer", "CormelRT_XL", "networkConfigurationButton\naddComputerButton", ""},
    {"computer-password", "a computer's password", "CormelRT_XL",
     "networkConfigurationButton\naddGroupButton? networkElementsTree changePassButton", ""},
    {"removed-computer", "the question before a computer is removed", "CormelRT_XL",
     "networkConfigurationButton\naddGroupButton? availableComputers removeComputerButton", ""},
    {"discovery", "computers that were found", "CormelRT_XL", "networkConfigurationButton\ndiscoverButton",
     "unmanagedComputersTree"},

    {"application-settings", "the service's own settings", nullptr, "aplicationConfigurationButton",
     "smtpTestButton?"},
    {"mail-settings-wrong", "mail settings that are incomplete", nullptr, "aplicationConfigurationButton",
     "smtpSenderAddressEdit=ups smtpTestButton"},
    {"mail-test", "a test mail that failed", nullptr,
     "aplicationConfigurationButton\nsmtpServerEdit=127.0.0.1 smtpPortEdit=25 smtpTimeoutEdit=30 "
     "smtpSenderAddressEdit=ups@example.com smtpTestButton",
     "messagesEdit?"},
    {"folder-choice", "the choice of a folder", nullptr, "aplicationConfigurationButton\nopenDirButton", ""},
    {"new-virtual-device", "a new virtual device", nullptr,
     "aplicationConfigurationButton\naddVirtualUpsButton", ""},
};

class Tour final
{
public:
    Tour(PanelDriver& panel, Album& album, const QString& address)
        : m_panel(panel)
        , m_album(album)
        , m_address(address)
    {}

    [[nodiscard]] bool visit(const Station& station)
    {
        if (station.device && !m_panel.showDevice(QLatin1String(station.device))) {
            std::fprintf(stderr, "velmora-screenshots: no device for %s\n", station.caption);
            return false;
        }
        return advance(station, nullptr, QString::fromLatin1(station.way).split(QLatin1Char('\n')));
    }

private:
    /// Takes the first line's steps in `window`, and the others in the windows that this opens.
    [[nodiscard]] bool advance(const Station& station, QDialog* window, QStringList lines)
    {
        QStringList steps = lines.takeFirst().split(QLatin1Char(' '));
        const QString last = steps.takeLast();
        if (!m_panel.take(steps, window) || !m_panel.await(last, window))
            return false;
        const auto open = [&] { m_panel.act(last, window); };
        if (lines.isEmpty())
            return m_album.addDialog(open, QLatin1String(station.name), QLatin1String(station.caption),
                                     [&](QDialog* dialog) { return prepare(station, dialog); });
        bool done = false;
        const bool opened = m_panel.withDialog(open, [&](QDialog* dialog) {
            done = advance(station, dialog, lines);
            dialog->reject();
        });
        return opened && done;
    }

    [[nodiscard]] bool prepare(const Station& station, QDialog* dialog)
    {
        // The probe of a panel is a broadcast, which does not reach a service on the loopback interface.
        if (qobject_cast<DiscoverWindow*>(dialog))
            QUdpSocket().writeDatagram("5", QHostAddress(m_address), Velmora::discoveryPort);
        return m_panel.take(QString::fromLatin1(station.within).split(QLatin1Char(' '), Qt::SkipEmptyParts),
                            dialog);
    }

    PanelDriver& m_panel;
    Album& m_album;
    QString m_address;
};

[[nodiscard]] bool logIn(const PanelDriver& panel)
{
    return panel.withDialog([&panel] { panel.act(QStringLiteral("actionActAsAdministrator"), nullptr); },
                            [](QDialog* dialog) {
                                dialog->findChild<QLineEdit*>()->setText(
                                    Velmora::defaultAdministratorPassword());
                                dialog->accept();
                            });
}

// A real download needs the maker's web server.
[[nodiscard]] bool takeDownloadPicture(const PanelDriver& panel, Album& album)
{
    constexpr int half = 50;
    UpdateDownloadWindow dialog(panel.window());
    dialog.updateDownloadProgress(half);
    return album.addDialog([&dialog] { dialog.exec(); }, QStringLiteral("update-download"),
                           QStringLiteral("the download of a new version"));
}

[[nodiscard]] bool takeMenuPictures(const PanelDriver& panel, Album& album)
{
    const auto add = [&album](QMenu* menu, const QString& name) {
        return menu && album.addMenu([menu] { menu->popup(QPoint()); }, name, name);
    };
    for (const char* name : {"menuFile", "menuInfo", "menuConfiguration", "menuHelp"}) {
        if (!add(panel.window()->findChild<QMenu*>(QLatin1String(name)), QLatin1String(name)))
            return false;
    }
    const QWidgetList windows = QApplication::topLevelWidgets();
    // The one menu that belongs to no window.
    const auto trayMenu = std::find_if(windows.begin(), windows.end(), [](const QWidget* widget) {
        return qobject_cast<const QMenu*>(widget) && !widget->parent();
    });
    auto* tree = panel.window()->findChild<UpsTreeWidget*>();
    return trayMenu != windows.end() && add(qobject_cast<QMenu*>(*trayMenu), QStringLiteral("menuTray")) &&
           album.addMenu([tree] { tree->onCustomContextMenuRequested(QPoint(1, 1)); },
                         QStringLiteral("menuDevice"), QStringLiteral("menuDevice"));
}

} // namespace

bool takeDialogPictures(PanelDriver& panel, Album& album, const QString& address)
{
    Tour tour(panel, album, address);
    const auto visit = [&tour](const Station& station) { return tour.visit(station); };
    return std::all_of(std::begin(openStations), std::end(openStations), visit) && logIn(panel) &&
           takeMenuPictures(panel, album) && takeDownloadPicture(panel, album) &&
           std::all_of(std::begin(administratorStations), std::end(administratorStations), visit);
}
