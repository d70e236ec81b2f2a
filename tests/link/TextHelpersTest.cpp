// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "link/TextHelpers.h"
#include "link/FreeId.h"
#include "link/Sleep.h"

#include <QElapsedTimer>
#include <QTest>

using namespace Velmora::Utils;

class TextHelpersTest final : public QObject
{
    Q_OBJECT

private slots:
    void escapes_data();
    void escapes();
    void hashesPasswords();
    void findsAFreeId_data();
    void findsAFreeId();
    void sleeps();
};

void TextHelpersTest::escapes_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("escaped");
    QTest::newRow("all five, each once") << QStringLiteral("<a b='c' d=\"e\">&")
                                         << QStringLiteral("&lt;a b=&apos;c&apos; d=&quot;e&quot;&gt;&amp;");
    QTest::newRow("an entity is escaped again")
        << QStringLiteral("&amp;lt;") << QStringLiteral("&amp;amp;lt;");
    QTest::newRow("other letters stay") << QStringLiteral("zażółć\n;") << QStringLiteral("zażółć\n;");
}

void TextHelpersTest::escapes()
{
    QFETCH(QString, text);
    QFETCH(QString, escaped);
    QCOMPARE(&replaceXmlSpecialCharacters(text), &text);
    QCOMPARE(text, escaped);
}

void TextHelpersTest::hashesPasswords()
{
    QCOMPARE(makeMd5(QString()), QStringLiteral("d41d8cd98f00b204e9800998ecf8427e"));
    // The bytes that are hashed are UTF-8: `printf 'zażółć' | md5sum`.
    QCOMPARE(makeMd5(QStringLiteral("zażółć")), QStringLiteral("884c73f2b5319ab2bbda84aacb14ec68"));
}

void TextHelpersTest::findsAFreeId_data()
{
    QTest::addColumn<QVector<int>>("ids");
    QTest::addColumn<int>("free");
    QTest::newRow("the first of all") << QVector<int>{} << 0;
    QTest::newRow("a gap, whatever the order") << QVector<int>{3, 0, 1} << 2;
    QTest::newRow("before the first") << QVector<int>{1, 2} << 0;
    QTest::newRow("behind the last") << QVector<int>{0, 1, 2} << 3;
    QTest::newRow("a duplicate counts as an id of its own") << QVector<int>{0, 0, 1} << 3;
    QTest::newRow("so does a negative one") << QVector<int>{-1, 0} << 2;
}

void TextHelpersTest::findsAFreeId()
{
    QFETCH(QVector<int>, ids);
    QFETCH(int, free);
    QCOMPARE(getFreeId(ids), free);
    QVERIFY(!ids.contains(free));
}

void TextHelpersTest::sleeps()
{
    QElapsedTimer clock;
    clock.start();
    msleep(20);
    QVERIFY(clock.elapsed() >= 20);
}

QTEST_APPLESS_MAIN(TextHelpersTest)
#include "TextHelpersTest.moc"
