// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "service/logs/LogBook.h"
#include "service/wire/Replies.h"

#include <QTest>

using namespace Velmora::Service;

namespace {

constexpr qint64 noLimit = 1 << 30;

void append(LogBook& book, int first, int end, qint64 limit = noLimit)
{
    for (int i = first; i < end; ++i)
        book.append(QString::number(i), limit);
}

// First and last line of a page.
QByteArray page(LogAge age, const LogBook& book, LogPosition& position)
{
    const QStringList lines = book.page(age, position);
    return lines.isEmpty() ? QByteArray() : QString(lines.first() + u'-' + lines.last()).toLatin1();
}

} // namespace

class LogBookTest final : public QObject
{
    Q_OBJECT

private slots:
    void pagesKeepTheirPlaceWhileTheLogGrowsAndIsCut();
    void pageFitsIntoAFrame();
};

void LogBookTest::pagesKeepTheirPlaceWhileTheLogGrowsAndIsCut()
{
    LogBook book;
    LogPosition position;
    QCOMPARE(page(LogAge::Older, book, position), QByteArray());
    append(book, 0, 250);
    QCOMPARE(page(LogAge::First, book, position), QByteArray("150-249"));
    QCOMPARE(page(LogAge::Newer, book, position), QByteArray("150-249"));
    QCOMPARE(page(LogAge::Older, book, position), QByteArray("50-149"));
    QCOMPARE(page(LogAge::Older, book, position), QByteArray("0-49"));
    // Beyond the oldest the first lines come again, now as many as a page holds.
    QCOMPARE(page(LogAge::Older, book, position), QByteArray("0-99"));
    append(book, 250, 350);
    QCOMPARE(page(LogAge::Newer, book, position), QByteArray("100-199"));
    QCOMPARE(page(LogAge::Newer, book, position), QByteArray("200-299"));
    QCOMPARE(page(LogAge::Newer, book, position), QByteArray("300-349"));
    // Space for 150 lines of three digits and a line feed: where the reader stood is gone.
    append(book, 350, 600, 600);
    QCOMPARE(page(LogAge::Newer, book, position), QByteArray("450-549"));
    book.setHeader(QStringLiteral("header"));
    QCOMPARE(page(LogAge::Newer, book, position), QByteArray("header-599"));
}

void LogBookTest::pageFitsIntoAFrame()
{
    LogBook book;
    book.setHeader(QStringLiteral("<").repeated(400));
    // Text that hardly shrinks when compressed.
    for (uint i = 0; i < 400; ++i) {
        QString line;
        for (uint k = 0; k < 1500; ++k)
            line += QChar((qHash(i * 7919 + k) & 4) != 0 ? '<' : 0x4E00 + (qHash(k, i) & 0x3FF));
        book.append(line, noLimit);
    }
    LogPosition position;
    for (const LogAge which : {LogAge::First, LogAge::Older, LogAge::Newer}) {
        const QStringList page = book.page(which, position);
        QVERIFY(page.size() > 2);
        QVERIFY(!encodeFrame(logPageReply(page)).isEmpty());
    }
}

QTEST_GUILESS_MAIN(LogBookTest)
#include "LogBookTest.moc"
