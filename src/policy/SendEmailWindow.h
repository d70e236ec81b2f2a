// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

#include <memory>

namespace Ui {
class SendEmailWindow;
}

/// Parameters of an e-mail that an event sends. Checks nothing.
class SendEmailWindow final : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(SendEmailWindow)

public:
    explicit SendEmailWindow(QWidget* parent);
    ~SendEmailWindow() override;

    void setSender(const QString& sender);
    /// One address or several, separated by semicolons; passed on as they stand.
    void setReceiver(const QString& receiver);
    void setSubject(const QString& subject);
    void setContent(const QString& content);

    [[nodiscard]] QString getSender() const;
    [[nodiscard]] QString getReceiver() const;
    [[nodiscard]] QString getSubject() const;
    [[nodiscard]] QString getContent() const;

private:
    std::unique_ptr<Ui::SendEmailWindow> ui;
};
