// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QVector>

#include <optional>

class QXmlStreamWriter;

namespace Velmora::Service {

/// One element of a message: either a text or children. Stored as it came, so that what a panel saved is what
/// it gets back, fields of newer panels included.
struct Element
{
    QString name;
    QString text;
    QVector<Element> children;

    /// First child of that name, or null.
    [[nodiscard]] const Element* child(QLatin1String childName) const;
    [[nodiscard]] Element* child(QLatin1String childName);
    /// Text of the first child of that name; empty if there is none.
    [[nodiscard]] QString childText(QLatin1String childName) const;
    /// The element's text as an id; -1 if it is no number from 0 up.
    [[nodiscard]] int id() const;
    /// Id in the first child of that name; -1 if there is none.
    [[nodiscard]] int childId(QLatin1String childName) const;
    /// Appends a child with a text.
    void add(const QString& childName, const QString& childText);
};

/// The root element of a request; nothing if the text is not one well-formed document of sane depth and size.
[[nodiscard]] std::optional<Element> parseElement(const QString& document);

/// Writes an element with its text or children, nothing between them.
void writeElement(QXmlStreamWriter& writer, const Element& element);

/// Writes <name>text</name>, without the control characters that XML cannot carry.
void writeText(QXmlStreamWriter& writer, const QString& name, const QString& text);

} // namespace Velmora::Service
