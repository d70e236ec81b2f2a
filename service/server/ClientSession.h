// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include "service/device/DeviceTypes.h"
#include "service/logs/LogBook.h"

#include <QObject>
#include <QTimer>

#include <memory>
#include <optional>

class QTcpSocket;

namespace Velmora::Service {

class MailTest;

/// Where a connection stands in the log that it is paging through.
struct LogBookmark
{
    int device = 0;
    LogKind kind = LogKind::Parameters;
    LogPosition position;
};

/// One connected panel. Whatever it sends or fails to read costs bounded buffers and at worst this
/// connection.
class ClientSession final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ClientSession)

public:
    /// Takes the connected socket over.
    explicit ClientSession(QTcpSocket* socket, QObject* parent = nullptr);
    ~ClientSession() override;

    /// Address and port, for the log.
    [[nodiscard]] QString peer() const { return m_peer; }

    /// Time since the last request, or since the connection without one.
    [[nodiscard]] int silentMilliseconds() const;

    /// Sends one document as one frame in one write. Ends the connection of a panel that does not read.
    void send(const QByteArray& document);
    void sendFrame(const QByteArray& frame);
    void close(const QString& reason);

    /// The device that state, configuration and logs are asked for; noDevice until the panel has chosen one.
    [[nodiscard]] int selectedDevice() const { return m_selectedDevice; }
    void selectDevice(int id) { m_selectedDevice = id; }

    std::optional<LogBookmark>& logBookmark() { return m_logBookmark; }
    /// The test mail that this panel asked for last; a new one ends it, as does the end of the connection.
    std::unique_ptr<MailTest>& mailTest() { return m_mailTest; }

signals:
    void messageReceived(const QString& text);
    void closed();

private:
    void readFrames();
    /// False if no whole frame waits; otherwise adds to `requests` as how many it counts.
    [[nodiscard]] bool readFrame(int& requests);

    QTcpSocket* m_socket;
    QTimer m_idleTimer;
    QTimer m_nextTurn; ///< runs while more may wait than one turn takes
    QString m_peer;
    int m_selectedDevice = noDevice;
    std::optional<LogBookmark> m_logBookmark;
    std::unique_ptr<MailTest> m_mailTest;
    bool m_closed = false;
};

} // namespace Velmora::Service
