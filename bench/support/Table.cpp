// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "bench/support/Table.h"

#include <QString>

#include <cstdio>
#include <cstring>

namespace Velmora::Bench {

namespace {

QByteArray number(double value, const char* unit)
{
    const bool isCount = *unit == '\0';
    const int decimals = isCount || value >= 1000 ? 0 : value >= 10 ? 1 : 2;
    return QByteArray::number(value, 'f', decimals) + ' ' + QByteArray(unit).leftJustified(5);
}

QByteArray text(const Limit& limit, const char* unit)
{
    if (limit.ratio)
        return "ratio " + QByteArray::number(*limit.ratio, 'f', 2);
    return limit.value ? QByteArray(QByteArray::number(*limit.value) + ' ' + unit) : QByteArray();
}

} // namespace

Table::Table(int argc, char** argv)
{
    for (int i = 1; i < argc; ++i) {
        if (std::strcmp(argv[i], "--rows") == 0)
            return;
    }
    std::printf("%-54s %14s %14s %8s   limit\n", "", "panel     ", "floor     ", "ratio");
}

void Table::add(const Figure& figure)
{
    const double ratio = figure.floor ? figure.value / *figure.floor : 0;
    const bool missed = (figure.limit.ratio && ratio > *figure.limit.ratio) ||
                        (figure.limit.value && figure.value > *figure.limit.value);
    m_missed = m_missed || missed;
    const QByteArray floor = figure.floor ? number(*figure.floor, figure.unit) : QByteArray();
    const QByteArray shownRatio = figure.floor ? QByteArray::number(ratio, 'f', 3) : QByteArray();
    std::printf("%-54s %14s %14s %8s   %s%s\n", figure.name.constData(),
                number(figure.value, figure.unit).constData(), floor.constData(), shownRatio.constData(),
                text(figure.limit, figure.unit).constData(), missed ? "  MISSED" : "");
    std::fflush(stdout);
}

} // namespace Velmora::Bench
