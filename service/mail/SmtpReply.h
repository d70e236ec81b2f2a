// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

namespace Velmora::Service {

/// What a mail server answers to one command.
struct SmtpReply
{
    int code = 0;
    QStringList lines; ///< without code and line ends

    /// Code and first line, cut to what fits into a message for users.
    [[nodiscard]] QString summary() const;
};

/// Puts the lines of a reply together.
class SmtpReplyReader final
{
public:
    enum class Progress {
        Incomplete,
        Complete, ///< take() gives the reply
        Broken,   ///< this is no reply, or it does not end
    };

    [[nodiscard]] Progress add(const QByteArray& line);
    [[nodiscard]] SmtpReply take();

private:
    SmtpReply m_reply;
};

} // namespace Velmora::Service
