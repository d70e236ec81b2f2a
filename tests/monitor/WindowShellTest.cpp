// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "monitor/WindowFixture.h"

#include <QApplication>
#include <QDesktopServices>
#include <QLabel>
#include <QLocalSocket>
#include <QMovie>
#include <QSettings>
#include <QSignalSpy>
#include <QTest>
#include <QUrl>

using namespace Velmora::Tests;

namespace {

const QString hideText = QStringLiteral("&Ukryj");
const QString showText = QStringLiteral("&Pokaż");
const QString plainTitle = QStringLiteral("Velmora Professional v. " VELMORA_VERSION);
const QString debugTitle = plainTitle + QStringLiteral(" [TRYB DEBUGGOWANIA]");

} // namespace

class WindowShellTest final : public QObject
{
    Q_OBJECT

public slots:
    void takeUrl(const QUrl& url) { m_opened = url; }

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void closingHidesAndQuittingEndsWithStatusZero();
    void trayTogglesOnASingleClickOnly();
    void secondPanelBringsTheHiddenWindowBack();
    void administratorModeSwitchesItsControls();
    void configurationReplyEnablesTheConfigurationOfTheDevice_data();
    void configurationReplyEnablesTheConfigurationOfTheDevice();
    void debugMarkerStandsOnceInTheTitle();
    void busyServiceLocksTheWindow();
    void messagesStandTogetherWhileTheLinkGoesOn();
    void helpFollowsTheLanguage();

private:
    std::unique_ptr<WindowFixture> panel;
    QUrl m_opened;
};

void WindowShellTest::initTestCase()
{
    Q_INIT_RESOURCE(velmora);
}

void WindowShellTest::init()
{
    panel = std::make_unique<WindowFixture>();
    QVERIFY(panel->open(deviceList({device(1, "TarvexRT_USB", "A")})));
}

void WindowShellTest::cleanup()
{
    panel.reset();
}

void WindowShellTest::closingHidesAndQuittingEndsWithStatusZero()
{
    QVERIFY(!panel->window->close());
    QVERIFY(panel->window->isHidden());
    QVERIFY(panel->trayAction(showText));
    QVERIFY2(panel->settle(), "the link goes on behind a hidden window");

    for (QAction* quit :
         {panel->find<QAction>("actionExit"), panel->trayAction(QStringLiteral("&Zakończ"))}) {
        QVERIFY(quit);
        panel->window->show();
        QTimer::singleShot(0, quit, &QAction::trigger);
        QCOMPARE(QApplication::exec(), 0);
        QVERIFY2(panel->window->close(), "a window that ends lets itself be closed");
    }
}

void WindowShellTest::trayTogglesOnASingleClickOnly()
{
    using Tray = QSystemTrayIcon;
    for (const auto reason : {Tray::Unknown, Tray::Context, Tray::DoubleClick, Tray::MiddleClick}) {
        panel->window->toggleWindow(reason);
        QVERIFY2(panel->window->isVisible(), qPrintable(QString::number(reason)));
    }
    panel->window->toggleWindow(Tray::Trigger);
    QVERIFY(panel->window->isHidden());
    QVERIFY(panel->trayAction(showText));
    panel->window->toggleWindow(Tray::Trigger);
    QVERIFY(panel->window->isVisible());
    QVERIFY(panel->trayAction(hideText));
}

void WindowShellTest::secondPanelBringsTheHiddenWindowBack()
{
    for (int i = 0; i < 2; ++i) { // the second time finds a visible window, which stays as it is
        QLocalSocket secondPanel;
        secondPanel.connectToServer(QStringLiteral("velmora_instance"));
        QVERIFY(secondPanel.waitForConnected());
        if (i == 0)
            panel->window->toggleWindow();
        secondPanel.abort(); // gone before the first one looks
        QVERIFY(panel->settle());
        QVERIFY(panel->window->isVisible());
        QVERIFY(panel->trayAction(hideText));
    }
}

void WindowShellTest::administratorModeSwitchesItsControls()
{
    const auto enabled = [this](const char* name) { return panel->find(name)->property("enabled").toBool(); };
    const auto switched = {"aplicationConfigurationButton", "networkConfigurationButton",
                           "loggingConfigurationButton",    "actionApplicationConfiguration",
                           "actionNetworkConfiguration",    "actionChangePassword",
                           "actionLoggingConfiguration",    "actionLogout"};
    for (const bool administrator : {false, true, false}) {
        if (administrator)
            panel->window->enableAdministratorButtons();
        for (const char* name : switched)
            QVERIFY2(enabled(name) == administrator, name);
        QCOMPARE(enabled("actionActAsAdministrator"), !administrator);
        QVERIFY(!enabled("upsConfigurationButton"));
        QCOMPARE(panel->window->windowTitle(),
                 administrator ? plainTitle + QLatin1String(" (Administrator)") : plainTitle);
        if (administrator) {
            panel->link()->setAdminPass(QStringLiteral("secret"));
            panel->find<QAction>("actionLogout")->trigger();
        }
    }
    panel->link()->getShutdownTimers();
    QVERIFY(panel->settle());
    QVERIFY2(!panel->service.requests().constLast().xml.contains("secret"),
             "logging out forgets the password");
}

