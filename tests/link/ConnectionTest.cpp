// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "FullListener.h"
#include "link/Cipher.h"
#include "link/Frame.h"
#include "link/ServiceEndpoint.h"
#include "link/UpsSocketController.h"
#include "support/AddressSpaceWatch.h"
#include "support/ScriptedService.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTest>
#include <QThread>
#include <QTimer>

using namespace Velmora;
using Tests::ScriptedService;
using Names = QVector<QByteArray>;

namespace {

const Names opening{"get_ups_model_list", "get_available_ports", "get_debugging_status",
                    "get_service_version", "get_shutdown_timers"};
const QByteArray configurationPoll("get_ups_configuration");
const QByteArray statusPoll("get_ups_current_status_list");
const QByteArray statePoll("get_ups_device_state");

// A second address of this test, at which nothing answers.
const char pendingAddress[] = "127.0.0.14";

} // namespace

class ConnectionTest final : public QObject
{
    Q_OBJECT

    void makeLink();
    // Brings the link up and stops its poll, so that the test decides about every tick.
    void connectAndHoldPoll();
    QTimer* timer(const char* name) const;
    int activeTimers(const char* name) const;

    std::unique_ptr<ScriptedService> m_service;
    std::unique_ptr<UpsSocketController> m_link;
    std::unique_ptr<QSignalSpy> m_errors;

private slots:
    void init();
    void cleanup();
    void opensWithFiveRequestsAndThePoll();
    void dropsRequestsWithoutAConnection();
    void settlesFor200Milliseconds();
    void keepsTheRhythmOverReconnections_data();
    void keepsTheRhythmOverReconnections();
    void triesUntilTheServiceIsThere();
    void makesOneAttemptForOneLoss_data();
    void makesOneAttemptForOneLoss();
    void pollsOnceAfterAResetWhileSettling();
    void keepsThePlaceOfAPollThatCouldNotBeSent();
    void comesBackAfterResetsAtTheDoor();
    void recoversFromBadBytes_data();
    void recoversFromBadBytes();
    void waitsBehindAnEmptyFrame();
    void takesWhatIsThereForATooLargeSize();
    void readsTwoFramesOfOneWrite();
    void putsUpWithASplitSizeButNotASplitBody_data();
    void putsUpWithASplitSizeButNotASplitBody();
    void staysWithASilentService();
    void takesANewAddressWhileAnAttemptHangs();
    void movesToANewAddressWhileConnected();
    void endsQuietly_data();
    void endsQuietly();
};

void ConnectionTest::init()
{
    m_service = std::make_unique<ScriptedService>();
    makeLink();
}

void ConnectionTest::cleanup()
{
    m_errors.reset();
    m_link.reset();
    m_service.reset();
}

void ConnectionTest::makeLink()
{
    m_link = std::make_unique<UpsSocketController>();
    m_link->setServerAddress(ScriptedService::testAddress());
    m_errors = std::make_unique<QSignalSpy>(m_link.get(), &UpsSocketController::socketError);
}

void ConnectionTest::connectAndHoldPoll()
{
    QVERIFY(m_service->start());
    m_link->connectToServer();
    QVERIFY(m_service->waitForRequest(configurationPoll));
    timer("pollTimer")->stop();
}

QTimer* ConnectionTest::timer(const char* name) const
{
    const auto timers = m_link->findChildren<QTimer*>(QString::fromLatin1(name));
    for (QTimer* candidate : timers) {
        if (candidate->isActive())
            return candidate;
    }
    return nullptr;
}

int ConnectionTest::activeTimers(const char* name) const
{
    const auto timers = m_link->findChildren<QTimer*>(QString::fromLatin1(name));
    return static_cast<int>(
        std::count_if(timers.cbegin(), timers.cend(), [](QTimer* one) { return one->isActive(); }));
}

