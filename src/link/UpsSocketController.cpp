// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "link/UpsSocketController.h"

#include "link/Cipher.h"
#include "link/Frame.h"
#include "link/MessageReader.h"
#include "link/Sleep.h"
#include "link/TimerHelpers.h"
#include "link/VelmoraSocket.h"

#include <QTimer>

namespace Velmora {

using Utils::endTimer;

namespace {

constexpr int reconnectInterval = 5000;
constexpr int pollInterval = 1000;
constexpr unsigned long settlingTime = 200;
constexpr int ticksPerConfiguration = 3;

void registerMetaTypes()
{
    qRegisterMetaType<QVector<QString>>("QVector<QString>");
    qRegisterMetaType<QMap<QString, QString>>("QMap<QString,QString>");
    qRegisterMetaType<QList<QPair<int, int>>>("QList<QPair<int,int>>");
    qRegisterMetaType<QVector<Group>>("QVector<Group>");
    qRegisterMetaType<QVector<Event>>("QVector<Event>");
    qRegisterMetaType<QVector<Computer>>("QVector<Computer>");
    qRegisterMetaType<Utils::SmtpConfig>("Velmora::Utils::SmtpConfig");
    qRegisterMetaType<Utils::ApplicationConfiguration>("Velmora::Utils::ApplicationConfiguration");
    qRegisterMetaType<QList<Utils::SerialPort>>("QList<Velmora::Utils::SerialPort>");
    qRegisterMetaType<QVector<Utils::Ups>>("QVector<Velmora::Utils::Ups>");
    qRegisterMetaType<QVector<Utils::currentDeviceStatus>>("QVector<Velmora::Utils::currentDeviceStatus>");
}

} // namespace

UpsSocketController::UpsSocketController(QObject* parent)
    : QObject(parent)
    , socket(std::make_unique<VelmoraSocket>())
{
    registerMetaTypes();
    QObject::connect(socket.get(), &QTcpSocket::connected, this, &UpsSocketController::connected);
    QObject::connect(socket.get(), &QTcpSocket::disconnected, this, &UpsSocketController::disconnected);
    QObject::connect(socket.get(), &QTcpSocket::readyRead, this, &UpsSocketController::readReady);
    QObject::connect(socket.get(), &QTcpSocket::errorOccurred, this,
                     qOverload<QAbstractSocket::SocketError>(&UpsSocketController::error));
}

UpsSocketController::~UpsSocketController()
{
    // Closing would otherwise report the loss and start new attempts.
    socket->disconnect(this);
    if (socket->isOpen())
        socket->close();
    endTimer(pollTimer);
    endTimer(reconnectTimer);
}

void UpsSocketController::connectToServer()
{
    if (reconnectTimer)
        return;
    reconnectTimer = new QTimer(this);
    reconnectTimer->setObjectName(QStringLiteral("reconnectTimer"));
    connect(reconnectTimer, &QTimer::timeout, this, &UpsSocketController::tryToConnect);
    QTimer::singleShot(0, this, &UpsSocketController::tryToConnect);
    reconnectTimer->start(reconnectInterval);
}

void UpsSocketController::tryToConnect()
{
    socket->connect(serverAddress);
}

void UpsSocketController::disconectFromHost()
{
    // A pending attempt would go on for its own time-out and keep a new address waiting.
    const auto state = socket->state();
    if (state == QAbstractSocket::HostLookupState || state == QAbstractSocket::ConnectingState)
        socket->abort();
    else
        socket->disconnectFromHost();
}

void UpsSocketController::connected()
{
    endTimer(reconnectTimer);
    // Requests are small and come in bursts: without this each would wait for the acknowledgement of the
    // last.
    socket->setSocketOption(QAbstractSocket::LowDelayOption, 1);
    emit upsConnected();
    stateAnswered = true;
    getUpsModel();
    getAvailablePorts();
    getDebuggingStatus();
    getServiceVersion();
    getShutdownTimers();
    Utils::msleep(settlingTime);

    // A flush above may have met a peer that is gone already; its signals found no poll timer to end.
    if (socket->state() != QAbstractSocket::ConnectedState) {
        connectToServer();
        return;
    }
    endTimer(pollTimer);
    pollTimer = new QTimer(this);
    pollTimer->setObjectName(QStringLiteral("pollTimer"));
    connect(pollTimer, &QTimer::timeout, this, &UpsSocketController::getUpsDeviceData);
    // A loss before it runs takes it along, so that the counter keeps its place. The timer that was ended may
    // still be alive then.
    QTimer::singleShot(0, pollTimer, [this, own = pollTimer] {
        if (pollTimer == own)
            getUpsDeviceData();
    });
    pollTimer->start(pollInterval);
}

void UpsSocketController::getUpsDeviceData()
{
    stateAnswered = false;
    if (pollCounter % ticksPerConfiguration != 0) {
        getUpsCurrentStateList();
        sendMessage(QStringLiteral("get_ups_device_state"));
        ++pollCounter;
    } else {
        getUpsConfiguration();
        pollCounter = 1;
    }
}

void UpsSocketController::disconnected()
{
    if (!pollTimer)
        return;
    endTimer(pollTimer);
    connectToServer();
}

void UpsSocketController::error(QAbstractSocket::SocketError /*socketErrorCode*/)
{
    emit socketError();
    connectToServer();
}

void UpsSocketController::error(QLocalSocket::LocalSocketError /*socketErrorCode*/)
{
    emit socketError();
    connectToServer();
}

void UpsSocketController::stateChanged(QLocalSocket::LocalSocketState /*state*/) {}

void UpsSocketController::writeToSocket(const QByteArray& message)
{
    // A socket that is still connecting would keep the bytes and send them behind the opening requests.
    if (socket->state() != QAbstractSocket::ConnectedState)
        return;
    const QByteArray blob = encrypt(message);
    socket->write(Utils::prepareMessageSize(blob) + blob);
    socket->flush();
}

void UpsSocketController::readReady()
{
    readMessage();
}

void UpsSocketController::readMessage()
{
    readMessages(*socket);
}

bool UpsSocketController::readMessages(QIODevice& source)
{
    while (source.bytesAvailable() > Utils::frameHeaderSize) {
        const int announced = Utils::getMessegaSize(source.read(Utils::frameHeaderSize));
        // Asking for no more than has arrived gives the same bytes and reserves nothing by an announced size.
        const qint64 size = qBound<qint64>(0, announced, source.bytesAvailable());
        m_text = decryptToUtf8(source.read(size));
        if (repeatReply(m_text))
            continue;
        QXmlStreamReader reader = readMessageBytes(m_text);
        // Entities that it declares may not make the text longer: a few bytes could stand for gigabytes.
        reader.setEntityExpansionLimit(0);
        if (!handleMessage(reader))
            return false;
    }
    return true;
}

} // namespace Velmora
