// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "app/ControlPanelConfiguration.h"
#include "app/Startup.h"
#include "monitor/VelmoraWindow.h"
#include "monitor/widgets/Picture.h"

#include <QApplication>
#include <QSplashScreen>
#include <QTranslator>

int main(int argc, char** argv)
{
    Q_INIT_RESOURCE(velmora);
    Q_INIT_RESOURCE(translation);

    Velmora::Startup::prepareApplication();
    QApplication application(argc, argv);
    Velmora::Startup::setPanelFont();

    QSplashScreen splash(Velmora::picture(QStringLiteral(":/images/images/splashscreen.png")));
    splash.show();
    // Lets the splash paint itself; nothing else is posted yet.
    QCoreApplication::processEvents();

    Velmora::Startup::setWorkingFolder();
    Velmora::Startup::setPanelStyleSheet();
    const ControlPanelConfiguration configuration;
    QTranslator qtTexts;
    QTranslator panelTexts;
    Velmora::Startup::installTranslators(configuration.getLanguage(), qtTexts, panelTexts);

    VelmoraWindow window;
    // Any single argument starts the panel in the tray, whatever it says; from here on it reads "--hide".
    static char hideOption[10] = "--hide";
    if (argc == 2)
        argv[1] = hideOption;
    else
        window.show();
    // Waiting for a window that is not shown would hold the start up for a second.
    splash.finish(window.isVisible() ? &window : nullptr);
    return QApplication::exec();
}
