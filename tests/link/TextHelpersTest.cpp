// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "link/TextHelpers.h"
#include "link/FreeId.h"

#include <QTest>

using namespace Velmora::Utils;

class TextHelpersTest final : public QObject
{
    Q_OBJECT

private slots:
    void hashesTheUtf8OfAPassword();
    void findsAFreeId();
};

void TextHelpersTest::hashesTheUtf8OfAPassword()
{
    // What `printf 'zażółć' | md5sum` says.
    QCOMPARE(makeMd5(QStringLiteral("zażółć")), QStringLiteral("884c73f2b5319ab2bbda84aacb14ec68"));
}

void TextHelpersTest::findsAFreeId()
{
    QCOMPARE(getFreeId({}), 0);
    QCOMPARE(getFreeId({1, 2}), 0);
    QCOMPARE(getFreeId({3, 0, 1}), 2);
    // A duplicate and a negative one count as ids of their own.
    QCOMPARE(getFreeId({0, 0, 1}), 3);
    QCOMPARE(getFreeId({-1, 0}), 2);
}

QTEST_APPLESS_MAIN(TextHelpersTest)
#include "TextHelpersTest.moc"
