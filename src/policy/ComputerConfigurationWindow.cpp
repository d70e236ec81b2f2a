// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "policy/ComputerConfigurationWindow.h"

#include "link/TimerHelpers.h"
#include "monitor/widgets/MessageBox.h"
#include "ui_ComputerConfigurationWindow.h"

using Velmora::Utils::displayMsgBox;

namespace {

constexpr int answerTime = 10000;

} // namespace

ComputerConfigurationWindow::ComputerConfigurationWindow(QWidget* parent)
    : QDialog(parent)
    , ui(std::make_unique<Ui::ComputerConfigurationWindow>())
{
    ui->setupUi(this);
    layout()->setSizeConstraint(QLayout::SetFixedSize);
    connect(ui->okButton, &QPushButton::clicked, this, &ComputerConfigurationWindow::okButtonClickHandler);
    connect(ui->cancelButton, &QPushButton::clicked, this, &ComputerConfigurationWindow::reject);
}

ComputerConfigurationWindow::~ComputerConfigurationWindow() = default;

void ComputerConfigurationWindow::setComputerName(const QString& name)
{
    ui->computerNameEdit->setText(name);
}

void ComputerConfigurationWindow::setComputerAddress(const QString& address)
{
    ui->computerAddressEdit->setText(address);
    m_takenAddresses.removeAll(address);
}

void ComputerConfigurationWindow::setGroups(const QStringList& names)
{
    ui->groupBox->insertItems(0, names);
    ui->groupBox->setCurrentIndex(names.isEmpty() ? -1 : 0);
}

void ComputerConfigurationWindow::setComputersAllComputers(const QVector<Computer>* computers)
{
    for (const Computer& computer : *computers)
        m_takenAddresses.append(computer.address);
}

void ComputerConfigurationWindow::disableAddressAndGroup()
{
    m_addressAndGroupFixed = true;
    setFieldsEnabled(true);
}

void ComputerConfigurationWindow::disablePassword()
{
    m_passwordFixed = true;
    setFieldsEnabled(true);
}

void ComputerConfigurationWindow::setFieldsEnabled(bool enabled)
{
    ui->computerNameEdit->setEnabled(enabled);
    ui->computerAddressEdit->setEnabled(enabled && !m_addressAndGroupFixed);
    ui->groupBox->setEnabled(enabled && !m_addressAndGroupFixed);
    ui->passwordEdit->setEnabled(enabled && !m_passwordFixed);
}

QString ComputerConfigurationWindow::getComputerName() const
{
    return ui->computerNameEdit->text();
}

QString ComputerConfigurationWindow::getComputerAddress() const
{
    return ui->computerAddressEdit->text();
}

QString ComputerConfigurationWindow::getPasswordToVerify() const
{
    return ui->passwordEdit->text();
}

QString ComputerConfigurationWindow::getGroup() const
{
    return ui->groupBox->currentText();
}

void ComputerConfigurationWindow::okButtonClickHandler()
{
    if (m_takenAddresses.contains(ui->computerAddressEdit->text())) {
        displayMsgBox(tr("Błędny adres komputera"), tr("Istnieje już komputer o podanym adresie"));
        return;
    }
    if (noResponseTimer)
        return;
    Velmora::Utils::startNoResponseTimer(noResponseTimer, this, answerTime,
                                         &ComputerConfigurationWindow::noResponseTimeout);
    // What the answer vouches for must not change before it is here.
    setFieldsEnabled(false);
    emit okButtonClicked();
}

void ComputerConfigurationWindow::noResponseTimeout()
{
    stopNoResponseTimer();
    displayMsgBox(tr("Brak odpowiedzi"), tr("Netclient jest nieosiągalny"));
}

void ComputerConfigurationWindow::stopNoResponseTimer()
{
    Velmora::Utils::endTimer(noResponseTimer);
    setFieldsEnabled(true);
}

void ComputerConfigurationWindow::reject()
{
    stopNoResponseTimer();
    // The owner may close the dialog in answer to this.
    emit cancelButtonClicked();
    if (isVisible())
        QDialog::reject();
}
