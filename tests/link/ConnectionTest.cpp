// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "link/UpsSocketController.h"
#include "support/AddressSpaceWatch.h"
#include "support/ScriptedService.h"

#include <QEventLoop>
#include <QSignalSpy>
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

} // namespace

class ConnectionTest final : public QObject
{
    Q_OBJECT

    void makeLink();
    // Brings the link up and stops its poll, so that the test decides about every tick.
    void connectAndHoldPoll();
    QVector<QTimer*> activeTimers(const char* name) const;

    std::unique_ptr<ScriptedService> m_service;
    std::unique_ptr<UpsSocketController> m_link;
    std::unique_ptr<QSignalSpy> m_errors;

private slots:
    void init();
    void cleanup();
    void opensWithFiveRequestsAndThePoll();
    void settlesFor200Milliseconds();
    void makesOneAttemptForOneLossAndKeepsTheRhythm();
    void triesUntilTheServiceIsThere();
    void startsAnewAfterALossBeforeTheFirstPoll();
    void recoversFromBadBytes_data();
    void recoversFromBadBytes();
    void putsUpWithASplitSizeButNotASplitBody();
    void takesANewAddressWhileAnAttemptIsUnderWay();
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
    activeTimers("pollTimer").constFirst()->stop();
}

QVector<QTimer*> ConnectionTest::activeTimers(const char* name) const
{
    QVector<QTimer*> active;
    const auto timers = m_link->findChildren<QTimer*>(QString::fromLatin1(name));
    std::copy_if(timers.cbegin(), timers.cend(), std::back_inserter(active),
                 [](QTimer* one) { return one->isActive(); });
    return active;
}

void ConnectionTest::opensWithFiveRequestsAndThePoll()
{
    QVERIFY(m_service->start());
    m_link->getApplicationConfiguration(); // dropped, as there is no connection
    m_link->tryToConnect();
    m_link->getApplicationConfiguration();
    QVERIFY(m_service->waitForRequest(configurationPoll));
    QCOMPARE(m_service->requestNames(), opening + Names{configurationPoll});
    QCOMPARE(activeTimers("pollTimer").constFirst()->interval(), 1000);

    m_service->clearRequests();
    activeTimers("pollTimer").constFirst()->setInterval(5);
    QVERIFY(m_service->waitForRequest(configurationPoll, 2));
    QCOMPARE(m_service->requestNames().mid(0, 10),
             (Names{statusPoll, statePoll, statusPoll, statePoll, configurationPoll, statusPoll, statePoll,
                    statusPoll, statePoll, configurationPoll}));
    QCOMPARE(m_errors->count(), 0);
}

void ConnectionTest::settlesFor200Milliseconds()
{
    // The link needs a thread of its own: it sleeps through the interval.
    qint64 connected = 0;
    const std::unique_ptr<QThread> thread(QThread::create([this, &connected] {
        UpsSocketController link;
        connect(&link, &UpsSocketController::upsConnected, &link, [&] { connected = m_service->now(); });
        link.setServerAddress(ScriptedService::testAddress());
        link.connectToServer();
        QEventLoop().exec();
    }));
    QVERIFY(m_service->start());
    thread->start();
    const bool polled = m_service->waitForRequest(configurationPoll);
    thread->quit();
    QVERIFY(thread->wait() && polled);
    QVERIFY2(m_service->requests().at(opening.size() - 1).time - connected < 200, "opening behind the sleep");
    QVERIFY(m_service->requests().at(opening.size()).time - connected >= 200);
}

void ConnectionTest::makesOneAttemptForOneLossAndKeepsTheRhythm()
{
    const QVector<Names> polls{{statusPoll, statePoll}, {statusPoll, statePoll}, {configurationPoll}};
    connectAndHoldPoll();
    QSignalSpy messages(m_link.get(), &UpsSocketController::showMessage);
    int connections = 1;
    for (const Names& next : polls) {
        m_service->clearRequests();
        m_service->sendRaw(ScriptedService::frame("<show_message/>").left(connections));
        if (connections % 2 == 0)
            m_service->resetConnection();
        else
            m_service->closeConnection();
        QVERIFY(m_service->waitForRequest(next.constLast()));
        QCOMPARE(m_service->requestNames(), opening + next);
        // A second attempt would meet the first one and be an error of its own.
        QCOMPARE(m_errors->count(), connections);
        QCOMPARE(m_service->connectionCount(), ++connections);
        QCOMPARE(activeTimers("pollTimer").size(), 1);
        QCOMPARE(activeTimers("reconnectTimer").size(), 0);
        activeTimers("pollTimer").constFirst()->stop();
        // Nothing is left of a size that was cut short by the loss.
        m_service->send("<show_message/>");
        QTRY_COMPARE(messages.count(), connections - 1);
    }
}

