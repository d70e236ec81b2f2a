// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QTranslator;

/// The steps before the main window, in the order in which main takes them.
namespace Velmora::Startup {

/// Heap, style, codec and display plugin: must run before the application object exists.
void prepareApplication();

/// The panel's font in the size of the desktop's.
void setPanelFont();

/// Relative paths of the program are taken from its own folder.
void setWorkingFolder();

/// Carries on with the plain style if the sheet cannot be read.
void setPanelStyleSheet();

/// Installs Qt's own and the panel's texts for the word of the ini file, loaded or not: the source text is
/// Polish. Both translators must live as long as the application object.
void installTranslators(const QString& language, QTranslator& qtTexts, QTranslator& panelTexts);

} // namespace Velmora::Startup
