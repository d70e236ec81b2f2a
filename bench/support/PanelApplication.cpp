// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "bench/support/PanelApplication.h"

#include "app/Startup.h"

#include <QApplication>

// The macro stands in no namespace.
static void initResources()
{
    Q_INIT_RESOURCE(velmora);
}

namespace Velmora::Bench {

PanelApplication::PanelApplication(int& argc, char** argv)
{
    initResources();
    qputenv("QT_QPA_PLATFORM", "offscreen");
    for (const char* folder : {"TMPDIR", "XDG_RUNTIME_DIR"})
        qputenv(folder, m_folder.path().toUtf8());
    qputenv("VELMORA_CONTROL_PANEL_INI", m_folder.filePath(QStringLiteral("control_panel.ini")).toUtf8());
    Startup::prepareApplication();
    m_application = std::make_unique<QApplication>(argc, argv);
    Startup::setPanelFont();
    Startup::setPanelStyleSheet();
}

PanelApplication::~PanelApplication() = default;

} // namespace Velmora::Bench
