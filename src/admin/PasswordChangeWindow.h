// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include "admin/core/PasswordRules.h"

#include <QDialog>
#include <QMap>

#include <memory>

class QTimer;

namespace Ui {
class PasswordChangeWindow;
}

namespace Velmora {
class UpsSocketController;
}

/// Changes the administrator password or that of a client of the network. Which of the two it is follows from
/// the reply that its opener connects: comparePasswords or compareNetclientPassword.
class PasswordChangeWindow final : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(PasswordChangeWindow)

public:
    /// `address` is that of the computer whose password changes. `controller` outlives the dialog.
    PasswordChangeWindow(const QString& address, Velmora::UpsSocketController* controller, QWidget* parent);
    ~PasswordChangeWindow() override;

    /// What stands in the field for the new password.
    [[nodiscard]] QString getCurrentPassword() const;

signals:
    void changePassword(QMap<QString, QString> parameters);
    void changeNetclientPassword(QString pass);
    void getPassword();

public slots:
    /// Asks for the present digest; the dialog stays open until the change is confirmed.
    void accept() override;
    void reject() override;
    void done(int result) override;
    void comparePasswords(const QString& password);
    void compareNetclientPassword(const QString& password);
    void passwordChanged();
    void noResponseTimerTimeout();
    void timerStop();

private:
    [[nodiscard]] Velmora::PasswordChangeEntry entry() const;
    /// True if nothing stands in the way; otherwise says what does.
    [[nodiscard]] bool report(Velmora::PasswordChangeVerdict verdict) const;

    std::unique_ptr<Ui::PasswordChangeWindow> ui;
    QTimer* noResponseTimer = nullptr; ///< exists only while an answer is awaited
    Velmora::UpsSocketController* m_controller;
    QString newPassword;            ///< what was sent: the field may have been edited since
    bool adminChange = false;       ///< the administrator password is being changed
    bool m_changeRequested = false; ///< a confirmation that nobody asked for means somebody else's change
    bool m_closed = false;          ///< a digest may still come in before the dialog is deleted
};
