// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "policy/OutputSocketWindow.h"

#include "ui_OutputSocketWindow.h"

namespace {

// With one socket only.
constexpr int groupHeight = 130;
constexpr int frameHeight = 200;
constexpr int windowHeight = 210;

} // namespace

OutputSocketWindow::OutputSocketWindow(bool firstAvailable, bool secondAvailable, QWidget* parent)
    : QDialog(parent)
    , ui(std::make_unique<Ui::OutputSocketWindow>())
{
    ui->setupUi(this);
    ui->socketCheckBox1->setEnabled(firstAvailable);
    if (secondAvailable) {
        layout()->setSizeConstraint(QLayout::SetFixedSize);
    } else {
        hideSecondSocket();
    }
    connect(ui->socketCheckBox1, &QCheckBox::clicked, this, &OutputSocketWindow::enableOutputSocket1Controls);
    connect(ui->socketCheckBox2, &QCheckBox::clicked, this, &OutputSocketWindow::enableOutputSocket2Controls);
    connect(ui->buttonBox, &QDialogButtonBox::accepted, this, &OutputSocketWindow::accept);
    connect(ui->buttonBox, &QDialogButtonBox::rejected, this, &OutputSocketWindow::reject);
}

OutputSocketWindow::~OutputSocketWindow() = default;

void OutputSocketWindow::hideSecondSocket()
{
    const QList<QWidget*> controls{ui->socketCheckBox2, ui->enableRadio2, ui->disableRadio2, ui->textLabel2,
                                   ui->delayTime2};
    for (QWidget* control : controls) {
        control->setEnabled(false);
        control->hide();
    }
    ui->section2->hide();
    ui->socketGroup->setMaximumHeight(groupHeight);
    ui->frame->setMaximumHeight(frameHeight);
    setFixedHeight(windowHeight);
    setFixedWidth(sizeHint().width());
}

void OutputSocketWindow::enableOutputSocket1Controls()
{
    const bool taken = ui->socketCheckBox1->isChecked();
    const QList<QWidget*> controls{ui->enableRadio1, ui->disableRadio1, ui->textLabel1, ui->delayTime1};
    for (QWidget* control : controls)
        control->setEnabled(taken);
}

void OutputSocketWindow::enableOutputSocket2Controls()
{
    const bool taken = ui->socketCheckBox2->isChecked();
    const QList<QWidget*> controls{ui->enableRadio2, ui->disableRadio2, ui->textLabel2, ui->delayTime2};
    for (QWidget* control : controls)
        control->setEnabled(taken);
}

void OutputSocketWindow::setFirstOutputSocketConfigured(bool configured)
{
    ui->socketCheckBox1->setChecked(configured);
    enableOutputSocket1Controls();
}

void OutputSocketWindow::setSecondOutputSocketConfigured(bool configured)
{
    ui->socketCheckBox2->setChecked(configured);
    enableOutputSocket2Controls();
}

// The checked one of an exclusive pair cannot be unchecked: its fellow has to be checked.
void OutputSocketWindow::setFirstOutputSocketEnabled(bool enabled)
{
    (enabled ? ui->enableRadio1 : ui->disableRadio1)->setChecked(true);
}

void OutputSocketWindow::setSecondOutputSocketEnabled(bool enabled)
{
    (enabled ? ui->enableRadio2 : ui->disableRadio2)->setChecked(true);
}

void OutputSocketWindow::setFirstDelayTime(int delay)
{
    ui->delayTime1->setValue(delay);
}

void OutputSocketWindow::setSecondDelayTime(int delay)
{
    ui->delayTime2->setValue(delay);
}

bool OutputSocketWindow::isFirstOutputSocketConfigured() const
{
    return ui->socketCheckBox1->isChecked();
}

bool OutputSocketWindow::isFirstOutputSocketEnabled() const
{
    return ui->enableRadio1->isChecked();
}

int OutputSocketWindow::getFirstDelayTime() const
{
    return ui->delayTime1->value();
}

bool OutputSocketWindow::isSecondOutputSocketConfigured() const
{
    return ui->socketCheckBox2->isChecked();
}

bool OutputSocketWindow::isSecondOutputSocketEnabled() const
{
    return ui->enableRadio2->isChecked();
}

int OutputSocketWindow::getSecondDelayTime() const
{
    return ui->delayTime2->value();
}
