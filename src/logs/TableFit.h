// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QFontMetricsF>
#include <QString>
#include <QVector>

#include <array>

class QTableView;

namespace Velmora {

/// Sizes the columns and rows of a table to their contents. The view would lay out every cell for that, which
/// takes seconds for thousands of lines. This is told every text while the table is filled, and lays out
/// those cells alone that decide a size.
class TableFit final
{
public:
    /// `table` outlives this.
    explicit TableFit(QTableView& table);

    void add(int row, int column, const QString& text);
    /// To be called once the table has its model and its header.
    void apply() const;

private:
    struct Widest
    {
        qreal width = -1;
        int row = -1;
    };
    [[nodiscard]] qreal advance(QChar character);
    [[nodiscard]] qreal width(const QString& text);

    QTableView& m_table;
    QFontMetricsF m_metrics;
    std::array<qreal, 0x180> m_advances; ///< of the Latin characters; negative until needed
    QVector<Widest> m_columns;
    QVector<int> m_rowsOfSeveralLines;
};

} // namespace Velmora
