// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "screenshots/Album.h"

#include "screenshots/PanelDriver.h"

#include <QApplication>
#include <QDialog>
#include <QWindow>

#include <cstdio>

Album::Album(PanelDriver& panel, const QString& folder)
    : m_panel(panel)
    , m_folder(folder)
{}

bool Album::add(const QString& name, const QString& caption, const std::function<bool()>& condition,
                int milliseconds)
{
    if (PanelDriver::waitUntil(condition, milliseconds))
        return save(name, caption + QLatin1String(": ") + m_panel.describe(), nullptr);
    std::fprintf(stderr, "velmora-screenshots: no picture of \"%s\": it did not come within %d s\n",
                 qUtf8Printable(caption), milliseconds / 1000);
    return false;
}

bool Album::addDialog(const std::function<void()>& open, const QString& name, const QString& caption,
                      const std::function<bool(QDialog*)>& prepare)
{
    bool saved = false;
    const bool opened = m_panel.withDialog(open, [&](QDialog* dialog) {
        saved = prepare(dialog) && save(name, caption, dialog);
        dialog->reject();
    });
    if (!opened || !saved)
        std::fprintf(stderr, "velmora-screenshots: no picture of %s\n", qUtf8Printable(caption));
    return saved;
}

bool Album::addMenu(const std::function<void()>& open, const QString& name, const QString& caption)
{
    constexpr int openTime = 2000;
    open();
    QWidget* menu = nullptr;
    const bool shown = PanelDriver::waitUntil(
        [&menu] {
            menu = QApplication::activePopupWidget();
            return menu && menu->windowHandle()->isExposed();
        },
        openTime);
    const bool saved = shown && save(name, caption, menu);
    if (menu)
        menu->close();
    return saved;
}

bool Album::save(const QString& name, const QString& caption, const QWidget* window)
{
    // What has just been set or opened still has to be painted.
    QCoreApplication::processEvents();
    const QString path = m_folder.filePath(name + QLatin1String(".png"));
    if (!m_panel.save(path, window)) {
        std::fprintf(stderr, "velmora-screenshots: cannot write %s\n", qUtf8Printable(path));
        return false;
    }
    std::printf("%s\n    %s\n", qUtf8Printable(path), qUtf8Printable(caption));
    return true;
}
