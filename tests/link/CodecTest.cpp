// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "link/Cipher.h"
#include "link/Frame.h"
#include "link/LinkKeys.h"
#include "link/PlainText.h"
#include "link/SimpleCrypt.h"
#include "link/TextHelpers.h"
#include "link/Unpack.h"
#include "support/AddressSpaceWatch.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>
#include <QtEndian>

using namespace Velmora;
using Error = SimpleCrypt::Error;
using Utils::getMessegaSize;
using Utils::prepareMessageSize;

namespace {

QJsonArray vectors(const char* section)
{
    QFile file(QStringLiteral(VELMORA_TEST_DATA "/frames.json"));
    if (!file.open(QIODevice::ReadOnly))
        qFatal("no frames.json");
    return QJsonDocument::fromJson(file.readAll()).object().value(QLatin1String(section)).toArray();
}

QByteArray hex(const QJsonObject& vector, const char* field)
{
    return QByteArray::fromHex(vector.value(QLatin1String(field)).toString().toLatin1());
}

QByteArray rowName(const QJsonObject& vector)
{
    return vector.value(QLatin1String("name")).toString().toUtf8();
}

// The address sanitizer keeps what was freed for a while, so that a buffer that grows counts twice.
#ifdef __SANITIZE_ADDRESS__
constexpr qint64 freedMemoryFactor = 2;
#else
constexpr qint64 freedMemoryFactor = 1;
#endif

// A genuine blob around a payload that is only said to be compressed.
QByteArray blobOfPacked(const QByteArray& payload)
{
    SimpleCrypt crypt(messageKey);
    crypt.compressionMode = SimpleCrypt::CompressionMode::Never;
    QByteArray blob = crypt.encryptToByteArray(payload);
    blob[1] = static_cast<char>(blob.at(1) | 0x01);
    return blob;
}

// `size` times 'x', packed behind an announced size of any value.
QByteArray packed(int size, quint32 announced)
{
    QByteArray bytes = qCompress(QByteArray(size, 'x'), 9);
    qToBigEndian(announced, bytes.data());
    return bytes;
}

} // namespace

class CodecTest final : public QObject
{
    Q_OBJECT

private slots:
    void readsAndWritesTheVectors_data();
    void readsAndWritesTheVectors();
    void refusesBrokenBlobs_data();
    void refusesBrokenBlobs();
    void keepsThePlainFormOnATie();
    void cutsAtNulAndMendsBadText();
    void tellsPlainTextFromTheRest();
    void carriesPasswords();
    void unpacksWithinBounds_data();
    void unpacksWithinBounds();
};

void CodecTest::readsAndWritesTheVectors_data()
{
    QTest::addColumn<QJsonObject>("vector");
    const QJsonArray good = vectors("good");
    QVERIFY(good.size() >= 11);
    for (const auto& vector : good)
        QTest::newRow(rowName(vector.toObject()).constData()) << vector.toObject();
}

void CodecTest::readsAndWritesTheVectors()
{
    QFETCH(QJsonObject, vector);
    const auto key = vector.value(QLatin1String("key")).toString().toULongLong(nullptr, 16);
    const QByteArray payload = hex(vector, "payload_utf8_hex");
    const QByteArray blob = hex(vector, "blob_hex");
    const QByteArray frame = hex(vector, "frame_hex");
    QCOMPARE(getMessegaSize(frame.left(4)), blob.size());
    QCOMPARE(prepareMessageSize(blob) + blob, frame);

    SimpleCrypt crypt(key);
    QCOMPARE(crypt.decryptToByteArray(blob), payload);
    QCOMPARE(crypt.lastError(), Error::NoError);
    QCOMPARE(crypt.decryptToString(QString::fromLatin1(blob.toBase64())), QString::fromUtf8(payload));
    if (key == messageKey)
        QCOMPARE(decrypt(blob), QString::fromUtf8(payload));

    const int flags = vector.value(QLatin1String("flags")).toInt();
    if (flags == 6)
        return; // only a foreign writer sets both
    crypt.protectionMode = flags & 2   ? SimpleCrypt::ProtectionMode::Checksum
                           : flags & 4 ? SimpleCrypt::ProtectionMode::Hash
                                       : SimpleCrypt::ProtectionMode::None;
    // All but the random byte, and what follows from it, is as in the vector.
    const QByteArray own = crypt.encryptToByteArray(payload);
    QCOMPARE(own.left(2), blob.left(2));
    QCOMPARE(own.size(), blob.size());
    QCOMPARE(crypt.decryptToByteArray(own), payload);
}

void CodecTest::refusesBrokenBlobs_data()
{
    QTest::addColumn<QByteArray>("blob");
    QTest::addColumn<int>("error");
    const QJsonArray bad = vectors("bad");
    QVERIFY(bad.size() >= 12);
    for (const auto& value : bad) {
        const QJsonObject vector = value.toObject();
        QTest::newRow(rowName(vector).constData())
            << hex(vector, "blob_hex") << vector.value(QLatin1String("last_error")).toInt();
    }
    QTest::newRow("version and checksum flag, nothing behind") << QByteArray::fromHex("0302") << 3;
}

