// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

#include <functional>

class QDialog;
class QWidget;

/// Looks at the main window and selects devices in it as a user would, by what stands on the screen.
class PanelDriver final
{
public:
    explicit PanelDriver(QWidget* window);

    /// Runs the event loop until `condition` holds. False after `milliseconds` without it.
    [[nodiscard]] static bool waitUntil(const std::function<bool()>& condition, int milliseconds);

    /// Devices in the tree, units of virtual devices included.
    [[nodiscard]] int deviceCount() const;
    /// Selects the first device whose config name starts with `modelName`; false if there is none.
    [[nodiscard]] bool select(const QString& modelName);
    /// Whether the selected device's work mode stands in its field.
    [[nodiscard]] bool showsLiveValues() const;
    /// Texts of all value fields.
    [[nodiscard]] QStringList values() const;
    [[nodiscard]] bool showsLostService() const;
    /// The selected device's row, model, work mode and load, as text.
    [[nodiscard]] QString describe() const;

    /// Triggers the action or button of this object name.
    void trigger(const char* name) const;
    [[nodiscard]] bool canTrigger(const char* button) const;
    /// Asks for a new device, or for a change of the selected one, as the tree's context menu does.
    void requestNewDevice() const;
    void requestChange() const;

    /// Calls `open`, and `use` with the dialog that comes up. Returns when the dialog is closed, which `use`
    /// sees to. False if no dialog came up.
    [[nodiscard]] bool withDialog(const std::function<void()>& open,
                                  const std::function<void(QDialog*)>& use) const;

    /// Writes what the display shows of a window, the main window unless another is given.
    [[nodiscard]] bool save(const QString& path, const QWidget* window = nullptr) const;

private:
    [[nodiscard]] QString fieldText(const char* name) const;

    QWidget* m_window;
};
