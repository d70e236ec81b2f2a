// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "policy/DiscoverWindow.h"

#include "app/ControlPanelConfiguration.h"
#include "link/ServiceEndpoint.h"
#include "link/TextHelpers.h"
#include "monitor/widgets/MessageBox.h"
#include "monitor/widgets/ModalDialog.h"
#include "policy/ComputerConfigurationWindow.h"
#include "policy/core/NetworkRules.h"
#include "ui_DiscoverWindow.h"

#include <QNetworkInterface>
#include <QNetworkProxy>
#include <QUdpSocket>

namespace {

constexpr int columnWidth = 150;

enum Column { NameColumn, AddressColumn };

} // namespace

DiscoverWindow::DiscoverWindow(QWidget* parent)
    : QDialog(parent)
    , ui(std::make_unique<Ui::DiscoverWindow>())
{
    ui->setupUi(this);
    setFixedSize(size());
    for (QTreeWidget* tree : {ui->managedComputersTree, ui->unmanagedComputersTree}) {
        tree->setColumnWidth(NameColumn, columnWidth);
        tree->setColumnWidth(AddressColumn, columnWidth);
    }
    connect(ui->unmanagedComputersTree, &QTreeWidget::currentItemChanged, this,
            [this](const QTreeWidgetItem* current) { ui->addButton->setEnabled(current != nullptr); });
    connect(ui->addButton, &QPushButton::clicked, this, &DiscoverWindow::addButtonClickHandler);
    connect(ui->buttonBox, &QDialogButtonBox::accepted, this, &DiscoverWindow::accept);
    connect(ui->buttonBox, &QDialogButtonBox::rejected, this, &DiscoverWindow::reject);
}

DiscoverWindow::~DiscoverWindow() = default;

bool DiscoverWindow::isLocalhost(const QString& address)
{
    return Velmora::isLocalAddress(address, ControlPanelConfiguration().getServerAddress());
}

void DiscoverWindow::setComputers(const QVector<Computer>* computers)
{
    const QString serviceAddress = ControlPanelConfiguration().getServerAddress();
    for (const Computer& computer : *computers) {
        const QString address = Velmora::addressWithoutPort(computer.address);
        auto* row = new QTreeWidgetItem({computer.name, Velmora::shownAddress(address, serviceAddress)});
        // Greyed until it answers.
        row->setFlags(row->flags() & ~Qt::ItemIsEnabled);
        ui->managedComputersTree->addTopLevelItem(row);
    }
}

void DiscoverWindow::setGroupsNames(const QStringList& names)
{
    groupNames = names;
}

int DiscoverWindow::exec()
{
    sendProbes();
    return QDialog::exec();
}

void DiscoverWindow::sendProbes()
{
    ownAddresses.clear();
    QUdpSocket udpSocket;
    udpSocket.setProxy(QNetworkProxy::NoProxy);
    const QList<QNetworkInterface> interfaces = QNetworkInterface::allInterfaces();
    for (const QNetworkInterface& interface : interfaces) {
        const QList<QNetworkAddressEntry> entries = interface.addressEntries();
        for (const QNetworkAddressEntry& entry : entries) {
            ownAddresses.append(entry.ip().toString());
            if (entry.broadcast().toString().isEmpty())
                continue;
            udpSocket.writeDatagram(QByteArrayLiteral("5"), entry.broadcast(), Velmora::discoveryPort);
            udpSocket.flush();
        }
    }
}

void DiscoverWindow::addComputerIp(const QString& ip)
{
    const QList<QTreeWidgetItem*> managed =
        ui->managedComputersTree->findItems(ip, Qt::MatchExactly, AddressColumn);
    if (!managed.isEmpty()) {
        managed.constFirst()->setFlags(managed.constFirst()->flags() | Qt::ItemIsEnabled);
        return;
    }
    const bool listed = !ui->unmanagedComputersTree->findItems(ip, Qt::MatchExactly, AddressColumn).isEmpty();
    // This machine is never offered.
    if (!listed && !ownAddresses.contains(ip))
        ui->unmanagedComputersTree->addTopLevelItem(new QTreeWidgetItem({ip, ip}));
}

void DiscoverWindow::addButtonClickHandler()
{
    const QTreeWidgetItem* row = ui->unmanagedComputersTree->currentItem();
    if (!row)
        return;
    auto* dialog = new ComputerConfigurationWindow(this);
    dialog->setGroups(groupNames);
    dialog->setComputerAddress(row->text(AddressColumn));
    dialog->disableAddressAndGroup();
    connect(dialog, &ComputerConfigurationWindow::okButtonClicked, this,
            &DiscoverWindow::sendNetclientPassRequest);
    connect(dialog, &ComputerConfigurationWindow::cancelButtonClicked, this,
            &DiscoverWindow::closeComputerConfigurationWindow);
    Velmora::runModal(computerWindow, dialog);
}

void DiscoverWindow::sendNetclientPassRequest()
{
    if (computerWindow)
        emit getNetclientPassword(computerWindow->getComputerAddress());
}

void DiscoverWindow::closeComputerConfigurationWindow()
{
    // Who runs the dialog deletes it.
    if (ComputerConfigurationWindow* dialog = computerWindow.data()) {
        computerWindow.clear();
        dialog->done(QDialog::Rejected);
    }
}

void DiscoverWindow::comparePasswordsAndAddComputerToTree(const QString& digest)
{
    QTreeWidgetItem* row = ui->unmanagedComputersTree->currentItem();
    if (!computerWindow || !row)
        return;
    computerWindow->stopNoResponseTimer();
    if (Velmora::Utils::makeMd5(computerWindow->getPasswordToVerify()) != digest) {
        Velmora::Utils::displayMsgBox(tr("Nieprawidłowe hasło"),
                                      tr("Podane hasło Administratora jest nieprawidłowe"));
        return;
    }
    adopt(row, *computerWindow);
    closeComputerConfigurationWindow();
}

void DiscoverWindow::adopt(QTreeWidgetItem* row, const ComputerConfigurationWindow& entry)
{
    Computer computer;
    computer.name = entry.getComputerName();
    computer.address = entry.getComputerAddress();
    computer.password = entry.getPasswordToVerify();
    newComputers.append(computer);

    QTreeWidgetItem* managed = row->clone();
    managed->setText(NameColumn, computer.name);
    ui->managedComputersTree->addTopLevelItem(managed);
    delete row;
}
