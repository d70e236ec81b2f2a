// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QDir>

#include <functional>

class PanelDriver;
class QDialog;
class QWidget;

/// Pictures of the panel in a folder, each told of on standard output.
class Album final
{
public:
    Album(PanelDriver& panel, const QString& folder);

    /// Waits for `condition`, then saves a picture of the main window. False, with the reason on standard
    /// error, if it does not hold within `milliseconds`.
    [[nodiscard]] bool add(const QString& name, const QString& caption,
                           const std::function<bool()>& condition, int milliseconds);

    /// Saves a picture of the dialog that `open` brings up and closes it. `prepare` waits until it shows what
    /// it has to show; false if that does not come.
    [[nodiscard]] bool addDialog(
        const std::function<void()>& open, const QString& name, const QString& caption,
        const std::function<bool(QDialog*)>& prepare = [](QDialog* /*dialog*/) { return true; });

    /// Saves a picture of the menu that `open` pops up and closes it.
    [[nodiscard]] bool addMenu(const std::function<void()>& open, const QString& name,
                               const QString& caption);

private:
    [[nodiscard]] bool save(const QString& name, const QString& caption, const QWidget* window);

    PanelDriver& m_panel;
    QDir m_folder;
};
