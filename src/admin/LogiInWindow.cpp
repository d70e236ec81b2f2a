// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "admin/LogiInWindow.h"

#include "admin/core/PasswordRules.h"
#include "link/TextHelpers.h"
#include "link/TimerHelpers.h"
#include "link/UpsSocketController.h"
#include "monitor/widgets/MessageBox.h"
#include "ui_LogiInWindow.h"

#include <QToolTip>

namespace {

constexpr int answerTime = 5000;
constexpr int hintTime = 5000;

QString passwordHint()
{
    return QCoreApplication::translate("QObject", "Domyślne hasło: ") + QLatin1String("\n\"") +
           Velmora::defaultAdministratorPassword() + QLatin1Char('"');
}

} // namespace

LogiInWindow::LogiInWindow(Velmora::UpsSocketController* controller, QWidget* parent)
    : QDialog(parent)
    , ui(std::make_unique<Ui::LogiInWindow>())
    , m_controller(controller)
{
    ui->setupUi(this);
    layout()->setSizeConstraint(QLayout::SetFixedSize);
    ui->hintButton->setToolTip(passwordHint());
    ui->passwordEdit->setFocus();
    connect(ui->hintButton, &QToolButton::clicked, this, &LogiInWindow::displayHint);
    connect(ui->buttonBox, &QDialogButtonBox::accepted, this, &LogiInWindow::accept);
    connect(ui->buttonBox, &QDialogButtonBox::rejected, this, &LogiInWindow::reject);
}

LogiInWindow::~LogiInWindow() = default;

void LogiInWindow::accept()
{
    Velmora::Utils::startNoResponseTimer(noResponseTimer, this, answerTime, &LogiInWindow::noResponseTimeout);
    emit getPassword();
}

void LogiInWindow::done(int result)
{
    Velmora::Utils::endTimer(noResponseTimer);
    m_closed = true;
    QDialog::done(result);
}

void LogiInWindow::comparePasswords(const QString& pass)
{
    if (m_closed)
        return;
    Velmora::Utils::endTimer(noResponseTimer);
    if (Velmora::Utils::makeMd5(ui->passwordEdit->text()) != pass) {
        Velmora::Utils::displayMsgBox(tr("Nieprawidłowe hasło"),
                                      tr("Podane hasło Administratora jest nieprawidłowe"));
        return;
    }
    m_controller->setAdminPass(pass);
    emit enableAdminButtons();
    QDialog::accept();
}

void LogiInWindow::noResponseTimeout()
{
    Velmora::Utils::displayMsgBox(tr("Błąd połączenia"), tr("Brak połączenia z usługą"));
    Velmora::Utils::endTimer(noResponseTimer);
}

void LogiInWindow::displayHint()
{
    QToolTip::showText(ui->hintButton->mapToGlobal(QPoint(0, 0)), passwordHint(), ui->hintButton, QRect(),
                       hintTime);
}
