// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>

#include <memory>

class VelmoraWindow;

namespace Velmora {
class UpsSocketController;
}

namespace Velmora::Bench {

/// The bytes of one message as they arrive.
[[nodiscard]] QByteArray frameOf(const QByteArray& message);

/// The panel's main window without a service: what one would send is given to the window's link by hand, and
/// what the window asks for goes nowhere.
class PolledWindow final
{
    Q_DISABLE_COPY_MOVE(PolledWindow)

public:
    /// What changed on screen: paint events of any widget, and rows of the tree added, removed or changed.
    struct Disturbance
    {
        int paints = 0;
        int rows = 0;
    };

    /// Ends the program with status 2 if a service stands where none should.
    PolledWindow();
    ~PolledWindow();

    /// Dispatches the frames and paints what they change.
    void take(QByteArray frames);
    /// Takes a list of devices, their states and a report of the first one, which is selected.
    void showDevices(int count);
    /// Takes all that the poll asks for in three seconds, the same again in each round. Ends the program if a
    /// report that differs then is not painted.
    [[nodiscard]] Disturbance pollUnchanged(int count, int rounds);

private:
    std::unique_ptr<VelmoraWindow> m_window;
    UpsSocketController* m_link = nullptr;
};

} // namespace Velmora::Bench
