// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "admin/AboutWindow.h"

#include "monitor/core/PanelIdentity.h"
#include "ui_AboutWindow.h"

AboutWindow::AboutWindow(QWidget* parent)
    : QDialog(parent)
    , ui(std::make_unique<Ui::AboutWindow>())
{
    ui->setupUi(this);
    layout()->setSizeConstraint(QLayout::SetFixedSize);
    ui->versionLabel->setText(tr("Wersja %1").arg(Velmora::panelVersion()));
    ui->qtVersionLabel->setText(QLatin1String("Qt ") + QLatin1String(qVersion()));
    connect(ui->buttonBox, &QDialogButtonBox::rejected, this, &AboutWindow::reject);
}

AboutWindow::~AboutWindow() = default;
