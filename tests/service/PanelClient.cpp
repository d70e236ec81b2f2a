// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "service/PanelClient.h"

#include "link/Cipher.h"
#include "link/Frame.h"
#include "link/ServiceEndpoint.h"

#include <QCryptographicHash>
#include <QNetworkProxy>
#include <QTest>
#include <QXmlStreamReader>

#include <algorithm>

namespace Velmora::Tests {

namespace {

constexpr int timeout = 5000;

QString rootOf(const QByteArray& document)
{
    QXmlStreamReader reader(document);
    reader.readNextStartElement();
    return reader.name().toString();
}

} // namespace

const char* const administratorPassword = "Opiekunsystem";

PanelClient::PanelClient()
{
    m_socket.setProxy(QNetworkProxy::NoProxy);
    QObject::connect(&m_socket, &QTcpSocket::readyRead, &m_socket, [this] { read(); });
    m_socket.connectToHost(address(), Velmora::servicePort);
    static_cast<void>(QTest::qWaitFor(
        [this] { return isConnected() || m_socket.state() == QAbstractSocket::UnconnectedState; }, timeout));
}

QString PanelClient::address()
{
    return qEnvironmentVariable("VELMORA_TEST_ADDRESS");
}

QByteArray PanelClient::digest(const char* password)
{
    return QCryptographicHash::hash(password, QCryptographicHash::Md5).toHex();
}

void PanelClient::send(const QByteArray& name, const QByteArray& body)
{
    const QByteArray document = "<" + name + "><pass>" + m_pass + "</pass>" + body + "</" + name + ">";
    const QByteArray blob = Velmora::encrypt(document);
    sendRaw(Velmora::Utils::prepareMessageSize(blob) + blob);
}

void PanelClient::sendRaw(const QByteArray& bytes)
{
    m_socket.write(bytes);
    m_socket.flush();
}

QByteArray PanelClient::ask(const QByteArray& name, const QByteArray& reply, const QByteArray& body)
{
    send(name, body);
    return waitFor(reply);
}

bool PanelClient::has(const QByteArray& root) const
{
    return std::any_of(m_documents.cbegin(), m_documents.cend(), [&root](const QByteArray& document) {
        return rootOf(document) == QLatin1String(root);
    });
}

QByteArray PanelClient::waitFor(const QByteArray& root)
{
    static_cast<void>(QTest::qWaitFor([&] { return has(root) || !isConnected(); }, timeout));
    for (int i = 0; i < m_documents.size(); ++i) {
        if (rootOf(m_documents.at(i)) == QLatin1String(root))
            return m_documents.takeAt(i);
    }
    return {};
}

void PanelClient::discard(const QByteArray& root)
{
    const auto isMeant = [&root](const QByteArray& document) {
        return rootOf(document) == QLatin1String(root);
    };
    m_documents.erase(std::remove_if(m_documents.begin(), m_documents.end(), isMeant), m_documents.end());
}

bool PanelClient::synchronize()
{
    return !ask("get_service_version", "service_version").isEmpty();
}

void PanelClient::read()
{
    m_buffer += m_socket.readAll();
    while (m_buffer.size() >= 4) {
        const int size = Velmora::Utils::getMessegaSize(m_buffer.left(4));
        if (m_buffer.size() < 4 + size)
            return;
        m_longestFrame = qMax(m_longestFrame, 4 + size);
        m_documents.append(Velmora::decrypt(m_buffer.mid(4, size)).toUtf8());
        m_buffer.remove(0, 4 + size);
    }
}

QByteArray text(const QByteArray& document, const char* element)
{
    return texts(document, element).value(0);
}

QVector<QByteArray> texts(const QByteArray& document, const char* element)
{
    QVector<QByteArray> found;
    QXmlStreamReader reader(document);
    while (!reader.atEnd()) {
        if (reader.readNext() == QXmlStreamReader::StartElement && reader.name() == QLatin1String(element))
            found.append(reader.readElementText(QXmlStreamReader::IncludeChildElements).toUtf8());
    }
    return found;
}

} // namespace Velmora::Tests
