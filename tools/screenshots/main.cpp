// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "app/ControlPanelConfiguration.h"
#include "app/Startup.h"
#include "monitor/VelmoraWindow.h"
#include "monitor/widgets/DebugWarningWidget.h"
#include "screenshots/Album.h"
#include "screenshots/DialogTour.h"
#include "screenshots/PanelDriver.h"
#include "support/ServiceProcess.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QLabel>
#include <QTranslator>

#include <algorithm>
#include <cstdio>
#include <memory>

// Opens the panel on a service, waits until what it is to show really stands on the display, and saves
// pictures of it. With a service of its own it also shows how the panel takes its loss and its return, and on
// request every dialog.

namespace {

constexpr int firstValuesTime = 20000;
constexpr int lossTime = 15000;

struct DevicePicture
{
    const char* model; ///< beginning of the config name
    const char* name;
    const char* caption;
};

constexpr DevicePicture devicePictures[] = {
    {"Virtual_Device", "virtual-ups", "a group of parallel units"},
    {"Tarvex33", "three-phase-ups", "a three-phase UPS"},
    {"Borel", "genset", "a genset"},
};

bool takeDevicePictures(PanelDriver& panel, Album& album)
{
    const auto live = [&panel] { return panel.showsLiveValues(); };
    if (!album.add(QStringLiteral("main-window"), QStringLiteral("live values of the first device"), live,
                   firstValuesTime))
        return false;
    for (const DevicePicture& picture : devicePictures) {
        if (panel.showDevice(QLatin1String(picture.model)) &&
            !album.add(QLatin1String(picture.name), QLatin1String(picture.caption), live, firstValuesTime))
            return false;
    }
    return true;
}

// What only an event at the site would bring about.
bool takeAlarmPictures(VelmoraWindow& window, PanelDriver& panel, Album& album)
{
    constexpr int secondsLeft = 95;
    // The warning blinks.
    const auto warns = [&window] {
        const auto labels = window.findChild<DebugWarningWidget*>()->findChildren<QLabel*>();
        return std::all_of(labels.begin(), labels.end(),
                           [](const QLabel* label) { return label->isVisible(); });
    };
    window.showCountdownTimer({{0, secondsLeft}});
    window.debugModeEnabled(true);
    const bool warned =
        album.add(QStringLiteral("shutdown-countdown"),
                  QStringLiteral("a coming shutdown, a service that is debugged"), warns, firstValuesTime);
    window.clockCancel();
    window.debugModeEnabled(false);
    window.displayDaemonBusy(true);
    const bool busy = album.add(
        QStringLiteral("service-busy"), QStringLiteral("a busy service"),
        [&panel] { return panel.showsLiveValues(); }, firstValuesTime);
    window.displayDaemonBusy(false);
    return warned && busy;
}

bool takeLossPictures(PanelDriver& panel, Album& album, ServiceProcess& service)
{
    service.stop();
    if (!album.add(
            QStringLiteral("service-lost"), QStringLiteral("service stopped"),
            [&panel] { return panel.showsLostService(); }, lossTime))
        return false;
    if (!service.start())
        return false;
    return album.add(
        QStringLiteral("service-back"), QStringLiteral("service started again"),
        [&panel] { return panel.showsLiveValues(); }, firstValuesTime);
}

int takePictures(const QString& serviceProgram, const QString& address, const QString& folder, bool dialogs)
{
    std::unique_ptr<ServiceProcess> service;
    if (!serviceProgram.isEmpty()) {
        service = std::make_unique<ServiceProcess>(serviceProgram, address);
        if (!service->start())
            return 1;
    }
    VelmoraWindow window;
    window.show();
    PanelDriver panel(&window);
    Album album(panel, folder);
    const bool done =
        takeDevicePictures(panel, album) && (!service || takeLossPictures(panel, album, *service)) &&
        (!dialogs || (takeAlarmPictures(window, panel, album) && takeDialogPictures(panel, album, address)));
    std::printf("%d devices in the tree\n", panel.deviceCount());
    return done ? 0 : 1;
}

} // namespace

int main(int argc, char** argv)
{
    Q_INIT_RESOURCE(velmora);
    Q_INIT_RESOURCE(translation);
    Velmora::Startup::prepareApplication();
    QApplication application(argc, argv);
    Velmora::Startup::setPanelFont();
    Velmora::Startup::setPanelStyleSheet();
    QTranslator qtTexts;
    QTranslator panelTexts;
    Velmora::Startup::installTranslators(ControlPanelConfiguration().getLanguage(), qtTexts, panelTexts);

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Saves pictures of the panel at work."));
    const QCommandLineOption serviceOption(QStringLiteral("service"),
                                           QStringLiteral("Start this service, and stop and start it once."),
                                           QStringLiteral("program"));
    const QCommandLineOption addressOption(QStringLiteral("address"),
                                           QStringLiteral("The service's address."),
                                           QStringLiteral("address"), QStringLiteral("127.0.0.1"));
    const QCommandLineOption outputOption(QStringLiteral("output"),
                                          QStringLiteral("Folder for the pictures."),
                                          QStringLiteral("folder"), QStringLiteral("."));
    const QCommandLineOption dialogsOption(
        QStringLiteral("dialogs"),
        QStringLiteral("Show every dialog, too; the service has its first password."));
    parser.addOptions({serviceOption, addressOption, outputOption, dialogsOption});
    parser.addHelpOption();
    parser.process(application);
    return takePictures(parser.value(serviceOption), parser.value(addressOption), parser.value(outputOption),
                        parser.isSet(dialogsOption));
}
