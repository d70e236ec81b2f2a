// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QMetaType>
#include <QString>
#include <QStringList>
#include <QVector>

#include <string>

namespace Velmora::Utils {

/// One device registered on the service, physical or virtual. Numbers are kept as the decimal text of the
/// wire.
struct Ups
{
    QString id;
    QString model_name; ///< config name of the model; "Virtual_Device" marks a virtual device
    QString communication;
    QString com_port;
    QString ip;
    QString read;  ///< SNMP read community
    QString write; ///< SNMP write community
    QString snmp_ver;
    QStringList phy_ids; ///< ids of the physical devices that make up a virtual one
    QString serial_no;
    bool parallel_unit = false;
    QString unit_address;
    QString log_time_interval; ///< seconds
    QString log_file_size;     ///< kilobytes
    QString log_params;        ///< bit mask: 1 data, 2 messages, 4 power compensation
    QString user_defined_name;
    bool power_compensation = false;
    bool output_socket1 = false;
    bool output_socket2 = false;
    bool reset_events_request = false; ///< a request to the service, never read back
    bool ups_shutdown_supported = true;
};

/// One row of the status list.
struct currentDeviceStatus
{
    int id = 0;
    bool connected = false;
    std::string status; ///< state word such as "on_power_line"
    bool parallel_unit = false;
    std::string unit_address;
    bool master = false; ///< this unit leads a parallel group
    bool power_compensation = false;
    bool output_socket1 = false;
    bool output_socket2 = false;
    bool ups_shutdown_supported = true;
};

/// A serial port of the service's computer.
struct SerialPort
{
    QString name;
    bool free = false;
};

/// One row of the model catalogue: a model on one communication interface.
struct Model
{
    Model(const QString& configName, const QString& displayName, const QString& interface);

    QString configName; ///< the key, the value of Ups::model_name
    QString fullName;   ///< what a device tree row shows: display name and interface
    QString shortName;  ///< display name in upper case, the key of the model boxes
    QString interface;  ///< "USB", "RS232", "SNMP" or empty
};

} // namespace Velmora::Utils

Q_DECLARE_METATYPE(Velmora::Utils::Ups)
Q_DECLARE_METATYPE(Velmora::Utils::currentDeviceStatus)
Q_DECLARE_METATYPE(Velmora::Utils::SerialPort)
