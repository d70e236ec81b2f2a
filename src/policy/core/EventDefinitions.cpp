// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "policy/core/EventDefinitions.h"

#include "devices/core/ModelRules.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QLatin1String>
#include <QXmlStreamReader>

namespace Velmora {
namespace {

using Failure = EventDefinitions::Failure;

bool isParameter(const QString& key)
{
    return key.startsWith(QLatin1String("param"));
}

// Sections and the root fall away by their names alone: an entry counts at any depth.
bool isEntry(const QString& element)
{
    return element.startsWith(QLatin1String("state")) || element.startsWith(QLatin1String("message")) ||
           element.startsWith(QLatin1String("alarm")) || isParameter(element);
}

void readEntry(EventDefinitions& definitions, const QString& key, const QXmlStreamAttributes& attributes,
               const Utils::Ups& device, QLatin1String labelAttribute)
{
    bool offered = true;
    for (const QXmlStreamAttribute& attribute : attributes) {
        // The two marks count by their presence, whatever their value.
        if (attribute.name() == labelAttribute)
            definitions.eventLabels[key] = attribute.value().toString();
        else if (attribute.name() == QLatin1String("parallel_ready"))
            offered = offered && device.parallel_unit;
        else if (attribute.name() == QLatin1String("compensation_ready"))
            offered = offered && device.power_compensation;
    }
    if (offered)
        definitions.eventKeys.append(key);
}

QString translated(const char* source)
{
    return QCoreApplication::translate("AdvancedOptionsWindow", source);
}

} // namespace

bool EventDefinitions::isEventState(const QString& key) const
{
    return eventKeys.contains(key) && !isParameter(key);
}

bool EventDefinitions::isParam(const QString& key) const
{
    return eventKeys.contains(key) && isParameter(key);
}

QStringList EventDefinitions::getEventList()
{
    QStringList labels;
    labels.reserve(eventKeys.size());
    for (const QString& key : qAsConst(eventKeys))
        labels.append(eventLabels[key]);
    return labels;
}

QString EventDefinitions::eventKey(const QString& label) const
{
    QString found;
    for (auto entry = eventLabels.cbegin(); entry != eventLabels.cend(); ++entry) {
        if (entry.value() == label)
            found = entry.key();
    }
    return found;
}

bool EventDefinitions::isFound() const
{
    return failure != Failure::Missing && failure != Failure::Unreadable;
}

QString EventDefinitions::failureTitle() const
{
    switch (failure) {
    case Failure::None:
        break;
    case Failure::Missing:
    case Failure::Unreadable:
        return translated(QT_TRANSLATE_NOOP("AdvancedOptionsWindow", "Błąd ładowania pliku"));
    case Failure::Malformed:
        return translated(QT_TRANSLATE_NOOP("AdvancedOptionsWindow", "Błąd odczytu pliku"));
    }
    return {};
}

QString EventDefinitions::failureText() const
{
    switch (failure) {
    case Failure::None:
        break;
    case Failure::Missing:
        return translated(
                   QT_TRANSLATE_NOOP("AdvancedOptionsWindow", "Nie można odnaleźć pliku z parametrami ")) +
               path;
    case Failure::Unreadable:
        return translated(
                   QT_TRANSLATE_NOOP("AdvancedOptionsWindow", "Nie można otworzyć pliku z parametrami ")) +
               path;
    case Failure::Malformed:
        return translated(QT_TRANSLATE_NOOP("AdvancedOptionsWindow", "Plik ")) + path +
               translated(QT_TRANSLATE_NOOP("AdvancedOptionsWindow", " zawiera błędy"));
    }
    return {};
}

QString eventDefinitionsPath(const QString& configName)
{
    return QLatin1String(":/data/data/") + eventDefinitionStem(configName) + QLatin1String(".xml");
}

EventDefinitions readEventDefinitions(const QString& path, const Utils::Ups& device, const QString& language)
{
    EventDefinitions definitions;
    definitions.path = path;
    if (!QFileInfo(path).isFile()) {
        definitions.failure = Failure::Missing;
        return definitions;
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
        definitions.failure = Failure::Unreadable;
        return definitions;
    }

    const QLatin1String labelAttribute(language == QLatin1String("polish") ? "pl" : "en");
    QXmlStreamReader reader(&file);
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement)
            continue;
        const QString key = reader.name().toString();
        if (isEntry(key))
            readEntry(definitions, key, reader.attributes(), device, labelAttribute);
    }
    if (reader.hasError())
        definitions.failure = Failure::Malformed;
    return definitions;
}

} // namespace Velmora
