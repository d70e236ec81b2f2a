// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT

// What a message costs the panel beyond the steps that the format makes mandatory: compression at level 9 or
// unpacking, checksum, chain and, for a received message, the walk of the XML reader. Both sides run in turn
// in one process. Ends with status 1 if one ratio is above the bound.

#include "link/Cipher.h"
#include "link/LinkKeys.h"
#include "link/MessageReader.h"

#include <QByteArray>
#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QString>
#include <QXmlStreamReader>
#include <QtEndian>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <functional>
#include <vector>

namespace {

constexpr double largestRatio = 1.10;
constexpr int keySize = 8;

using Work = std::function<qint64()>;

// Results are summed up and printed, so that no step can be optimised away.
qint64 total = 0;

const char* keyParts()
{
    static const quint64 littleEndian = qToLittleEndian<quint64>(Velmora::messageKey);
    return reinterpret_cast<const char*>(&littleEndian);
}

// The bare steps, each written as plainly as the format states it.

void chain(QByteArray& bytes)
{
    char last = 0;
    const char* key = keyParts();
    char* data = bytes.data();
    for (int pos = 0; pos < bytes.size(); ++pos) {
        last = static_cast<char>(data[pos] ^ key[pos % keySize] ^ last);
        data[pos] = last;
    }
}

void unchain(QByteArray& bytes)
{
    char last = 0;
    const char* key = keyParts();
    char* data = bytes.data();
    for (int pos = 0; pos < bytes.size(); ++pos) {
        const char enciphered = data[pos];
        data[pos] = static_cast<char>(enciphered ^ key[pos % keySize] ^ last);
        last = enciphered;
    }
}

qint64 walk(QXmlStreamReader& reader)
{
    qint64 tokens = 0;
    while (!reader.atEnd()) {
        reader.readNext();
        tokens += reader.name().size() + reader.text().size();
    }
    return tokens;
}

qint64 bareEncode(const QByteArray& message)
{
    QByteArray packed = qCompress(message, 9);
    if (packed.size() >= message.size())
        packed = message;
    const quint16 checksum = qChecksum(packed.constData(), static_cast<uint>(packed.size()));
    chain(packed);
    return packed.size() + checksum;
}

struct Packed
{
    QByteArray bytes; ///< the payload as it is carried, chained
    bool compressed = false;
};

Packed pack(const QByteArray& message)
{
    QByteArray packed = qCompress(message, 9);
    const bool compressed = packed.size() < message.size();
    if (!compressed)
        packed = message;
    chain(packed);
    return {packed, compressed};
}

qint64 bareDecode(const Packed& packed)
{
    // The copy stands for the buffer that the socket hands over.
    QByteArray payload = packed.bytes;
    unchain(payload);
    const quint16 checksum = qChecksum(payload.constData(), static_cast<uint>(payload.size()));
    QXmlStreamReader reader(packed.compressed ? qUncompress(payload) : payload);
    return walk(reader) + checksum;
}

qint64 panelDecode(const QByteArray& blob)
{
    QXmlStreamReader reader = Velmora::readMessageBytes(Velmora::decryptToUtf8(blob));
    return walk(reader);
}

// Messages of the kinds that travel, cut to a size at the end of a record.

using Record = std::function<QByteArray(QRandomGenerator&)>;

QByteArray message(const QByteArray& root, int size, const Record& record)
{
    QRandomGenerator random(1); // the same message on every run
    QByteArray xml = '<' + root + '>';
    while (xml.size() + 2 * root.size() < size)
        xml += record(random);
    return xml + "</" + root + '>';
}

QByteArray stateValue(QRandomGenerator& random)
{
    static const std::vector<QByteArray> keys{"input_voltage", "output_voltage", "load",
                                              "temperature",   "battery_charge", "frequency"};
    const QByteArray& key = keys.at(random.bounded(static_cast<quint32>(keys.size())));
    return '<' + key + '>' + QByteArray::number(random.bounded(4000) / 10.0) + "</" + key + '>';
}

QByteArray logLine(QRandomGenerator& random)
{
    QByteArray line = "<log_1>2026-03-1" + QByteArray::number(random.bounded(10)) + " 12:";
    line += QByteArray::number(10 + random.bounded(50)) + ':' + QByteArray::number(10 + random.bounded(50));
    for (int column = 0; column < 12; ++column)
        line += ';' + QByteArray::number(random.bounded(4000) / 10.0);
    return line + "</log_1>";
}

// Base64 of noise: six bits of every eight are information.
QByteArray randomText(QRandomGenerator& random)
{
    QByteArray noise(90, Qt::Uninitialized);
    for (char& byte : noise)
        byte = static_cast<char>(random.bounded(256));
    return "<log_1>" + noise.toBase64() + "</log_1>";
}

QByteArray polishText(QRandomGenerator& random)
{
    static const std::vector<QByteArray> words{"zażółć",       "zasilanie", "akumulator",
                                               "przeciążenie", "łączność",  "wyjście"};
    const auto pick = [&random] { return words.at(random.bounded(static_cast<quint32>(words.size()))); };
    return "<message>" + pick() + ' ' + pick() + "</message>";
}

struct Costs
{
    double panel = 0; ///< microseconds a message
    double bare = 0;
};

double timeOf(const Work& work, int repeats)
{
    QElapsedTimer clock;
    clock.start();
    for (int i = 0; i < repeats; ++i)
        total += work();
    return static_cast<double>(clock.nsecsElapsed()) / 1000 / repeats;
}

// Rounds of both sides in turn; the least of each is what the machine can do when nothing disturbs it.
Costs compare(const Work& panel, const Work& bare)
{
    constexpr double roundLength = 2000;    // microseconds
    constexpr double wholeLength = 2000000; // of one side
    constexpr double fewestRounds = 20;
    const double once = std::max(timeOf(bare, 3), 0.1);
    const int repeats = std::max(1, static_cast<int>(roundLength / once));
    const int rounds = static_cast<int>(std::max(fewestRounds, wholeLength / (once * repeats)));
    Costs least{timeOf(panel, repeats), timeOf(bare, repeats)};
    for (int round = 0; round < rounds; ++round) {
        least.panel = std::min(least.panel, timeOf(panel, repeats));
        least.bare = std::min(least.bare, timeOf(bare, repeats));
    }
    return least;
}

bool report(const char* what, const char* kind, int size, const Costs& costs)
{
    const double ratio = costs.panel / costs.bare;
    const bool good = ratio <= largestRatio;
    std::printf("%-6s  %-26s %8d  %12.2f  %12.2f  %6.3f%s\n", what, kind, size, costs.panel, costs.bare,
                ratio, good ? "" : "  above the bound");
    std::fflush(stdout);
    return good;
}

bool run(const char* kind, const QByteArray& text)
{
    const Costs encode =
        compare([&] { return Velmora::encrypt(text).size(); }, [&] { return bareEncode(text); });
    const QByteArray blob = Velmora::encrypt(text);
    const Packed packed = pack(text);
    const Costs decode = compare([&] { return panelDecode(blob); }, [&] { return bareDecode(packed); });
    const bool encodeGood = report("encode", kind, text.size(), encode);
    return report("decode", kind, text.size(), decode) && encodeGood;
}

} // namespace

int main()
{
    struct Kind
    {
        const char* name;
        QByteArray root;
        Record record;
    };
    const std::vector<Kind> kinds{{"device state", "ups_device_state", stateValue},
                                  {"log lines", "ups_logs", logLine},
                                  {"Polish messages", "show_message", polishText},
                                  {"badly compressible text", "ups_logs", randomText}};
    std::printf("%-6s  %-26s %8s  %12s  %12s  %6s\n", "", "message", "bytes", "panel [us]", "bare [us]",
                "ratio");
    bool good = true;
    for (const int size : {100, 10 * 1000, 1000 * 1000}) {
        for (const Kind& kind : kinds)
            good = run(kind.name, message(kind.root, size, kind.record)) && good;
    }
    std::printf("bound %.2f, %s (control sum %lld)\n", largestRatio, good ? "kept" : "BROKEN",
                static_cast<long long>(total));
    return good ? 0 : 1;
}
