// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>
#include <QVector>

// How the lines of the three logs read. The service writes them as it likes: lines may be ragged.

namespace Velmora {

/// One cell of the top header row of a parameters log.
struct LogHeaderCell
{
    QString caption;
    QStringList phases; ///< captions of the columns that the cell spans; empty for a column of its own
};

/// What the first line of a parameters page says of the lines below it.
struct ParametersHeader
{
    QVector<LogHeaderCell> cells; ///< may stand for fewer columns than the lines have
    int columns = 0;
    int workModeColumn = -1; ///< column whose values are work modes; -1 if there is none
};

/// Three neighbours "…_L1", "…_L2", "…_L3" make one cell with three columns. A group that stays unfinished
/// has no cell, and what stands inside it has none either. Columns beyond the thousandth are left out.
[[nodiscard]] ParametersHeader readParametersHeader(const QString& line);

/// The fields of a line as they are shown, no more than the header has columns.
[[nodiscard]] QStringList parametersFields(const QString& line, const ParametersHeader& header);

/// Date, time and the texts of the codes of a messages line; always three.
[[nodiscard]] QStringList messagesFields(const QString& line);
[[nodiscard]] QStringList messagesCaptions();

/// The fields of a compensation line, at most as many as there are captions.
[[nodiscard]] QStringList compensationFields(const QString& line);
[[nodiscard]] QStringList compensationCaptions();

} // namespace Velmora
