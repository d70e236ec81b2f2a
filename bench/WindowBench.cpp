// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT

// What the answers to the poll cost the main window, from the bytes to the last pixel, against reading them
// with the mandatory steps and showing as much in plain controls.

#include "bench/BareControls.h"
#include "bench/PolledWindow.h"
#include "bench/ServedDevices.h"
#include "bench/support/BareSteps.h"
#include "bench/support/Costs.h"
#include "bench/support/PanelApplication.h"
#include "bench/support/Table.h"

using namespace Velmora::Bench;

namespace {

constexpr int polledDevices = 200;
constexpr int unchangedRounds = 100;
constexpr Limit stateLimit{{}, 2};    // milliseconds
constexpr Limit statusesLimit{{}, 5}; // milliseconds
constexpr Limit none{{}, 0};

/// A message that comes in two forms in turn; for one that stays the same both are.
struct Message
{
    Message(const QByteArray& first, const QByteArray& second)
        : frames{frameOf(first), frameOf(second)}
        , packed{pack(first), pack(second)}
    {}

    QByteArray frames[2];
    Packed packed[2];
};

class WindowBench final
{
public:
    explicit WindowBench(Table& table)
        : m_table(table)
    {}

    /// `show` does in the plain controls what the message of its turn does in the window.
    void measure(const QByteArray& name, const Message& message, const std::function<void(int turn)>& show,
                 const Limit& limit = {})
    {
        int panelTurn = 0;
        int bareTurn = 0;
        const auto panel = [&] {
            panelTurn = 1 - panelTurn;
            window.take(message.frames[panelTurn]);
            return panelTurn;
        };
        const auto floor = [&] {
            bareTurn = 1 - bareTurn;
            const qint64 read = bareDecode(message.packed[bareTurn]);
            show(bareTurn);
            return read;
        };
        const Costs costs = compare(panel, floor);
        m_table.add({name, "ms", costs.panel / 1000, costs.floor / 1000, limit});
    }

    void measureUnchangedPolls(int count)
    {
        window.showDevices(count);
        const auto [paints, rows] = window.pollUnchanged(count, unchangedRounds);
        const QByteArray name =
            QByteArray::number(unchangedRounds * 3) + " unchanged polls of " + QByteArray::number(count);
        m_table.add({"paint events in " + name, "", static_cast<double>(paints), {}, none});
        m_table.add({"tree rows touched in " + name, "", static_cast<double>(rows), {}, none});
    }

    PolledWindow window;
    BareControls bare;

private:
    Table& m_table;
};

void measurePolls(WindowBench& bench)
{
    bench.window.showDevices(polledDevices);
    bench.bare.buildTree(polledDevices);
    const auto showValues = [&bench](int turn) { bench.bare.showValues(turn); };
    const auto showStates = [&bench](int turn) { bench.bare.showStates(turn); };
    const auto nothing = [](int /*turn*/) {};
    bench.measure("state report, every value new", {stateMessage(0), stateMessage(1)}, showValues,
                  stateLimit);
    bench.measure("state report, nothing new", {stateMessage(0), stateMessage(0)}, nothing, stateLimit);
    const QByteArray statuses = statusesMessage(polledDevices, 0);
    bench.measure("status list of 200, every state new", {statuses, statusesMessage(polledDevices, 1)},
                  showStates, statusesLimit);
    bench.measure("status list of 200, nothing new", {statuses, statuses}, nothing, statusesLimit);
}

void measureRebuilds(WindowBench& bench)
{
    for (const int count : {10, 200, 2000}) {
        const QByteArray devices = devicesMessage(count);
        bench.measure("tree rebuilt for " + QByteArray::number(count) + " devices", {devices, devices},
                      [&bench, count](int /*turn*/) { bench.bare.buildTree(count); });
    }
}

} // namespace

int main(int argc, char** argv)
{
    const PanelApplication application(argc, argv);
    Table table(argc, argv);
    WindowBench bench(table);
    measurePolls(bench);
    measureRebuilds(bench);
    for (const int count : {1, 20, polledDevices})
        bench.measureUnchangedPolls(count);
    return table.exitStatus();
}