void ConnectionTest::opensWithFiveRequestsAndThePoll()
{
    QVERIFY(m_service->start());
    m_link->connectToServer();
    QVERIFY(m_service->waitForRequest(configurationPoll));
    QCOMPARE(m_service->requestNames(), opening + Names{configurationPoll});
    QCOMPARE(activeTimers("pollTimer"), 1);
    QCOMPARE(timer("pollTimer")->interval(), 1000);
    QCOMPARE(activeTimers("reconnectTimer"), 0);

    m_service->clearRequests();
    timer("pollTimer")->setInterval(5);
    QVERIFY(m_service->waitForRequest(configurationPoll, 2));
    QCOMPARE(m_service->requestNames().mid(0, 10),
             (Names{statusPoll, statePoll, statusPoll, statePoll, configurationPoll, statusPoll, statePoll,
                    statusPoll, statePoll, configurationPoll}));
    QCOMPARE(m_errors->count(), 0);
}

void ConnectionTest::dropsRequestsWithoutAConnection()
{
    QVERIFY(m_service->start());
    m_link->getUpsConfiguration();
    m_link->connectToServer();
    m_link->getUpsConfiguration();
    m_link->tryToConnect(); // the posted attempt then finds one under way
    m_link->getApplicationConfiguration();
    m_link->disconectFromHost();
    QVERIFY(m_service->waitForRequest(configurationPoll));
    QCOMPARE(m_service->requestNames(), opening + Names{configurationPoll});
    QCOMPARE(m_errors->count(), 0);
}

void ConnectionTest::settlesFor200Milliseconds()
{
    // The service needs a thread of its own: the link's sleeps through the interval.
    QTcpServer server;
    QVERIFY(server.listen(QHostAddress(ScriptedService::testAddress()), servicePort));
    server.moveToThread(nullptr);
    QVector<qint64> times; // of each whole request
    std::unique_ptr<QThread> thread(QThread::create([&server, &times] {
        server.moveToThread(QThread::currentThread());
        server.waitForNewConnection(ScriptedService::defaultTimeout);
        const std::unique_ptr<QTcpSocket> connection(server.nextPendingConnection());
        QElapsedTimer clock;
        clock.start();
        while (connection && times.size() <= opening.size()) {
            const int size =
                Utils::getMessegaSize(connection->peek(Utils::frameHeaderSize) + QByteArray(4, '\0'));
            if (connection->bytesAvailable() > Utils::frameHeaderSize + size - 1 && size > 0) {
                connection->read(Utils::frameHeaderSize + size);
                times.append(clock.elapsed());
            } else if (!connection->waitForReadyRead(ScriptedService::defaultTimeout)) {
                break;
            }
        }
        server.close();
    }));
    thread->start();
    m_link->connectToServer();
    QTRY_VERIFY(thread->isFinished());
    QCOMPARE(times.size(), opening.size() + 1);
    const qint64 lastOpening = times.at(opening.size() - 1);
    QVERIFY2(lastOpening < 190, "the opening requests leave before the sleep");
    QVERIFY(times.constLast() - lastOpening >= 190);
}

void ConnectionTest::keepsTheRhythmOverReconnections_data()
{
    QTest::addColumn<int>("ticks");
    QTest::addColumn<Names>("next");
    QTest::newRow("after the configuration") << 0 << Names{statusPoll, statePoll};
    QTest::newRow("after one state") << 1 << Names{statusPoll, statePoll};
    QTest::newRow("after two states") << 2 << Names{configurationPoll};
    QTest::newRow("after the next configuration") << 3 << Names{statusPoll, statePoll};
}

void ConnectionTest::keepsTheRhythmOverReconnections()
{
    QFETCH(int, ticks);
    QFETCH(Names, next);
    connectAndHoldPoll();
    for (int i = 0; i < ticks; ++i)
        m_link->getUpsDeviceData();
    m_service->clearRequests();
    m_service->closeConnection();
    QVERIFY(m_service->waitForRequest(next.constLast()));
    QCOMPARE(m_service->requestNames().mid(0, 5 + next.size()), opening + next);
}

