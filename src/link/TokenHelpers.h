// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QXmlStreamReader>

namespace Velmora {

/// The text right behind the current start element; empty if another token follows. Moves on by one token.
inline QString readText(QXmlStreamReader& reader)
{
    reader.readNext();
    return reader.text().toString();
}

/// readText() as a number; 0 if it is none.
inline int readNumber(QXmlStreamReader& reader)
{
    reader.readNext();
    return reader.text().toInt();
}

/// readText() as a flag: any number but 0.
inline bool readFlag(QXmlStreamReader& reader)
{
    return readNumber(reader) != 0;
}

/// Calls `visit` on each start element up to the end element `tag`. False if the document ended first, whole
/// or broken.
template <typename Visitor>
bool forEachStartElement(QXmlStreamReader& reader, QLatin1String tag, Visitor visit)
{
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isEndElement() && reader.name() == tag)
            return true;
        if (reader.isStartElement())
            visit();
    }
    return false;
}

} // namespace Velmora
