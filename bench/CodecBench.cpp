// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT

// What a message costs the panel beyond the steps that the format makes mandatory: compression at level 9 or
// unpacking, checksum, chain and, for a received message, the walk of the XML reader.

#include "bench/support/BareSteps.h"
#include "bench/support/Costs.h"
#include "bench/support/Table.h"
#include "link/Cipher.h"
#include "link/MessageReader.h"

#include <QRandomGenerator>
#include <QXmlStreamReader>

using namespace Velmora::Bench;

namespace {

constexpr Limit limit{1.10, {}};

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

void measure(Table& table, const char* kind, const QByteArray& text)
{
    const QByteArray blob = Velmora::encrypt(text);
    const Packed packed = pack(text);
    const Costs encode =
        compare([&] { return Velmora::encrypt(text).size(); }, [&] { return bareEncode(text); });
    const auto panelDecode = [&blob] {
        QXmlStreamReader reader = Velmora::readMessageBytes(Velmora::decryptToUtf8(blob));
        return walk(reader);
    };
    const Costs decode = compare(panelDecode, [&] { return bareDecode(packed); });
    const QByteArray size = QByteArray::number(text.size()) + " bytes of " + kind;
    table.add({"encode " + size, "us", encode.panel, encode.floor, limit});
    table.add({"decode " + size, "us", decode.panel, decode.floor, limit});
}

/// The five requests that three seconds of the poll send, by the second.
void measurePoll(Table& table)
{
    const auto request = [](const QByteArray& name) {
        return QByteArray('<' + name + "><pass></pass></" + name + '>');
    };
    const QByteArray states = request("get_ups_current_status_list");
    const QByteArray values = request("get_ups_device_state");
    const std::vector<QByteArray> requests{request("get_ups_configuration"), states, values, states, values};
    const auto panel = [&requests] {
        qint64 bytes = 0;
        for (const QByteArray& text : requests)
            bytes += Velmora::encrypt(text).size();
        return bytes;
    };
    const auto bare = [&requests] {
        qint64 bytes = 0;
        for (const QByteArray& text : requests)
            bytes += bareEncode(text);
        return bytes;
    };
    const Costs costs = compare(panel, bare);
    table.add({"encode the poll's requests, a second of it", "us", costs.panel / 3, costs.floor / 3, limit});
}

} // namespace

int main(int argc, char** argv)
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
    Table table(argc, argv);
    measurePoll(table);
    for (const int size : {100, 10 * 1000, 1000 * 1000}) {
        for (const Kind& kind : kinds)
            measure(table, kind.name, message(kind.root, size, kind.record));
    }
    return table.exitStatus();
}
