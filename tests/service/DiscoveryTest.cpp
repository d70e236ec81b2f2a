// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "link/ServiceEndpoint.h"
#include "service/server/DiscoveryResponder.h"

#include <QSignalSpy>
#include <QTest>

class DiscoveryTest final : public QObject
{
    Q_OBJECT

private slots:
    void servicesShareThePort();
};

void DiscoveryTest::servicesShareThePort()
{
    // Others may broadcast at any time, so nothing is said about probes that must not be heard.
    const QHostAddress addresses[] = {QHostAddress(qEnvironmentVariable("VELMORA_TEST_ADDRESS")),
                                      QHostAddress(QStringLiteral("127.0.0.28"))};
    const auto probe = [](const QHostAddress& to) {
        QUdpSocket().writeDatagram("5", to, Velmora::discoveryPort);
    };
    Velmora::Service::DiscoveryResponder responders[2];
    QSignalSpy heard[] = {{&responders[0], &Velmora::Service::DiscoveryResponder::probeReceived},
                          {&responders[1], &Velmora::Service::DiscoveryResponder::probeReceived}};
    QString reason;
    for (int i = 0; i < 2; ++i)
        QVERIFY2(responders[i].listen(addresses[i], reason), qPrintable(reason));
    for (int i = 0; i < 2; ++i)
        QTRY_VERIFY((probe(addresses[i]), !heard[i].isEmpty()));
    heard[0].clear();
    heard[1].clear();
    QTRY_VERIFY(
        (probe(QHostAddress(QStringLiteral("127.255.255.255"))), !heard[0].isEmpty() && !heard[1].isEmpty()));
}

QTEST_GUILESS_MAIN(DiscoveryTest)
#include "DiscoveryTest.moc"
