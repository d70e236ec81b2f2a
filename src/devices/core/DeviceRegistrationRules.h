// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include "link/DeviceRecords.h"

#include <QList>
#include <QString>
#include <QStringList>

/// What may be registered and how: the decisions of the dialogs that add and change devices. Models are named
/// by the catalogue's short names, interfaces by the text of their box.
namespace Velmora {

enum class CommunicationKind { Other, Usb, Snmp, Rs232 };

/// From an interface's text, whatever its case.
[[nodiscard]] CommunicationKind communicationKind(const QString& interfaceText);

/// Short names of the physical models in catalogue order, each once.
[[nodiscard]] QStringList registrableModelNames();

/// What stands in the dialog, or what the device held when it opened.
struct DeviceRegistrationEntry
{
    QString model;
    QString interface;
    QString port;
    QString ip;
    QString writeCommunity;
    QString readCommunity;
    QString snmpVersion;
    QString serialNumber;
    QString name;
};

/// Whether a user changed anything that counts for the entry's interface.
[[nodiscard]] bool registrationDiffers(const DeviceRegistrationEntry& entry,
                                       const DeviceRegistrationEntry& baseline);

/// Whether the entry names everything that its interface needs. `portFree` is the service's word on the
/// entry's port; a device that is changed may keep a port in use, which is its own.
[[nodiscard]] bool registrationIsComplete(const DeviceRegistrationEntry& entry, bool editing, bool portFree);

/// Some USB models have no address to tell two of them apart, so that a service can monitor one of their
/// class. `replacedConfigName` is what the device is so far, empty for a new one.
[[nodiscard]] bool registrationAllowed(const QString& configName, const QList<Utils::Ups>& devices,
                                       const QString& replacedConfigName);

/// Whether a change of type makes the device's stored event policy meaningless.
[[nodiscard]] bool changeResetsEvents(const QString& newModel, const QString& newInterface,
                                      const QString& oldModel, const QString& oldInterface);

/// Sets the record's fields for the interface and clears those of the others. The serial number stays.
void setCommunication(Utils::Ups& record, CommunicationKind kind, const QString& port);

/// Whether the SNMP version of this model can be chosen; it is v1 otherwise.
[[nodiscard]] bool isSnmpVersionSelectable(const QString& shortName);

/// Whether the controller's serial number belongs to the SNMP options of this model.
[[nodiscard]] bool hasControllerSerialNumber(const QString& shortName);

/// Four groups of one to three digits; their range is not looked at.
[[nodiscard]] bool isDottedAddress(const QString& text);

} // namespace Velmora
