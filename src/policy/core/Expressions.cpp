// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "policy/core/Expressions.h"

#include "policy/core/ExpressionGrammar.h"

#include <algorithm>
#include <deque>
#include <string>

namespace Velmora {
namespace {

// Parser, printer and the tree itself recurse: by parentheses, and by the length of a chain of operators.
constexpr std::size_t longestInfix = 16384;
constexpr int deepestNesting = 256;
constexpr int longestPostfix = 65536;

bool nestsTooDeep(const std::string& text)
{
    int depth = 0;
    return std::any_of(text.begin(), text.end(), [&depth](char character) {
        if (character == '(')
            ++depth;
        else if (character == ')')
            --depth;
        return depth > deepestNesting;
    });
}

} // namespace

QString addSpaceBeforeOp(QString text)
{
    // The last two mend what the bare < and > made of <= and >=.
    static constexpr const char* replacements[][2] = {
        {"==", " == "}, {"||", " || "}, {"&&", " && "}, {"!=", " != "},   {"<=", " <= "}, {">=", " >= "},
        {"<", " < "},   {">", " > "},   {"ON", " ON "}, {"OFF", " OFF "}, {"< =", "<="},  {"> =", ">="},
    };
    for (const auto& replacement : replacements)
        text.replace(QLatin1String(replacement[0]), QLatin1String(replacement[1]));
    return text;
}

std::optional<QString> postfixFromInfix(const QString& text)
{
    const std::string bytes = text.toStdString();
    if (bytes.size() > longestInfix || nestsTooDeep(bytes))
        return {};
    const ast::calculator<std::string::const_iterator> grammar;
    ast::expression_ast tree;
    auto first = bytes.begin();
    const auto last = bytes.end();
    if (!boost::spirit::qi::phrase_parse(first, last, grammar, boost::spirit::ascii::space, tree) ||
        first != last)
        return {};
    QString postfix;
    ast::ast_print{&postfix}(tree);
    return postfix;
}

QString infixFromPostfix(const QString& text, const QStringList& operators)
{
    if (text.size() > longestPostfix)
        return text;
    const QStringList elements = text.split(QLatin1Char(','), Qt::SkipEmptyParts);
    if (elements.size() < 2)
        return elements.join(QString());
    std::deque<QString> operands;
    for (const QString& element : elements) {
        if (!operators.contains(element)) {
            operands.push_back(element);
            continue;
        }
        if (operands.size() < 2)
            return text;
        const QString right = operands.back();
        operands.pop_back();
        const QString left = operands.back();
        operands.pop_back();
        operands.push_front(QLatin1Char('(') + left + element + right + QLatin1Char(')'));
    }
    return operands.size() == 1 ? operands.front() : text;
}

} // namespace Velmora
