// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <QMovie>
#include <QTimer>

#include <memory>

namespace Ui {
class SmtpTestWindow;
}

/// Shows a test of the mail settings, which the service runs, from the request to the result.
class SmtpTestWindow final : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(SmtpTestWindow)

public:
    enum PSSmtpStatus { SmtpStatusFailed = 1, SmtpStatusRunning = 2, SmtpStatusOk = 3 };
    using VLSmtpStatus = PSSmtpStatus;

    explicit SmtpTestWindow(QWidget* parent);
    ~SmtpTestWindow() override;

public slots:
    /// `status`: 1 while the test runs, 100 when it succeeded, anything else when it failed. `messages` are
    /// added to those shown before.
    void updateStatus(const int& status, const QStringList& messages);
    /// The service has not said anything in time.
    void noCommunicationTimeout();

private:
    void updateStatusInfo(const VLSmtpStatus& status, const QString& text);
    void appendMessage(const QString& message);

    std::unique_ptr<Ui::SmtpTestWindow> ui;
    QMovie m_spinner;
    QTimer m_timer{this};
};
