// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "logs/TableFit.h"

#include <QHeaderView>
#include <QTableView>

namespace Velmora {

TableFit::TableFit(QTableView& table)
    : m_table(table)
    , m_metrics((table.ensurePolished(), table.font()))
{
    m_advances.fill(-1);
}

qreal TableFit::advance(QChar character)
{
    const auto code = static_cast<std::size_t>(character.unicode());
    if (code >= m_advances.size())
        return m_metrics.horizontalAdvance(character);
    if (m_advances[code] < 0)
        m_advances[code] = m_metrics.horizontalAdvance(character);
    return m_advances[code];
}

qreal TableFit::width(const QString& text)
{
    qreal widest = 0;
    qreal line = 0;
    for (const QChar character : text) {
        line = character == QLatin1Char('\n') ? 0 : line + advance(character);
        widest = qMax(widest, line);
    }
    return widest;
}

void TableFit::add(int row, int column, const QString& text)
{
    if (column >= m_columns.size())
        m_columns.resize(column + 1);
    Widest& widest = m_columns[column];
    const qreal here = width(text);
    if (here > widest.width)
        widest = {here, row};
    if (text.contains(QLatin1Char('\n')))
        m_rowsOfSeveralLines.append(row);
}

void TableFit::apply() const
{
    const QAbstractItemModel& model = *m_table.model();
    const int grid = m_table.showGrid() ? 1 : 0;
    for (int column = 0; column < model.columnCount(); ++column) {
        int needed = m_table.horizontalHeader()->sectionSizeHint(column);
        const int row = m_columns.value(column).row;
        if (row >= 0)
            needed = qMax(needed, m_table.sizeHintForIndex(model.index(row, column)).width() + grid);
        m_table.setColumnWidth(column, needed);
    }
    if (model.rowCount() == 0)
        return;
    // All rows of one line are as high as the first.
    m_table.resizeRowToContents(0);
    m_table.verticalHeader()->setDefaultSectionSize(m_table.rowHeight(0));
    for (const int row : m_rowsOfSeveralLines)
        m_table.resizeRowToContents(row);
}

} // namespace Velmora
