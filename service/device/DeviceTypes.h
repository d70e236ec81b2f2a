// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QMap>
#include <QString>
#include <QVector>

namespace Velmora::Service {

/// Key and text value of a device's report or of its settings.
using KeyValues = QMap<QString, QString>;

/// An id that no device has; those of devices start at 0.
constexpr int noDevice = -1;

/// A device as somebody registered it: what it is, how it is reached and what is logged of it.
struct DeviceRegistration
{
    int id = noDevice;
    QString modelName; ///< config name of the model; "Virtual_Device" for a group of parallel units
    QString communication;
    QString comPort;
    QString ip;
    QString readCommunity;
    QString writeCommunity;
    QString snmpVersion;
    QString serialNumber;
    QString userDefinedName;
    QVector<int> physicalIds; ///< members of a virtual device
    int logFileSize = 1000;   ///< kilobytes
    int logTimeInterval = 10; ///< seconds
    int logParams = 0;        ///< bit mask: 1 data, 2 messages, 4 power compensation
};

/// One row of the status list.
struct DeviceStatus
{
    int id = 0;
    QString status; ///< state word such as "on_power_line"
    bool connected = false;
    bool parallelUnit = false;
    QString unitAddress;
    bool master = false;
    bool powerCompensation = false;
    bool outputSocket1 = false;
    bool outputSocket2 = false;
    bool shutdownSupported = true;
};

/// What a device reports about itself at one moment.
struct DeviceState
{
    bool found = false;  ///< the device answers
    bool proper = false; ///< what answers is the registered model
    KeyValues values;
};

/// What became of a setting that was sent to a device.
struct SettingOutcome
{
    bool accepted = false;
    QString reason;    ///< why it was not accepted
    KeyValues lasting; ///< all settings of the device that are now other than it came with
};

/// A shutdown that is coming; negative seconds withdraw it.
struct ShutdownTimer
{
    int id = 0;
    int seconds = 0;
};

inline bool isVirtualDevice(const DeviceRegistration& registration)
{
    return registration.modelName == QLatin1String("Virtual_Device");
}

} // namespace Velmora::Service