void WindowShellTest::configurationReplyEnablesTheConfigurationOfTheDevice_data()
{
    QTest::addColumn<bool>("administrator");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("enabled");
    QTest::newRow("settings for an administrator") << true << QByteArray("<beeper>1</beeper>") << true;
    QTest::newRow("settings for a watcher") << false << QByteArray("<beeper>1</beeper>") << false;
    QTest::newRow("no settings") << true << QByteArray() << false;
}

void WindowShellTest::configurationReplyEnablesTheConfigurationOfTheDevice()
{
    QFETCH(bool, administrator);
    QFETCH(QByteArray, content);
    QFETCH(bool, enabled);
    if (administrator)
        panel->window->enableAdministratorButtons();
    QVERIFY(panel->send("<ups_configuration>" + content + "</ups_configuration>"));
    QCOMPARE(panel->find<QWidget>("upsConfigurationButton")->isEnabled(), enabled);
    QCOMPARE(panel->find<QAction>("actionUpsConfiguration")->isEnabled(), enabled);
    QVERIFY(panel->send("<ups_configuration></ups_configuration>"));
    QVERIFY(!panel->find<QWidget>("upsConfigurationButton")->isEnabled());
}

void WindowShellTest::debugMarkerStandsOnceInTheTitle()
{
    panel->window->enableAdministratorButtons();
    QVERIFY(panel->send("<debugging_enabled/>"));
    QCOMPARE(panel->window->windowTitle(), debugTitle);
    panel->window->enableAdministratorButtons();
    QVERIFY(panel->send("<debugging_enabled/>"));
    QCOMPARE(panel->window->windowTitle(), debugTitle + QLatin1String(" (Administrator)"));
    QVERIFY(panel->send("<debugging_disabled/>"));
    QCOMPARE(panel->window->windowTitle(), plainTitle);
}

void WindowShellTest::busyServiceLocksTheWindow()
{
    const auto* label = panel->find<QLabel>("busyLabel");
    for (const bool busy : {true, false}) {
        QVERIFY(panel->send(busy ? "<daemon_is_busy/>" : "<daemon_is_ready/>"));
        QCOMPARE(panel->tree()->isEnabled(), !busy);
        QCOMPARE(panel->find<QWidget>("centralWidget")->isEnabled(), !busy);
        QCOMPARE(label->isVisible(), busy);
        QCOMPARE(label->movie()->state() == QMovie::Running, busy);
    }
}

void WindowShellTest::messagesStandTogetherWhileTheLinkGoesOn()
{
    QSignalSpy versions(panel->link(), &Velmora::UpsSocketController::serviceVersionReceived);
    panel->service.sendTogether(
        {"<show_message><message>&lt;b&gt;one&lt;/b&gt;</message><message>two</message>"
         "<message>three</message></show_message>",
         "<service_version>9.9</service_version>"});
    QTRY_COMPARE(versions.count(), 1);
    QCOMPARE(panel->shown("serviceNote"), QStringLiteral("Niezgodna wersja usługi (v. 9.9)"));

    QStringList texts;
    const auto boxes = panel->window->findChildren<QMessageBox*>();
    for (const QMessageBox* box : boxes) {
        QVERIFY(box->isVisible());
        QCOMPARE(box->windowTitle(), QStringLiteral("Komunikat"));
        QCOMPARE(box->textFormat(), Qt::PlainText);
        texts.append(box->text());
    }
    QCOMPARE(texts.join(QLatin1Char('|')), QStringLiteral("<b>one</b>|two|three"));
}

void WindowShellTest::helpFollowsTheLanguage()
{
    const auto openManual = [this](const QString& language) {
        const QString ini = qEnvironmentVariable("VELMORA_CONTROL_PANEL_INI");
        QSettings(ini, QSettings::IniFormat).setValue(QStringLiteral("language"), language);
        m_opened.clear();
        panel->find<QAction>("actionOnlineHelp")->trigger();
        return m_opened.path();
    };
    QDesktopServices::setUrlHandler(QStringLiteral("https"), this, "takeUrl");
    QCOMPARE(openManual(QStringLiteral("polish")), QStringLiteral("/VL/user_manual_pl.pdf"));
    QCOMPARE(openManual(QStringLiteral("slovak")), QStringLiteral("/VL/user_manual_en.pdf"));
    QDesktopServices::unsetUrlHandler(QStringLiteral("https"));
}

QTEST_MAIN(WindowShellTest)
#include "WindowShellTest.moc"
