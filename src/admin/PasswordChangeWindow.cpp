// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "admin/PasswordChangeWindow.h"

#include "link/TextHelpers.h"
#include "link/TimerHelpers.h"
#include "link/UpsSocketController.h"
#include "monitor/widgets/MessageBox.h"
#include "ui_PasswordChangeWindow.h"

using Velmora::PasswordChangeVerdict;
using Velmora::Utils::displayMsgBox;

namespace {

constexpr int answerTime = 5000;

} // namespace

PasswordChangeWindow::PasswordChangeWindow(const QString& address, Velmora::UpsSocketController* controller,
                                           QWidget* parent)
    : QDialog(parent)
    , ui(std::make_unique<Ui::PasswordChangeWindow>())
    , m_controller(controller)
{
    ui->setupUi(this);
    layout()->setSizeConstraint(QLayout::SetFixedSize);
    setWindowTitle(tr("Zmień hasło dla ") + address);
    connect(ui->buttonBox, &QDialogButtonBox::accepted, this, &PasswordChangeWindow::accept);
    connect(ui->buttonBox, &QDialogButtonBox::rejected, this, &PasswordChangeWindow::reject);
}

PasswordChangeWindow::~PasswordChangeWindow() = default;

QString PasswordChangeWindow::getCurrentPassword() const
{
    return ui->newPasswordEdit->text();
}

Velmora::PasswordChangeEntry PasswordChangeWindow::entry() const
{
    return {ui->oldPasswordEdit->text(), ui->newPasswordEdit->text(), ui->repeatPasswordEdit->text()};
}

void PasswordChangeWindow::accept()
{
    Velmora::Utils::startNoResponseTimer(noResponseTimer, this, answerTime,
                                         &PasswordChangeWindow::noResponseTimerTimeout);
    emit getPassword();
}

void PasswordChangeWindow::reject()
{
    timerStop();
    QDialog::reject();
}

void PasswordChangeWindow::done(int result)
{
    m_closed = true;
    QDialog::done(result);
}

void PasswordChangeWindow::comparePasswords(const QString& password)
{
    if (m_closed)
        return;
    timerStop();
    adminChange = true;
    const Velmora::PasswordChangeEntry change = entry();
    if (!report(Velmora::checkAdministratorPasswordChange(change, password)))
        return;
    newPassword = change.newPassword;
    m_changeRequested = true;
    emit changePassword({{QStringLiteral("new_password"), newPassword}});
}

void PasswordChangeWindow::compareNetclientPassword(const QString& password)
{
    if (m_closed)
        return;
    timerStop();
    adminChange = false;
    const Velmora::PasswordChangeEntry change = entry();
    if (!report(Velmora::checkClientPasswordChange(change, password)))
        return;
    m_changeRequested = true;
    emit changeNetclientPassword(change.newPassword);
}

bool PasswordChangeWindow::report(PasswordChangeVerdict verdict) const
{
    switch (verdict) {
    case PasswordChangeVerdict::Accepted:
        return true;
    case PasswordChangeVerdict::WrongOldPassword:
        displayMsgBox(tr("Nieprawidłowe hasło"), tr("Wprowadzono nieprawidłowe hasło administratora"));
        break;
    case PasswordChangeVerdict::EmptyNewPassword:
        displayMsgBox(tr("Uwaga"), tr("Proszę wprowadzić nowe hasło"));
        break;
    case PasswordChangeVerdict::RepeatDiffers:
        displayMsgBox(tr("Błąd"), tr("Proszę sprawdzić nowe hasło"));
        break;
    }
    return false;
}

void PasswordChangeWindow::passwordChanged()
{
    if (!m_changeRequested)
        return;
    m_changeRequested = false;
    close();
    // Later requests must carry the new digest.
    if (adminChange)
        m_controller->setAdminPass(Velmora::Utils::makeMd5(newPassword));
    displayMsgBox(tr("Zmiana hasła"), tr("Hasło zostało zmienione"));
}

void PasswordChangeWindow::noResponseTimerTimeout()
{
    timerStop();
    displayMsgBox(tr("Brak odpowiedzi"), tr("Usługa Velmora jest nieosiągalna"));
}

void PasswordChangeWindow::timerStop()
{
    Velmora::Utils::endTimer(noResponseTimer);
}
