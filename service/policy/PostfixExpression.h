// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QVector>

#include <optional>

namespace Velmora::Service {

class DeviceConditions;

/// A condition of the policy, parsed from its stored form: items that each end with a comma, operators behind
/// their operands, such as "stateNormal,ON,==,paramOutputLoad,80,<,&&,".
class PostfixExpression final
{
public:
    /// Nothing if the text does not make one condition. Where a logical operator finds a key and its value
    /// that were not compared yet, it compares them first: panels hold one condition that lacks this "==".
    [[nodiscard]] static std::optional<PostfixExpression> parse(const QString& text);

    /// A comparison with a parameter that the device does not report is false.
    [[nodiscard]] bool isTrue(const DeviceConditions& conditions) const;

private:
    friend class PostfixParser;

    enum class Operation {
        Number,
        Condition,
        Parameter,
        Equal,
        NotEqual,
        Less,
        LessOrEqual,
        Greater,
        GreaterOrEqual,
        And,
        Or,
    };
    struct Step
    {
        Operation operation;
        double number = 0.0;
        QString key;
    };

    [[nodiscard]] static double apply(Operation operation, double left, double right);

    QVector<Step> m_steps;
};

} // namespace Velmora::Service
