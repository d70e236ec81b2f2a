// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "service/server/ClientSession.h"

#include "link/Cipher.h"
#include "link/Frame.h"
#include "service/Logging.h"
#include "service/mail/MailTest.h"
#include "service/wire/Replies.h"

#include <QHostAddress>
#include <QTcpSocket>

namespace Velmora::Service {

namespace {

constexpr int sizeBytes = 4;
constexpr int largestRequest = 1024 * 1024;
// Packed, it may be a thousand times as long: to unpack and read that would hold up all other panels.
constexpr int largestDocument = 4 * 1024 * 1024;
constexpr qint64 largestBacklog = qint64{1024} * 1024;
// A panel polls every second; a peer that says nothing for this long only holds a place.
constexpr int idleMilliseconds = 120000;
// After so many requests in a row the other panels get their turn; a long one counts as many.
constexpr int requestsPerTurn = 16;
constexpr int usualRequest = 4096;

} // namespace

ClientSession::ClientSession(QTcpSocket* socket, QObject* parent)
    : QObject(parent)
    , m_socket(socket)
    , m_peer(socket->peerAddress().toString() % QLatin1Char(':') % QString::number(socket->peerPort()))
{
    m_socket->setParent(this);
    // Replies are small writes, which would otherwise wait for an acknowledgement.
    m_socket->setSocketOption(QAbstractSocket::LowDelayOption, 1);
    m_socket->setReadBufferSize(sizeBytes + largestRequest);
    connect(m_socket, &QTcpSocket::readyRead, this, [this] {
        if (!m_nextTurn.isActive())
            readFrames();
    });
    m_nextTurn.setSingleShot(true);
    connect(&m_nextTurn, &QTimer::timeout, this, &ClientSession::readFrames);
    connect(m_socket, &QTcpSocket::disconnected, this, [this] {
        // What it saved just before may still wait.
        readFrames();
        close(QStringLiteral("the peer left"));
    });
    m_idleTimer.setSingleShot(true);
    connect(&m_idleTimer, &QTimer::timeout, this,
            [this] { close(QStringLiteral("no request for two minutes")); });
    m_idleTimer.start(idleMilliseconds);
    // Something may have come before anybody listened.
    QMetaObject::invokeMethod(this, &ClientSession::readFrames, Qt::QueuedConnection);
}

ClientSession::~ClientSession()
{
    m_socket->disconnect(this);
}

int ClientSession::silentMilliseconds() const
{
    return idleMilliseconds - m_idleTimer.remainingTime();
}

void ClientSession::send(const QByteArray& document)
{
    const QByteArray frame = encodeFrame(document);
    if (frame.isEmpty()) {
        qCCritical(serviceLog).noquote() << "did not send" << document.left(document.indexOf('>') + 1) << "to"
                                         << m_peer % QLatin1String(": longer than a frame may be");
        return;
    }
    sendFrame(frame);
}

void ClientSession::sendFrame(const QByteArray& frame)
{
    if (m_closed)
        return;
    if (m_socket->bytesToWrite() > largestBacklog) {
        close(QStringLiteral("it does not read what it is sent"));
        return;
    }
    m_socket->write(frame);
    m_socket->flush();
}

void ClientSession::close(const QString& reason)
{
    if (m_closed)
        return;
    m_closed = true;
    m_idleTimer.stop();
    m_nextTurn.stop();
    m_socket->disconnect(this);
    m_socket->abort();
    qCInfo(serviceLog).noquote() << "connection of" << m_peer << "ended:" << reason;
    emit closed();
}

void ClientSession::readFrames()
{
    int requests = 0;
    while (!m_closed && requests < requestsPerTurn && readFrame(requests)) {
    }
    if (requests >= requestsPerTurn)
        m_nextTurn.start(0);
}

bool ClientSession::readFrame(int& requests)
{
    if (m_socket->bytesAvailable() < sizeBytes)
        return false;
    // Reads as negative if the top bit is set.
    const int size = Velmora::Utils::getMessegaSize(m_socket->peek(sizeBytes));
    if (size <= 0 || size > largestRequest) {
        close(QStringLiteral("it announced a frame of an impossible size"));
        return false;
    }
    if (m_socket->bytesAvailable() < sizeBytes + size)
        return false;
    const QByteArray text =
        Velmora::decryptToUtf8(m_socket->read(sizeBytes + size).mid(sizeBytes), largestDocument);
    if (text.isEmpty()) {
        close(QStringLiteral("it sent a frame that cannot be deciphered"));
        return false;
    }
    m_idleTimer.start(idleMilliseconds);
    emit messageReceived(QString::fromUtf8(text));
    requests += 1 + text.size() / usualRequest;
    return true;
}

} // namespace Velmora::Service
