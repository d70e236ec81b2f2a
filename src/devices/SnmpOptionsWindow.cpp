// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "devices/SnmpOptionsWindow.h"

#include "devices/core/DeviceRegistrationRules.h"
#include "monitor/widgets/Prompts.h"
#include "ui_SnmpOptionsWindow.h"

SnmpOptionsWindow::SnmpOptionsWindow(QWidget* parent)
    : QDialog(parent)
    , ui(std::make_unique<Ui::SnmpOptionsWindow>())
{
    ui->setupUi(this);
    layout()->setSizeConstraint(QLayout::SetFixedSize);
    connect(ui->buttonBox, &QDialogButtonBox::accepted, this, &SnmpOptionsWindow::accept);
    connect(ui->buttonBox, &QDialogButtonBox::rejected, this, &SnmpOptionsWindow::reject);
}

SnmpOptionsWindow::~SnmpOptionsWindow() = default;

void SnmpOptionsWindow::setAgentIp(const QString& ip)
{
    ui->agentIpEdit->setText(ip);
}

QString SnmpOptionsWindow::getAgentIp() const
{
    return ui->agentIpEdit->text();
}

void SnmpOptionsWindow::setReadCommunity(const QString& community)
{
    ui->readCommunityEdit->setText(community);
}

QString SnmpOptionsWindow::getReadCommunity() const
{
    return ui->readCommunityEdit->text();
}

void SnmpOptionsWindow::setWriteCommunity(const QString& community)
{
    ui->writeCommunityEdit->setText(community);
}

QString SnmpOptionsWindow::getWriteCommunity() const
{
    return ui->writeCommunityEdit->text();
}

void SnmpOptionsWindow::setSnmpVer(const QString& version, bool selectable)
{
    ui->snmpVerComboBox->setEnabled(selectable);
    // A new device has no version yet, and one that cannot choose has the first.
    const int shown = selectable ? ui->snmpVerComboBox->findText(version, Qt::MatchFixedString) : 0;
    ui->snmpVerComboBox->setCurrentIndex(qMax(0, shown));
}

QString SnmpOptionsWindow::getSnmpVer() const
{
    return ui->snmpVerComboBox->currentText();
}

void SnmpOptionsWindow::setSerialNumber(const QString& serialNumber, bool visible)
{
    ui->serialNoLabel->setVisible(visible);
    ui->serialNoEdit->setVisible(visible);
    ui->serialNoEdit->setText(serialNumber);
}

QString SnmpOptionsWindow::getSerialNumber() const
{
    return ui->serialNoEdit->text();
}

void SnmpOptionsWindow::accept()
{
    if (Velmora::isDottedAddress(ui->agentIpEdit->text())) {
        QDialog::accept();
        return;
    }
    Velmora::Question warning;
    warning.title = tr("Uwaga");
    warning.text = tr("Wprowadzono nieprawidłowy adres IP");
    warning.icon = QMessageBox::Warning;
    warning.buttons = QMessageBox::Ok;
    Velmora::Prompts::current().ask(this, warning);
}
