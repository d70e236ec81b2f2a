// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QTemporaryDir>

#include <memory>

class QApplication;

namespace Velmora::Bench {

/// A Qt application with the looks of the panel, on no display. Settings and temporary files are its own, so
/// that a panel that runs beside it changes nothing.
class PanelApplication final
{
    Q_DISABLE_COPY_MOVE(PanelApplication)

public:
    PanelApplication(int& argc, char** argv);
    ~PanelApplication();

private:
    QTemporaryDir m_folder;
    std::unique_ptr<QApplication> m_application;
};

} // namespace Velmora::Bench
