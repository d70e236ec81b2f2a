// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "service/logs/LogBook.h"
#include "service/wire/Replies.h"

#include <QTest>

using namespace Velmora::Service;

namespace {

constexpr qint64 noLimit = 1 << 30;

LogBook bookOf(int lines)
{
    LogBook book;
    for (int i = 0; i < lines; ++i)
        book.append(QString::number(i), noLimit);
    return book;
}

// First and last line of a page.
QString ends(const QStringList& page)
{
    return page.isEmpty() ? QString() : QString(page.first() + QLatin1Char('-') + page.last());
}

LogAge age(QChar letter)
{
    if (letter == QLatin1Char('o'))
        return LogAge::Older;
    return letter == QLatin1Char('n') ? LogAge::Newer : LogAge::First;
}

} // namespace

class LogBookTest final : public QObject
{
    Q_OBJECT

private slots:
    void pagesFollowEachOther_data();
    void pagesFollowEachOther();
    void pageKeepsItsPlaceWhileTheLogGrows();
    void pageBehindTheCutGoesOnAtTheOldestLine();
    void limitDropsTheOldestLines();
    void pageFitsIntoAFrame_data();
    void pageFitsIntoAFrame();
};

void LogBookTest::pagesFollowEachOther_data()
{
    QTest::addColumn<int>("lines");
    QTest::addColumn<QString>("asked"); // f first, o older, n newer
    QTest::addColumn<QString>("seen");
    QTest::newRow("nothing written") << 0 << "fon"
                                     << "";
    QTest::newRow("less than a page") << 30 << "f"
                                      << "0-29";
    QTest::newRow("the newest page comes first") << 250 << "f"
                                                 << "150-249";
    QTest::newRow("older") << 250 << "fo"
                           << "50-149";
    QTest::newRow("the oldest page is filled up with what follows it") << 250 << "foo"
                                                                       << "0-49";
    QTest::newRow("beyond the oldest the first lines come again") << 250 << "fooo"
                                                                  << "0-99";
    QTest::newRow("newer") << 250 << "foon"
                           << "50-149";
    QTest::newRow("beyond the newest the last page comes again") << 250 << "fonn"
                                                                 << "150-249";
    QTest::newRow("first again") << 250 << "foof"
                                 << "150-249";
}

void LogBookTest::pagesFollowEachOther()
{
    QFETCH(int, lines);
    QFETCH(QString, asked);
    const LogBook book = bookOf(lines);
    LogPosition position;
    QStringList page;
    for (const QChar letter : asked)
        page = book.page(age(letter), position);
    QTEST(ends(page), "seen");
}

void LogBookTest::pageKeepsItsPlaceWhileTheLogGrows()
{
    LogBook book = bookOf(300);
    LogPosition position;
    static_cast<void>(book.page(LogAge::First, position));
    for (int i = 300; i < 350; ++i)
        book.append(QString::number(i), noLimit);
    QCOMPARE(ends(book.page(LogAge::Older, position)), QStringLiteral("100-199"));
    QCOMPARE(ends(book.page(LogAge::Newer, position)), QStringLiteral("200-299"));
    QCOMPARE(ends(book.page(LogAge::Newer, position)), QStringLiteral("300-349"));
}

void LogBookTest::pageBehindTheCutGoesOnAtTheOldestLine()
{
    LogBook book = bookOf(200);
    LogPosition position;
    static_cast<void>(book.page(LogAge::First, position));
    static_cast<void>(book.page(LogAge::Older, position));
    const qint64 limit = 600; // 150 lines of "123" and a line feed
    for (int i = 200; i < 400; ++i)
        book.append(QString::number(i), limit);
    QCOMPARE(ends(book.page(LogAge::Newer, position)), QStringLiteral("250-349"));
}

void LogBookTest::limitDropsTheOldestLines()
{
    LogBook book;
    book.setHeader(QStringLiteral("header"));
    for (int i = 10; i < 40; ++i)
        book.append(QString::number(i), 30);
    LogPosition position;
    QCOMPARE(book.page(LogAge::First, position).mid(0, 2),
             (QStringList{QStringLiteral("header"), QStringLiteral("30")}));
}

void LogBookTest::pageFitsIntoAFrame_data()
{
    QTest::addColumn<QString>("character");
    QTest::newRow("plain lines") << "x";
    QTest::newRow("lines that have to be escaped") << "<";
    QTest::newRow("lines beyond ASCII") << QStringLiteral("ż");
}

void LogBookTest::pageFitsIntoAFrame()
{
    QFETCH(QString, character);
    LogBook book;
    book.setHeader(character.repeated(400));
    // Text that hardly shrinks when compressed.
    for (uint i = 0; i < 400; ++i) {
        QString line;
        for (uint k = 0; k < 1500; ++k)
            line +=
                (qHash(i * 7919 + k) & 4) != 0 ? character : QString(QChar(0x4E00 + (qHash(k, i) & 0x3FF)));
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
