// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <boost/variant.hpp>

#include <QString>

#include <string>
#include <vector>

/// Conditions as trees: what the grammar builds and the printer writes out for the service.
namespace ast {

struct binary_op;
struct unary_op;

/// The value of a tree that nothing was put into.
struct nil
{};

/// One node. An operand is held as its bare characters.
struct expression_ast
{
    using type = boost::variant<nil, std::vector<char>, boost::recursive_wrapper<expression_ast>,
                                boost::recursive_wrapper<binary_op>, boost::recursive_wrapper<unary_op>>;

    expression_ast() = default;
    explicit expression_ast(std::vector<char> token);

    // Each makes this node a binary_op of its own symbol, with what the node was on the left: a chain of
    // them grows leftward.
    expression_ast& operator||(const expression_ast& right);
    expression_ast& operator&&(const expression_ast& right);
    expression_ast& operator==(const expression_ast& right);
    expression_ast& operator!=(const expression_ast& right);
    expression_ast& operator<(const expression_ast& right);
    expression_ast& operator<=(const expression_ast& right);
    expression_ast& operator>(const expression_ast& right);
    expression_ast& operator>=(const expression_ast& right);

    type expr;

private:
    expression_ast& join(const char* op, const expression_ast& right);
};

struct binary_op
{
    std::string op;
    expression_ast left;
    expression_ast right;
};

/// Can be printed, but nothing of the grammar builds it.
struct unary_op
{
    std::string op;
    expression_ast subject;
};

/// Appends the postfix form of what it visits: operands before their operator, a comma behind each of them.
class ast_print final : public boost::static_visitor<>
{
public:
    /// `text` outlives the visitor.
    explicit ast_print(QString* text);

    void operator()(const nil& nothing) const;
    void operator()(const std::vector<char>& token) const;
    void operator()(const expression_ast& tree) const;
    void operator()(const binary_op& operation) const;
    void operator()(const unary_op& operation) const;

private:
    QString* m_text;
};

} // namespace ast
