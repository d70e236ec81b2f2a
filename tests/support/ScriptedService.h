// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QElapsedTimer>
#include <QHash>
#include <QObject>
#include <QPointer>
#include <QTcpServer>
#include <QVector>

class QTcpSocket;

namespace Velmora::Tests {

/// One request as the service read it.
struct Request
{
    QByteArray name; ///< root element; empty if the text is no XML
    QByteArray xml;
    qint64 time = 0; ///< milliseconds on the monotonic clock of ScriptedService::now()
};

/// A service that does what a test tells it: in the test's own thread, on the test's own loopback address and
/// the real port, with the real codec. It keeps every request and answers only those it has an answer for.
///
/// One thread means that neither side runs while the other blocks: a request is stamped when the event loop
/// comes to it.
class ScriptedService final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ScriptedService)

public:
    static constexpr int defaultTimeout = 5000;

    explicit ScriptedService(QObject* parent = nullptr);
    ~ScriptedService() override;

    /// The test's own loopback address, from the environment variable VELMORA_TEST_ADDRESS.
    [[nodiscard]] static QString testAddress();
    /// The bytes of one whole frame.
    [[nodiscard]] static QByteArray frame(const QByteArray& document);

    /// Listens, also again after stop(). False, with the reason on the debug output, if the port is taken.
    [[nodiscard]] bool start();
    /// Stops listening and closes every connection.
    void stop();

    /// What each request called `name` is answered with from now on.
    void replyTo(const QByteArray& name, const QByteArray& document) { m_replies.insert(name, document); }

    // All of these go to the newest connection, each call in one write.
    void send(const QByteArray& document);
    void sendTogether(const QVector<QByteArray>& documents);
    void sendRaw(const QByteArray& bytes);
    /// The first `at` bytes of the frame, then the rest once the panel has had the first part before it: when
    /// its next request is here or its connection is gone. False if neither comes.
    [[nodiscard]] bool sendSplit(const QByteArray& document, int at);

    /// End the newest connection, politely or with a TCP reset.
    void closeConnection();
    void resetConnection();

    [[nodiscard]] bool isConnected() const;
    /// Connections accepted so far.
    [[nodiscard]] int connectionCount() const { return m_connectionCount; }
    /// The clock of Request::time.
    [[nodiscard]] qint64 now() const { return m_clock.elapsed(); }

    [[nodiscard]] const QVector<Request>& requests() const { return m_requests; }
    [[nodiscard]] QVector<QByteArray> requestNames() const;
    [[nodiscard]] int requestCount(const QByteArray& name) const;
    void clearRequests() { m_requests.clear(); }

    /// Wait, with the event loop running, until that many requests or connections were seen in all.
    [[nodiscard]] bool waitForRequest(const QByteArray& name, int count = 1, int timeout = defaultTimeout);
    [[nodiscard]] bool waitForConnections(int count, int timeout = defaultTimeout);

private:
    void takeConnections();
    void readRequests(QTcpSocket* connection);
    void answer(QTcpSocket* connection, const QByteArray& text);
    static void write(QTcpSocket* connection, const QByteArray& bytes);

    QTcpServer m_server;
    QPointer<QTcpSocket> m_newest;
    QHash<QByteArray, QByteArray> m_replies;
    QVector<Request> m_requests;
    QElapsedTimer m_clock;
    int m_connectionCount = 0;
};

} // namespace Velmora::Tests
