// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "service/device/DeviceBackend.h"
#include "service/server/RequestDispatcher.h"

#include <algorithm>

namespace Velmora::Service {

namespace {

constexpr int allLogs = 7;
constexpr int longestInterval = 3600;  ///< seconds
constexpr int largestLogFile = 100000; ///< kilobytes
constexpr int longestName = 80;
constexpr int mostReasons = 10; ///< lines of the message box in which a panel shows them

const DeviceRegistration* findDevice(const StoredData& data, int id)
{
    const auto found = std::find_if(data.devices.cbegin(), data.devices.cend(),
                                    [id](const DeviceRegistration& device) { return device.id == id; });
    return found == data.devices.cend() ? nullptr : &*found;
}

// In the place of the device with this id, or behind all others.
void putDevice(QVector<DeviceRegistration>& devices, const DeviceRegistration& device)
{
    for (DeviceRegistration& stored : devices) {
        if (stored.id == device.id) {
            stored = device;
            return;
        }
    }
    devices.append(device);
}

int number(const Element& request, const char* field, int minimum, int maximum, int fallback)
{
    bool valid = false;
    const int value = request.childText(QLatin1String(field)).toInt(&valid);
    return valid ? qBound(minimum, value, maximum) : fallback;
}

// The dialogs that add and edit a device leave the logging fields empty; then these stay as they are.
void readLogging(DeviceRegistration& device, const Element& request)
{
    device.logFileSize = number(request, "log_file_size", 1, largestLogFile, device.logFileSize);
    device.logTimeInterval = number(request, "log_time_interval", 1, longestInterval, device.logTimeInterval);
    device.logParams = number(request, "log_params", 0, allLogs, device.logParams);
}

void readRegistration(DeviceRegistration& device, const Element& request, const StoredData& data)
{
    device.modelName = request.childText(QLatin1String("model_name"));
    device.communication = request.childText(QLatin1String("communication"));
    device.comPort = request.childText(QLatin1String("com_port"));
    device.ip = request.childText(QLatin1String("ip"));
    device.readCommunity = request.childText(QLatin1String("read"));
    device.writeCommunity = request.childText(QLatin1String("write"));
    device.snmpVersion = request.childText(QLatin1String("snmp_ver"));
    device.serialNumber = request.childText(QLatin1String("serial_no"));
    const QString name = request.childText(QLatin1String("user_defined_name")).left(longestName);
    // A panel has no field for the name of a virtual device: when it changes the members it sends none.
    if (!isVirtualDevice(device) || !name.isEmpty())
        device.userDefinedName = name;
    device.physicalIds.clear();
    for (const Element& child : request.children) {
        const int id = child.id();
        if (child.name == QLatin1String("phy_id") && id != device.id && findDevice(data, id) &&
            !device.physicalIds.contains(id))
            device.physicalIds.append(id);
    }
    readLogging(device, request);
}

/// Why this registration cannot be taken; empty if it can.
QString registrationFault(const DeviceRegistration& device, const StoredData& data)
{
    if (device.modelName.isEmpty() || device.modelName == QLatin1String("unknown"))
        return QStringLiteral("The device has no model.");
    QVector<DeviceRegistration> devices = data.devices;
    putDevice(devices, device);
    if (encodeFrame(deviceListReply(devices)).isEmpty())
        return QStringLiteral("The list of devices would be longer than a panel can read.");
    if (device.communication != QLatin1String("rs232"))
        return {};
    const bool taken =
        std::any_of(data.devices.cbegin(), data.devices.cend(), [&](const DeviceRegistration& other) {
            return other.id != device.id && other.communication == device.communication &&
                   other.comPort == device.comPort;
        });
    return taken ? QStringLiteral("The port %1 is used by another device.").arg(device.comPort) : QString();
}

void addDevice(const RequestScope& scope, const Element& request)
{
    const StoredData& data = scope.store().data();
    DeviceRegistration device;
    device.id = data.nextDeviceId;
    readRegistration(device, request, data);
    const QString fault = registrationFault(device, data);
    if (!fault.isEmpty()) {
        scope.refuse(fault);
        return;
    }
    const bool stored = scope.change([&device](StoredData& changed) {
        putDevice(changed.devices, device);
        changed.policies.insert(device.id, defaultPolicy());
        changed.nextDeviceId = device.id + 1;
    });
    if (stored)
        scope.devicesChanged();
}

void changeDevice(const RequestScope& scope, const Element& request)
{
    const StoredData& data = scope.store().data();
    const DeviceRegistration* known = findDevice(data, request.childId(QLatin1String("id")));
    if (!known) {
        scope.refuse(QStringLiteral("There is no such device any more."));
        return;
    }
    DeviceRegistration device = *known;
    readRegistration(device, request, data);
    const QString fault = registrationFault(device, data);
    if (!fault.isEmpty()) {
        scope.refuse(fault);
        return;
    }
    const bool otherModel = device.modelName != known->modelName;
    const bool resetEvents = request.childText(QLatin1String("reset_events_request")).toInt() != 0;
    const bool stored = scope.change([&](StoredData& changed) {
        putDevice(changed.devices, device);
        if (otherModel)
            changed.settings.remove(device.id);
        if (resetEvents)
            changed.policies[device.id].events = defaultPolicy().events;
    });
    if (!stored)
        return;
    if (otherModel)
        scope.logs().forget(device.id);
    scope.devicesChanged();
}

void changeLogging(const RequestScope& scope, const Element& request)
{
    const DeviceRegistration* known = findDevice(scope.store().data(), request.childId(QLatin1String("id")));
    if (!known) {
        scope.refuse(QStringLiteral("There is no such device any more."));
        return;
    }
    DeviceRegistration device = *known;
    readLogging(device, request);
    if (scope.change([&device](StoredData& changed) { putDevice(changed.devices, device); }))
        scope.devicesChanged();
}

void removeDevice(const RequestScope& scope, const Element& request)
{
    const int id = request.childId(QLatin1String("id"));
    if (!findDevice(scope.store().data(), id)) {
        scope.refuse(QStringLiteral("There is no such device any more."));
        return;
    }
    const bool stored = scope.change([id](StoredData& changed) {
        const auto isRemoved = [id](const DeviceRegistration& device) { return device.id == id; };
        changed.devices.erase(std::remove_if(changed.devices.begin(), changed.devices.end(), isRemoved),
                              changed.devices.end());
        for (DeviceRegistration& device : changed.devices)
            device.physicalIds.removeAll(id);
        changed.policies.remove(id);
        changed.settings.remove(id);
    });
    if (!stored)
        return;
    scope.logs().forget(id);
    scope.devicesChanged();
}

void setConfiguration(const RequestScope& scope, const Element& request)
{
    const int device = scope.device();
    const KeyValues before = scope.store().data().settings.value(device);
    KeyValues lasting = before;
    QStringList refused;
    for (const Element& setting : request.children) {
        if (setting.name == QLatin1String("pass"))
            continue;
        const SettingOutcome outcome = scope.backend().applySetting(device, setting.name, setting.text);
        if (outcome.accepted)
            lasting = outcome.lasting;
        else if (refused.size() < mostReasons)
            refused.append(QStringLiteral("Setting %1 was not taken: %2.")
                               .arg(setting.name.left(longestName), outcome.reason));
    }
    if (!refused.isEmpty())
        scope.refuse(refused.join(QLatin1Char('\n')));
    if (lasting != before)
        static_cast<void>(scope.change([&](StoredData& changed) { changed.settings[device] = lasting; }));
}

} // namespace

QVector<RequestEntry> deviceRequests()
{
    return {
        {"set_new_ups", Access::Change, addDevice},
        {"change_ups", Access::Change, changeDevice},
        {"change_log_config", Access::Change, changeLogging},
        {"remove_ups", Access::Change, removeDevice},
        {"set_ups_configuration", Access::Change, setConfiguration},
    };
}

} // namespace Velmora::Service
