// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "link/XmlParser.h"

#include "link/TokenHelpers.h"

namespace Velmora {

using Utils::currentDeviceStatus;

namespace {

void readStatusField(QXmlStreamReader& reader, currentDeviceStatus& status)
{
    const QStringRef name = reader.name();
    if (name == QLatin1String("id"))
        status.id = readNumber(reader);
    else if (name == QLatin1String("status"))
        status.status = readText(reader).toStdString();
    else if (name == QLatin1String("unit_address"))
        status.unit_address = readText(reader).toStdString();
    else if (name == QLatin1String("connected"))
        status.connected = readFlag(reader);
    else if (name == QLatin1String("parallel_unit"))
        status.parallel_unit = readFlag(reader);
    else if (name == QLatin1String("master"))
        status.master = readFlag(reader);
    else if (name == QLatin1String("power_compensation"))
        status.power_compensation = readFlag(reader);
    else if (name == QLatin1String("output_socket1"))
        status.output_socket1 = readFlag(reader);
    else if (name == QLatin1String("output_socket2"))
        status.output_socket2 = readFlag(reader);
    else if (name == QLatin1String("ups_shutdown_supported"))
        status.ups_shutdown_supported = readFlag(reader);
}

} // namespace

QVector<currentDeviceStatus> XmlParser::parseUpsStatusList(QXmlStreamReader& reader) const
{
    QVector<currentDeviceStatus> rows;
    currentDeviceStatus working;
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement()) {
            readStatusField(reader, working);
        } else if (reader.isEndElement()) {
            if (reader.name() == QLatin1String("ups_current_status_list"))
                break;
            // Any end tag with "ups" in its name closes a row, that of `ups_shutdown_supported` included.
            if (reader.name().contains(QLatin1String("ups"))) {
                rows.append(working);
                const int id = working.id;
                working = currentDeviceStatus();
                working.id = id;
            }
        }
    }
    return rows;
}

QStringList XmlParser::parseUpsLogsList(QXmlStreamReader& reader) const
{
    QStringList lines;
    forEachStartElement(reader, QLatin1String("ups_logs"), [&] {
        if (reader.name().contains(QLatin1String("log_")))
            lines.append(readText(reader));
    });
    return lines;
}

void XmlParser::parseSmtpTestStatus(QXmlStreamReader& reader, int& status, QStringList& messages) const
{
    status = 0;
    messages.clear();
    while (!reader.atEnd()) {
        reader.readNext();
        if (!reader.isStartElement())
            continue;
        if (reader.name() == QLatin1String("current_status"))
            status = readNumber(reader);
        else if (reader.name().contains(QLatin1String("msg_")))
            messages.append(readText(reader));
    }
}

QList<QPair<int, int>> XmlParser::parseCountdownTimer(QXmlStreamReader& reader) const
{
    QList<QPair<int, int>> timers;
    QPair<int, int> working(0, 0);
    forEachStartElement(reader, QLatin1String("show_countdown"), [&] {
        if (reader.name() == QLatin1String("timer_id")) {
            working.first = readNumber(reader);
        } else if (reader.name() == QLatin1String("time")) {
            working.second = readNumber(reader);
            timers.append(working);
        }
    });
    return timers;
}

int XmlParser::parseUpsFoundLoss(QXmlStreamReader& reader) const
{
    return readNumber(reader);
}

} // namespace Velmora
