// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "support/ScriptedService.h"

#include "link/Cipher.h"
#include "link/Frame.h"
#include "link/ServiceEndpoint.h"

#include <QDebug>
#include <QHostAddress>
#include <QTcpSocket>
#include <QTest>
#include <QXmlStreamReader>

#include <algorithm>

#include <sys/socket.h>

namespace Velmora::Tests {

ScriptedService::ScriptedService(QObject* parent)
    : QObject(parent)
{
    m_clock.start();
    connect(&m_server, &QTcpServer::newConnection, this, &ScriptedService::takeConnections);
}

ScriptedService::~ScriptedService()
{
    stop();
}

QString ScriptedService::testAddress()
{
    return qEnvironmentVariable("VELMORA_TEST_ADDRESS");
}

QByteArray ScriptedService::frame(const QByteArray& document)
{
    const QByteArray blob = encrypt(document);
    return Utils::prepareMessageSize(blob) + blob;
}

bool ScriptedService::start()
{
    const QHostAddress address(testAddress());
    if (!address.isLoopback())
        qFatal("VELMORA_TEST_ADDRESS is no loopback address");
    if (m_server.isListening() || m_server.listen(address, servicePort))
        return true;
    qWarning() << "no service at" << testAddress() << m_server.errorString();
    return false;
}

void ScriptedService::stop()
{
    m_server.close();
    const auto connections = m_server.findChildren<QTcpSocket*>();
    for (QTcpSocket* connection : connections) {
        connection->disconnect(this);
        connection->close();
        connection->deleteLater();
    }
    m_newest.clear();
}

void ScriptedService::send(const QByteArray& document)
{
    sendRaw(frame(document));
}

void ScriptedService::sendTogether(const QVector<QByteArray>& documents)
{
    QByteArray bytes;
    for (const QByteArray& document : documents)
        bytes += frame(document);
    sendRaw(bytes);
}

void ScriptedService::sendRaw(const QByteArray& bytes)
{
    if (m_newest)
        write(m_newest, bytes);
    else
        qWarning("no connection to send to");
}

bool ScriptedService::sendSplit(const QByteArray& document, int at)
{
    const QByteArray bytes = frame(document);
    const int requestsBefore = m_requests.size();
    const int connectionsBefore = m_connectionCount;
    sendRaw(bytes.left(at));
    const auto gone = [this, connectionsBefore] {
        return !isConnected() || m_connectionCount != connectionsBefore;
    };
    const bool seen =
        QTest::qWaitFor([&] { return gone() || m_requests.size() > requestsBefore; }, defaultTimeout);
    if (seen && !gone())
        sendRaw(bytes.mid(at));
    return seen;
}

void ScriptedService::closeConnection()
{
    if (m_newest)
        m_newest->disconnectFromHost();
}

void ScriptedService::resetConnection()
{
    const linger atOnce{1, 0};
    const auto handle = static_cast<int>(m_newest->socketDescriptor());
    setsockopt(handle, SOL_SOCKET, SO_LINGER, &atOnce, sizeof atOnce);
    m_newest->abort();
}

bool ScriptedService::isConnected() const
{
    return m_newest && m_newest->state() == QAbstractSocket::ConnectedState;
}

QVector<QByteArray> ScriptedService::requestNames() const
{
    QVector<QByteArray> names;
    for (const Request& request : m_requests)
        names.append(request.name);
    return names;
}

int ScriptedService::requestCount(const QByteArray& name) const
{
    return static_cast<int>(std::count_if(m_requests.cbegin(), m_requests.cend(),
                                          [&name](const Request& request) { return request.name == name; }));
}

bool ScriptedService::waitForRequest(const QByteArray& name, int count, int timeout)
{
    return QTest::qWaitFor([&] { return requestCount(name) >= count; }, timeout);
}

bool ScriptedService::waitForConnections(int count, int timeout)
{
    return QTest::qWaitFor([&] { return m_connectionCount >= count; }, timeout);
}

void ScriptedService::takeConnections()
{
    while (QTcpSocket* connection = m_server.nextPendingConnection()) {
        ++m_connectionCount;
        connect(connection, &QTcpSocket::disconnected, connection, &QObject::deleteLater);
        connection->setSocketOption(QAbstractSocket::LowDelayOption, 1);
        m_newest = connection;
        connect(connection, &QTcpSocket::readyRead, this, [this, connection] { readRequests(connection); });
        readRequests(connection);
    }
}

void ScriptedService::readRequests(QTcpSocket* connection)
{
    while (connection->bytesAvailable() >= Utils::frameHeaderSize) {
        const int size = Utils::getMessegaSize(connection->peek(Utils::frameHeaderSize));
        if (connection->bytesAvailable() < Utils::frameHeaderSize + size)
            return;
        connection->read(Utils::frameHeaderSize);
        answer(connection, decrypt(connection->read(size)).toUtf8());
    }
}

void ScriptedService::answer(QTcpSocket* connection, const QByteArray& text)
{
    QXmlStreamReader reader(text);
    reader.readNextStartElement();
    const QByteArray name = reader.name().toUtf8();
    m_requests.append({name, text, now()});
    if (m_replies.contains(name))
        write(connection, frame(m_replies.value(name)));
}

void ScriptedService::write(QTcpSocket* connection, const QByteArray& bytes)
{
    connection->write(bytes);
    connection->flush();
}

} // namespace Velmora::Tests
