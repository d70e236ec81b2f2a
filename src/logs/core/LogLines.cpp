// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "logs/core/LogLines.h"

#include "logs/core/LogColumns.h"
#include "monitor/core/DeviceMessages.h"
#include "monitor/core/WorkModes.h"

#include <QCoreApplication>

#include <array>
#include <optional>

namespace Velmora {

namespace {

constexpr int phaseCount = 3;
constexpr QChar fieldSeparator = u';';

// Some tens are usual. Each column's header is looked for from the first one, at every size and paint.
constexpr int mostColumns = 1000;

constexpr std::array<const char*, 8> compensationSources = {
    QT_TRANSLATE_NOOP("UpsLogsWindow", "Data"),
    QT_TRANSLATE_NOOP("UpsLogsWindow", "Czas"),
    QT_TRANSLATE_NOOP("UpsLogsWindow", "Bazowy wsp. \nkompensacji L1"),
    QT_TRANSLATE_NOOP("UpsLogsWindow", "Bazowy wsp. \nkompensacji L2"),
    QT_TRANSLATE_NOOP("UpsLogsWindow", "Bazowy wsp. \nkompensacji L3"),
    QT_TRANSLATE_NOOP("UpsLogsWindow", "Wsp. kompensacji L1"),
    QT_TRANSLATE_NOOP("UpsLogsWindow", "Wsp. kompensacji L2"),
    QT_TRANSLATE_NOOP("UpsLogsWindow", "Wsp. kompensacji L3"),
};

QString translated(const char* source)
{
    return QCoreApplication::translate("UpsLogsWindow", source);
}

/// Collects the header's cells from the columns' names.
class HeaderBuilder final
{
public:
    void add(QString name)
    {
        const QLatin1String firstPhase("_L1");
        if (name.contains(firstPhase)) {
            // A group that is still open here never had its three columns: it is given up.
            m_group = LogHeaderCell{logColumnCaption(name.remove(firstPhase)), {QStringLiteral("L1")}};
        } else if (name.contains(QLatin1String("_L2"))) {
            addPhase(QStringLiteral("L2"));
        } else if (name.contains(QLatin1String("_L3"))) {
            addPhase(QStringLiteral("L3"));
        } else if (!m_group) {
            m_cells.append({logColumnCaption(name), {}});
        }
    }

    [[nodiscard]] QVector<LogHeaderCell> cells() const { return m_cells; }

private:
    void addPhase(const QString& phase)
    {
        if (!m_group)
            return;
        m_group->phases.append(phase);
        if (m_group->phases.size() < phaseCount)
            return;
        m_cells.append(*m_group);
        m_group.reset();
    }

    QVector<LogHeaderCell> m_cells;
    std::optional<LogHeaderCell> m_group;
};

} // namespace

ParametersHeader readParametersHeader(const QString& line)
{
    const QStringList names = line.split(fieldSeparator).mid(0, mostColumns);
    ParametersHeader header;
    header.columns = names.size();
    HeaderBuilder builder;
    for (int column = 0; column < names.size(); ++column) {
        const QString name = QString(names.at(column)).remove(QLatin1Char('\n'));
        if (name == QLatin1String("device_status"))
            header.workModeColumn = column;
        builder.add(name);
    }
    header.cells = builder.cells();
    return header;
}

QStringList parametersFields(const QString& line, const ParametersHeader& header)
{
    // Not split(): a list that grows field by field costs a twentieth of a page's time.
    QStringList fields;
    fields.reserve(qMin(header.columns, line.count(fieldSeparator) + 1));
    for (int begin = 0; begin <= line.size() && fields.size() < header.columns;) {
        const int end = line.indexOf(fieldSeparator, begin);
        fields.append(line.mid(begin, (end < 0 ? line.size() : end) - begin));
        begin = (end < 0 ? line.size() : end) + 1;
    }
    if (header.workModeColumn >= 0 && header.workModeColumn < fields.size())
        fields[header.workModeColumn] = Utils::decodeWorkMode(fields.at(header.workModeColumn));
    return fields;
}

QStringList messagesFields(const QString& line)
{
    const QStringList fields = line.split(QLatin1Char(','), Qt::SkipEmptyParts);
    QStringList texts;
    for (const QString& code : fields.mid(2))
        texts.append(Utils::decodeMessages(code));
    return {fields.value(0), fields.value(1), texts.join(QLatin1String(", "))};
}

QStringList messagesCaptions()
{
    return {translated(QT_TRANSLATE_NOOP("UpsLogsWindow", "Data")),
            translated(QT_TRANSLATE_NOOP("UpsLogsWindow", "Czas")),
            translated(QT_TRANSLATE_NOOP("UpsLogsWindow", "Komunikaty"))};
}

QStringList compensationFields(const QString& line)
{
    return line.split(fieldSeparator, Qt::SkipEmptyParts)
        .mid(0, static_cast<int>(compensationSources.size()));
}

QStringList compensationCaptions()
{
    QStringList captions;
    for (const char* source : compensationSources)
        captions.append(translated(source));
    return captions;
}

} // namespace Velmora
