// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "screenshots/Album.h"

#include "screenshots/PanelDriver.h"

#include <QCoreApplication>
#include <QDialog>

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
                      const std::function<bool(QDialog*)>& ready)
{
    constexpr int fillTime = 5000;
    bool saved = false;
    const bool opened = m_panel.withDialog(open, [&](QDialog* dialog) {
        if (PanelDriver::waitUntil([&] { return ready(dialog); }, fillTime))
            saved = save(name, caption, dialog);
        else
            std::fprintf(stderr, "velmora-screenshots: nothing came into the dialog for %s\n",
                         qUtf8Printable(caption));
        dialog->reject();
    });
    if (!opened)
        std::fprintf(stderr, "velmora-screenshots: no dialog for %s\n", qUtf8Printable(caption));
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
