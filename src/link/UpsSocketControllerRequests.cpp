// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "link/UpsSocketController.h"

#include "link/XmlWriter.h"

namespace Velmora {

namespace {

QByteArray element(const QString& tag, const QByteArray& content)
{
    const QByteArray name = tag.toUtf8();
    return '<' + name + '>' + content + "</" + name + '>';
}

} // namespace

void UpsSocketController::sendMessage(const QString& name)
{
    sendMessage(name, QByteArray());
}

void UpsSocketController::sendMessage(const QString& name, const QByteArray& body)
{
    writeToSocket(element(name, element(QStringLiteral("pass"), adminPass.toUtf8()) + body));
}

void UpsSocketController::sendMessage(const QString& name, const QMap<QString, QString>& parameters)
{
    QByteArray body;
    for (auto entry = parameters.cbegin(); entry != parameters.cend(); ++entry)
        body += element(entry.key(), entry.value().toUtf8()) + '\n';
    sendMessage(name, body);
}

void UpsSocketController::getUpsConfiguration()
{
    sendMessage(QStringLiteral("get_ups_configuration"));
}

void UpsSocketController::getNetworkConfiguration(const QString& upsId)
{
    sendMessage(QStringLiteral("get_network_configuration"), Utils::makeXml(upsId));
}

void UpsSocketController::getApplicationConfiguration()
{
    sendMessage(QStringLiteral("get_application_configuration"));
}

void UpsSocketController::getAvailablePorts()
{
    sendMessage(QStringLiteral("get_available_ports"));
}

void UpsSocketController::getUpsModel()
{
    sendMessage(QStringLiteral("get_ups_model_list"));
}

void UpsSocketController::getUpsCurrentStateList()
{
    sendMessage(QStringLiteral("get_ups_current_status_list"));
}

void UpsSocketController::getDebuggingStatus()
{
    sendMessage(QStringLiteral("get_debugging_status"));
}

void UpsSocketController::getServiceVersion()
{
    sendMessage(QStringLiteral("get_service_version"));
}

void UpsSocketController::getShutdownTimers()
{
    sendMessage(QStringLiteral("get_shutdown_timers"));
}

void UpsSocketController::sendTestMail(const Utils::SmtpConfig& config)
{
    sendMessage(QStringLiteral("smtp2_send_test_mail"), Utils::makeXml(config));
}

void UpsSocketController::sendGroups(const QVector<Group>* groups, const QString& upsId)
{
    sendMessage(QStringLiteral("groups"), Utils::makeXml(groups, upsId));
}

void UpsSocketController::sendEvents(QVector<Event>* events, const QString& upsId)
{
    sendMessage(QStringLiteral("events"), Utils::makeXml(events, upsId));
}

void UpsSocketController::sendAllComputers(const QVector<Computer>* computers)
{
    sendMessage(QStringLiteral("all_computers"), Utils::makeXml(computers));
}

void UpsSocketController::sendAppConfiguration(const Utils::ApplicationConfiguration* configuration)
{
    sendMessage(QStringLiteral("application_configuration"), Utils::makeXml(configuration));
}

void UpsSocketController::sendRemoveDevice(const QString& id)
{
    sendMessage(QStringLiteral("remove_ups"), Utils::makeXml(id));
}

void UpsSocketController::sendRemoveComputer(int id)
{
    sendMessage(QStringLiteral("remove_computer"), Utils::makeXml(QString::number(id)));
}

void UpsSocketController::sendChangeUpsOnInterface(int id)
{
    sendMessage(QStringLiteral("change_device_on_interface"), Utils::makeXml(QString::number(id)));
}

void UpsSocketController::sendChangeLogConfig(const Utils::Ups& ups)
{
    sendMessage(QStringLiteral("change_log_config"), Utils::makeXml(ups));
}

void UpsSocketController::sendChangeDevice(const Utils::Ups& ups)
{
    sendMessage(QStringLiteral("change_ups"), Utils::makeXml(ups));
}

void UpsSocketController::sendDeviceData(const Utils::Ups& ups)
{
    sendMessage(QStringLiteral("set_new_ups"), Utils::makeXml(ups));
}

void UpsSocketController::getUpsLogs(const QMap<QString, QString>& parameters)
{
    sendMessage(QStringLiteral("get_ups_logs"), parameters);
}

void UpsSocketController::getNetClientPassword(const QMap<QString, QString>& parameters)
{
    sendMessage(QStringLiteral("get_netclient_pass"), parameters);
}

void UpsSocketController::getPassword()
{
    sendMessage(QStringLiteral("get_password"), QMap<QString, QString>());
}

void UpsSocketController::setUpsConfiguration(const QMap<QString, QString>& parameters)
{
    sendMessage(QStringLiteral("set_ups_configuration"), parameters);
}

void UpsSocketController::changeNetclientPassword(const QMap<QString, QString>& parameters)
{
    sendMessage(QStringLiteral("change_netclient_password"), parameters);
}

void UpsSocketController::changePassword(const QMap<QString, QString>& parameters)
{
    sendMessage(QStringLiteral("change_password"), parameters);
}

} // namespace Velmora