void ConnectionTest::triesUntilTheServiceIsThere()
{
    m_link->disconnected();
    QCOMPARE(activeTimers("reconnectTimer"), 0); // only the end of a link that stood starts attempts
    m_link->error(QAbstractSocket::NetworkError);
    QCOMPARE(activeTimers("reconnectTimer"), 1); // or any error
    m_link->connectToServer();
    QTRY_COMPARE(m_errors->count(), 2);
    QCOMPARE(activeTimers("reconnectTimer"), 1);
    QCOMPARE(timer("reconnectTimer")->interval(), 5000);
    timer("reconnectTimer")->setInterval(5);
    QTRY_VERIFY(m_errors->count() >= 4);
    QCOMPARE(activeTimers("reconnectTimer"), 1);

    QVERIFY(m_service->start());
    QVERIFY(m_service->waitForRequest(configurationPoll));
    QCOMPARE(activeTimers("reconnectTimer"), 0);

    m_service->stop();
    QTRY_COMPARE(activeTimers("pollTimer"), 0);
    QTRY_COMPARE(activeTimers("reconnectTimer"), 1);
    m_service->clearRequests();
    QVERIFY(m_service->start());
    timer("reconnectTimer")->setInterval(5);
    QVERIFY(m_service->waitForRequest(statePoll));
}

void ConnectionTest::makesOneAttemptForOneLoss_data()
{
    QTest::addColumn<bool>("reset");
    QTest::newRow("closed by the service") << false;
    QTest::newRow("reset by the service") << true;
}

void ConnectionTest::makesOneAttemptForOneLoss()
{
    QFETCH(bool, reset);
    connectAndHoldPoll();
    m_service->clearRequests();
    if (reset)
        m_service->resetConnection();
    else
        m_service->closeConnection();
    QVERIFY(m_service->waitForRequest(statePoll));
    QCOMPARE(m_service->requestNames(), opening + (Names{statusPoll, statePoll}));
    // A second attempt would meet the first one and be an error of its own.
    QCOMPARE(m_errors->count(), 1);
    QCOMPARE(m_service->connectionCount(), 2);
    QCOMPARE(activeTimers("pollTimer"), 1);
    QCOMPARE(activeTimers("reconnectTimer"), 0);
}

void ConnectionTest::pollsOnceAfterAResetWhileSettling()
{
    QVERIFY(m_service->start());
    m_service->resetNextConnections(1);
    m_service->holdConnections();
    // The peer is gone before the opening requests are written.
    connect(m_link.get(), &UpsSocketController::upsConnected, m_service.get(), [this] {
        if (m_service->connectionCount() == 0)
            m_service->acceptPending();
    });
    m_link->connectToServer();
    QVERIFY(m_service->waitForConnections(2));
    QVERIFY(m_service->waitForRequest(configurationPoll));
    QCOMPARE(m_service->requestNames(), opening + Names{configurationPoll});
    QCOMPARE(activeTimers("pollTimer"), 1);
    QCOMPARE(activeTimers("reconnectTimer"), 0);
}

void ConnectionTest::keepsThePlaceOfAPollThatCouldNotBeSent()
{
    QVERIFY(m_service->start());
    // Posted before the first poll is, so that the link is down when that runs.
    int connections = 0;
    connect(
        m_link.get(), &UpsSocketController::upsConnected, m_service.get(),
        [this, &connections] {
            if (++connections == 1)
                m_link->disconectFromHost();
        },
        Qt::QueuedConnection);
    m_link->connectToServer();
    QVERIFY(m_service->waitForConnections(2));
    QVERIFY(m_service->waitForRequest(configurationPoll));
    QCOMPARE(m_service->requestNames(), opening + opening + Names{configurationPoll});
}

void ConnectionTest::comesBackAfterResetsAtTheDoor()
{
    QVERIFY(m_service->start());
    m_service->resetNextConnections(3);
    m_link->connectToServer();
    // Whether the reset is a failed attempt or a loss is a matter of microseconds.
    connect(m_link.get(), &UpsSocketController::socketError, m_link.get(), [this] {
        QTimer::singleShot(0, m_link.get(), [this] {
            if (QTimer* reconnect = timer("reconnectTimer"))
                reconnect->setInterval(50);
        });
    });
    QVERIFY(m_service->waitForRequest(configurationPoll));
    QVERIFY(m_service->connectionCount() >= 4);
    QCOMPARE(m_service->requestNames(), opening + Names{configurationPoll});
    QCOMPARE(activeTimers("pollTimer"), 1);
}

