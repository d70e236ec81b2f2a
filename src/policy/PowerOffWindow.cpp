// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "policy/PowerOffWindow.h"

#include "ui_PowerOffWindow.h"

PowerOffWindow::PowerOffWindow(QWidget* parent)
    : QDialog(parent)
    , ui(std::make_unique<Ui::PowerOffWindow>())
{
    ui->setupUi(this);
    layout()->setSizeConstraint(QLayout::SetFixedSize);
    connect(ui->buttonBox, &QDialogButtonBox::accepted, this, &PowerOffWindow::accept);
    connect(ui->buttonBox, &QDialogButtonBox::rejected, this, &PowerOffWindow::reject);
}

PowerOffWindow::~PowerOffWindow() = default;

QList<QRadioButton*> PowerOffWindow::modeButtons() const
{
    return {ui->standardCloseButton, ui->forceCloseButton, ui->hibernationButton, ui->restartButton};
}

void PowerOffWindow::setDelay(int delay)
{
    ui->delayBox->setValue(delay);
}

void PowerOffWindow::setTurnOffUps(bool turnOff)
{
    ui->turnOffUpsBox->setChecked(turnOff);
}

void PowerOffWindow::setTurnOffUpsEnabled(bool enabled)
{
    ui->turnOffUpsBox->setEnabled(enabled);
}

void PowerOffWindow::setTurnOffMode(TurnOffOption::Option option)
{
    if (QRadioButton* button = modeButtons().value(static_cast<int>(option)))
        button->setChecked(true);
}

int PowerOffWindow::getDelay() const
{
    return ui->delayBox->value();
}

bool PowerOffWindow::isTurnOffUps() const
{
    return ui->turnOffUpsBox->isChecked();
}

int PowerOffWindow::getTurnOffMode() const
{
    const QList<QRadioButton*> buttons = modeButtons();
    int mode = 0;
    while (mode < buttons.size() && !buttons.at(mode)->isChecked())
        ++mode;
    return mode;
}
