// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

#include <deque>

namespace Velmora::Service {

enum class LogKind {
    Parameters,
    Messages,
    Compensation,
};

enum class LogAge {
    First, ///< the newest page
    Newer,
    Older,
};

/// A page that somebody has looked at: numbers of its first line and of the line behind its last.
struct LogPosition
{
    qint64 begin = 0;
    qint64 end = 0;
};

/// One log of one device. Lines are numbered for good, so that a page keeps its place while the log grows at
/// one end and is cut at the other.
class LogBook final
{
public:
    /// Line that stands in front of every page; empty for a log without one.
    void setHeader(const QString& header) { m_header = header; }
    [[nodiscard]] QString header() const { return m_header; }

    /// Drops the oldest lines beyond the limit, in bytes.
    void append(const QString& line, qint64 limit);

    /// The page asked for, in the order of writing, cut to what fits into a frame; moves the position to it.
    /// At either end the last page comes again. Empty if nothing was ever written.
    [[nodiscard]] QStringList page(LogAge age, LogPosition& position) const;

private:
    [[nodiscard]] qint64 firstNumber() const { return m_firstNumber; }
    [[nodiscard]] qint64 endNumber() const { return m_firstNumber + static_cast<qint64>(m_lines.size()); }
    [[nodiscard]] const QString& line(qint64 number) const;
    [[nodiscard]] LogPosition before(qint64 end) const;
    [[nodiscard]] LogPosition behind(qint64 begin) const;
    [[nodiscard]] qint64 headerCost() const;

    QString m_header;
    std::deque<QString> m_lines;
    qint64 m_firstNumber = 0;
    qint64 m_bytes = 0;
};

} // namespace Velmora::Service
