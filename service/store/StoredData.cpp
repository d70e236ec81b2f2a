// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "service/store/StoredData.h"

#include <QJsonArray>

#include <algorithm>
#include <iterator>
#include <limits>

namespace Velmora::Service {

namespace {

constexpr int formatVersion = 1;
// What a panel saves nests less deep; a deeper file is not one of ours.
constexpr int maximumElementDepth = 16;

struct TextField
{
    const char* name;
    QString DeviceRegistration::*member;
};

struct NumberField
{
    const char* name;
    int DeviceRegistration::*member;
};

constexpr TextField textFields[] = {
    {"model_name", &DeviceRegistration::modelName},
    {"communication", &DeviceRegistration::communication},
    {"com_port", &DeviceRegistration::comPort},
    {"ip", &DeviceRegistration::ip},
    {"read", &DeviceRegistration::readCommunity},
    {"write", &DeviceRegistration::writeCommunity},
    {"snmp_ver", &DeviceRegistration::snmpVersion},
    {"serial_no", &DeviceRegistration::serialNumber},
    {"user_defined_name", &DeviceRegistration::userDefinedName},
};

constexpr NumberField numberFields[] = {
    {"id", &DeviceRegistration::id},
    {"log_file_size", &DeviceRegistration::logFileSize},
    {"log_time_interval", &DeviceRegistration::logTimeInterval},
    {"log_params", &DeviceRegistration::logParams},
};

QJsonObject registrationToJson(const DeviceRegistration& device)
{
    QJsonObject object;
    for (const TextField& field : textFields)
        object.insert(QLatin1String(field.name), device.*field.member);
    for (const NumberField& field : numberFields)
        object.insert(QLatin1String(field.name), device.*field.member);
    QJsonArray members;
    for (const int id : device.physicalIds)
        members.append(id);
    object.insert(QStringLiteral("phy_ids"), members);
    return object;
}

QJsonArray elementsToJson(const QVector<Element>& elements)
{
    QJsonArray array;
    for (const Element& element : elements) {
        QJsonObject object{{QStringLiteral("name"), element.name}};
        if (element.children.isEmpty())
            object.insert(QStringLiteral("text"), element.text);
        else
            object.insert(QStringLiteral("children"), elementsToJson(element.children));
        array.append(object);
    }
    return array;
}

QVector<Element> elementsFromArray(const QJsonArray& array, int depth)
{
    QVector<Element> elements;
    if (depth > maximumElementDepth)
        return elements;
    for (const QJsonValue& value : array) {
        const QJsonObject object = value.toObject();
        Element element;
        element.name = object.value(QLatin1String("name")).toString();
        element.text = object.value(QLatin1String("text")).toString();
        element.children = elementsFromArray(object.value(QLatin1String("children")).toArray(), depth + 1);
        if (!element.name.isEmpty())
            elements.append(element);
    }
    return elements;
}

QJsonObject textsToJson(const QMap<QString, QString>& texts)
{
    QJsonObject object;
    for (auto entry = texts.cbegin(); entry != texts.cend(); ++entry)
        object.insert(entry.key(), entry.value());
    return object;
}

QMap<QString, QString> textsFromJson(const QJsonValue& value)
{
    QMap<QString, QString> texts;
    const QJsonObject object = value.toObject();
    for (auto entry = object.constBegin(); entry != object.constEnd(); ++entry)
        texts.insert(entry.key(), entry.value().toString());
    return texts;
}

QJsonObject settingsToJson(const QMap<int, KeyValues>& settings)
{
    QJsonObject object;
    for (auto entry = settings.cbegin(); entry != settings.cend(); ++entry)
        object.insert(QString::number(entry.key()), textsToJson(entry.value()));
    return object;
}

QJsonObject policiesToJson(const QMap<int, Policy>& policies)
{
    QJsonObject object;
    for (auto entry = policies.cbegin(); entry != policies.cend(); ++entry) {
        object.insert(QString::number(entry.key()),
                      QJsonObject{{QStringLiteral("groups"), elementsToJson(entry->groups)},
                                  {QStringLiteral("events"), elementsToJson(entry->events)}});
    }
    return object;
}

bool readDevices(const QJsonObject& object, StoredData& data, QString& reason)
{
    const QJsonValue devices = object.value(QLatin1String("devices"));
    if (!devices.isArray()) {
        reason = QStringLiteral("\"devices\" is not a list");
        return false;
    }
    const QJsonArray values = devices.toArray();
    for (const QJsonValue& value : values) {
        const std::optional<DeviceRegistration> device = registrationFromJson(value.toObject());
        if (!device) {
            reason = QStringLiteral("entry %1 of \"devices\" is not a device").arg(data.devices.size() + 1);
            return false;
        }
        data.devices.append(*device);
        data.nextDeviceId = qMax(data.nextDeviceId, device->id + 1);
    }
    data.nextDeviceId = qMax(data.nextDeviceId, object.value(QLatin1String("next_device_id")).toInt());
    return true;
}

void readByDevice(const QJsonObject& object, StoredData& data)
{
    const QJsonObject settings = object.value(QLatin1String("settings")).toObject();
    for (auto entry = settings.constBegin(); entry != settings.constEnd(); ++entry)
        data.settings.insert(entry.key().toInt(), textsFromJson(entry.value()));
    const QJsonObject policies = object.value(QLatin1String("policies")).toObject();
    for (auto entry = policies.constBegin(); entry != policies.constEnd(); ++entry) {
        const QJsonObject policy = entry.value().toObject();
        data.policies.insert(entry.key().toInt(),
                             Policy{elementsFromJson(policy.value(QLatin1String("groups"))),
                                    elementsFromJson(policy.value(QLatin1String("events")))});
    }
}

} // namespace

KeyValues defaultApplicationSettings()
{
    return {
        {QStringLiteral("smtp2_security_type"), QStringLiteral("none")},
        {QStringLiteral("smtp2_server"), QString()},
        {QStringLiteral("smtp2_port"), QStringLiteral("0")},
        {QStringLiteral("smtp2_timeout"), QStringLiteral("0")},
        {QStringLiteral("smtp2_sender_address"), QString()},
        {QStringLiteral("smtp2_authentication"), QStringLiteral("0")},
        {QStringLiteral("smtp2_user"), QString()},
        {QStringLiteral("smtp2_pass"), QString()},
        {QStringLiteral("log_files_path"), QStringLiteral("/var/log/velmora")},
        {QStringLiteral("run_on_boot"), QStringLiteral("1")},
        {QStringLiteral("control_panel_path"), QString()},
    };
}

Policy defaultPolicy()
{
    Element member{QStringLiteral("computer"), {}, {}};
    member.add(QStringLiteral("computer_configId"), QStringLiteral("0"));
    Element group{QStringLiteral("group"), {}, {}};
    group.add(QStringLiteral("group_name"), QStringLiteral("Default"));
    group.add(QStringLiteral("group_configId"), QStringLiteral("0"));
    group.children.append(Element{QStringLiteral("computers"), {}, {member}});
    return Policy{{group}, {}};
}

std::optional<DeviceRegistration> registrationFromJson(const QJsonObject& object)
{
    DeviceRegistration device;
    for (const TextField& field : textFields) {
        const QJsonValue value = object.value(QLatin1String(field.name));
        if (!value.isUndefined() && !value.isString())
            return std::nullopt;
        device.*field.member = value.toString();
    }
    for (const NumberField& field : numberFields) {
        const QJsonValue value = object.value(QLatin1String(field.name));
        if (!value.isUndefined() && !value.isDouble())
            return std::nullopt;
        device.*field.member = value.toInt(device.*field.member);
    }
    const QJsonArray members = object.value(QLatin1String("phy_ids")).toArray();
    for (const QJsonValue& member : members)
        device.physicalIds.append(member.toInt());
    // Above the highest id there would be none for the next device.
    if (device.id < 0 || device.id == std::numeric_limits<int>::max() || device.modelName.isEmpty())
        return std::nullopt;
    return device;
}

bool isRegistrationField(const QString& name)
{
    const auto hasName = [&name](const auto& field) { return name == QLatin1String(field.name); };
    return name == QLatin1String("phy_ids") ||
           std::any_of(std::begin(textFields), std::end(textFields), hasName) ||
           std::any_of(std::begin(numberFields), std::end(numberFields), hasName);
}

QVector<Element> elementsFromJson(const QJsonValue& value)
{
    return elementsFromArray(value.toArray(), 0);
}

QJsonObject toJson(const StoredData& data)
{
    QJsonArray devices;
    for (const DeviceRegistration& device : data.devices)
        devices.append(registrationToJson(device));
    return {
        {QStringLiteral("format"), formatVersion},
        {QStringLiteral("devices"), devices},
        {QStringLiteral("next_device_id"), data.nextDeviceId},
        {QStringLiteral("settings"), settingsToJson(data.settings)},
        {QStringLiteral("policies"), policiesToJson(data.policies)},
        {QStringLiteral("computers"), elementsToJson(data.computers)},
        {QStringLiteral("application"), textsToJson(data.application)},
        {QStringLiteral("administrator_digest"), data.administratorDigest},
        {QStringLiteral("client_digests"), textsToJson(data.clientDigests)},
    };
}

std::optional<StoredData> storedDataFromJson(const QJsonObject& object, QString& reason)
{
    if (object.value(QLatin1String("format")).toInt() != formatVersion) {
        reason = QStringLiteral("\"format\" is not %1").arg(formatVersion);
        return std::nullopt;
    }
    StoredData data;
    if (!readDevices(object, data, reason))
        return std::nullopt;
    data.administratorDigest = object.value(QLatin1String("administrator_digest")).toString();
    if (data.administratorDigest.isEmpty()) {
        reason = QStringLiteral("\"administrator_digest\" is missing");
        return std::nullopt;
    }
    readByDevice(object, data);
    data.computers = elementsFromJson(object.value(QLatin1String("computers")));
    data.application = defaultApplicationSettings();
    const KeyValues application = textsFromJson(object.value(QLatin1String("application")));
    for (auto entry = application.cbegin(); entry != application.cend(); ++entry)
        data.application.insert(entry.key(), entry.value());
    data.clientDigests = textsFromJson(object.value(QLatin1String("client_digests")));
    return data;
}

} // namespace Velmora::Service
