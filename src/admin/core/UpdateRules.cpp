// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "admin/core/UpdateRules.h"

#include <QStringList>

#include <array>
#include <optional>

namespace Velmora {

namespace {

using Version = std::array<int, 3>;

std::optional<Version> versionNumbers(const QString& text)
{
    const auto parts = text.splitRef(QLatin1Char('.'), Qt::SkipEmptyParts);
    if (parts.size() != 3)
        return std::nullopt;
    return Version{parts.at(0).toInt(), parts.at(1).toInt(), parts.at(2).toInt()};
}

} // namespace

bool isUpdate(const QString& published, const QString& own)
{
    const auto remote = versionNumbers(published);
    const auto local = versionNumbers(own);
    if (!remote || !local)
        return false;
    const auto [r0, r1, r2] = *remote;
    const auto [l0, l1, l2] = *local;
    // The last comparison leaves the first number out on purpose: it lets the maker offer a corrected
    // release of an older line.
    return r0 > l0 || (r1 > l1 && r0 == l0) || (r2 > l2 && r1 == l1);
}

QString installerFileName(const QString& platform)
{
    if (platform.contains(QLatin1String("Windows"), Qt::CaseInsensitive))
        return QStringLiteral("Velmora_Professional.exe");
    for (const char* known : {"i386-rpm", "x86-64-rpm", "i386-deb", "x86-64-deb"}) {
        if (platform == QLatin1String(known))
            return QLatin1String("velmora_Professional-") + platform + QLatin1String(".bin");
    }
    return {};
}

} // namespace Velmora