void CodecTest::refusesBrokenBlobs()
{
    QFETCH(QByteArray, blob);
    QFETCH(int, error);
    const Tests::AddressSpaceWatch memory;
    SimpleCrypt crypt(messageKey);
    QCOMPARE(crypt.decryptToByteArray(blob), QByteArray());
    QCOMPARE(static_cast<int>(crypt.lastError()), error);
    QCOMPARE(decrypt(blob), QString());
    QVERIFY(memory.grown() < 4);
}

void CodecTest::keepsThePlainFormOnATie()
{
    // Which text ties depends on the compression library, so one is searched.
    QByteArray tie;
    for (int i = 0; i < 1500 && tie.isEmpty(); ++i) {
        const QByteArray text =
            QByteArray(1 + i / 25, 'a') + QByteArray("bcdefghijklmnopqrstuvwxyz").left(1 + i % 25);
        if (qCompress(text, 9).size() == text.size())
            tie = text;
    }
    QVERIFY(!tie.isEmpty());
    QCOMPARE(encrypt(tie).at(1), '\x02');
    QCOMPARE(encrypt(QByteArray(tie.size() + 1, 'a')).at(1), '\x03');
}

void CodecTest::cutsAtNulAndMendsBadText()
{
    SimpleCrypt crypt(messageKey);
    QCOMPARE(crypt.decryptToByteArray(encrypt(QByteArray("<a/>\0<b/>", 9))), QByteArray("<a/>"));
    QCOMPARE(crypt.decryptToByteArray(encrypt("a\xFF<")), QByteArray("a\uFFFD<"));
}

void CodecTest::tellsPlainTextFromTheRest()
{
    QVERIFY(isPlainText(QByteArray("<a>zażółć gęślą jaźń – 5 €</a>")));
    // Each border of the encoding before and behind each other: what is called plain is unchanged by QString.
    const QByteArray borders = QByteArray::fromHex("00417f808f909fa0bbbfc0c1c2dfe0e1ecedeeeff0f4f5ff");
    int plain = 0;
    for (int i = 0; i < 1 << 20; ++i) {
        QByteArray text("<>....>");
        for (int digit = 0, rest = i; digit < 4; ++digit, rest >>= 5)
            text[2 + digit] = borders.at((rest & 31) % borders.size());
        if (!isPlainText(text))
            continue;
        ++plain;
        QCOMPARE(QString::fromUtf8(text).toUtf8(), text);
    }
    QVERIFY(plain > 0);
}

void CodecTest::carriesPasswords()
{
    const QString password = QStringLiteral("zażółć \"gęślą\" & jaźń");
    const QString text = encryptPass(password);
    QCOMPARE(SimpleCrypt(passwordKey).decryptToString(QByteArray::fromBase64(text.toLatin1())), password);
    QCOMPARE(decryptPass(text), password);

    QCOMPARE(decryptPass(QString::fromLatin1(encrypt("<a/>").toBase64())), QString());
    for (const QString& broken : {QString(), QStringLiteral("no base64: żół"), text.left(9)})
        QCOMPARE(decryptPass(broken), QString());
    // What `printf 'zażółć' | md5sum` says.
    QCOMPARE(Utils::makeMd5(QStringLiteral("zażółć")), QStringLiteral("884c73f2b5319ab2bbda84aacb14ec68"));
}

void CodecTest::unpacksWithinBounds_data()
{
    QTest::addColumn<QByteArray>("payload");
    QTest::addColumn<int>("unpackedSize");
    QTest::addColumn<int>("memoryLimit"); // MiB, besides what the row itself holds
    const int size = 100 * 1024;
    const int limit = maximumUnpackedSize;
    QTest::newRow("no zlib stream") << QByteArray("\0\0\0\5hello", 9) << 0 << 4;
    QTest::newRow("a stream cut short") << packed(size, size).chopped(8) << 0 << 4;
    QTest::newRow("4 GiB announced") << packed(size, 0xffffffff) << 0 << 4;
    QTest::newRow("a lying large announcement reserves no more than the stream can fill")
        << packed(4, limit) << 4 << 4;
    QTest::newRow("a lying small announcement of an honest size") << packed(size, 1) << size << 4;
    QTest::newRow("the largest size that is accepted") << packed(limit, limit) << limit << 80;
    QTest::newRow("a bomb of one byte too many") << packed(limit + 1, limit) << 0 << 80;
}

void CodecTest::unpacksWithinBounds()
{
    QFETCH(QByteArray, payload);
    QFETCH(int, unpackedSize);
    QFETCH(int, memoryLimit);
    SimpleCrypt crypt(messageKey);
    const QByteArray blob = blobOfPacked(payload);
    const Tests::AddressSpaceWatch memory;
    QCOMPARE(crypt.decryptToByteArray(blob).size(), unpackedSize);
    QCOMPARE(crypt.lastError(), Error::NoError);
    QVERIFY2(memory.grown() <= freedMemoryFactor * memoryLimit, qPrintable(QString::number(memory.grown())));
}

QTEST_APPLESS_MAIN(CodecTest)
#include "CodecTest.moc"
