// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "service/logs/LogRecorder.h"

#include "service/device/DeviceBackend.h"
#include "service/store/Store.h"

#include <QDateTime>

namespace Velmora::Service {

namespace {

constexpr int dataBit = 1;
constexpr int messagesBit = 2;
constexpr int compensationBit = 4;
// However large a registration wants its file, the service keeps this much in memory.
constexpr qint64 maximumBookBytes = qint64{1024} * 1024;

// What is logged of a device, as far as it reports it, in the order of the columns.
constexpr const char* loggedKeys[] = {
    "device_status",
    "output_load",
    "battery_capacity",
    "fuel_level",
    "autonomy_time",
    "temperature",
    "radiator_temperature",
    "battery_temperature",
    "input_voltage",
    "input_frequency",
    "output_voltage",
    "output_frequency",
    "output_current",
    "output_active_power",
    "battery_voltage",
    "battery_current",
    "environment_temperature",
    "relative_humidity",
    "run_time",
    "tot_fuel_consum",
    "d_plus",
    "num_starts",
};

// A value of three phases takes three columns, named L1 to L3.
bool isThreePhase(const QString& value)
{
    return value.count(QLatin1Char('/')) == 2;
}

QString parametersHeader(const KeyValues& values)
{
    QStringList columns{QStringLiteral("date"), QStringLiteral("time")};
    for (const char* logged : loggedKeys) {
        const QString key = QLatin1String(logged);
        if (!values.contains(key))
            continue;
        if (isThreePhase(values.value(key))) {
            for (const char* phase : {"_L1", "_L2", "_L3"})
                columns.append(key % QLatin1String(phase));
        } else {
            columns.append(key);
        }
    }
    return columns.join(QLatin1Char(';'));
}

QString columnValue(const QString& column, const KeyValues& values)
{
    if (!column.endsWith(QLatin1String("_L1")) && !column.endsWith(QLatin1String("_L2")) &&
        !column.endsWith(QLatin1String("_L3")))
        return values.value(column);
    const QStringList phases = values.value(column.chopped(3)).split(QLatin1Char('/'));
    return phases.value(column.right(1).toInt() - 1);
}

QString parametersLine(const QString& header, const KeyValues& values, const QDateTime& time)
{
    QStringList fields{time.toString(QStringLiteral("yyyy-MM-dd")),
                       time.toString(QStringLiteral("hh:mm:ss"))};
    const QStringList columns = header.split(QLatin1Char(';'));
    for (int i = fields.size(); i < columns.size(); ++i)
        fields.append(columnValue(columns.at(i), values));
    return fields.join(QLatin1Char(';'));
}

qint64 bookLimit(const DeviceRegistration& device)
{
    return qMin(maximumBookBytes, qint64{1024} * qMax(1, device.logFileSize));
}

QString compensationLine(const KeyValues& values, const QDateTime& time)
{
    const QString base = values.value(QStringLiteral("compensation_base_factor_L1_L2_L3"));
    const QString factor = values.value(QStringLiteral("compensation_factor_L1_L2_L3"));
    if (base.isEmpty() || factor.isEmpty())
        return {};
    const QString line =
        time.toString(QStringLiteral("yyyy-MM-dd;hh:mm:ss;")) % base % QLatin1Char('/') % factor;
    return QString(line).replace(QLatin1Char('/'), QLatin1Char(';'));
}

} // namespace

LogRecorder::LogRecorder(DeviceBackend& backend, const Store& store, QObject* parent)
    : QObject(parent)
    , m_backend(backend)
    , m_store(store)
{
    connect(&m_backend, &DeviceBackend::secondPassed, this, &LogRecorder::record);
}

LogRecorder::~LogRecorder() = default;

QStringList LogRecorder::page(int device, LogKind kind, LogAge age, LogPosition& position) const
{
    const auto found = m_books.find({device, kind});
    return found == m_books.end() ? QStringList() : found->second.page(age, position);
}

void LogRecorder::forget(int device)
{
    for (const LogKind kind : {LogKind::Parameters, LogKind::Messages, LogKind::Compensation})
        m_books.erase({device, kind});
    m_lastMessages.remove(device);
}

void LogRecorder::recordAction(const DeviceRegistration& device, const QDateTime& time, const QString& action)
{
    if (!(device.logParams & messagesBit))
        return;
    // A comma would begin another code, and a line feed another line.
    QString entry = action.left(longestAction).simplified();
    entry.replace(QLatin1Char(','), QLatin1Char(';'));
    book(device.id, LogKind::Messages)
        .append(time.toString(QStringLiteral("yyyy-MM-dd,hh:mm:ss,")) % entry, bookLimit(device));
}

LogBook& LogRecorder::book(int device, LogKind kind)
{
    return m_books[{device, kind}];
}

void LogRecorder::record(const QDateTime& time)
{
    const qint64 second = time.toSecsSinceEpoch();
    for (const DeviceRegistration& device : m_store.data().devices) {
        if (device.logParams != 0 && second % qMax(1, device.logTimeInterval) == 0)
            recordDevice(device, time);
    }
}

void LogRecorder::recordDevice(const DeviceRegistration& device, const QDateTime& time)
{
    const KeyValues values = m_backend.state(device.id).values;
    if (values.isEmpty())
        return;
    const qint64 limit = bookLimit(device);
    if (device.logParams & dataBit) {
        LogBook& parameters = book(device.id, LogKind::Parameters);
        if (parameters.header().isEmpty())
            parameters.setHeader(parametersHeader(values));
        parameters.append(parametersLine(parameters.header(), values, time), limit);
    }
    const QString codes =
        values.value(QStringLiteral("messages")).split(QLatin1Char('\n')).join(QLatin1Char(','));
    if ((device.logParams & messagesBit) && m_lastMessages.value(device.id) != codes) {
        const QString line = time.toString(QStringLiteral("yyyy-MM-dd,hh:mm:ss,")) % codes;
        book(device.id, LogKind::Messages).append(line, limit);
        m_lastMessages.insert(device.id, codes);
    }
    const QString compensation = compensationLine(values, time);
    if ((device.logParams & compensationBit) && !compensation.isEmpty()) {
        LogBook& factors = book(device.id, LogKind::Compensation);
        factors.setHeader(QStringLiteral("date;time;base_L1;base_L2;base_L3;factor_L1;factor_L2;factor_L3"));
        factors.append(compensation, limit);
    }
}

} // namespace Velmora::Service
