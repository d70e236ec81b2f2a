// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "monitor/WindowFixture.h"

#include <QApplication>
#include <QLabel>
#include <QLocalSocket>
#include <QMenu>
#include <QMovie>
#include <QSignalSpy>
#include <QTest>

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

private slots:
    void init();
    void cleanup() { panel.reset(); }
    void closingHidesAndQuittingEndsWithStatusZero();
    void trayAndSecondPanelShowTheWindow();
    void administratorModeSwitchesItsControls();
    void debugMarkerStandsOnceInTheTitle();
    void busyServiceLocksTheWindow();
    void messagesStandTogetherWhileTheLinkGoesOn();

private:
    std::unique_ptr<WindowFixture> panel;
};

void WindowShellTest::init()
{
    panel = std::make_unique<WindowFixture>();
    QVERIFY(panel->open(deviceList({device(1, "TarvexRT_USB", "A")})));
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

void WindowShellTest::trayAndSecondPanelShowTheWindow()
{
    using Tray = QSystemTrayIcon;
    for (const auto reason :
         {Tray::Unknown, Tray::Context, Tray::DoubleClick, Tray::MiddleClick, Tray::Trigger}) {
        QVERIFY(panel->window->isVisible() && panel->trayAction(hideText));
        panel->window->toggleWindow(reason);
    }
    QVERIFY(panel->window->isHidden() && panel->trayAction(showText));
    panel->window->toggleWindow(Tray::Trigger);
    // As after a start in the tray, where nobody has hidden the window.
    auto* menu = qobject_cast<QMenu*>(panel->trayAction(hideText)->parent());
    for (const bool visible : {false, true}) {
        panel->window->setVisible(visible);
        emit menu->aboutToShow();
        QVERIFY(panel->trayAction(visible ? hideText : showText));
    }
    for (int i = 0; i < 2; ++i) { // the second time finds a visible window, which stays as it is
        QVERIFY(panel->window->isVisible() && panel->trayAction(hideText));
        QLocalSocket secondPanel;
        secondPanel.connectToServer(QStringLiteral("velmora_instance"));
        QVERIFY(secondPanel.waitForConnected());
        if (i == 0)
            panel->window->toggleWindow();
        secondPanel.abort(); // gone before the first one looks
        QVERIFY(panel->settle());
    }
    QVERIFY(panel->window->isVisible() && panel->trayAction(hideText));
}

void WindowShellTest::administratorModeSwitchesItsControls()
{
    const auto enabled = [this](const char* name) { return panel->find(name)->property("enabled").toBool(); };
    const QByteArray settings = "<ups_configuration><beeper>1</beeper></ups_configuration>";
    for (const bool administrator : {false, true, false}) {
        if (administrator)
            panel->window->enableAdministratorButtons();
        for (const char* name :
             {"aplicationConfigurationButton", "networkConfigurationButton", "loggingConfigurationButton",
              "actionApplicationConfiguration", "actionNetworkConfiguration", "actionChangePassword",
              "actionLoggingConfiguration", "actionLogout"})
            QVERIFY2(enabled(name) == administrator, name);
        QCOMPARE(enabled("actionActAsAdministrator"), !administrator);
        QCOMPARE(panel->window->windowTitle(),
                 administrator ? plainTitle + QLatin1String(" (Administrator)") : plainTitle);
        // Those of the device wait for its settings.
        QVERIFY(!enabled("upsConfigurationButton"));
        QVERIFY(panel->send(settings));
        QVERIFY(enabled("upsConfigurationButton") == administrator);
        QVERIFY(enabled("actionUpsConfiguration") == administrator);
        QVERIFY(panel->send("<ups_configuration></ups_configuration>"));
        if (administrator) {
            panel->link()->setAdminPass(QStringLiteral("secret"));
            panel->find<QAction>("actionLogout")->trigger();
        }
    }
    QVERIFY(panel->settle());
    QCOMPARE(panel->service.requests().constLast().xml, QByteArray("<settle><pass></pass></settle>"));
}

void WindowShellTest::debugMarkerStandsOnceInTheTitle()
{
    for (const QString& role : {QString(), QStringLiteral(" (Administrator)")}) {
        panel->window->enableAdministratorButtons();
        QVERIFY(panel->send("<debugging_enabled/>"));
        QCOMPARE(panel->window->windowTitle(), debugTitle + role);
    }
    QVERIFY(panel->send("<debugging_disabled/>"));
    QCOMPARE(panel->window->windowTitle(), plainTitle);
}

void WindowShellTest::busyServiceLocksTheWindow()
{
    const auto* label = panel->find<QLabel>("busyLabel");
    for (const char* news : {"<daemon_is_busy/>", "<daemon_is_ready/>", "<daemon_is_busy/>", "lost"}) {
        const bool busy = qstrcmp(news, "<daemon_is_busy/>") == 0;
        if (*news == '<')
            QVERIFY(panel->send(news));
        else
            panel->service.stop();
        QTRY_COMPARE(panel->tree()->isEnabled(), !busy);
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

QTEST_MAIN(WindowShellTest)
#include "WindowShellTest.moc"
