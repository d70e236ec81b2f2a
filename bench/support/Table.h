// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <optional>

namespace Velmora::Bench {

/// What a figure may be at most, itself or in relation to its floor.
struct Limit
{
    std::optional<double> ratio;
    std::optional<double> value;
};

/// A figure and what it cannot be less than.
struct Figure
{
    QByteArray name;
    const char* unit = "";
    double value = 0;
    std::optional<double> floor; ///< in the same run
    Limit limit;
};

/// The table that every benchmark prints, in the columns of bench/panel/velmora-bench-panel too.
class Table final
{
public:
    /// Starts with the titles of the columns unless the arguments hold "--rows".
    Table(int argc, char** argv);

    void add(const Figure& figure);
    /// 1 if a limit was missed.
    [[nodiscard]] int exitStatus() const { return m_missed ? 1 : 0; }

private:
    bool m_missed = false;
};

} // namespace Velmora::Bench
