// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "policy/SendEmailWindow.h"

#include "ui_SendEmailWindow.h"

SendEmailWindow::SendEmailWindow(QWidget* parent)
    : QDialog(parent)
    , ui(std::make_unique<Ui::SendEmailWindow>())
{
    ui->setupUi(this);
    layout()->setSizeConstraint(QLayout::SetFixedSize);
    connect(ui->buttonBox, &QDialogButtonBox::accepted, this, &SendEmailWindow::accept);
    connect(ui->buttonBox, &QDialogButtonBox::rejected, this, &SendEmailWindow::reject);
}

SendEmailWindow::~SendEmailWindow() = default;

void SendEmailWindow::setSender(const QString& sender)
{
    ui->senderEdit->setText(sender);
}

void SendEmailWindow::setReceiver(const QString& receiver)
{
    ui->receiverEdit->setText(receiver);
}

void SendEmailWindow::setSubject(const QString& subject)
{
    ui->subjectEdit->setText(subject);
}

void SendEmailWindow::setContent(const QString& content)
{
    ui->contentEdit->setText(content);
}

QString SendEmailWindow::getSender() const
{
    return ui->senderEdit->text();
}

QString SendEmailWindow::getReceiver() const
{
    return ui->receiverEdit->text();
}

QString SendEmailWindow::getSubject() const
{
    return ui->subjectEdit->text();
}

QString SendEmailWindow::getContent() const
{
    return ui->contentEdit->text();
}