void ConnectionTest::triesUntilTheServiceIsThere()
{
    m_link->disconnected();
    QCOMPARE(activeTimers("reconnectTimer").size(), 0); // only the end of a link that stood starts attempts
    m_link->connectToServer();
    QTRY_COMPARE(m_errors->count(), 1);
    QCOMPARE(activeTimers("reconnectTimer").size(), 1);
    QCOMPARE(activeTimers("reconnectTimer").constFirst()->interval(), 5000);
    activeTimers("reconnectTimer").constFirst()->setInterval(5);
    QTRY_VERIFY(m_errors->count() >= 3);
    QCOMPARE(activeTimers("reconnectTimer").size(), 1);

    QVERIFY(m_service->start());
    QVERIFY(m_service->waitForRequest(configurationPoll));
    QCOMPARE(activeTimers("reconnectTimer").size(), 0);
}

void ConnectionTest::startsAnewAfterALossBeforeTheFirstPoll()
{
    QVERIFY(m_service->start());
    Names expected;
    // First while the opening requests are written, then behind them.
    for (const auto when : {Qt::DirectConnection, Qt::QueuedConnection}) {
        makeLink();
        int connections = 0;
        connect(
            m_link.get(), &UpsSocketController::upsConnected, m_service.get(),
            [this, &connections] {
                if (++connections == 1)
                    m_link->disconectFromHost();
            },
            when);
        m_service->clearRequests();
        m_link->connectToServer();
        QVERIFY(m_service->waitForRequest(configurationPoll));
        QCOMPARE(m_service->requestNames(), expected + opening + Names{configurationPoll});
        QCOMPARE(connections, 2);
        QCOMPARE(activeTimers("pollTimer").size(), 1);
        QCOMPARE(activeTimers("reconnectTimer").size(), 0);
        expected = opening;
    }
}

void ConnectionTest::recoversFromBadBytes_data()
{
    QTest::addColumn<QByteArray>("bytes");
    const QByteArray whole = ScriptedService::frame("<service_version>1</service_version>");
    QTest::newRow("text of another protocol") << QByteArray("GET / HTTP/1.1\r\n\r\n");
    QTest::newRow("noise and a good frame behind it") << QByteArray(64 * 1024, '\xA5') + whole;
    QTest::newRow("2 GiB announced") << QByteArray::fromHex("7fffffff") + "some bytes";
    QTest::newRow("a negative size") << QByteArray::fromHex("ffffffff") + "some bytes";
    QTest::newRow("a genuine frame of an empty document") << ScriptedService::frame({}) + whole;
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

void ConnectionTest::putsUpWithASplitSizeButNotASplitBody()
{
    connectAndHoldPoll();
    QSignalSpy versions(m_link.get(), &UpsSocketController::serviceVersionReceived);
    m_service->clearRequests();
    QTimer poll;
    connect(&poll, &QTimer::timeout, m_link.get(), &UpsSocketController::getUpsConfiguration);
    poll.start(20);
    for (const int at : {2, 4}) {
        QVERIFY(m_service->sendSplit("<service_version>1</service_version>", at));
        QTRY_COMPARE(versions.count(), at / 2);
    }
    QCOMPARE(m_service->connectionCount(), 1);
    QVERIFY(m_service->sendSplit("<service_version>1</service_version>", 5));
    QVERIFY(m_service->waitForConnections(2));
    QCOMPARE(versions.count(), 2);
}

void ConnectionTest::takesANewAddressWhileAnAttemptIsUnderWay()
{
    QVERIFY(m_service->start());
    m_link->setServerAddress(QStringLiteral("localhost"));
    m_link->tryToConnect(); // which looks the name up first
    m_link->setServerAddress(ScriptedService::testAddress());
    m_link->disconectFromHost();
    m_link->connectToServer();
    m_link->connectToServer(); // the one that goes on is enough
    QVERIFY(m_service->waitForRequest(configurationPoll));
    QCOMPARE(m_service->requestNames(), opening + Names{configurationPoll});
    QCOMPARE(m_errors->count(), 0);
}

void ConnectionTest::endsQuietly()
{
    QVERIFY(m_service->start());
    m_link->connectToServer();
    m_link->tryToConnect();
    // First with attempts posted and under way, then connected. What a link left behind would reach the
    // service before the next one.
    for (int run = 0; run < 2; ++run) {
        m_link.reset();
        QTRY_VERIFY(!m_service->isConnected());
        QCOMPARE(m_errors->count(), 0);
        m_service->clearRequests();
        makeLink();
        m_link->connectToServer();
        QVERIFY(m_service->waitForRequest(configurationPoll));
        QCOMPARE(m_service->requestNames(), opening + Names{configurationPoll});
    }
}

QTEST_GUILESS_MAIN(ConnectionTest)
#include "ConnectionTest.moc"
