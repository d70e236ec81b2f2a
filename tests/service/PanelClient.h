// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QTcpSocket>
#include <QVector>

namespace Velmora::Tests {

/// The password that a fresh service takes for the administrator's.
extern const char* const administratorPassword;

/// The other end of the link: sends requests as a panel does and keeps what the service says.
class PanelClient final
{
public:
    /// Connects to the test's own loopback address; isConnected() tells whether it worked.
    PanelClient();

    [[nodiscard]] static QString address();
    /// MD5 text of a password, which is what requests carry.
    [[nodiscard]] static QByteArray digest(const char* password);

    void setPassword(const char* password) { m_pass = digest(password); }
    void forgetPassword() { m_pass.clear(); }

    void send(const QByteArray& name, const QByteArray& body = QByteArray());
    void sendRaw(const QByteArray& bytes);
    /// Sends a request and waits for the document that answers it.
    [[nodiscard]] QByteArray ask(const QByteArray& name, const QByteArray& reply,
                                 const QByteArray& body = QByteArray());
    /// Waits for the next document with this root and takes it; empty if none came in time.
    [[nodiscard]] QByteArray waitFor(const QByteArray& root);
    /// Forgets what came with this root so far, such as lists that were pushed.
    void discard(const QByteArray& root);
    /// True once everything sent so far has been dealt with: the service answers in the order of asking.
    [[nodiscard]] bool synchronize();

    [[nodiscard]] bool isConnected() const { return m_socket.state() == QAbstractSocket::ConnectedState; }
    [[nodiscard]] QTcpSocket& socket() { return m_socket; }
    [[nodiscard]] bool has(const QByteArray& root) const;
    /// The longest frame received so far, with its size field.
    [[nodiscard]] int longestFrame() const { return m_longestFrame; }

private:
    void read();

    QTcpSocket m_socket;
    QByteArray m_pass;
    QByteArray m_buffer;
    QVector<QByteArray> m_documents;
    int m_longestFrame = 0;
};

/// Text of the first element of that name in a document; null if there is none.
[[nodiscard]] QByteArray text(const QByteArray& document, const char* element);
/// Texts of all elements of that name.
[[nodiscard]] QVector<QByteArray> texts(const QByteArray& document, const char* element);

} // namespace Velmora::Tests
