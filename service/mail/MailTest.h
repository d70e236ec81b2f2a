// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include "service/mail/SmtpDialogue.h"

#include <QObject>
#include <QSslSocket>
#include <QTimer>

namespace Velmora::Service {

/// Sends one mail with settings that are to be tested and reports each step. Whatever the server does costs
/// bounded memory and the time-out for each step; deleting the test ends it.
///
/// A certificate that cannot be verified is reported, and the test goes on, since encryption without it is
/// still better than none; but the password is not sent then.
class MailTest final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(MailTest)

public:
    static constexpr int running = 1;
    static constexpr int succeeded = 100;
    static constexpr int failed = 2;

    explicit MailTest(const MailSettings& settings, QObject* parent = nullptr);
    ~MailTest() override;

    /// Begins; reports follow at once.
    void start();

signals:
    /// One of the numbers above, with lines for the user. Nothing follows success or failure.
    void reported(int status, const QStringList& messages);

private:
    void connected();
    void encrypted();
    void readReplies();
    void take(const SmtpStep& step);
    void report(const QString& message);
    void finish(int status, const QString& message);

    MailSettings m_settings;
    SmtpReplyReader m_reader;
    std::optional<SmtpDialogue> m_dialogue; ///< once connected
    QStringList m_certificateFaults;
    QTimer m_timeout;
    QSslSocket m_socket;
    bool m_finished = false;
};

} // namespace Velmora::Service
