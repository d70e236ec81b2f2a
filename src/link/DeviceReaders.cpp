// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "link/DeviceReaders.h"

#include "link/TokenHelpers.h"

#include <array>

namespace Velmora::Utils {

namespace {

struct TextField
{
    QLatin1String tag;
    QString Ups::*field;
};

const std::array<TextField, 12> textFields{{
    {QLatin1String("model_name"), &Ups::model_name},
    {QLatin1String("id"), &Ups::id},
    {QLatin1String("communication"), &Ups::communication},
    {QLatin1String("com_port"), &Ups::com_port},
    {QLatin1String("ip"), &Ups::ip},
    {QLatin1String("read"), &Ups::read},
    {QLatin1String("write"), &Ups::write},
    {QLatin1String("snmp_ver"), &Ups::snmp_ver},
    {QLatin1String("serial_no"), &Ups::serial_no},
    {QLatin1String("log_file_size"), &Ups::log_file_size},
    {QLatin1String("log_time_interval"), &Ups::log_time_interval},
    {QLatin1String("user_defined_name"), &Ups::user_defined_name},
}};

// True if the current element is a plain text field of the record, which then holds its text.
bool readTextField(QXmlStreamReader& reader, Ups& ups)
{
    for (const TextField& entry : textFields) {
        if (reader.name() == entry.tag) {
            ups.*entry.field = readText(reader);
            return true;
        }
    }
    return false;
}

} // namespace

QVector<Ups> parseUpsModelList(QXmlStreamReader& reader)
{
    QVector<Ups> devices;
    Ups working;
    forEachStartElement(reader, QLatin1String("ups_model_list"), [&] {
        if (readTextField(reader, working))
            return;
        if (reader.name().contains(QLatin1String("phy_id"))) {
            working.phy_ids.append(readText(reader));
        } else if (reader.name() == QLatin1String("log_params")) {
            working.log_params = readText(reader);
            devices.append(working);
            working.phy_ids.clear();
        }
    });
    return devices;
}

QList<SerialPort> parseAvailablePorts(QXmlStreamReader& reader)
{
    QList<SerialPort> ports;
    reader.readNext();
    while (!reader.atEnd()) {
        if (reader.isEndElement() && reader.name() == QLatin1String("available_ports"))
            break;
        if (!reader.isStartElement() || !reader.name().contains(QLatin1String("com_port"))) {
            reader.readNext();
            continue;
        }
        SerialPort port;
        port.name = readText(reader);
        reader.readNext();
        reader.readNext();
        // Without its flag the port is dropped; the token that stands here instead is looked at again.
        if (!reader.name().contains(QLatin1String("is_port_free")))
            continue;
        port.free = readNumber(reader) == 1;
        ports.append(port);
    }
    return ports;
}

QVector<QString> parseMessagesToShow(QXmlStreamReader& reader)
{
    QVector<QString> messages;
    forEachStartElement(reader, QLatin1String("show_message"), [&] {
        if (reader.name() == QLatin1String("message"))
            messages.append(readText(reader));
    });
    return messages;
}

} // namespace Velmora::Utils
