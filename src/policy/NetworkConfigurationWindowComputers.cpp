// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "policy/NetworkConfigurationWindow.h"

#include "admin/PasswordChangeWindow.h"
#include "link/TextHelpers.h"
#include "link/UpsSocketController.h"
#include "monitor/widgets/MessageBox.h"
#include "monitor/widgets/ModalDialog.h"
#include "policy/ComputerConfigurationWindow.h"
#include "policy/DiscoverWindow.h"
#include "policy/NetworkTreeColumns.h"
#include "ui_NetworkConfigurationWindow.h"

using Velmora::runModal;
using Velmora::UpsSocketController;

// Computers are added and their passwords changed through the clients that run on them.

void NetworkConfigurationWindow::addComputerButtonClickHandler()
{
    auto* dialog = new ComputerConfigurationWindow(this);
    dialog->setGroups(m_model.groupNames());
    connect(dialog, &ComputerConfigurationWindow::okButtonClicked, this,
            qOverload<>(&NetworkConfigurationWindow::sendNetclientPassRequest));
    connect(dialog, &ComputerConfigurationWindow::cancelButtonClicked, this,
            &NetworkConfigurationWindow::closeComputerConfigurationWindow);
    runModal(computerWindow, dialog);
}

void NetworkConfigurationWindow::closeComputerConfigurationWindow()
{
    // Who runs the dialog deletes it.
    if (ComputerConfigurationWindow* dialog = computerWindow.data()) {
        computerWindow.clear();
        dialog->done(QDialog::Rejected);
    }
}

void NetworkConfigurationWindow::editComputerAndCloseConfigurationWindow()
{
    const Computer* computer = getSelectedComputer();
    if (!computerWindow || !computer)
        return;
    computerWindow->stopNoResponseTimer();
    m_model.setComputerName(computer->id, computerWindow->getComputerName());
    redrawNetworkItems();
    closeComputerConfigurationWindow();
}

void NetworkConfigurationWindow::sendNetclientPassRequest()
{
    QString address;
    if (computerWindow) {
        address = computerWindow->getComputerAddress();
    } else if (passwordWindow) {
        const QTreeWidgetItem* row = selectedNetworkItem();
        if (!row)
            return;
        address = row->text(Velmora::AddressColumn);
    }
    sendNetclientPassRequest(address);
}

void NetworkConfigurationWindow::sendNetclientPassRequest(const QString& address)
{
    m_controller->getNetClientPassword({{QStringLiteral("netclient_address"), address}});
}

void NetworkConfigurationWindow::setNetclientPassword(const QString& password)
{
    const QTreeWidgetItem* row = selectedNetworkItem();
    if (!row)
        return;
    m_controller->changeNetclientPassword(
        {{QStringLiteral("netclient_address"), row->text(Velmora::AddressColumn)},
         {QStringLiteral("password"), password}});
}

void NetworkConfigurationWindow::netclientPasswReceived(const QString& digest)
{
    if (!computerWindow) {
        if (discoverWindow)
            discoverWindow->comparePasswordsAndAddComputerToTree(digest);
        return;
    }
    computerWindow->stopNoResponseTimer();
    const QString password = computerWindow->getPasswordToVerify();
    if (Velmora::Utils::makeMd5(password) != digest) {
        Velmora::Utils::displayMsgBox(tr("Nieprawidłowe hasło"),
                                      tr("Podane hasło Administratora jest nieprawidłowe"));
        return;
    }
    Computer computer;
    computer.name = computerWindow->getComputerName();
    computer.address = computerWindow->getComputerAddress();
    computer.password = password;
    m_model.addComputer(computer, computerWindow->getGroup());
    redrawNetworkItems();
    closeComputerConfigurationWindow();
}

void NetworkConfigurationWindow::passwordChangeButtonClickHandler()
{
    const Computer* computer = getSelectedComputer();
    if (!computer)
        return;
    m_passwordComputerId = computer->id;
    m_requestedPassword.reset();
    auto* dialog = new PasswordChangeWindow(computer->address, m_controller, this);
    wirePasswordWindow(dialog, isLocalhost(computer->address));
    runModal(passwordWindow, dialog);
}

void NetworkConfigurationWindow::wirePasswordWindow(PasswordChangeWindow* window, bool local)
{
    using Window = PasswordChangeWindow;
    if (local) {
        connect(window, &Window::getPassword, m_controller, &UpsSocketController::getPassword);
        connect(m_controller, &UpsSocketController::adminPassFromConfig, window, &Window::comparePasswords);
        connect(window, &Window::changePassword, m_controller, &UpsSocketController::changePassword);
    } else {
        connect(window, &Window::getPassword, this,
                qOverload<>(&NetworkConfigurationWindow::sendNetclientPassRequest));
        connect(m_controller, &UpsSocketController::netclientPass, window, &Window::compareNetclientPassword);
        connect(window, &Window::changeNetclientPassword, this,
                &NetworkConfigurationWindow::setNetclientPassword);
    }
    // A confirmation that nobody here waits for is that of somebody else's change.
    const auto remember = [this, window] { m_requestedPassword = window->getCurrentPassword(); };
    connect(window, &Window::changePassword, window, remember);
    connect(window, &Window::changeNetclientPassword, window, remember);
    connect(m_controller, &UpsSocketController::passwordChanged, window, &Window::passwordChanged);
    connect(m_controller, &UpsSocketController::passwordChanged, window, [this] { passwordChanged(); });
}

void NetworkConfigurationWindow::passwordChanged()
{
    if (!m_requestedPassword)
        return;
    ++changedPasswordCount;
    m_model.setComputerPassword(m_passwordComputerId, *m_requestedPassword);
    m_requestedPassword.reset();
}

void NetworkConfigurationWindow::discoverButtonClickHandler()
{
    auto* dialog = new DiscoverWindow(this);
    connect(dialog, &DiscoverWindow::getNetclientPassword, this,
            qOverload<const QString&>(&NetworkConfigurationWindow::sendNetclientPassRequest));
    dialog->setComputers(&m_model.computers());
    runModal(discoverWindow, dialog, [this](const DiscoverWindow& accepted) {
        const QList<Computer> found = accepted.getComputers();
        for (const Computer& computer : found)
            m_model.addComputer(computer, std::nullopt);
    });
    redrawNetworkItems();
}

void NetworkConfigurationWindow::addDiscoveredComputer(const QString& ip)
{
    if (discoverWindow)
        discoverWindow->addComputerIp(ip);
}
