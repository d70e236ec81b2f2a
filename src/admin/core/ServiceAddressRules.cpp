// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "admin/core/ServiceAddressRules.h"

#include <QRegularExpression>

namespace Velmora {

bool isBlankServiceAddress(const QString& text)
{
    static const QRegularExpression blank(QStringLiteral("^\\s+$|^$"));
    return blank.match(text).hasMatch();
}

} // namespace Velmora
