// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "admin/UpdateDownloadWindow.h"

#include "monitor/widgets/MessageBox.h"
#include "ui_UpdateDownloadWindow.h"

UpdateDownloadWindow::UpdateDownloadWindow(QWidget* parent)
    : QDialog(parent)
    , ui(std::make_unique<Ui::UpdateDownloadWindow>())
{
    ui->setupUi(this);
    layout()->setSizeConstraint(QLayout::SetFixedSize);
    connect(ui->buttonBox, &QDialogButtonBox::rejected, this, &UpdateDownloadWindow::reject);
}

UpdateDownloadWindow::~UpdateDownloadWindow() = default;

void UpdateDownloadWindow::setRange(int minimum, int maximum)
{
    ui->downloadProgressBar->setRange(minimum, maximum);
}

void UpdateDownloadWindow::updateDownloadProgress(int percent)
{
    ui->downloadProgressBar->setValue(percent);
}

void UpdateDownloadWindow::updateDownloadFinished()
{
    QDialog::reject();
}

void UpdateDownloadWindow::updateDownlaodError(const QString& reason)
{
    ui->downloadProgressBar->setValue(0);
    Velmora::Utils::displayMsgBox(tr("Error"), reason);
    QDialog::reject();
}

void UpdateDownloadWindow::reject()
{
    emit downloadUpdateCanceled();
    QDialog::reject();
}
