// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "service/wire/Element.h"

#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <algorithm>

namespace Velmora::Service {

namespace {

// A whole policy nests five deep and holds a few thousand elements; more is an attack on our memory.
constexpr int maximumDepth = 16;
constexpr int maximumElements = 50000;

class ElementReader final
{
public:
    explicit ElementReader(const QString& document)
        : m_reader(document)
    {
        // Entities that the request declares may not make it longer: a few bytes could stand for gigabytes.
        m_reader.setEntityExpansionLimit(0);
    }

    std::optional<Element> readDocument()
    {
        if (!m_reader.readNextStartElement())
            return std::nullopt;
        Element root = readElement(0);
        while (!m_reader.atEnd())
            m_reader.readNext();
        if (m_reader.hasError())
            return std::nullopt;
        return root;
    }

private:
    Element readElement(int depth)
    {
        Element element;
        element.name = m_reader.name().toString();
        if (depth > maximumDepth || ++m_elements > maximumElements) {
            m_reader.raiseError(QStringLiteral("too large"));
            return element;
        }
        while (!m_reader.atEnd()) {
            const QXmlStreamReader::TokenType token = m_reader.readNext();
            if (token == QXmlStreamReader::EndElement)
                break;
            if (token == QXmlStreamReader::Characters)
                element.text += m_reader.text();
            else if (token == QXmlStreamReader::StartElement)
                element.children.append(readElement(depth + 1));
        }
        // Between children there are only the line feeds of some writers.
        if (!element.children.isEmpty())
            element.text.clear();
        return element;
    }

    QXmlStreamReader m_reader;
    int m_elements = 0;
};

bool isForbidden(QChar character)
{
    const ushort code = character.unicode();
    return (code < 0x20 && code != '\t' && code != '\n' && code != '\r') || code == 0xFFFE || code == 0xFFFF;
}

} // namespace

const Element* Element::child(QLatin1String childName) const
{
    const auto found = std::find_if(children.cbegin(), children.cend(), [childName](const Element& element) {
        return element.name == childName;
    });
    return found == children.cend() ? nullptr : &*found;
}

Element* Element::child(QLatin1String childName)
{
    const auto found = std::find_if(children.begin(), children.end(), [childName](const Element& element) {
        return element.name == childName;
    });
    return found == children.end() ? nullptr : &*found;
}

QString Element::childText(QLatin1String childName) const
{
    const Element* found = child(childName);
    return found ? found->text : QString();
}

int Element::id() const
{
    bool valid = false;
    const int number = text.toInt(&valid);
    return valid && number >= 0 ? number : -1;
}

int Element::childId(QLatin1String childName) const
{
    const Element* named = child(childName);
    return named ? named->id() : -1;
}

void Element::add(const QString& childName, const QString& childText)
{
    children.append(Element{childName, childText, {}});
}

std::optional<Element> parseElement(const QString& document)
{
    return ElementReader(document).readDocument();
}

void writeElement(QXmlStreamWriter& writer, const Element& element)
{
    if (element.children.isEmpty()) {
        writeText(writer, element.name, element.text);
        return;
    }
    writer.writeStartElement(element.name);
    for (const Element& child : element.children)
        writeElement(writer, child);
    writer.writeEndElement();
}

void writeText(QXmlStreamWriter& writer, const QString& name, const QString& text)
{
    QString clean = text;
    const auto* end = std::remove_if(clean.begin(), clean.end(), isForbidden);
    clean.truncate(static_cast<int>(end - clean.begin()));
    writer.writeStartElement(name);
    // Also for an empty text, so that it is an open and a close tag.
    writer.writeCharacters(clean);
    writer.writeEndElement();
}

} // namespace Velmora::Service
