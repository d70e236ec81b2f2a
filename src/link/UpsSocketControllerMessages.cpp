// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "link/UpsSocketController.h"

#include "link/DeviceReaders.h"
#include "link/PolicyReaders.h"
#include "link/SettingsReaders.h"
#include "link/TokenHelpers.h"
#include "link/VelmoraSocket.h"

#include <QHash>

namespace Velmora {

namespace {

// Calls `store` with name and text of every element that has a text. The walk does not descend: the text of
// an element is the token right behind its start. Elements stand with or without white space between them.
template <typename Store>
void readFlatElements(QXmlStreamReader& reader, Store store)
{
    while (!reader.atEnd()) {
        if (!reader.readNextStartElement())
            continue;
        const QString name = reader.name().toString();
        const QString text = readText(reader);
        if (!text.isEmpty())
            store(name, text);
    }
}

} // namespace

const QHash<QString, UpsSocketController::MessageHandler>& UpsSocketController::messageHandlers()
{
    using Self = UpsSocketController;
    static const QHash<QString, MessageHandler> handlers{
        {QStringLiteral("ups_device_state"), &Self::handleUpsDeviceState},
        {QStringLiteral("ups_configuration"), &Self::handleUpsConfiguration},
        {QStringLiteral("show_message"), &Self::handleShowMessage},
        {QStringLiteral("discovered_message"), &Self::handleDiscoveredMessage},
        {QStringLiteral("smtp2_test_status"), &Self::handleSmtpTestStatus},
        {QStringLiteral("get_password"), &Self::handleGetPassword},
        {QStringLiteral("netclient_password"), &Self::handleNetclientPassword},
        {QStringLiteral("netclient_password_changed"), &Self::handlePasswordChanged},
        {QStringLiteral("admin_password_changed"), &Self::handlePasswordChanged},
        {QStringLiteral("groups"), &Self::handleGroups},
        {QStringLiteral("events"), &Self::handleEvents},
        {QStringLiteral("all_computers"), &Self::handleAllComputers},
        {QStringLiteral("application_configuration"), &Self::handleApplicationConfiguration},
        {QStringLiteral("service_version"), &Self::handleServiceVersion},
        {QStringLiteral("available_ports"), &Self::handleAvailablePorts},
        {QStringLiteral("ups_model_list"), &Self::handleUpsModelList},
        {QStringLiteral("ups_current_status_list"), &Self::handleUpsCurrentStatusList},
        {QStringLiteral("daemon_is_busy"), &Self::handleDaemonIsBusy},
        {QStringLiteral("daemon_is_ready"), &Self::handleDaemonIsReady},
        {QStringLiteral("ups_logs"), &Self::handleUpsLogs},
        {QStringLiteral("debugging_enabled"), &Self::handleDebuggingEnabled},
        {QStringLiteral("debugging_disabled"), &Self::handleDebuggingDisabled},
        {QStringLiteral("show_countdown"), &Self::handleShowCountdown},
    };
    return handlers;
}

// Most polls bring what the last one brought. Reading it is half of what they cost, so it is read once.
bool UpsSocketController::repeatReply(const QByteArray& text)
{
    if (text.isEmpty())
        return false;
    if (text == m_stateReply.text) {
        stateAnswered = true;
        emit upsDeviceState(m_stateReply.values);
        return true;
    }
    if (text == m_configurationReply.text) {
        emit upsConfiguration(m_configurationReply.values);
        return true;
    }
    return false;
}

void UpsSocketController::rememberReply(FlatReply& reply, const QMap<QString, QString>& values) const
{
    // An element that is not its document's first stands behind others that were reported too.
    if (!m_text.isEmpty())
        reply = {m_text, values};
}

bool UpsSocketController::handleMessage(QXmlStreamReader& reader)
{
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartDocument())
            reader.readNext();
        // Only an error met here is one of the document's start; a document broken later just ends.
        if (reader.error() != QXmlStreamReader::NoError) {
            socket->abort();
            return false;
        }
        handleElement(reader);
        m_text.clear();
        reader.readNextStartElement();
        reader.readNext();
    }
    return true;
}

void UpsSocketController::handleElement(QXmlStreamReader& reader)
{
    const QString name = reader.name().toString();
    // An end tag of a known name must not count as a second, empty message.
    const MessageHandler handler = reader.isStartElement() ? messageHandlers().value(name) : nullptr;
    if (handler) {
        (this->*handler)(reader);
    } else {
        emit dataFromUps(name);
        reader.readNext();
    }
}

