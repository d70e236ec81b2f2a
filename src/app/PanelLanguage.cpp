// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "app/PanelLanguage.h"

#include <QHash>
#include <QLocale>

namespace Velmora {

QString panelLocaleName(const QString& language)
{
    // "chech" is what installed files carry.
    static const QHash<QString, QString> localeNames{
        {QStringLiteral("polish"), QStringLiteral("pl")},
        {QStringLiteral("english"), QStringLiteral("en_US")},
        {QStringLiteral("chech"), QStringLiteral("cs")},
        {QStringLiteral("slovak"), QStringLiteral("sk")},
    };
    const auto found = localeNames.constFind(language);
    return found == localeNames.cend() ? QLocale::system().name() : *found;
}

} // namespace Velmora
