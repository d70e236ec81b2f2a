// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include "link/UpsSocketController.h"
#include "monitor/UpsTreeElement.h"
#include "monitor/UpsTreeWidget.h"
#include "monitor/VelmoraWindow.h"
#include "support/ScriptedPrompts.h"
#include "support/ScriptedService.h"

#include <QTimer>

namespace Velmora::Tests {

/// One <ups> of a model list.
[[nodiscard]] QByteArray device(int id, const char* modelName, const char* userName = "",
                                const QVector<int>& unitIds = {});
[[nodiscard]] QByteArray deviceList(const QVector<QByteArray>& devices);
/// `rows`: id and status; a status that ends in "*" is that of a group's leader.
[[nodiscard]] QByteArray statusList(const QVector<QPair<int, QByteArray>>& rows);
/// A state report with these elements between its tags.
[[nodiscard]] QByteArray stateReport(const QByteArray& values, bool found = true);

/// The main window on a scripted service. The link's poll is stopped once the window stands, so that the
/// service sees only what the window asks for by itself.
class WindowFixture final
{
public:
    WindowFixture();
    ~WindowFixture();
    Q_DISABLE_COPY_MOVE(WindowFixture)

    /// Opens the window on a service with these devices and waits until it has taken them in. The first
    /// device has reported once, so that no watchdog runs.
    [[nodiscard]] bool open(const QByteArray& devices);
    /// True once everything that either side sent has reached the other.
    [[nodiscard]] bool settle();
    /// send() and settle().
    [[nodiscard]] bool send(const QByteArray& document);

    template <typename T = QObject>
    [[nodiscard]] T* find(const char* name) const
    {
        return window->findChild<T*>(QLatin1String(name));
    }
    [[nodiscard]] QTimer* timer(const char* name) const { return find<QTimer>(name); }
    [[nodiscard]] UpsTreeWidget* tree() const { return find<UpsTreeWidget>("upsTree"); }
    [[nodiscard]] UpsSocketController* link() const { return window->findChild<UpsSocketController*>(); }
    /// The row with this text, null if there is none.
    [[nodiscard]] UpsTreeElement* row(const QString& text) const;
    /// Whether the row shows the indicator with this name.
    [[nodiscard]] bool rowShows(const UpsTreeElement* row, const char* indicator) const;
    /// What a reader sees in a control: "-" for a hidden one; a bar as "text [filled]"; "?" behind a value
    /// with its help button.
    [[nodiscard]] QString shown(const char* name) const;
    /// An action of the tray menu by its text.
    [[nodiscard]] static QAction* trayAction(const QString& text);

    ScriptedService service;
    ScriptedPrompts& prompts;
    std::unique_ptr<VelmoraWindow> window;
};

} // namespace Velmora::Tests
