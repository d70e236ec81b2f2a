// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

#include <memory>

class QTimer;

namespace Ui {
class LogiInWindow;
}

namespace Velmora {
class UpsSocketController;
}

/// Asks for the administrator password and compares it with the digest that the service hands out on request.
class LogiInWindow final : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(LogiInWindow)

public:
    /// `controller` outlives the dialog.
    LogiInWindow(Velmora::UpsSocketController* controller, QWidget* parent);
    ~LogiInWindow() override;

signals:
    void getPassword();
    void enableAdminButtons();

public slots:
    /// Asks the service; the dialog stays open until its answer fits.
    void accept() override;
    void done(int result) override;
    void comparePasswords(const QString& pass);
    void noResponseTimeout();
    void displayHint();

private:
    std::unique_ptr<Ui::LogiInWindow> ui;
    QTimer* noResponseTimer = nullptr; ///< exists only while an answer is awaited
    Velmora::UpsSocketController* m_controller;
    bool m_closed = false; ///< an answer may still come in before the dialog is deleted
};
