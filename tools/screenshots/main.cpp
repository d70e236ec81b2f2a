// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "admin/core/PasswordRules.h"
#include "app/ControlPanelConfiguration.h"
#include "app/Startup.h"
#include "monitor/VelmoraWindow.h"
#include "screenshots/Album.h"
#include "screenshots/PanelDriver.h"
#include "support/ServiceProcess.h"

#include <QApplication>
#include <QCheckBox>
#include <QCommandLineParser>
#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QTranslator>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <vector>

// Opens the panel on a service, waits until what it is to show really stands on the display, and saves
// pictures of it. With a service of its own it also shows how the panel takes its loss and its return.

namespace {

constexpr int firstValuesTime = 20000;
constexpr int reportTime = 4000;
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

// Selects a device and waits for its values; false if there is none of that model.
bool showDevice(PanelDriver& panel, const char* model)
{
    const QStringList before = panel.values();
    if (!panel.select(QLatin1String(model)))
        return false;
    // The first report after a selection may still be one of the device before, and the two may be alike.
    (void)PanelDriver::waitUntil([&] { return panel.values() != before; }, reportTime);
    return true;
}

bool takeDevicePictures(PanelDriver& panel, Album& album)
{
    const auto live = [&panel] { return panel.showsLiveValues(); };
    if (!album.add(QStringLiteral("main-window"), QStringLiteral("live values of the first device"), live,
                   firstValuesTime))
        return false;
    for (const DevicePicture& picture : devicePictures) {
        if (showDevice(panel, picture.model) &&
            !album.add(QLatin1String(picture.name), QLatin1String(picture.caption), live, firstValuesTime))
            return false;
    }
    return true;
}

struct DialogPicture
{
    std::function<void()> open;
    const char* name;
    const char* caption;
};

// The service is one of the program's own, with the password that it is installed with.
bool logIn(const PanelDriver& panel)
{
    return panel.withDialog([&panel] { panel.trigger("actionActAsAdministrator"); },
                            [](QDialog* dialog) {
                                dialog->findChild<QLineEdit*>()->setText(
                                    Velmora::defaultAdministratorPassword());
                                dialog->accept();
                            });
}

bool takeDialogPictures(PanelDriver& panel, Album& album)
{
    const auto triggering = [&panel](const char* name) { return [&panel, name] { panel.trigger(name); }; };
    const std::vector<DialogPicture> pictures{
        {triggering("exInfoButton"), "extended-information", "every measurement"},
        {triggering("upsEventsButton"), "events", "the event history"},
        {triggering("actionConnectWithService"), "service-address", "the service's address"},
        {triggering("actionActAsAdministrator"), "login", "the login"},
        {triggering("actionChangePassword"), "password", "a new administrator password"},
        {triggering("actionApplicationConfiguration"), "application-settings", "the service's own settings"},
        {triggering("actionAbout"), "about", "version and licence"},
        {[&panel] { panel.requestNewDevice(); }, "new-device", "a new device"},
        {[&panel] { panel.requestChange(); }, "changed-device", "a device that is changed"},
    };
    if (!showDevice(panel, "Tarvex33"))
        return false;
    return std::all_of(pictures.begin(), pictures.end(), [&](const DialogPicture& picture) {
        const bool needsAdministrator = qstrcmp(picture.name, "password") == 0;
        return (!needsAdministrator || logIn(panel)) &&
               album.addDialog(picture.open, QLatin1String(picture.name), QLatin1String(picture.caption));
    });
}

// The settings come from the service, and so does the leave to open them.
bool takeSettingsPicture(PanelDriver& panel, Album& album)
{
    const auto hasRows = [](QDialog* dialog) { return dialog->findChild<QCheckBox*>() != nullptr; };
    return PanelDriver::waitUntil([&panel] { return panel.canTrigger("upsConfigurationButton"); },
                                  reportTime) &&
           album.addDialog([&panel] { panel.trigger("upsConfigurationButton"); },
                           QStringLiteral("device-settings"), QStringLiteral("the settings of a device"),
                           hasRows);
}

// The logs open on top of the dialog that sets them.
bool takeLogPictures(PanelDriver& panel, Album& album)
{
    if (!album.addDialog([&panel] { panel.trigger("loggingConfigurationButton"); },
                         QStringLiteral("log-settings"), QStringLiteral("what is logged of a device")))
        return false;
    bool saved = false;
    const auto hasColumns = [](QDialog* dialog) {
        return dialog->findChild<QTableView*>()->model()->columnCount() > 1;
    };
    const auto openLog = [&](QDialog* dialog) {
        const auto click = [dialog] {
            dialog->findChild<QPushButton*>(QStringLiteral("showDataButton"))->click();
        };
        saved = album.addDialog(click, QStringLiteral("log"),
                                QStringLiteral("measurements of a three-phase UPS"), hasColumns);
        dialog->reject();
    };
    return panel.withDialog([&panel] { panel.trigger("loggingConfigurationButton"); }, openLog) && saved;
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
        takeDevicePictures(panel, album) &&
        (!service || (takeDialogPictures(panel, album) && takeSettingsPicture(panel, album) &&
                      takeLogPictures(panel, album) && takeLossPictures(panel, album, *service)));
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