void UpsSocketController::handleUpsDeviceState(QXmlStreamReader& reader)
{
    stateAnswered = true;
    QMap<QString, QString> parameters;
    for (const QString& name : {QStringLiteral("isUpsFound"), QStringLiteral("isProperDevice")})
        parameters.insert(name, reader.attributes().value(name).toString());
    readFlatElements(reader, [&parameters](const QString& name, QString text) {
        if (name != QLatin1String("events"))
            text.replace(QLatin1Char(';'), QLatin1String(" / "));
        parameters.insert(name, text);
    });
    rememberReply(m_stateReply, parameters);
    emit upsDeviceState(parameters);
}

void UpsSocketController::handleUpsConfiguration(QXmlStreamReader& reader)
{
    QMap<QString, QString> parameters;
    readFlatElements(
        reader, [&parameters](const QString& name, const QString& text) { parameters.insert(name, text); });
    rememberReply(m_configurationReply, parameters);
    emit upsConfiguration(parameters);
}

void UpsSocketController::handleShowMessage(QXmlStreamReader& reader)
{
    emit showMessage(Utils::parseMessagesToShow(reader));
}

void UpsSocketController::handleDiscoveredMessage(QXmlStreamReader& reader)
{
    emit discoveredComputer(readText(reader));
    reader.readNext();
}

void UpsSocketController::handleSmtpTestStatus(QXmlStreamReader& reader)
{
    int status = 0;
    QStringList messages;
    xmlParser.parseSmtpTestStatus(reader, status, messages);
    emit smpt2TestStatus(status, messages);
}

void UpsSocketController::handleGetPassword(QXmlStreamReader& reader)
{
    emit adminPassFromConfig(readText(reader));
    reader.readNext();
}

void UpsSocketController::handleNetclientPassword(QXmlStreamReader& reader)
{
    emit netclientPass(readText(reader));
    reader.readNext();
}

void UpsSocketController::handlePasswordChanged(QXmlStreamReader& /*reader*/)
{
    emit passwordChanged();
}

void UpsSocketController::handleGroups(QXmlStreamReader& reader)
{
    emit groupReceived(Utils::parseGroups(reader));
}

void UpsSocketController::handleEvents(QXmlStreamReader& reader)
{
    emit eventsReceived(Utils::parseEvents(reader));
}

void UpsSocketController::handleAllComputers(QXmlStreamReader& reader)
{
    QVector<Computer> computers;
    reader.readNext();
    while (!reader.atEnd()) {
        if (reader.isEndElement() && reader.name() == QLatin1String("all_computers")) {
            emit allComputersReceived(computers);
            return;
        }
        if (reader.isStartElement() && reader.name() == QLatin1String("computer"))
            computers.append(Utils::parseComputers(reader));
        reader.readNext();
    }
}

void UpsSocketController::handleApplicationConfiguration(QXmlStreamReader& reader)
{
    emit appConfifuratioReceived(*Utils::parseAppConfiguration(reader));
}

void UpsSocketController::handleServiceVersion(QXmlStreamReader& reader)
{
    emit serviceVersionReceived(readText(reader));
    reader.readNext();
}

void UpsSocketController::handleAvailablePorts(QXmlStreamReader& reader)
{
    emit availablePortsReceived(Utils::parseAvailablePorts(reader));
}

void UpsSocketController::handleUpsModelList(QXmlStreamReader& reader)
{
    emit upsModelMessageReceived(Utils::parseUpsModelList(reader));
}

void UpsSocketController::handleUpsCurrentStatusList(QXmlStreamReader& reader)
{
    emit upsCurrentStatusListReceived(xmlParser.parseUpsStatusList(reader));
}

void UpsSocketController::handleDaemonIsBusy(QXmlStreamReader& /*reader*/)
{
    emit daemonIsBusy(true);
}

void UpsSocketController::handleDaemonIsReady(QXmlStreamReader& /*reader*/)
{
    emit daemonIsBusy(false);
}

void UpsSocketController::handleUpsLogs(QXmlStreamReader& reader)
{
    emit upsLogs(xmlParser.parseUpsLogsList(reader));
}

void UpsSocketController::handleDebuggingEnabled(QXmlStreamReader& /*reader*/)
{
    emit debugModeEnabled(true);
}

void UpsSocketController::handleDebuggingDisabled(QXmlStreamReader& /*reader*/)
{
    emit debugModeEnabled(false);
}

void UpsSocketController::handleShowCountdown(QXmlStreamReader& reader)
{
    emit showCountdownTimer(xmlParser.parseCountdownTimer(reader));
}

} // namespace Velmora
