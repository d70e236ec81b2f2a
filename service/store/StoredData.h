// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include "service/device/DeviceTypes.h"
#include "service/wire/Element.h"

#include <QJsonObject>

#include <optional>

namespace Velmora::Service {

/// The policy of one device, in the elements that panels exchange.
struct Policy
{
    QVector<Element> groups;
    QVector<Element> events;
};

/// Everything that the service keeps for its panels.
struct StoredData
{
    QVector<DeviceRegistration> devices;
    int nextDeviceId = 0; ///< ids are never used twice, so nothing kept for a removed device meets a new one
    QMap<int, KeyValues> settings; ///< lasting settings by device
    QMap<int, Policy> policies;    ///< by device
    QVector<Element> computers;
    KeyValues application; ///< service-wide settings by their tag
    QString administratorDigest;
    QMap<QString, QString> clientDigests; ///< password digests of network clients by address
};

/// Settings of a service that nobody has set up yet; every tag of the record is present.
[[nodiscard]] KeyValues defaultApplicationSettings();
/// One group of the local computer and no events.
[[nodiscard]] Policy defaultPolicy();

/// Registration from its JSON form; nothing if a field has the wrong type or the id is no positive number.
[[nodiscard]] std::optional<DeviceRegistration> registrationFromJson(const QJsonObject& object);
/// The name is a field of that form.
[[nodiscard]] bool isRegistrationField(const QString& name);
[[nodiscard]] QVector<Element> elementsFromJson(const QJsonValue& value);

[[nodiscard]] QJsonObject toJson(const StoredData& data);
/// Nothing and a reason if the object is not one that toJson wrote.
[[nodiscard]] std::optional<StoredData> storedDataFromJson(const QJsonObject& object, QString& reason);

} // namespace Velmora::Service
