// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "monitor/VelmoraWindow.h"

#include "admin/AboutWindow.h"
#include "admin/ApplicationConfigurationWindow.h"
#include "admin/ConnectWithServiceWindow.h"
#include "admin/LogiInWindow.h"
#include "admin/PasswordChangeWindow.h"
#include "app/ControlPanelConfiguration.h"
#include "devices/AddUpsWindow.h"
#include "devices/AddVirtualUpsWindow.h"
#include "devices/UPSConfigurationWindow.h"
#include "devices/core/ModelRules.h"
#include "link/Sleep.h"
#include "link/TextHelpers.h"
#include "link/UpsSocketController.h"
#include "logs/LoggingConfigurationWindow.h"
#include "monitor/ExtendInformationWindow.h"
#include "monitor/UpsEventsWindow.h"
#include "monitor/UpsTreeElement.h"
#include "monitor/UpsTreeWidget.h"
#include "monitor/widgets/MessageBox.h"
#include "monitor/widgets/ModalDialog.h"
#include "policy/NetworkConfigurationWindow.h"

using Velmora::runModal;
using Velmora::UpsSocketController;
using Velmora::Utils::Ups;

namespace {

/// What a device needs to apply a setting, in milliseconds.
constexpr unsigned long applyTime = 2000;

} // namespace

// The dialogs: made, wired and run.

void VelmoraWindow::logIn()
{
    auto* dialog = new LogiInWindow(socketController.get(), this);
    connect(dialog, &LogiInWindow::getPassword, socketController.get(), &UpsSocketController::getPassword);
    connect(dialog, &LogiInWindow::enableAdminButtons, this, &VelmoraWindow::enableAdministratorButtons);
    connect(socketController.get(), &UpsSocketController::adminPassFromConfig, dialog,
            &LogiInWindow::comparePasswords);
    runModal(logInWindow, dialog);
}

void VelmoraWindow::changeAdminPass()
{
    auto* dialog = new PasswordChangeWindow(ControlPanelConfiguration().getServerAddress(),
                                            socketController.get(), this);
    connect(dialog, &PasswordChangeWindow::getPassword, socketController.get(),
            &UpsSocketController::getPassword);
    connect(dialog, &PasswordChangeWindow::changePassword, socketController.get(),
            &UpsSocketController::changePassword);
    connect(socketController.get(), &UpsSocketController::adminPassFromConfig, dialog,
            &PasswordChangeWindow::comparePasswords);
    connect(socketController.get(), &UpsSocketController::passwordChanged, dialog,
            &PasswordChangeWindow::passwordChanged);
    runModal(passwordChangeWindow, dialog);
}

void VelmoraWindow::applicationConfigurationButtonClickHandler()
{
    auto* dialog = new ApplicationConfigurationWindow(&m_serialPorts, getAllUpsAssignedToVirtualDevice(),
                                                      getAllUps(), this);
    dialog->setSocketController(socketController.get());
    connect(socketController.get(), &UpsSocketController::appConfifuratioReceived, dialog,
            &ApplicationConfigurationWindow::setApplicationConfigurationFromIni);
    connect(dialog, &ApplicationConfigurationWindow::SendTestMail, socketController.get(),
            &UpsSocketController::sendTestMail);
    dialog->getApplicationConfigurationFromIni();
    runModal(applicationConfigurationWindow, dialog);
}

void VelmoraWindow::aboutButtonClickHandler()
{
    runModal(new AboutWindow(nullptr));
}

void VelmoraWindow::connectWithService()
{
    auto* dialog = new ConnectWithServiceWindow(this);
    dialog->setSocketController(socketController.get());
    runModal(connectWithServiceWindow, dialog,
             [this](ConnectWithServiceWindow& /*accepted*/) { connectingInProgress(); });
}

void VelmoraWindow::addUpsActionHandler()
{
    auto* dialog = new AddUpsWindow(&m_serialPorts, this);
    dialog->setWindowTitle(tr("Nowy UPS"));
    dialog->setSocketController(socketController.get());
    dialog->setAllUpsList(getAllUps());
    runModal(dialog);
}

void VelmoraWindow::editActionHandler(int /*row*/)
{
    const UpsTreeElement* element = upsTree->currentElement();
    if (!element)
        return;
    if (Velmora::isVirtualDevice(element->ups.model_name))
        editVirtualDevice(*element);
    else
        editPhysicalDevice(element->ups);
}