void ConnectionTest::recoversFromBadBytes_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const QByteArray whole = ScriptedService::frame("<service_version>1</service_version>");
    const auto announcing = [](quint32 size) {
        QByteArray header = QByteArray::fromHex("00000000");
        for (int i = 0; i < 4; ++i)
            header[i] = static_cast<char>(size >> (24 - 8 * i));
        return QByteArray(header + "some bytes");
    };
    QTest::newRow("text of another protocol") << QByteArray("GET / HTTP/1.1\r\n\r\n");
    QTest::newRow("noise and a good frame behind it") << QByteArray(64 * 1024, '\xA5') + whole;
    QTest::newRow("a body of one byte") << QByteArray::fromHex("0000000103");
    QTest::newRow("2 GiB announced") << announcing(0x7fffffff);
    QTest::newRow("a negative size") << announcing(0xffffffff);
    QTest::newRow("the most negative size") << announcing(0x80000000);
    QTest::newRow("one byte less than is there")
        << QByteArray(QByteArray(whole).replace(3, 1, QByteArray(1, static_cast<char>(whole.at(3) - 1))));
    QTest::newRow("a genuine frame of no document") << ScriptedService::frame("garbage") + whole;
}

void ConnectionTest::recoversFromBadBytes()
{
    QFETCH(QByteArray, bytes);
    connectAndHoldPoll();
    QSignalSpy versions(m_link.get(), &UpsSocketController::serviceVersionReceived);
    m_service->clearRequests();
    const Tests::AddressSpaceWatch memory;
    m_service->sendRaw(bytes);
    QVERIFY(m_service->waitForRequest(statePoll));
    QCOMPARE(m_service->requestNames(), opening + (Names{statusPoll, statePoll}));
    QCOMPARE(m_service->connectionCount(), 2);
    QVERIFY2(memory.grown() < 100, qPrintable(QString::number(memory.grown())));
    QCOMPARE(versions.count(), 0);

    m_service->send("<service_version>2</service_version>");
    QTRY_COMPARE(versions.count(), 1);
}

void ConnectionTest::waitsBehindAnEmptyFrame()
{
    connectAndHoldPoll();
    QSignalSpy versions(m_link.get(), &UpsSocketController::serviceVersionReceived);
    m_service->sendFrame({}, 0);
    m_link->getUpsDeviceData();
    QVERIFY(m_service->waitForRequest(statePoll));
    QCOMPARE(m_service->connectionCount(), 1);
    m_service->clearRequests();
    m_service->send("<service_version>1</service_version>");
    QVERIFY(m_service->waitForRequest("get_ups_model_list"));
    QCOMPARE(versions.count(), 0);
}

void ConnectionTest::takesWhatIsThereForATooLargeSize()
{
    connectAndHoldPoll();
    QSignalSpy versions(m_link.get(), &UpsSocketController::serviceVersionReceived);
    const QByteArray blob = encrypt("<service_version>1</service_version>");
    m_service->sendFrame(blob, static_cast<quint32>(blob.size()) + 1);
    QTRY_COMPARE(versions.count(), 1);
    QCOMPARE(m_service->connectionCount(), 1);
}

void ConnectionTest::readsTwoFramesOfOneWrite()
{
    connectAndHoldPoll();
    QStringList order;
    connect(m_link.get(), &UpsSocketController::showMessage, this,
            [&order] { order += QStringLiteral("message"); });
    connect(m_link.get(), &UpsSocketController::serviceVersionReceived, this,
            [&order] { order += QStringLiteral("version"); });
    m_service->sendTogether({"<show_message><message>a</message></show_message>",
                             "<service_version>1</service_version>", "<show_message/>"});
    QTRY_COMPARE(order, (QStringList{QStringLiteral("message"), QStringLiteral("version"),
                                     QStringLiteral("message")}));
    QCOMPARE(m_service->connectionCount(), 1);
}

void ConnectionTest::putsUpWithASplitSizeButNotASplitBody_data()
{
    QTest::addColumn<int>("at");
    QTest::addColumn<bool>("aborts");
    QTest::newRow("within the size") << 2 << false;
    QTest::newRow("behind the size") << 4 << false;
    QTest::newRow("behind the first byte of the body") << 5 << true;
    QTest::newRow("within the body") << 20 << true;
}

