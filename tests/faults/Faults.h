// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QVector>
#include <QXmlStreamReader>

namespace Velmora::Tests {

/// The document with each element below the root in turn left out, doubled, moved to the front, put into
/// itself, filled with a long text and buried deeply.
inline QVector<QByteArray> elementFaults(const QByteArray& document)
{
    const QString text = QString::fromUtf8(document);
    const int front = text.indexOf(QLatin1Char('>')) + 1;
    const QString deep = QStringLiteral("<deep>").repeated(1000);
    const QString closed = QStringLiteral("</deep>").repeated(1000);
    QVector<QString> faults;
    QVector<int> begins;
    QXmlStreamReader reader(text);
    while (!reader.atEnd()) {
        const auto token = reader.readNext();
        const int position = static_cast<int>(reader.characterOffset());
        if (token == QXmlStreamReader::StartElement)
            begins.append(text.lastIndexOf(QLatin1Char('<'), position - 1));
        if (token != QXmlStreamReader::EndElement || begins.size() == 1)
            continue;
        const int begin = begins.takeLast();
        const QString element = text.mid(begin, position - begin);
        const QString before = text.left(begin);
        const QString behind = text.mid(position);
        const int inside = element.indexOf(QLatin1Char('>')) + 1;
        faults += before + behind;
        faults += before + element + element + behind;
        faults += text.left(front) + element + before.mid(front) + behind;
        faults += before + QString(element).insert(inside, element) + behind;
        faults += before + QString(element).insert(inside, QString(20000, QLatin1Char('7'))) + behind;
        faults += before + deep + element + closed + behind;
    }
    QVector<QByteArray> bytes;
    for (const QString& fault : qAsConst(faults))
        bytes += fault.toUtf8();
    return bytes;
}

} // namespace Velmora::Tests