void VelmoraWindow::editPhysicalDevice(const Ups& ups)
{
    auto* dialog = new AddUpsWindow(&m_serialPorts, this);
    dialog->setWindowTitle(tr("Edycja UPS"));
    dialog->setSocketController(socketController.get());
    dialog->setUpsEdited(true);
    dialog->setUpsName(ups.user_defined_name);
    dialog->setModel(ups.model_name);
    dialog->setId(ups.id);
    dialog->setCommunication(ups.communication);
    dialog->setComPort(ups.com_port);
    dialog->setIpAddress(ups.ip);
    dialog->setWriteCommunity(ups.write);
    dialog->setReadCommunity(ups.read);
    dialog->setSnmpVerion(ups.snmp_ver);
    dialog->setSerialNumber(ups.serial_no);
    dialog->setAllUpsList(getAllUps());
    // From here on the tree may be built anew, and what `ups` refers to with it.
    runModal(dialog);
}

void VelmoraWindow::editVirtualDevice(const UpsTreeElement& element)
{
    auto* dialog = new AddVirtualUpsWindow(this);
    dialog->setWindowTitle(tr("Edycja wirtualny UPS"));
    dialog->setSocketController(socketController.get());
    dialog->setUpsEdited(true);
    dialog->setId(element.ups.id);
    dialog->setPhyDevIncludedIntoOneVirtual(element.childUps());
    dialog->setPhyDevIncludedIntoAllVirtuals(getAllUpsAssignedToVirtualDevice());
    dialog->displayAvailableParallelDevices(getAllUps());
    // From here on the tree may be built anew, and `element` with it.
    runModal(dialog);
}

void VelmoraWindow::upsConfigurationButtonClickHandler()
{
    auto* dialog = new UPSConfigurationWindow(currentDevice, this);
    if (currentDevice.model_name.contains(QLatin1String("Borel"), Qt::CaseInsensitive))
        dialog->setWindowTitle(tr("Konfiguracja agregatu"));
    socketController->getUpsConfiguration();
    runModal(upsConfigurationWindow, dialog,
             [this](const UPSConfigurationWindow& accepted) { saveConfiguration(accepted); });
}

void VelmoraWindow::saveConfiguration(const UPSConfigurationWindow& dialog)
{
    // Settings go to whichever device is selected, and that may have changed with the tree.
    if (dialog.ups().id != currentDevice.id) {
        Velmora::Utils::displayMsgBox(
            tr("Uwaga"),
            tr("Urządzenie zostało usunięte lub nie jest już wybrane. Zmiana nie została wysłana."));
        return;
    }
    pendingConfiguration = dialog.getConfiguration();
    QMap<QString, QString> escaped = pendingConfiguration;
    for (QString& value : escaped)
        Velmora::Utils::replaceXmlSpecialCharacters(value);
    socketController->setUpsConfiguration(escaped);
    Velmora::Utils::msleep(applyTime);
    socketController->getUpsConfiguration();
}

void VelmoraWindow::networkConfigurationButtonClickHandler()
{
    const Ups device = currentDevice;
    auto* dialog = new NetworkConfigurationWindow(device, this);
    dialog->setSocketController(socketController.get());
    connect(socketController.get(), &UpsSocketController::groupReceived, dialog,
            &NetworkConfigurationWindow::setGroupsFromConfig);
    connect(socketController.get(), &UpsSocketController::eventsReceived, dialog,
            &NetworkConfigurationWindow::setEventsFromConfig);
    connect(socketController.get(), &UpsSocketController::allComputersReceived, dialog,
            &NetworkConfigurationWindow::setAllComputers);
    connect(socketController.get(), &UpsSocketController::netclientPass, dialog,
            &NetworkConfigurationWindow::netclientPasswReceived);
    dialog->getDataFromIni(device.id);
    runModal(networkConfigurationWindow, dialog);
}

void VelmoraWindow::discoveredComputer(const QString& ip)
{
    if (networkConfigurationWindow)
        networkConfigurationWindow->addDiscoveredComputer(ip);
}

void VelmoraWindow::extendInformationButtonClickHandler()
{
    auto* dialog = new ExtendInformationWindow(Velmora::isGenset(currentDevice.model_name), this);
    dialog->updateControls(lastDeviceState);
    runModal(extendInformationWindow, dialog);
}

void VelmoraWindow::upsEventsButtonClickHandler()
{
    auto* dialog = new UpsEventsWindow(this);
    dialog->updateControls(lastDeviceState.value(QStringLiteral("events")));
    runModal(upsEventsWindow, dialog);
}

void VelmoraWindow::loggingConfigurationButtonClickHandler()
{
    auto* dialog = new LoggingConfigurationWindow(this);
    dialog->setSocketController(socketController.get());
    dialog->setUps(currentDevice);
    runModal(loggingConfigurationWindow, dialog);
}
