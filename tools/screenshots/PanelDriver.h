// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

#include <functional>

class QDialog;
class QMainWindow;
class QObject;
class QWidget;

/// Looks at the main window and selects devices in it as a user would, by what stands on the screen.
class PanelDriver final
{
public:
    explicit PanelDriver(QMainWindow* window);

    [[nodiscard]] QMainWindow* window() const { return m_window; }

    /// Runs the event loop until `condition` holds. False after `milliseconds` without it.
    [[nodiscard]] static bool waitUntil(const std::function<bool()>& condition, int milliseconds);

    /// Devices in the tree, units of virtual devices included.
    [[nodiscard]] int deviceCount() const;
    /// Selects the first device whose config name starts with `modelName`, unless such a one is selected, and
    /// waits for its values; false if there is none.
    [[nodiscard]] bool showDevice(const QString& modelName) const;
    /// Whether the selected device's work mode stands in its field.
    [[nodiscard]] bool showsLiveValues() const;
    /// Texts of all value fields.
    [[nodiscard]] QStringList values() const;
    [[nodiscard]] bool showsLostService() const;
    /// The selected device's row, model, work mode and load, as text.
    [[nodiscard]] QString describe() const;

    // A step names an object in a window, the main one if that is null:
    //   NAME         clicks a button or box, triggers an action, selects the last row of a tree
    //   NAME=VALUE   enters a value, in which an underscore stands for a space
    //   NAME.SLOT    calls a slot or emits a signal
    //   NAME?        only waits

    /// Waits until the object of a step is there, enabled and, if it shows rows or text, filled. False, with
    /// the reason on standard error, if it does not become so in time.
    [[nodiscard]] bool await(const QString& step, const QWidget* window) const;
    void act(const QString& step, const QWidget* window) const;
    /// Takes steps in their order, each once it can be taken.
    [[nodiscard]] bool take(const QStringList& steps, const QWidget* window) const;

    /// Calls `open`, and `use` with the dialog that comes up. Returns when the dialog is closed, which `use`
    /// sees to. False if no dialog came up.
    [[nodiscard]] bool withDialog(const std::function<void()>& open,
                                  const std::function<void(QDialog*)>& use) const;

    /// Writes what the display shows of a window, the main window unless another is given.
    [[nodiscard]] bool save(const QString& path, const QWidget* window = nullptr) const;

private:
    [[nodiscard]] QString fieldText(const char* name) const;
    [[nodiscard]] QObject* objectOf(const QString& step, const QWidget* window) const;

    QMainWindow* m_window;
};
