// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "policy/core/ConditionRules.h"

#include "policy/core/Expressions.h"

#include <QRegExp>
#include <QScriptEngine>

#include <algorithm>

namespace Velmora {
namespace {

const QString on = QStringLiteral("ON");
const QString off = QStringLiteral("OFF");

// These need an engine that takes the longest alternative: the first one would cut <= and >= in two.
const QString comparisonOperators = QStringLiteral("==|<|<=|>|>=|!=");
const QString logicalOperators = QStringLiteral("\\&\\&|\\|\\|");

bool holdsForbiddenText(const QString& text)
{
    // Arithmetic and bits are JavaScript, which the syntax check takes, but nothing that the service
    // evaluates.
    static constexpr const char* forbidden[] = {"+", "-", "^", "*", ">>", "<<", "/", "%", "===", "\n"};
    return std::any_of(std::begin(forbidden), std::end(forbidden),
                       [&text](const char* part) { return text.contains(QLatin1String(part)); });
}

QString cleaned(QString operand)
{
    return operand.remove(QLatin1Char('(')).remove(QLatin1Char(')')).trimmed();
}

QStringList cleanedParts(const QString& text, const QString& separators)
{
    QStringList parts = text.split(QRegExp(separators));
    std::transform(parts.begin(), parts.end(), parts.begin(), cleaned);
    return parts;
}

bool isNumber(const QString& text)
{
    bool good = false;
    (void)text.toDouble(&good);
    return good;
}

bool isSwitchValue(const QString& text)
{
    return text == on || text == off;
}

bool statesAreTestedForEquality(const QString& text, const EventDefinitions& definitions)
{
    static const QStringList others{QStringLiteral("<"), QStringLiteral("<="), QStringLiteral(">"),
                                    QStringLiteral(">="), QStringLiteral("!=")};
    // A token that is empty once its parentheses are gone still stands between its neighbours.
    QStringList tokens = addSpaceBeforeOp(text).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    std::transform(tokens.begin(), tokens.end(), tokens.begin(), cleaned);
    for (int i = 0; i < tokens.size(); ++i) {
        const bool besideOther = others.contains(tokens.value(i - 1)) || others.contains(tokens.value(i + 1));
        if (besideOther && definitions.isEventState(tokens.at(i)))
            return false;
    }
    return true;
}

bool operandsAreKnown(const QString& text, const EventDefinitions& definitions)
{
    const QStringList operands =
        cleanedParts(text, comparisonOperators + QLatin1Char('|') + logicalOperators);
    return std::all_of(operands.begin(), operands.end(), [&definitions](const QString& operand) {
        return isSwitchValue(operand) || isNumber(operand) || definitions.isEventState(operand) ||
               definitions.isParam(operand);
    });
}

bool isKeyAgainstValue(const QString& key, const QString& value, const EventDefinitions& definitions)
{
    return (isSwitchValue(value) && definitions.isEventState(key)) ||
           (isNumber(value) && definitions.isParam(key));
}

bool comparisonsAreSound(const QString& text, const EventDefinitions& definitions)
{
    const QStringList comparisons = text.split(QRegExp(logicalOperators));
    return std::all_of(comparisons.begin(), comparisons.end(), [&definitions](const QString& comparison) {
        const QStringList sides = cleanedParts(comparison, comparisonOperators);
        return sides.size() == 2 && (isKeyAgainstValue(sides.at(0), sides.at(1), definitions) ||
                                     isKeyAgainstValue(sides.at(1), sides.at(0), definitions));
    });
}

bool hasNumericParameters(const QString& configName)
{
    static constexpr const char* families[] = {
        "CormelRT",         "LumoPro_Avr",          "Tarvex33",    "Fenna_Avr",           "TARVEX_RT_PLUS",
        "TarvexRTPlus6_10", "Tarvex_KOMBI_10k_20k", "Tarvex_NOIR", "Tarvex_RT_PRO_1k_3k",
    };
    return std::any_of(std::begin(families), std::end(families), [&configName](const char* family) {
        return configName.contains(QLatin1String(family), Qt::CaseInsensitive);
    });
}

} // namespace

ConditionFault findConditionFault(const QString& text, const EventDefinitions& definitions)
{
    if (QScriptEngine::checkSyntax(text).state() != QScriptSyntaxCheckResult::Valid)
        return ConditionFault::Syntax;
    if (holdsForbiddenText(text))
        return ConditionFault::ForbiddenText;
    if (!statesAreTestedForEquality(text, definitions))
        return ConditionFault::StateOperator;
    if (!operandsAreKnown(text, definitions))
        return ConditionFault::UnknownOperand;
    if (!comparisonsAreSound(text, definitions))
        return ConditionFault::Comparison;
    return ConditionFault::None;
}

QStringList conditionValues()
{
    return {on, off};
}

QStringList conditionOperators(const QString& configName)
{
    QStringList operators{QStringLiteral("==")};
    if (hasNumericParameters(configName))
        operators << QStringLiteral("!=") << QStringLiteral("<") << QStringLiteral("<=")
                  << QStringLiteral(">") << QStringLiteral(">=");
    return operators << QStringLiteral("||") << QStringLiteral("&&") << QStringLiteral("( )");
}

ConditionEntryFault findConditionEntryFault(const ConditionEntry& entry)
{
    static const QString forbidden = QStringLiteral("&\"'<>");
    if (entry.name.isEmpty())
        return ConditionEntryFault::EmptyName;
    if (std::any_of(forbidden.begin(), forbidden.end(),
                    [&entry](QChar character) { return entry.name.contains(character); }))
        return ConditionEntryFault::ForbiddenCharacters;
    if (entry.conditionIn.isEmpty() || entry.conditionOut.isEmpty())
        return ConditionEntryFault::EmptyCondition;
    return entry.conditionsValid ? ConditionEntryFault::None : ConditionEntryFault::InvalidCondition;
}

} // namespace Velmora
