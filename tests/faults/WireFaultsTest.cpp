// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "faults/Messages.h"
#include "support/Feed.h"
#include "support/InProcessService.h"
#include "support/ScriptedService.h"
#include "support/SignalLog.h"

#include <QElapsedTimer>
#include <QLoggingCategory>
#include <QScopeGuard>
#include <QTest>
#include <QXmlStreamReader>

using namespace Velmora;
using namespace Velmora::Tests;

namespace {

// Nothing that fits into a frame may keep either side busy for longer, even under sanitizers.
constexpr qint64 longestMilliseconds = 5000;

int criticalMessages = 0;

void countCriticalMessages(QtMsgType type, const QMessageLogContext& /*context*/, const QString& message)
{
    if (type == QtCriticalMsg && ++criticalMessages < 10)
        QTest::qWarn(qPrintable(message));
}

QStringList names(const QStringList& signalEntries)
{
    QStringList found;
    for (const QString& entry : signalEntries)
        found += entry.section(QLatin1Char('('), 0, 0);
    found.removeDuplicates();
    return found;
}

/// The document with each element below the root in turn left out, doubled, moved to the front, put into
/// itself, filled with a long text and buried deeply.
QVector<QByteArray> elementFaults(const QByteArray& document)
{
    const QString text = QString::fromUtf8(document);
    const int front = text.indexOf(QLatin1Char('>')) + 1;
    const QString deep = QStringLiteral("<deep>").repeated(1000);
    const QString closed = QStringLiteral("</deep>").repeated(1000);
    QVector<QByteArray> faults;
    const auto add = [&faults](const QString& fault) { faults += fault.toUtf8(); };
    QVector<int> begins;
    QXmlStreamReader reader(text);
    while (!reader.atEnd()) {
        const auto token = reader.readNext();
        const int position = static_cast<int>(reader.characterOffset());
        if (token == QXmlStreamReader::StartElement)
            begins.append(text.lastIndexOf(QLatin1Char('<'), position - 1));
        if (token != QXmlStreamReader::EndElement || begins.size() == 1)
            continue;
        const int begin = begins.takeLast();
        const QString element = text.mid(begin, position - begin);
        const QString before = text.left(begin);
        const QString behind = text.mid(position);
        const int inside = element.indexOf(QLatin1Char('>')) + 1;
        add(before + behind);
        add(before + element + element + behind);
        add(text.left(front) + element + before.mid(front) + behind);
        add(before + QString(element).insert(inside, element) + behind);
        add(before + QString(element).insert(inside, QString(20000, QLatin1Char('7'))) + behind);
        add(before + deep + element + closed + behind);
    }
    return faults;
}

} // namespace

/// Every message of either side with every single fault, given to the other side.
class WireFaultsTest final : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanup();
    void panelPutsUpWithFaults_data() { addRows(m_messages); }
    void panelPutsUpWithFaults();
    void serviceToleratesFaults_data() { addRows(m_requests); }
    void serviceToleratesFaults();

private:
    struct Outcome
    {
        bool kept = false; ///< the connection
        QStringList signalEntries;
    };

    static void addRows(const QVector<QByteArray>& documents);
    Outcome give(const QByteArray& frames);
    void checkFrameFaults(const QByteArray& intact, const QStringList& expected);

    QVector<QByteArray> m_messages;
    QVector<QByteArray> m_requests;
    UpsSocketController m_link;
    SignalLog m_log{m_link};
    qint64 m_longest = 0;
};

void WireFaultsTest::initTestCase()
{
    m_messages = serviceMessages();
    m_requests = panelRequests(m_messages);
    QVERIFY(m_messages.size() > 20 && m_requests.size() > 20);
}

void WireFaultsTest::addRows(const QVector<QByteArray>& documents)
{
    QTest::addColumn<QByteArray>("intact");
    for (const QByteArray& document : documents)
        QTest::addRow("%s", document.mid(1, document.indexOf('>') - 1).constData()) << document;
}

void WireFaultsTest::cleanup()
{
    QVERIFY2(m_longest < longestMilliseconds, QByteArray::number(m_longest).constData());
    m_longest = 0;
}

