// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT

// Whatever a service has stored, mapping it back ends, with what the plain procedure on one list gives.

#include "Require.h"
#include "policy/core/ConditionRules.h"
#include "policy/core/Expressions.h"

#include <algorithm>
#include <cstdint>

namespace {

QString mappedOnOneList(const QString& text, const QStringList& operators)
{
    QStringList list = text.split(QLatin1Char(','), Qt::SkipEmptyParts);
    while (list.size() > 1) {
        const auto found = std::find_if(list.cbegin(), list.cend(), [&operators](const QString& element) {
            return operators.contains(element);
        });
        const int i = static_cast<int>(found - list.cbegin());
        if (i < 2 || i == list.size())
            return text;
        const QString right = list.takeAt(i - 1);
        const QString symbol = list.takeAt(i - 1);
        const QString left = list.takeAt(i - 2);
        list.prepend(QLatin1Char('(') + left + symbol + right + QLatin1Char(')'));
    }
    return list.join(QString());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0)
        return 0;
    const bool numeric = data[0] % 2 != 0;
    const QStringList operators =
        Velmora::conditionOperators(numeric ? QStringLiteral("Tarvex33") : QString());
    const QString text =
        QString::fromUtf8(reinterpret_cast<const char*>(data + 1), static_cast<int>(size - 1));
    const QString mapped = Velmora::infixFromPostfix(text, operators);
    Velmora::Fuzz::require(mapped == mappedOnOneList(text, operators), "both ways lead to one text");
    return 0;
}
