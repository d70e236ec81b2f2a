// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

#include <optional>

/// A condition's two forms: the infix text that a user writes and the postfix text that the service keeps,
/// in which a comma follows every element.
namespace Velmora {

/// Puts blanks around operators, ON and OFF wherever they stand, also inside a word.
[[nodiscard]] QString addSpaceBeforeOp(QString text);

/// Postfix form of an infix text whose operators stand between blanks. Nothing if the text as a whole is no
/// expression, is longer than 16,384 bytes or nests more than 256 parentheses.
[[nodiscard]] std::optional<QString> postfixFromInfix(const QString& text);

/// Infix form with a pair of parentheses for every operation. Each operation is put in front of what is left,
/// so the sides of && and || may swap, and in a chain that grew to the right other operands come together.
/// A text that `operators` do not reduce to one element is returned as it is, and so is one longer than
/// 65,536 characters.
[[nodiscard]] QString infixFromPostfix(const QString& text, const QStringList& operators);

} // namespace Velmora
