// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "link/Cipher.h"
#include "link/Frame.h"
#include "link/ServiceEndpoint.h"
#include "service/PanelClient.h"
#include "service/ReferenceService.h"
#include "service/TestScenario.h"

#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTest>
#include <QtEndian>

#include <cerrno>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

using namespace Velmora::Service;
using namespace Velmora::Tests;

namespace {

QByteArray frame(const QByteArray& clearText)
{
    const QByteArray blob = Velmora::encrypt(clearText);
    return Velmora::Utils::prepareMessageSize(blob) + blob;
}

/// A client that sends and never reads; a plain socket, since Qt's would read ahead.
class DeafClient final
{
public:
    DeafClient()
        : m_socket(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0))
    {
        sockaddr_in address = {};
        address.sin_family = AF_INET;
        address.sin_port = qToBigEndian(Velmora::servicePort);
        address.sin_addr.s_addr = qToBigEndian(QHostAddress(PanelClient::address()).toIPv4Address());
        if (::connect(m_socket, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0)
            qFatal("cannot connect");
    }
    ~DeafClient() { ::close(m_socket); }
    Q_DISABLE_COPY_MOVE(DeafClient)

    /// Sends what the system takes at once; false if the connection is gone.
    [[nodiscard]] bool send(const QByteArray& bytes)
    {
        const auto size = static_cast<std::size_t>(bytes.size());
        const ssize_t sent = ::send(m_socket, bytes.constData() + m_offset % size, size - m_offset % size,
                                    MSG_DONTWAIT | MSG_NOSIGNAL);
        m_offset += sent > 0 ? static_cast<std::size_t>(sent) : 0;
        return sent > 0 || errno == EAGAIN;
    }

private:
    int m_socket;
    std::size_t m_offset = 0; ///< so that a frame which was cut goes on where it was cut
};

} // namespace

class HostileClientTest final : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void brokenFrameEndsThisConnectionOnly_data();
    void brokenFrameEndsThisConnectionOnly();
    void malformedRequestIsDropped_data();
    void malformedRequestIsDropped();
    void slowSenderIsServed();
    void framesInOneWriteAreAllAnswered();
    void halfAFrameHoldsNobodyUp();
    void clientThatDoesNotReadIsDropped();
    void connectionsAreLimited();

private:
    QTemporaryDir m_folder;
    std::unique_ptr<ReferenceService> m_service;
    std::unique_ptr<PanelClient> m_honest;
};

void HostileClientTest::init()
{
    Options options;
    options.listen = QHostAddress(PanelClient::address());
    options.scenarioPath = quickScenarioFile(m_folder.path());
    QString reason;
    m_service = std::make_unique<ReferenceService>();
    QVERIFY2(m_service->start(options, reason), qPrintable(reason));
    m_honest = std::make_unique<PanelClient>();
    QVERIFY(m_honest->isConnected());
}

void HostileClientTest::cleanup()
{
    // Whatever happened, the others are still served.
    QVERIFY(m_honest->isConnected());
    QVERIFY(m_honest->synchronize());
    m_honest.reset();
    m_service.reset();
}

void HostileClientTest::brokenFrameEndsThisConnectionOnly_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QByteArray flipped = frame("<get_service_version><pass></pass></get_service_version>");
    flipped[20] = static_cast<char>(flipped.at(20) ^ 1);
    QTest::newRow("a frame just beyond 1 MiB is announced") << QByteArray("\x00\x10\x00\x01", 4);
    QTest::newRow("2 GiB are announced") << QByteArray("\x7f\xff\xff\xff", 4);
    QTest::newRow("the top bit of the size is set") << QByteArray("\xff\xff\xff\xf0", 4);
    QTest::newRow("nothing is announced") << QByteArray("\x00\x00\x00\x00", 4);
    QTest::newRow("one bit was flipped") << flipped;
    QTest::newRow("a web browser calls") << QByteArray("GET / HTTP/1.1\r\nHost: velmora\r\n\r\n");
    QTest::newRow("a blob of one byte") << QByteArray("\x00\x00\x00\x01\x03", 5);
    QTest::newRow("an empty document") << frame("");
}

