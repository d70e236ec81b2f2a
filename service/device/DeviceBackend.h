// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include "service/device/DeviceTypes.h"

#include <QDateTime>
#include <QObject>

namespace Velmora::Service {

/// Where devices come from. The protocol side asks only through this interface, so that simulated and real
/// devices can stand behind the same service.
class DeviceBackend : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(DeviceBackend)

public:
    explicit DeviceBackend(QObject* parent = nullptr);
    ~DeviceBackend() override;

    /// Takes over the registered devices. A device that was known with the same model and interface goes on;
    /// others start anew with the lasting settings given for their id.
    virtual void setDevices(const QVector<DeviceRegistration>& registrations,
                            const QMap<int, KeyValues>& settings) = 0;

    /// One row for each registered device, in the order of registration.
    virtual QVector<DeviceStatus> devices() = 0;
    virtual DeviceState state(int id) = 0;
    /// Key to value; a choice is written "current;option;option". Empty for a device without settings.
    virtual KeyValues configuration(int id) = 0;
    virtual SettingOutcome applySetting(int id, const QString& key, const QString& value) = 0;
    /// Records "code;month;day;hour;minute;second" joined by "|", newest first.
    virtual QString eventHistory(int id) = 0;
    /// Shutdowns that are running now, with the seconds left on a wall clock.
    virtual QVector<ShutdownTimer> shutdownTimers() = 0;

signals:
    void shutdownTimerChanged(int id, int seconds);
    /// Once for each second of the devices' own time; state() then describes this moment.
    void secondPassed(const QDateTime& time);
};

} // namespace Velmora::Service
