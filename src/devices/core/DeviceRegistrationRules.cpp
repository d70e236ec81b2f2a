// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "devices/core/DeviceRegistrationRules.h"

#include "devices/core/ModelCatalogue.h"
#include "devices/core/ModelRules.h"

#include <QRegularExpression>

#include <algorithm>

namespace Velmora {
namespace {

/// Models of which a service can monitor one at a time; those of one row count as the same.
const QList<QStringList>& singleInstanceClasses()
{
    static const QList<QStringList> classes{
        {QStringLiteral("LumoLCD_USB"), QStringLiteral("FennaIIPro_USB"), QStringLiteral("Quenta_USB")},
        {QStringLiteral("TarvexRT_USB")},
        {QStringLiteral("TarvexRT_6_10_USB")},
        {QStringLiteral("Fenna_Avr_USB")},
    };
    return classes;
}

bool sameIgnoringCase(const QString& left, const QString& right)
{
    return left.compare(right, Qt::CaseInsensitive) == 0;
}

bool snmpOptionsDiffer(const DeviceRegistrationEntry& entry, const DeviceRegistrationEntry& baseline)
{
    return entry.ip != baseline.ip || entry.writeCommunity != baseline.writeCommunity ||
           entry.readCommunity != baseline.readCommunity || entry.serialNumber != baseline.serialNumber ||
           !sameIgnoringCase(entry.snmpVersion, baseline.snmpVersion);
}

} // namespace

CommunicationKind communicationKind(const QString& interfaceText)
{
    if (interfaceText.contains(QLatin1String("usb"), Qt::CaseInsensitive))
        return CommunicationKind::Usb;
    if (interfaceText.contains(QLatin1String("snmp"), Qt::CaseInsensitive))
        return CommunicationKind::Snmp;
    if (interfaceText.contains(QLatin1String("rs232"), Qt::CaseInsensitive))
        return CommunicationKind::Rs232;
    return CommunicationKind::Other;
}

QStringList registrableModelNames()
{
    QStringList names;
    const QList<Utils::Model> models = Utils::getAllSuportedModelList();
    for (const Utils::Model& model : models) {
        if (!isVirtualDevice(model.configName) && !names.contains(model.shortName))
            names.append(model.shortName);
    }
    return names;
}

bool registrationDiffers(const DeviceRegistrationEntry& entry, const DeviceRegistrationEntry& baseline)
{
    if (!sameIgnoringCase(entry.model, baseline.model) ||
        !sameIgnoringCase(entry.interface, baseline.interface) || entry.name != baseline.name)
        return true;
    switch (communicationKind(entry.interface)) {
    case CommunicationKind::Rs232:
        return !sameIgnoringCase(entry.port, baseline.port);
    case CommunicationKind::Snmp:
        return snmpOptionsDiffer(entry, baseline);
    case CommunicationKind::Usb:
    case CommunicationKind::Other:
        break;
    }
    return false;
}

bool registrationIsComplete(const DeviceRegistrationEntry& entry, bool editing, bool portFree)
{
    if (entry.model.isEmpty() || entry.interface.isEmpty())
        return false;
    switch (communicationKind(entry.interface)) {
    case CommunicationKind::Rs232:
        return editing ? !entry.port.isEmpty() : portFree;
    case CommunicationKind::Snmp:
        return !entry.ip.isEmpty();
    case CommunicationKind::Usb:
    case CommunicationKind::Other:
        break;
    }
    return true;
}

bool registrationAllowed(const QString& configName, const QList<Utils::Ups>& devices,
                         const QString& replacedConfigName)
{
    for (const QStringList& members : singleInstanceClasses()) {
        if (!members.contains(configName) || members.contains(replacedConfigName))
            continue;
        const auto isMember = [&members](const Utils::Ups& device) {
            return members.contains(device.model_name);
        };
        if (std::any_of(devices.cbegin(), devices.cend(), isMember))
            return false;
    }
    return true;
}

bool changeResetsEvents(const QString& newModel, const QString& newInterface, const QString& oldModel,
                        const QString& oldInterface)
{
    if (newModel != oldModel)
        return true;
    // These families have event definitions of their own for SNMP.
    const auto bothStartWith = [&](QLatin1String prefix) {
        return newModel.startsWith(prefix) && oldModel.startsWith(prefix);
    };
    if (!bothStartWith(QLatin1String("TARVEX RT")) && !bothStartWith(QLatin1String("CORMEL RT")))
        return false;
    return (communicationKind(newInterface) == CommunicationKind::Snmp) !=
           (communicationKind(oldInterface) == CommunicationKind::Snmp);
}

void setCommunication(Utils::Ups& record, CommunicationKind kind, const QString& port)
{
    if (kind == CommunicationKind::Other)
        return;
    record.com_port = kind == CommunicationKind::Rs232 ? port : QString();
    if (kind == CommunicationKind::Snmp) {
        record.communication = QStringLiteral("snmp");
        return;
    }
    record.communication = kind == CommunicationKind::Rs232 ? QStringLiteral("rs232") : QStringLiteral("usb");
    for (QString* snmpField : {&record.ip, &record.read, &record.write, &record.snmp_ver})
        snmpField->clear();
}

bool isSnmpVersionSelectable(const QString& shortName)
{
    if (shortName.contains(QLatin1String("TARVEX RT PLUS 6k/10k"), Qt::CaseInsensitive) ||
        shortName.contains(QLatin1String("TARVEX NOIR"), Qt::CaseInsensitive))
        return true;
    const bool family =
        shortName.contains(QLatin1String("TARVEX RT")) || shortName.contains(QLatin1String("TARVEX 31 DUAL"));
    return family && !shortName.contains(QLatin1String("TARVEX RT PLUS"));
}

bool hasControllerSerialNumber(const QString& shortName)
{
    return shortName.contains(QLatin1String("BOREL"));
}

bool isDottedAddress(const QString& text)
{
    static const QRegularExpression address(QRegularExpression::anchoredPattern(
        QStringLiteral("[0-9]{1,3}\\.[0-9]{1,3}\\.[0-9]{1,3}\\.[0-9]{1,3}")));
    return address.match(text).hasMatch();
}

} // namespace Velmora
