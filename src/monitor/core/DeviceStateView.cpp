// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "monitor/core/DeviceStateView.h"

#include "devices/core/ModelRules.h"
#include "monitor/core/ExtendedInformation.h"
#include "monitor/core/WorkModes.h"

#include <QCoreApplication>
#include <QLatin1String>

namespace Velmora {
namespace {

using Report = QMap<QString, QString>;

/// With fewer entries a report tells of no device at all.
constexpr int minimumReportSize = 3;

FieldView valueOf(const Report& report, QLatin1String key)
{
    const auto found = report.constFind(key);
    return found == report.cend() ? FieldView() : FieldView(*found);
}

FieldView valueWithUnit(const Report& report, QLatin1String key, QLatin1String unit)
{
    const FieldView value = valueOf(report, key);
    return value ? FieldView(*value + unit) : FieldView();
}

BarView percentBar(const QString& text)
{
    return {BarView::ShowValue, text.toInt()};
}

bool isFailedReport(const Report& report)
{
    const QString no = QStringLiteral("0");
    return report.value(QStringLiteral("isUpsFound")) == no ||
           report.value(QStringLiteral("isProperDevice")) == no || report.size() < minimumReportSize;
}

/// One percentage, or three joined by "/". Blanks in the value are removed from the report itself.
std::array<BarView, 3> loadBars(Report& report)
{
    const QString key = QStringLiteral("output_load");
    const FieldView received = valueOf(report, QLatin1String("output_load"));
    const BarView none{BarView::ShowDefault, 0};
    if (!received)
        return {none, none, none};

    QString load = *received;
    if (load.contains(QLatin1Char(' ')))
        report.insert(key, load.remove(QLatin1Char(' ')));
    const QStringList phases = load.split(QLatin1Char('/'), Qt::SkipEmptyParts);
    if (phases.size() == 3)
        return {percentBar(phases.at(0)), percentBar(phases.at(1)), percentBar(phases.at(2))};
    return {percentBar(load), BarView(), BarView()};
}

/// Charge of the battery or, for a genset, level of the fuel.
BarView storageBar(const Report& report)
{
    if (const FieldView charge = valueOf(report, QLatin1String("battery_capacity")))
        return percentBar(*charge);
    if (const FieldView fuel = valueOf(report, QLatin1String("fuel_level")))
        return percentBar(*fuel);
    return {BarView::ShowDefault, 0};
}

/// Power in `unit`, in thousands of it for a large device.
FieldView powerField(const Report& report, QLatin1String key, const QString& configName, QLatin1String unit)
{
    const FieldView power = valueOf(report, key);
    if (!power)
        return {};
    if (isLargeDevice(configName))
        return QString(QString::number(power->toInt() / 1000) + QLatin1String(" k") + unit);
    return QString(*power + QLatin1Char(' ') + unit);
}

FieldView temperatureField(const Report& report)
{
    const QString unit = QLatin1Char(' ') + QString::fromUtf8(TEMPERATURE_LABEL);
    if (const FieldView temperature = valueOf(report, QLatin1String("temperature")))
        return QString(*temperature + unit);
    const FieldView radiator = valueOf(report, QLatin1String("radiator_temperature"));
    const FieldView battery = valueOf(report, QLatin1String("battery_temperature"));
    if (radiator && battery)
        return QString(*radiator + QLatin1String(" / ") + *battery + unit);
    return valueWithUnit(report, QLatin1String("run_time"), QLatin1String(" h"));
}

void readNameAndLocation(DeviceStateView& view, const Report& report)
{
    const FieldView agentName = valueOf(report, QLatin1String("snmp_sys_name"));
    const FieldView agentLocation = valueOf(report, QLatin1String("snmp_sys_location"));
    if (!agentName && !agentLocation)
        return;

    QString name = agentName.value_or(QString()).trimmed();
    QString location = agentLocation.value_or(QString()).trimmed();
    view.nameAndLocationVisible = !(name.isEmpty() && location.isEmpty());
    if (name.isEmpty())
        name = QCoreApplication::translate("VelmoraWindow", "<nieokreślona nazwa>");
    if (location.isEmpty())
        location = QCoreApplication::translate("VelmoraWindow", "<nieokreślona lokalizacja>");
    view.nameAndLocation = QString(name + QLatin1String(" - ") + location);
}

void readFields(DeviceStateView& view, const Report& report, const QString& configName)
{
    view.nominalActivePower =
        powerField(report, QLatin1String("nominal_active_power"), configName, QLatin1String("W"));
    if (!view.nominalActivePower)
        view.nominalActivePower = valueOf(report, QLatin1String("serial_number"));
    view.nominalSpuriousPower =
        powerField(report, QLatin1String("nominal_spurious_power"), configName, QLatin1String("VA"));
    view.autonomyTime = valueWithUnit(report, QLatin1String("autonomy_time"), QLatin1String(" min."));
    if (!view.autonomyTime)
        view.autonomyTime = valueWithUnit(report, QLatin1String("tot_fuel_consum"), QLatin1String(" l"));
    view.firmware = valueOf(report, QLatin1String("firmware_version"));
    view.temperature = temperatureField(report);
}

} // namespace

DeviceStateView deviceStateView(const QMap<QString, QString>& report, const QString& configName,
                                const QString& notAvailableText)
{
    DeviceStateView view;
    view.extendedInformationAvailable = containsAny(report);
    view.failed = isFailedReport(report);
    if (view.failed)
        return view;

    view.report = report;
    view.load = loadBars(view.report);
    view.batteryState = storageBar(report);
    const FieldView workMode = valueOf(report, QLatin1String("device_status"));
    view.workMode = workMode ? Utils::decodeWorkMode(*workMode) : notAvailableText;
    readFields(view, report, configName);
    readNameAndLocation(view, report);
    if (const FieldView messages = valueOf(report, QLatin1String("messages")))
        view.messages = messages->split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    view.events = report.value(QStringLiteral("events"));
    return view;
}

} // namespace Velmora
