// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "service/mail/SmtpReply.h"

namespace Velmora::Service {

namespace {

constexpr int maximumLines = 100;
constexpr int longestSummary = 200;
constexpr int codeDigits = 3;

} // namespace

QString SmtpReply::summary() const
{
    const QString text = QString::number(code) % QLatin1Char(' ') % lines.value(0);
    return text.left(longestSummary);
}

SmtpReplyReader::Progress SmtpReplyReader::add(const QByteArray& line)
{
    const QByteArray text = line.trimmed();
    bool valid = false;
    const int code = text.left(codeDigits).toInt(&valid);
    const char separator = text.size() > codeDigits ? text.at(codeDigits) : ' ';
    const bool continues = separator == '-';
    if (!valid || code < 200 || code > 599 || (!continues && separator != ' ') ||
        (!m_reply.lines.isEmpty() && code != m_reply.code) || m_reply.lines.size() >= maximumLines)
        return Progress::Broken;
    m_reply.code = code;
    m_reply.lines.append(QString::fromUtf8(text.mid(codeDigits + 1)).simplified());
    return continues ? Progress::Incomplete : Progress::Complete;
}

SmtpReply SmtpReplyReader::take()
{
    SmtpReply reply = m_reply;
    m_reply = SmtpReply();
    return reply;
}

} // namespace Velmora::Service
