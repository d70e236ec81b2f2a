// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT

// Whatever is typed, the parser ends; what it accepts it accepts again with all parentheses written out.

#include "Require.h"
#include "policy/core/ConditionRules.h"
#include "policy/core/Expressions.h"

#include <cstdint>

namespace {

/// Infix form that keeps every operand in its place; empty if `postfix` is ambiguous, with an operator's
/// symbol for an operand.
QString inPlaceInfix(const QString& postfix)
{
    static const QStringList operators = Velmora::conditionOperators(QStringLiteral("Tarvex33"));
    QStringList operands;
    const QStringList elements = postfix.split(QLatin1Char(','), Qt::SkipEmptyParts);
    for (const QString& element : elements) {
        if (!operators.contains(element)) {
            operands.append(element);
            continue;
        }
        if (operands.size() < 2)
            return {};
        const QString right = operands.takeLast();
        const QString left = operands.takeLast();
        operands.append(QStringLiteral("( %1 %2 %3 )").arg(left, element, right));
    }
    return operands.size() == 1 ? operands.constFirst() : QString();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using Velmora::Fuzz::require;
    const QString text = QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<int>(size));
    const auto postfix = Velmora::postfixFromInfix(Velmora::addSpaceBeforeOp(text));
    if (!postfix)
        return 0;
    require(postfix->endsWith(QLatin1Char(',')), "a comma ends the postfix form");
    require(!postfix->contains(QLatin1Char(' ')), "no blank is in the postfix form");
    const QString infix = inPlaceInfix(*postfix);
    const bool bounded = infix.size() < 16384 && infix.count(QLatin1Char('(')) <= 256;
    if (!infix.isEmpty() && bounded && !text.contains(QLatin1Char(',')))
        require(Velmora::postfixFromInfix(infix) == postfix, "parentheses that are redundant change nothing");
    return 0;
}
