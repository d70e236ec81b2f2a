// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "service/PanelClient.h"

#include <QElapsedTimer>
#include <QRegularExpression>
#include <QTest>

using namespace Velmora::Service;
using namespace Velmora::Tests;

namespace {

const QByteArray request = ScriptedService::frame("<get_service_version><pass></pass></get_service_version>");

} // namespace

class HostileClientTest final : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void brokenFrameEndsThisConnectionOnly();
    void panelMayVanishAtEachByte();
    void malformedRequestIsDropped();
    void framesMayBeSplitAndJoined();
    void clientThatDoesNotReadIsDropped();
    void connectionsAreLimited();

private:
    std::unique_ptr<ReferenceService> m_service;
    std::unique_ptr<PanelClient> m_honest;
};

void HostileClientTest::init()
{
    m_service = startService();
    m_honest = std::make_unique<PanelClient>();
}

void HostileClientTest::cleanup()
{
    // Whatever happened, the others are still served.
    QVERIFY(m_honest->synchronize());
    m_service.reset();
}

void HostileClientTest::brokenFrameEndsThisConnectionOnly()
{
    QByteArray flipped = request;
    flipped[20] = static_cast<char>(flipped.at(20) ^ 1);
    // Just beyond 1 MiB, the top bit of the size, nothing, one byte, an empty document, one that is longer
    // than any request when unpacked.
    for (const QByteArray& bytes :
         {QByteArray("\x00\x10\x00\x01", 4), QByteArray("\xff\xff\xff\xf0", 4),
          QByteArray("\x00\x00\x00\x00", 4), QByteArray("\x00\x00\x00\x01\x03", 5),
          ScriptedService::frame(""),
          ScriptedService::frame("<a>" + QByteArray(8 * 1024 * 1024, ' ') + "</a>"), flipped}) {
        PanelClient hostile;
        QVERIFY(hostile.isConnected());
        hostile.sendRaw(bytes);
        QTRY_VERIFY2(!hostile.isConnected(), bytes.toHex().constData());
    }
}

void HostileClientTest::panelMayVanishAtEachByte()
{
    // In all more connections than may stand at once, so that none of them can be left behind.
    for (int i = 0; i < request.size(); ++i) {
        PanelClient().sendRaw(request.left(i));
        PanelClient().sendRaw(request + request.left(i)); // the reply to the first one stays unread
        QVERIFY(m_honest->synchronize());
    }
    QTRY_VERIFY(PanelClient().synchronize());
}

void HostileClientTest::malformedRequestIsDropped()
{
    // Each of them would be read as a change and refused with another line if it passed as well-formed; the
    // last grows by its entities.
    const QByteArray deep = QByteArray("<a>").repeated(20000) + QByteArray("</a>").repeated(20000);
    for (const QByteArray& document :
         QVector<QByteArray>{"<events/><events/>", "<events>" + deep + "</events>",
                             "<events>" + QByteArray("<a/>").repeated(200000) + "</events>",
                             "<!DOCTYPE a [<!ENTITY a \"xxxx\">]><events>&a;</events>"}) {
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("not well-formed XML")));
        PanelClient hostile;
        hostile.sendRaw(ScriptedService::frame(document));
        QVERIFY(hostile.synchronize());
    }
}

void HostileClientTest::framesMayBeSplitAndJoined()
{
    PanelClient client;
    for (const char byte : request) {
        client.sendRaw(QByteArray(1, byte));
        QCoreApplication::processEvents();
    }
    client.sendRaw(request.repeated(200));
    for (int i = 0; i < 201; ++i)
        QVERIFY(!client.waitFor("service_version").isEmpty());
    PanelClient half;
    // As much as may be announced, and nearly all of it.
    half.sendRaw(QByteArray("\x00\x10\x00\x00", 4) + QByteArray(1024 * 1024 - 1, 'x'));
    QVERIFY(m_honest->synchronize());
    QVERIFY(half.isConnected());
    half.sendRaw("x");
    QTRY_VERIFY(!half.isConnected());
}

void HostileClientTest::clientThatDoesNotReadIsDropped()
{
    QTcpSocket deaf;
    deaf.setReadBufferSize(1);
    deaf.connectToHost(ScriptedService::testAddress(), Velmora::servicePort);
    QVERIFY(deaf.waitForConnected());
    const QByteArray requests =
        ScriptedService::frame("<get_ups_model_list><pass></pass></get_ups_model_list>").repeated(500);
    // The system's own buffers take some megabytes before the service sees that nobody reads.
    QElapsedTimer timer;
    timer.start();
    while (deaf.state() == QAbstractSocket::ConnectedState && timer.elapsed() < 60000) {
        if (deaf.bytesToWrite() == 0)
            deaf.write(requests);
        QCoreApplication::processEvents();
    }
    QVERIFY(deaf.state() != QAbstractSocket::ConnectedState);
}

void HostileClientTest::connectionsAreLimited()
{
    std::vector<std::unique_ptr<PanelClient>> clients;
    for (int i = 0; i < 63; ++i) {
        clients.push_back(std::make_unique<PanelClient>());
        QVERIFY(clients.back()->isConnected());
    }
    PanelClient turnedAway;
    QTRY_VERIFY(!turnedAway.isConnected());
    // Those that have long been silent make room, never a panel that asks.
    QTRY_VERIFY_WITH_TIMEOUT(m_honest->synchronize() && PanelClient().synchronize(), 30000);
}

QTEST_GUILESS_MAIN(HostileClientTest)
#include "HostileClientTest.moc"
