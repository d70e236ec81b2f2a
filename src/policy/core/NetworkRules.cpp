// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "policy/core/NetworkRules.h"

#include <algorithm>

namespace Velmora {

bool isLocalAddress(const QString& address, const QString& serviceAddress)
{
    return address == QLatin1String("127.0.0.1") || address == serviceAddress ||
           address == QLatin1String("localhost");
}

QString shownAddress(const QString& address, const QString& serviceAddress)
{
    return isLocalAddress(address, serviceAddress) ? serviceAddress : address;
}

QString addressWithoutPort(const QString& address)
{
    return address.section(QLatin1Char(':'), 0, 0);
}

bool isDefaultGroup(const QString& name)
{
    return name.startsWith(QLatin1String("default"), Qt::CaseInsensitive);
}

GroupNameVerdict checkGroupName(const QString& name, const QStringList& takenNames)
{
    // Group names go out unescaped: these would break the message.
    const QLatin1String forbidden("&\"'<>");
    const bool broken = std::any_of(forbidden.begin(), forbidden.end(),
                                    [&name](char c) { return name.contains(QLatin1Char(c)); });
    if (broken)
        return GroupNameVerdict::ForbiddenCharacter;
    return takenNames.contains(name) ? GroupNameVerdict::Taken : GroupNameVerdict::Accepted;
}

} // namespace Velmora
