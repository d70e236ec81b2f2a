// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include "link/DeviceRecords.h"
#include "link/PolicyRecords.h"
#include "link/ServiceSettings.h"
#include "link/XmlParser.h"

#include <QLocalSocket>
#include <QMap>
#include <QObject>
#include <QTcpSocket>

#include <memory>

class QIODevice;
class QTimer;
class QXmlStreamReader;

namespace Velmora {

class VelmoraSocket;

/// The panel's single link to the service: keeps a connection, polls once a second while it stands, turns
/// every frame that arrives into a signal and offers a typed operation for every request.
///
/// Requests and replies are not paired. A request without a connection is dropped, and failures of the wire
/// are never reported: they end in an abort and a new connection.
class UpsSocketController final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(UpsSocketController)

public:
    explicit UpsSocketController(QObject* parent = nullptr);
    ~UpsSocketController() override;

    /// Taken by the next connection attempt.
    void setServerAddress(const QString& address) { serverAddress = address; }
    [[nodiscard]] QString getServerAddress() const { return serverAddress; }

    /// MD5 text of the administrator password, carried by every request; empty while only watching.
    void setAdminPass(const QString& pass) { adminPass = pass; }

    /// Starts attempts, one at once and one every five seconds, until a connection stands.
    void connectToServer();
    void disconectFromHost();

    /// Dispatches the frames that wait in `source`; of a body that is not complete yet what has arrived.
    /// False if a document was broken at its start, which drops the connection; the frames behind it stay
    /// unread.
    bool readMessages(QIODevice& source);

    void sendMessage(const QString& name);
    void sendMessage(const QString& name, const QByteArray& body);
    /// One element an entry, in key order. Values are sent as they stand, without escaping.
    void sendMessage(const QString& name, const QMap<QString, QString>& parameters);
    /// Frames and writes `message` at once; drops it without a connection.
    void writeToSocket(const QByteArray& message);

    void getUpsConfiguration();
    void getNetworkConfiguration(const QString& upsId);
    void getApplicationConfiguration();
    void getAvailablePorts();
    void getUpsModel();
    void getUpsCurrentStateList();
    void getDebuggingStatus();
    void getServiceVersion();
    void getShutdownTimers();
    void sendGroups(const QVector<Group>* groups, const QString& upsId);
    /// Consumes the events, see makeXml.
    void sendEvents(QVector<Event>* events, const QString& upsId);
    void sendAllComputers(const QVector<Computer>* computers);
    void sendAppConfiguration(const Utils::ApplicationConfiguration* configuration);
    void sendRemoveDevice(const QString& id);
    void sendRemoveComputer(int id);
    void sendChangeLogConfig(const Utils::Ups& ups);
    void sendChangeDevice(const Utils::Ups& ups);
    void sendDeviceData(const Utils::Ups& ups);
    /// `parameters`: "type" and "age" of the page.
    void getUpsLogs(const QMap<QString, QString>& parameters);
    void setUpsConfiguration(const QMap<QString, QString>& parameters);

signals:
    void upsConnected();
    void dataFromUps(QString data);
    void upsDeviceState(QMap<QString, QString> parameters);
    void upsConfiguration(QMap<QString, QString> parameters);
    void showMessage(QVector<QString> messages);
    void discoveredComputer(QString ip);
    void smpt2TestStatus(int current_status, QStringList messages);
    void adminPassFromConfig(QString pass);
    void netclientPass(QString pass);
    void passwordChanged();
    void daemonIsBusy(bool busy);
    void upsLogs(QStringList lines);
    void debugModeEnabled(bool enabled);
    void showCountdownTimer(QList<QPair<int, int>> timers);
    void groupReceived(QVector<Group> groups);
    void eventsReceived(QVector<Event> events);
    void allComputersReceived(QVector<Computer> allComputers);
    void appConfifuratioReceived(Velmora::Utils::ApplicationConfiguration appConf);
    void serviceVersionReceived(QString service_version);
    void availablePortsReceived(QList<Velmora::Utils::SerialPort> ports);
    void upsModelMessageReceived(QVector<Velmora::Utils::Ups> upsModels);
    void upsCurrentStatusListReceived(QVector<Velmora::Utils::currentDeviceStatus> stuses);
    void socketError();

public slots:
    void connected();
    void disconnected();
    void readReady();
    void error(QLocalSocket::LocalSocketError socketErrorCode);
    void error(QAbstractSocket::SocketError socketErrorCode);
    void stateChanged(QLocalSocket::LocalSocketState state);
    /// One tick of the poll.
    void getUpsDeviceData();
    /// Tells the service which device the coming state replies are to describe.
    void sendChangeUpsOnInterface(int id);
    void sendTestMail(const Velmora::Utils::SmtpConfig& config);
    void changePassword(const QMap<QString, QString>& parameters);
    void changeNetclientPassword(const QMap<QString, QString>& parameters);
    void getPassword();
    void getNetClientPassword(const QMap<QString, QString>& parameters);
    void tryToConnect();

private:
    using MessageHandler = void (UpsSocketController::*)(QXmlStreamReader&);
    static const QHash<QString, MessageHandler>& messageHandlers();