void HostileClientTest::brokenFrameEndsThisConnectionOnly()
{
    QFETCH(QByteArray, bytes);
    PanelClient hostile;
    QVERIFY(hostile.isConnected());
    hostile.sendRaw(bytes);
    QTRY_VERIFY(!hostile.isConnected());
}

void HostileClientTest::malformedRequestIsDropped_data()
{
    QTest::addColumn<QByteArray>("document");
    QTest::newRow("no XML") << QByteArray("hello");
    QTest::newRow("a name with an unescaped character")
        << QByteArray("<set_new_ups><user_defined_name>A & B</user_defined_name></set_new_ups>");
    QTest::newRow("cut off") << QByteArray("<get_ups_logs><pass></pass><type>param");
    QTest::newRow("two documents") << QByteArray("<get_password/><get_password/>");
    QTest::newRow("unknown request") << QByteArray("<format_disk><pass></pass></format_disk>");
    QTest::newRow("a reply") << QByteArray("<ups_model_list><id>1</id></ups_model_list>");
    QTest::newRow("deep nesting") << QByteArray("<a>").repeated(20000) + QByteArray("</a>").repeated(20000);
    QTest::newRow("very many elements") << "<events>" + QByteArray("<a/>").repeated(200000) + "</events>";
    QTest::newRow("larger than any request when unpacked")
        << "<events>" + QByteArray(8 * 1024 * 1024, ' ') + "</events>";
    QTest::newRow("entities that grow")
        << QByteArray("<!DOCTYPE a [<!ENTITY b \"bbbbbbbbbb\"><!ENTITY c "
                      "\"&b;&b;&b;&b;&b;&b;&b;&b;&b;\"><!ENTITY d \"&c;&c;&c;&c;&c;&c;&c;&c;&c;\"><!ENTITY e "
                      "\"&d;&d;&d;&d;&d;&d;&d;&d;&d;\">]><a>&e;&e;&e;&e;&e;&e;&e;</a>");
}

void HostileClientTest::malformedRequestIsDropped()
{
    QFETCH(QByteArray, document);
    PanelClient hostile;
    hostile.sendRaw(frame(document));
    QVERIFY(hostile.synchronize());
    QVERIFY(hostile.isConnected());
}

void HostileClientTest::slowSenderIsServed()
{
    PanelClient slow;
    const QByteArray request = frame("<get_service_version><pass></pass></get_service_version>");
    for (const char byte : request) {
        slow.sendRaw(QByteArray(1, byte));
        QCoreApplication::processEvents();
    }
    QVERIFY(!slow.waitFor("service_version").isEmpty());
}

void HostileClientTest::framesInOneWriteAreAllAnswered()
{
    PanelClient eager;
    eager.sendRaw(frame("<get_service_version><pass></pass></get_service_version>").repeated(200));
    for (int i = 0; i < 200; ++i)
        QVERIFY(!eager.waitFor("service_version").isEmpty());
}

void HostileClientTest::halfAFrameHoldsNobodyUp()
{
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
    DeafClient deaf;
    const QByteArray requests = frame("<get_ups_model_list><pass></pass></get_ups_model_list>").repeated(500);
    // The system's own buffers take some megabytes before the service sees that nobody reads.
    QElapsedTimer timer;
    timer.start();
    while (deaf.send(requests) && timer.elapsed() < 20000)
        QCoreApplication::processEvents();
    QVERIFY(!deaf.send(requests));
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
    clients.pop_back();
    // The place is free as soon as the service has seen the other one leave.
    QTRY_VERIFY([] {
        PanelClient next;
        return next.isConnected() && next.synchronize();
    }());
}

QTEST_GUILESS_MAIN(HostileClientTest)
#include "HostileClientTest.moc"
