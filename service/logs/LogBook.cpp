// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "service/logs/LogBook.h"

#include "service/wire/Replies.h"

namespace Velmora::Service {

namespace {

constexpr qint64 linesPerPage = 100;
// Both tags of a line with a number of five digits.
constexpr qint64 tagBytes = 24;

// Counts a character that has to be escaped at its longest form.
qint64 cost(const QString& line)
{
    qint64 bytes = tagBytes;
    for (const QChar character : line) {
        const ushort code = character.unicode();
        bytes += code == '<' || code == '>' || code == '&' || code == '"' ? 6 : (code < 0x80 ? 1 : 3);
    }
    return bytes;
}

} // namespace

void LogBook::append(const QString& line, qint64 limit)
{
    m_lines.push_back(line);
    m_bytes += line.size() + 1;
    while (m_bytes > limit && m_lines.size() > 1) {
        m_bytes -= m_lines.front().size() + 1;
        m_lines.pop_front();
        ++m_firstNumber;
    }
}

QStringList LogBook::page(LogAge age, LogPosition& position) const
{
    if (m_lines.empty())
        return {};
    if (age == LogAge::Older && position.begin > firstNumber())
        position = before(position.begin);
    else if (age == LogAge::Older)
        position = behind(firstNumber());
    else if (age == LogAge::Newer && position.end < endNumber())
        position = behind(qMax(position.end, firstNumber()));
    else
        position = before(endNumber());

    QStringList lines;
    if (!m_header.isEmpty())
        lines.append(m_header);
    for (qint64 number = position.begin; number < position.end; ++number)
        lines.append(line(number));
    return lines;
}

const QString& LogBook::line(qint64 number) const
{
    return m_lines.at(static_cast<std::size_t>(number - m_firstNumber));
}

qint64 LogBook::headerCost() const
{
    return m_header.isEmpty() ? 0 : cost(m_header);
}

LogPosition LogBook::before(qint64 end) const
{
    LogPosition page{end, end};
    qint64 bytes = headerCost();
    while (page.begin > firstNumber() && page.end - page.begin < linesPerPage) {
        bytes += cost(line(page.begin - 1));
        if (bytes > maximumListText)
            break;
        --page.begin;
    }
    return page;
}

LogPosition LogBook::behind(qint64 begin) const
{
    LogPosition page{begin, begin};
    qint64 bytes = headerCost();
    while (page.end < endNumber() && page.end - page.begin < linesPerPage) {
        bytes += cost(line(page.end));
        if (bytes > maximumListText)
            break;
        ++page.end;
    }
    return page;
}

} // namespace Velmora::Service