WireFaultsTest::Outcome WireFaultsTest::give(const QByteArray& frames)
{
    QElapsedTimer timer;
    timer.start();
    m_log.clear();
    const bool kept = feed(m_link, frames);
    m_longest = qMax(m_longest, timer.elapsed());
    return {kept, m_log.entries()};
}

void WireFaultsTest::panelPutsUpWithFaults()
{
    QFETCH(QByteArray, intact);
    const QStringList expected = give(frame(intact)).signalEntries;
    QVERIFY(!expected.isEmpty());
    // What is broken behind the root's start tag only ends the message; before it the stream is out of step.
    const int rootEnd = intact.indexOf('>') + 1;
    for (int i = 0; i < intact.size(); ++i) {
        const Outcome cut = give(frame(intact.left(i)));
        QVERIFY2(cut.kept == (i >= rootEnd) && cut.signalEntries.size() <= expected.size(),
                 intact.left(i).constData());
        for (const char bit : {'\x01', '\x80'}) {
            QByteArray flipped = intact;
            flipped[i] = static_cast<char>(flipped.at(i) ^ bit);
            QVERIFY2(give(frame(flipped)).kept || i < rootEnd, flipped.constData());
        }
    }
    for (const QByteArray& fault : elementFaults(intact)) {
        const Outcome outcome = give(frame(fault));
        QVERIFY2(outcome.kept, fault.left(2000).constData());
        QCOMPARE(names(outcome.signalEntries), names(expected));
    }
    checkFrameFaults(intact, expected);
    QCOMPARE(give(frame(intact)).signalEntries, expected);
}

void WireFaultsTest::checkFrameFaults(const QByteArray& intact, const QStringList& expected)
{
    const QByteArray bytes = ScriptedService::frame(intact);
    for (int i = 0; i < bytes.size(); ++i) {
        // With nothing behind the size there is nothing to be read yet.
        const Outcome cut = give(bytes.left(i));
        QVERIFY(cut.signalEntries.isEmpty() && cut.kept == (i <= Utils::frameHeaderSize));
        QByteArray flipped = bytes;
        flipped[i] = static_cast<char>(flipped.at(i) ^ 1);
        const Outcome flip = give(flipped);
        QVERIFY(flip.signalEntries.isEmpty() || flip.signalEntries == expected);
    }
    const Outcome doubled = give(bytes + bytes);
    QVERIFY(doubled.kept);
    QCOMPARE(doubled.signalEntries.size(), 2 * expected.size());
}

void WireFaultsTest::serviceToleratesFaults()
{
    QFETCH(QByteArray, intact);
    QLoggingCategory::setFilterRules(QStringLiteral("*.warning=false\n*.info=false"));
    criticalMessages = 0;
    const QtMessageHandler usual = qInstallMessageHandler(countCriticalMessages);
    const auto restore = qScopeGuard([usual] { qInstallMessageHandler(usual); });

    auto service = std::make_unique<InProcessService>();
    const auto ask = [this, &service](const QByteArray& request) {
        QElapsedTimer timer;
        timer.start();
        const auto replies = service->ask(request);
        m_longest = qMax(m_longest, timer.elapsed());
        for (const QByteArray& reply : replies)
            QVERIFY2(feed(m_link, frame(reply)), reply.left(2000).constData());
    };
    const QByteArray before = service->stored();
    for (int i = 0; i < intact.size(); ++i)
        ask(intact.left(i));
    QCOMPARE(service->stored(), before);
    const auto faults = elementFaults(intact);
    for (QByteArray fault : faults)
        ask(fault.replace(service->pass(), "<pass>0</pass>"));
    QCOMPARE(service->stored(), before);

    for (int i = 0; i < intact.size(); ++i) {
        QByteArray flipped = intact;
        flipped[i] = static_cast<char>(flipped.at(i) ^ 1);
        ask(flipped);
    }
    for (const QByteArray& fault : faults) {
        service = std::make_unique<InProcessService>();
        ask(fault);
        ask(fault);
        ask(intact);
    }
    QCOMPARE(criticalMessages, 0);
    QCOMPARE(service->ask("<get_service_version/>").size(), 1);
}

QTEST_GUILESS_MAIN(WireFaultsTest)
#include "WireFaultsTest.moc"
