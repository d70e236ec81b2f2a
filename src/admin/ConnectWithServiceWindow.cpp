// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "admin/ConnectWithServiceWindow.h"

#include "admin/core/ServiceAddressRules.h"
#include "app/ControlPanelConfiguration.h"
#include "link/UpsSocketController.h"
#include "monitor/widgets/MessageBox.h"
#include "ui_ConnectWithServiceWindow.h"

using Velmora::Utils::displayMsgBox;

ConnectWithServiceWindow::ConnectWithServiceWindow(QWidget* parent)
    : QDialog(parent)
    , ui(std::make_unique<Ui::ConnectWithServiceWindow>())
{
    ui->setupUi(this);
    layout()->setSizeConstraint(QLayout::SetFixedSize);
    connect(ui->buttonBox, &QDialogButtonBox::accepted, this, &ConnectWithServiceWindow::accept);
    connect(ui->buttonBox, &QDialogButtonBox::rejected, this, &ConnectWithServiceWindow::reject);
}

ConnectWithServiceWindow::~ConnectWithServiceWindow() = default;

void ConnectWithServiceWindow::setSocketController(Velmora::UpsSocketController* controller)
{
    m_controller = controller;
    ui->addressEdit->setText(controller->getServerAddress());
    ui->addressEdit->selectAll();
}

void ConnectWithServiceWindow::accept()
{
    const QString address = ui->addressEdit->text();
    if (Velmora::isBlankServiceAddress(address)) {
        displayMsgBox(tr("Uwaga"), tr("Należy podać adres IP lub nazwę domenową komputera"));
        return;
    }
    ControlPanelConfiguration configuration;
    const bool isChange = configuration.getServerAddress() != address;
    configuration.setServerAddress(address);
    // The file may belong to the administrator of the computer.
    if (!configuration.save() && isChange) {
        displayMsgBox(tr("Uwaga"), tr("Nie można zapisać adresu usługi w pliku ustawień.\n"
                                      "Zmiana obowiązuje do zakończenia programu."));
    }
    m_controller->setServerAddress(address);
    m_controller->disconectFromHost();
    m_controller->connectToServer();
    QDialog::accept();
}
