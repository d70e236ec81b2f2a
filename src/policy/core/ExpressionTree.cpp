// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "policy/core/ExpressionTree.h"

#include <utility>

namespace ast {

expression_ast::expression_ast(std::vector<char> token)
    : expr(std::move(token))
{}

expression_ast& expression_ast::join(const char* op, const expression_ast& right)
{
    expr = binary_op{op, *this, right};
    return *this;
}

expression_ast& expression_ast::operator||(const expression_ast& right)
{
    return join("||", right);
}

expression_ast& expression_ast::operator&&(const expression_ast& right)
{
    return join("&&", right);
}

expression_ast& expression_ast::operator==(const expression_ast& right)
{
    return join("==", right);
}

expression_ast& expression_ast::operator!=(const expression_ast& right)
{
    return join("!=", right);
}

expression_ast& expression_ast::operator<(const expression_ast& right)
{
    return join("<", right);
}

expression_ast& expression_ast::operator<=(const expression_ast& right)
{
    return join("<=", right);
}

expression_ast& expression_ast::operator>(const expression_ast& right)
{
    return join(">", right);
}

expression_ast& expression_ast::operator>=(const expression_ast& right)
{
    return join(">=", right);
}

ast_print::ast_print(QString* text)
    : m_text(text)
{}

void ast_print::operator()(const nil& /*nothing*/) const {}

void ast_print::operator()(const std::vector<char>& token) const
{
    *m_text += QString::fromUtf8(token.data(), static_cast<int>(token.size())) + QLatin1Char(',');
}

void ast_print::operator()(const expression_ast& tree) const
{
    boost::apply_visitor(*this, tree.expr);
}

void ast_print::operator()(const binary_op& operation) const
{
    (*this)(operation.left);
    (*this)(operation.right);
    *m_text += QString::fromStdString(operation.op) + QLatin1Char(',');
}

void ast_print::operator()(const unary_op& operation) const
{
    (*this)(operation.subject);
    *m_text += QString::fromStdString(operation.op) + QLatin1Char(',');
}

} // namespace ast
