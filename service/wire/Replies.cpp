// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "service/wire/Replies.h"

#include "link/Cipher.h"
#include "link/Frame.h"

#include <QXmlStreamWriter>

namespace Velmora::Service {

namespace {

template <typename Body>
QByteArray document(QLatin1String name, Body body)
{
    QByteArray bytes;
    QXmlStreamWriter writer(&bytes);
    writer.writeStartElement(name);
    body(writer);
    // Gives "<name></name>" where nothing was written.
    writer.writeCharacters(QString());
    writer.writeEndElement();
    return bytes;
}

void put(QXmlStreamWriter& writer, const char* name, const QString& text)
{
    writeText(writer, QLatin1String(name), text);
}

void put(QXmlStreamWriter& writer, const char* name, int number)
{
    put(writer, name, QString::number(number));
}

void putFlag(QXmlStreamWriter& writer, const char* name, bool flag)
{
    put(writer, name, flag ? QStringLiteral("1") : QStringLiteral("0"));
}

void putValues(QXmlStreamWriter& writer, const KeyValues& values)
{
    for (auto entry = values.cbegin(); entry != values.cend(); ++entry)
        writeText(writer, entry.key(), entry.value());
}

// A panel ends the record at log_params and lets the next one inherit what it omits: so nothing is omitted.
void putRegistration(QXmlStreamWriter& writer, const DeviceRegistration& device)
{
    put(writer, "model_name", device.modelName);
    put(writer, "id", device.id);
    put(writer, "communication", device.communication);
    put(writer, "com_port", device.comPort);
    put(writer, "ip", device.ip);
    put(writer, "read", device.readCommunity);
    put(writer, "write", device.writeCommunity);
    put(writer, "snmp_ver", device.snmpVersion);
    put(writer, "serial_no", device.serialNumber);
    put(writer, "log_file_size", device.logFileSize);
    put(writer, "log_time_interval", device.logTimeInterval);
    put(writer, "user_defined_name", device.userDefinedName);
    for (const int member : device.physicalIds)
        put(writer, "phy_id", member);
    put(writer, "log_params", device.logParams);
}

// A panel ends the record at ups_shutdown_supported, which therefore stands last and is never empty.
void putStatus(QXmlStreamWriter& writer, const DeviceStatus& device)
{
    put(writer, "id", device.id);
    put(writer, "status", device.status);
    putFlag(writer, "connected", device.connected);
    putFlag(writer, "parallel_unit", device.parallelUnit);
    put(writer, "unit_address", device.unitAddress);
    putFlag(writer, "master", device.master);
    putFlag(writer, "power_compensation", device.powerCompensation);
    putFlag(writer, "output_socket1", device.outputSocket1);
    putFlag(writer, "output_socket2", device.outputSocket2);
    putFlag(writer, "ups_shutdown_supported", device.shutdownSupported);
}

} // namespace

QByteArray encodeFrame(const QByteArray& document)
{
    const QByteArray blob = Velmora::encrypt(document);
    const QByteArray frame = Velmora::Utils::prepareMessageSize(blob) + blob;
    return frame.size() > maximumFrame ? QByteArray() : frame;
}

QByteArray emptyReply(QLatin1String name)
{
    return QByteArray("<") + name.latin1() + "/>";
}

QByteArray textReply(QLatin1String name, const QString& text)
{
    return document(name, [&text](QXmlStreamWriter& writer) { writer.writeCharacters(text); });
}

QByteArray deviceListReply(const QVector<DeviceRegistration>& devices)
{
    return document(QLatin1String("ups_model_list"), [&devices](QXmlStreamWriter& writer) {
        for (const DeviceRegistration& device : devices)
            putRegistration(writer, device);
    });
}

QByteArray statusListReply(const QVector<DeviceStatus>& devices)
{
    return document(QLatin1String("ups_current_status_list"), [&devices](QXmlStreamWriter& writer) {
        for (const DeviceStatus& device : devices)
            putStatus(writer, device);
    });
}

QByteArray stateReply(const DeviceState& state)
{
    return document(QLatin1String("ups_device_state"), [&state](QXmlStreamWriter& writer) {
        writer.writeAttribute(QStringLiteral("isUpsFound"),
                              state.found ? QStringLiteral("1") : QStringLiteral("0"));
        writer.writeAttribute(QStringLiteral("isProperDevice"),
                              state.proper ? QStringLiteral("1") : QStringLiteral("0"));
        putValues(writer, state.values);
    });
}

QByteArray valuesReply(QLatin1String name, const KeyValues& values)
{
    return document(name, [&values](QXmlStreamWriter& writer) { putValues(writer, values); });
}

QByteArray portsReply(const QVector<SerialPortStatus>& ports)
{
    return document(QLatin1String("available_ports"), [&ports](QXmlStreamWriter& writer) {
        for (const SerialPortStatus& port : ports) {
            put(writer, "com_port", port.name);
            putFlag(writer, "is_port_free", port.free);
        }
    });
}

QByteArray elementsReply(QLatin1String name, const QVector<Element>& elements)
{
    return document(name, [&elements](QXmlStreamWriter& writer) {
        for (const Element& element : elements)
            writeElement(writer, element);
    });
}

QByteArray messagesReply(const QStringList& lines)
{
    return document(QLatin1String("show_message"), [&lines](QXmlStreamWriter& writer) {
        for (const QString& line : lines)
            put(writer, "message", line);
    });
}

QByteArray countdownReply(const QVector<ShutdownTimer>& timers)
{
    return document(QLatin1String("show_countdown"), [&timers](QXmlStreamWriter& writer) {
        for (const ShutdownTimer& timer : timers) {
            put(writer, "timer_id", timer.id);
            put(writer, "time", timer.seconds);
        }
    });
}

QByteArray logPageReply(const QStringList& lines)
{
    return document(QLatin1String("ups_logs"), [&lines](QXmlStreamWriter& writer) {
        for (int i = 0; i < lines.size(); ++i)
            writeText(writer, QLatin1String("log_") % QString::number(i), lines.at(i));
    });
}

QByteArray mailTestReply(int status, const QStringList& messages)
{
    return document(QLatin1String("smtp2_test_status"), [status, &messages](QXmlStreamWriter& writer) {
        put(writer, "current_status", status);
        for (int i = 0; i < messages.size(); ++i)
            writeText(writer, QLatin1String("msg_") % QString::number(i), messages.at(i));
    });
}

} // namespace Velmora::Service