    // A reply of names and values, and what was read from it.
    struct FlatReply
    {
        QByteArray text;
        QMap<QString, QString> values;
    };

    void readMessage();
    /// Emits what was read from the last reply of its kind if `text` is the same again. False if it is not.
    bool repeatReply(const QByteArray& text);
    /// To be called by the reply's handler, which has read the document to its end.
    void rememberReply(FlatReply& reply, const QMap<QString, QString>& values) const;
    /// Dispatches one document. False if it was broken at its start and the connection was aborted.
    bool handleMessage(QXmlStreamReader& reader);
    void handleElement(QXmlStreamReader& reader);

    void handleUpsDeviceState(QXmlStreamReader& reader);
    void handleUpsConfiguration(QXmlStreamReader& reader);
    void handleShowMessage(QXmlStreamReader& reader);
    void handleDiscoveredMessage(QXmlStreamReader& reader);
    void handleSmtpTestStatus(QXmlStreamReader& reader);
    void handleGetPassword(QXmlStreamReader& reader);
    void handleNetclientPassword(QXmlStreamReader& reader);
    void handlePasswordChanged(QXmlStreamReader& reader);
    void handleGroups(QXmlStreamReader& reader);
    void handleEvents(QXmlStreamReader& reader);
    void handleAllComputers(QXmlStreamReader& reader);
    void handleApplicationConfiguration(QXmlStreamReader& reader);
    void handleServiceVersion(QXmlStreamReader& reader);
    void handleAvailablePorts(QXmlStreamReader& reader);
    void handleUpsModelList(QXmlStreamReader& reader);
    void handleUpsCurrentStatusList(QXmlStreamReader& reader);
    void handleDaemonIsBusy(QXmlStreamReader& reader);
    void handleDaemonIsReady(QXmlStreamReader& reader);
    void handleUpsLogs(QXmlStreamReader& reader);
    void handleDebuggingEnabled(QXmlStreamReader& reader);
    void handleDebuggingDisabled(QXmlStreamReader& reader);
    void handleShowCountdown(QXmlStreamReader& reader);

    QString serverAddress = QStringLiteral("127.0.0.1");
    QString adminPass;
    std::unique_ptr<VelmoraSocket> socket;
    QTimer* pollTimer = nullptr;      ///< exists only while a connection stands
    QTimer* reconnectTimer = nullptr; ///< exists only while attempts are going on
    XmlParser xmlParser;
    int pollCounter = 3; ///< chooses what the next tick asks for; survives reconnections
    bool stateAnswered = false;

    QByteArray m_text; ///< of the document being dispatched, until its first element was handled
    FlatReply m_stateReply;
    FlatReply m_configurationReply;
};

} // namespace Velmora
