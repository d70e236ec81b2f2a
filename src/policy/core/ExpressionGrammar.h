// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include "policy/core/ExpressionTree.h"

#include <boost/fusion/include/at_c.hpp>
#include <boost/spirit/include/qi.hpp>

#include <utility>
#include <vector>

namespace ast {

/// Makes what was just parsed the value of the rule.
struct take_value
{
    template <typename Attribute, typename Context>
    void operator()(Attribute& parsed, Context& context, bool& /*pass*/) const
    {
        boost::fusion::at_c<0>(context.attributes) = expression_ast(std::move(parsed));
    }
};

/// Joins what was just parsed to the value of the rule.
struct apply_operation
{
    using Operation = expression_ast& (expression_ast::*)(const expression_ast&);

    template <typename Context>
    void operator()(const expression_ast& right, Context& context, bool& /*pass*/) const
    {
        (boost::fusion::at_c<0>(context.attributes).*operation)(right);
    }

    Operation operation;
};

/// The grammar of conditions. From the loosest operator to the tightest: || && < <= > >= == !=. An operand
/// takes every printing character up to a blank or a parenthesis, so operators must stand between blanks.
template <typename Iterator>
class calculator final
    : public boost::spirit::qi::grammar<Iterator, expression_ast(), boost::spirit::ascii::space_type>
{
public:
    calculator()
        : calculator::base_type(disjunction)
    {
        namespace qi = boost::spirit::qi;
        chain(disjunction, "||", &expression_ast::operator||, conjunction);
        chain(conjunction, "&&", &expression_ast::operator&&, less);
        chain(less, "<", &expression_ast::operator<, less_or_equal);
        chain(less_or_equal, "<=", &expression_ast::operator<=, greater);
        chain(greater, ">", &expression_ast::operator>, greater_or_equal);
        chain(greater_or_equal, ">=", &expression_ast::operator>=, equal);
        chain(equal, "==", &expression_ast::operator==, unequal);
        chain(unequal, "!=", &expression_ast::operator!=, primary);
        // Not the graph class: what it says of a byte outside ASCII depends on the locale.
        primary = qi::lexeme[+(qi::char_('!', '~') - qi::char_("()"))][take_value()] |
                  ('(' >> disjunction[take_value()] >> ')');
    }

private:
    using Rule = boost::spirit::qi::rule<Iterator, expression_ast(), boost::spirit::ascii::space_type>;

    static void chain(Rule& level, const char* symbol, apply_operation::Operation operation, const Rule& next)
    {
        level = next[take_value()] >> *(boost::spirit::qi::lit(symbol) >> next[apply_operation{operation}]);
    }

    Rule disjunction;
    Rule conjunction;
    Rule less;
    Rule less_or_equal;
    Rule greater;
    Rule greater_or_equal;
    Rule equal;
    Rule unequal;
    Rule primary;
};

} // namespace ast