void ConnectionTest::putsUpWithASplitSizeButNotASplitBody()
{
    QFETCH(int, at);
    QFETCH(bool, aborts);
    connectAndHoldPoll();
    QSignalSpy versions(m_link.get(), &UpsSocketController::serviceVersionReceived);
    m_service->clearRequests();
    QTimer poll;
    connect(&poll, &QTimer::timeout, m_link.get(), &UpsSocketController::getUpsConfiguration);
    poll.start(20);
    QVERIFY(m_service->sendSplit("<service_version>1</service_version>", at));
    if (aborts) {
        QVERIFY(m_service->waitForRequest("get_ups_model_list"));
        QCOMPARE(versions.count(), 0);
        m_service->send("<service_version>2</service_version>");
    }
    QTRY_COMPARE(versions.count(), 1);
    QCOMPARE(m_service->connectionCount(), aborts ? 2 : 1);
}

void ConnectionTest::staysWithASilentService()
{
    m_service->setSilent(true);
    QVERIFY(m_service->start());
    m_link->connectToServer();
    QVERIFY(m_service->waitForRequest(configurationPoll));
    timer("pollTimer")->setInterval(2);
    QVERIFY(m_service->waitForRequest(configurationPoll, 20));
    QCOMPARE(m_service->connectionCount(), 1);
    QCOMPARE(m_errors->count(), 0);
}

void ConnectionTest::takesANewAddressWhileAnAttemptHangs()
{
    const Tests::FullListener nobody(pendingAddress, servicePort);
    QVERIFY(nobody.listens());
    QTcpSocket probe;
    probe.connectToHost(QLatin1String(pendingAddress), servicePort);
    QVERIFY2(!probe.waitForConnected(50), "the queue of the listener is not full");
    QCOMPARE(probe.error(), QAbstractSocket::SocketTimeoutError);

    QVERIFY(m_service->start());
    m_link->setServerAddress(QLatin1String(pendingAddress));
    m_link->connectToServer();
    m_link->tryToConnect();
    QVERIFY(timer("reconnectTimer"));

    m_link->setServerAddress(ScriptedService::testAddress());
    m_link->disconectFromHost();
    m_link->connectToServer();
    timer("reconnectTimer")->setInterval(5);
    QVERIFY(m_service->waitForRequest(configurationPoll));
    QCOMPARE(m_service->requestNames(), opening + Names{configurationPoll});
    QCOMPARE(m_errors->count(), 0);
}

void ConnectionTest::movesToANewAddressWhileConnected()
{
    connectAndHoldPoll();
    m_service->clearRequests();
    m_link->setServerAddress(QStringLiteral("localhost.invalid"));
    m_link->setServerAddress(ScriptedService::testAddress());
    m_link->disconectFromHost();
    m_link->connectToServer();
    QVERIFY(m_service->waitForRequest(statePoll));
    QCOMPARE(m_service->connectionCount(), 2);
    QCOMPARE(m_errors->count(), 0);
}

void ConnectionTest::endsQuietly_data()
{
    QTest::addColumn<int>("phase");
    QTest::newRow("before any attempt") << 0;
    QTest::newRow("with an attempt posted") << 1;
    QTest::newRow("with an attempt under way") << 2;
    QTest::newRow("connected") << 3;
}

void ConnectionTest::endsQuietly()
{
    QFETCH(int, phase);
    if (phase == 3) {
        connectAndHoldPoll();
    } else {
        QVERIFY(m_service->start());
        if (phase >= 1)
            m_link->connectToServer();
        if (phase >= 2)
            m_link->tryToConnect();
    }
    const int errors = m_errors->count();
    m_link.reset();
    QTRY_VERIFY(!m_service->isConnected());
    QCOMPARE(m_errors->count(), errors);

    // What the old link left behind would reach the service before this one.
    m_service->clearRequests();
    makeLink();
    m_link->connectToServer();
    QVERIFY(m_service->waitForRequest(configurationPoll));
    QCOMPARE(m_service->requestNames(), opening + Names{configurationPoll});
}

QTEST_GUILESS_MAIN(ConnectionTest)
#include "ConnectionTest.moc"
