// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "link/TextHelpers.h"

#include <QCryptographicHash>

namespace Velmora::Utils {

QString makeMd5(const QString& text)
{
    return QString::fromLatin1(QCryptographicHash::hash(text.toUtf8(), QCryptographicHash::Md5).toHex());
}

QString& replaceXmlSpecialCharacters(QString& text)
{
    // The ampersand first, so that the entities made below are not escaped again.
    text.replace(QLatin1Char('&'), QLatin1String("&amp;"));
    text.replace(QLatin1Char('"'), QLatin1String("&quot;"));
    text.replace(QLatin1Char('\''), QLatin1String("&apos;"));
    text.replace(QLatin1Char('<'), QLatin1String("&lt;"));
    text.replace(QLatin1Char('>'), QLatin1String("&gt;"));
    return text;
}

} // namespace Velmora::Utils
