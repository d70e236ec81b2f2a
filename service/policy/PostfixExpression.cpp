// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "service/policy/PostfixExpression.h"

#include "service/policy/DeviceConditions.h"

#include <QHash>
#include <QStringList>
#include <QVarLengthArray>

#include <cmath>

namespace Velmora::Service {

namespace {

// Far more than anybody writes; it bounds what a hostile policy costs each second.
constexpr int maximumItems = 1000;

} // namespace

/// Follows the kinds of the operands, so that what it lets through can always be evaluated.
class PostfixParser final
{
public:
    using Operation = PostfixExpression::Operation;

    [[nodiscard]] bool add(const QString& item)
    {
        static const QHash<QString, Operation> operators{
            {QStringLiteral("=="), Operation::Equal},  {QStringLiteral("!="), Operation::NotEqual},
            {QStringLiteral("<"), Operation::Less},    {QStringLiteral("<="), Operation::LessOrEqual},
            {QStringLiteral(">"), Operation::Greater}, {QStringLiteral(">="), Operation::GreaterOrEqual},
            {QStringLiteral("&&"), Operation::And},    {QStringLiteral("||"), Operation::Or},
        };
        const auto found = operators.constFind(item);
        return found == operators.constEnd() ? addOperand(item) : addOperator(*found);
    }
    [[nodiscard]] bool isComplete() const
    {
        return m_kinds.size() == 1 && (m_kinds.first() == Kind::Truth || m_kinds.first() == Kind::Key);
    }
    [[nodiscard]] PostfixExpression result() const { return m_result; }

private:
    enum class Kind {
        Truth,  ///< what an operator gives
        Key,    ///< of a state, message or alarm
        Switch, ///< ON or OFF
        Number,
    };

    bool addOperand(const QString& item)
    {
        bool isNumber = false;
        const double number = item.toDouble(&isNumber);
        if (item == QLatin1String("ON") || item == QLatin1String("OFF"))
            push(Kind::Switch, {Operation::Number, item == QLatin1String("ON") ? 1.0 : 0.0, {}});
        else if (isNumber && std::isfinite(number))
            push(Kind::Number, {Operation::Number, number, {}});
        else if (item.startsWith(QLatin1String("param")))
            push(Kind::Number, {Operation::Parameter, 0.0, item});
        else if (isConditionKey(item))
            push(Kind::Key, {Operation::Condition, 0.0, item});
        else
            return false;
        return true;
    }
    bool addOperator(Operation operation)
    {
        const bool logical = operation == Operation::And || operation == Operation::Or;
        if (logical && isUncomparedPair())
            replacePair(Operation::Equal);
        if (m_kinds.size() < 2)
            return false;
        const bool leftIsNumber = m_kinds.at(m_kinds.size() - 2) == Kind::Number;
        const bool rightIsNumber = m_kinds.last() == Kind::Number;
        const bool equality = operation == Operation::Equal || operation == Operation::NotEqual;
        if (leftIsNumber != rightIsNumber || (!equality && leftIsNumber == logical))
            return false;
        replacePair(operation);
        return true;
    }
    [[nodiscard]] bool isUncomparedPair() const
    {
        if (m_kinds.size() < 3)
            return false;
        const Kind left = m_kinds.at(m_kinds.size() - 2);
        const Kind right = m_kinds.last();
        return (left == Kind::Key && right == Kind::Switch) || (left == Kind::Switch && right == Kind::Key);
    }
    void push(Kind kind, const PostfixExpression::Step& step)
    {
        m_kinds.append(kind);
        m_result.m_steps.append(step);
    }
    void replacePair(Operation operation)
    {
        m_kinds.resize(m_kinds.size() - 2);
        push(Kind::Truth, {operation, 0.0, {}});
    }

    QVector<Kind> m_kinds; ///< of what lies on the stack
    PostfixExpression m_result;
};

std::optional<PostfixExpression> PostfixExpression::parse(const QString& text)
{
    const QStringList items = text.split(QLatin1Char(','), Qt::SkipEmptyParts);
    if (items.size() > maximumItems)
        return std::nullopt;
    PostfixParser parser;
    for (const QString& item : items) {
        if (!parser.add(item.trimmed()))
            return std::nullopt;
    }
    if (!parser.isComplete())
        return std::nullopt;
    return parser.result();
}

bool PostfixExpression::isTrue(const DeviceConditions& conditions) const
{
    QVarLengthArray<double, 32> stack;
    for (const Step& step : m_steps) {
        switch (step.operation) {
        case Operation::Number:
            stack.append(step.number);
            break;
        case Operation::Condition:
            stack.append(conditions.isOn(step.key) ? 1.0 : 0.0);
            break;
        case Operation::Parameter:
            stack.append(conditions.parameter(step.key));
            break;
        default: {
            const double right = stack.last();
            stack.removeLast();
            stack.last() = apply(step.operation, stack.last(), right);
        }
        }
    }
    return !stack.isEmpty() && stack.last() > 0.0;
}

double PostfixExpression::apply(Operation operation, double left, double right)
{
    switch (operation) {
    case Operation::Equal:
        return left >= right && left <= right ? 1.0 : 0.0;
    case Operation::NotEqual:
        return left < right || left > right ? 1.0 : 0.0;
    case Operation::Less:
        return left < right ? 1.0 : 0.0;
    case Operation::LessOrEqual:
        return left <= right ? 1.0 : 0.0;
    case Operation::Greater:
        return left > right ? 1.0 : 0.0;
    case Operation::GreaterOrEqual:
        return left >= right ? 1.0 : 0.0;
    case Operation::And:
        return left > 0.0 && right > 0.0 ? 1.0 : 0.0;
    case Operation::Or:
        return left > 0.0 || right > 0.0 ? 1.0 : 0.0;
    case Operation::Number:
    case Operation::Condition:
    case Operation::Parameter:
        break;
    }
    return 0.0;
}

} // namespace Velmora::Service
