// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include "link/Cipher.h"
#include "link/Frame.h"
#include "link/ServiceEndpoint.h"
#include "service/ReferenceService.h"
#include "support/ScriptedService.h"

#include <QCryptographicHash>
#include <QNetworkProxy>
#include <QTcpSocket>
#include <QTest>
#include <QXmlStreamReader>

#include <algorithm>

namespace Velmora::Tests {

/// The password that a fresh service takes for the administrator's.
constexpr const char* administratorPassword = "Opiekunsystem";

/// A service on the test's own address; ends the process if it does not start.
inline std::unique_ptr<Service::ReferenceService> startService(Service::Options options = {})
{
    options.listen = QHostAddress(ScriptedService::testAddress());
    QString reason;
    auto service = std::make_unique<Service::ReferenceService>();
    if (!service->start(options, reason))
        qFatal("%s", qPrintable(reason));
    return service;
}

/// MD5 text of a password.
inline QByteArray digest(const char* password)
{
    return QCryptographicHash::hash(password, QCryptographicHash::Md5).toHex();
}

/// Texts of all elements of that name in a document.
inline QVector<QByteArray> texts(const QByteArray& document, const char* element)
{
    QVector<QByteArray> found;
    QXmlStreamReader reader(document);
    while (!reader.atEnd()) {
        if (reader.readNext() == QXmlStreamReader::StartElement && reader.name() == QLatin1String(element))
            found.append(reader.readElementText(QXmlStreamReader::IncludeChildElements).toUtf8());
    }
    return found;
}

/// Text of the first of them; null if there is none.
inline QByteArray text(const QByteArray& document, const char* element)
{
    return texts(document, element).value(0);
}

/// The other end of the link: sends requests as a panel does and keeps what the service says.
class PanelClient final
{
public:
    /// Connects to the test's own address; isConnected() tells whether it worked.
    PanelClient()
    {
        m_socket.setProxy(QNetworkProxy::NoProxy);
        QObject::connect(&m_socket, &QTcpSocket::readyRead, &m_socket, [this] { read(); });
        m_socket.connectToHost(ScriptedService::testAddress(), Velmora::servicePort);
        static_cast<void>(QTest::qWaitFor(
            [this] { return isConnected() || m_socket.state() == QAbstractSocket::UnconnectedState; }));
    }

    /// From now on requests carry this password; none if it is empty.
    void setPassword(const char* password) { m_pass = *password == '\0' ? QByteArray() : digest(password); }

    void send(const QByteArray& name, const QByteArray& body = QByteArray())
    {
        sendRaw(
            ScriptedService::frame("<" + name + "><pass>" + m_pass + "</pass>" + body + "</" + name + ">"));
    }
    void sendRaw(const QByteArray& bytes)
    {
        m_socket.write(bytes);
        m_socket.flush();
    }
    /// Sends a request and waits for the document that answers it.
    [[nodiscard]] QByteArray ask(const QByteArray& name, const QByteArray& reply,
                                 const QByteArray& body = QByteArray())
    {
        send(name, body);
        return waitFor(reply);
    }
    /// The same for a request that is named after its reply.
    [[nodiscard]] QByteArray get(const QByteArray& reply, const QByteArray& body = QByteArray())
    {
        return ask("get_" + reply, reply, body);
    }
    /// Waits for the next document with this root and takes it; empty if none came in time.
    [[nodiscard]] QByteArray waitFor(const QByteArray& root)
    {
        static_cast<void>(QTest::qWaitFor([&] { return has(root) || !isConnected(); }));
        return has(root) ? m_documents.takeAt(indexOf(root)) : QByteArray();
    }
    /// True once everything sent so far has been dealt with: the service answers in the order of asking.
    [[nodiscard]] bool synchronize() { return !get("service_version").isEmpty(); }

    [[nodiscard]] bool isConnected() const { return m_socket.state() == QAbstractSocket::ConnectedState; }
    [[nodiscard]] bool has(const QByteArray& root) const { return indexOf(root) < m_documents.size(); }

private:
    void read()
    {
        while (m_socket.bytesAvailable() >= 4) {
            const int size = Utils::getMessegaSize(m_socket.peek(4));
            if (m_socket.bytesAvailable() < 4 + size)
                return;
            m_documents.append(decryptToUtf8(m_socket.read(4 + size).mid(4)));
        }
    }
    [[nodiscard]] int indexOf(const QByteArray& root) const
    {
        const auto hasRoot = [&root](const QByteArray& document) {
            QXmlStreamReader reader(document);
            return reader.readNextStartElement() && reader.name() == QLatin1String(root);
        };
        return static_cast<int>(std::find_if(m_documents.cbegin(), m_documents.cend(), hasRoot) -
                                m_documents.cbegin());
    }

    QTcpSocket m_socket;
    QByteArray m_pass;
    QVector<QByteArray> m_documents;
};

} // namespace Velmora::Tests
