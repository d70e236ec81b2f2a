// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "app/ControlPanelConfiguration.h"
#include "app/Startup.h"
#include "monitor/VelmoraWindow.h"
#include "screenshots/PanelDriver.h"
#include "screenshots/ServiceProcess.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QTranslator>

#include <cstdio>
#include <memory>

// Opens the panel on a service, waits until what it is to show really stands on the display, and saves
// pictures of it. With a service of its own it also shows how the panel takes its loss and its return.

namespace {

constexpr int firstValuesTime = 20000;
constexpr int reportTime = 4000;
constexpr int lossTime = 15000;

class Album final
{
public:
    Album(PanelDriver& panel, const QString& folder)
        : m_panel(panel)
        , m_folder(folder)
    {}

    /// Waits for `condition`, then saves a picture. False, with the reason, if it never holds.
    bool add(const QString& name, const QString& caption, const std::function<bool()>& condition, int time)
    {
        if (!PanelDriver::waitUntil(condition, time)) {
            std::fprintf(stderr, "velmora-screenshots: no picture of \"%s\": it did not come within %d s\n",
                         qUtf8Printable(caption), time / 1000);
            return false;
        }
        // What has just been set still has to be painted.
        QCoreApplication::processEvents();
        const QString path = m_folder.filePath(name + QLatin1String(".png"));
        if (!m_panel.save(path)) {
            std::fprintf(stderr, "velmora-screenshots: cannot write %s\n", qUtf8Printable(path));
            return false;
        }
        std::printf("%s\n    %s: %s\n", qUtf8Printable(path), qUtf8Printable(caption),
                    qUtf8Printable(m_panel.describe()));
        return true;
    }

private:
    PanelDriver& m_panel;
    QDir m_folder;
};

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
        const QStringList before = panel.values();
        if (!panel.select(QLatin1String(picture.model)))
            continue;
        // The first report after a selection may still be one of the device before, and the two may be alike.
        (void)PanelDriver::waitUntil([&] { return panel.values() != before; }, reportTime);
        if (!album.add(QLatin1String(picture.name), QLatin1String(picture.caption), live, firstValuesTime))
            return false;
    }
    return true;
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

int takePictures(const QString& serviceProgram, const QString& address, const QString& folder)
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
        takeDevicePictures(panel, album) && (!service || takeLossPictures(panel, album, *service));
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
    parser.addOptions({serviceOption, addressOption, outputOption});
    parser.addHelpOption();
    parser.process(application);
    return takePictures(parser.value(serviceOption), parser.value(addressOption), parser.value(outputOption));
}
