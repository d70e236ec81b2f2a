// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "support/ScriptedService.h"

#include <QFile>
#include <QLocalSocket>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

using namespace Velmora::Tests;

/// The program as it ships, seen from outside.
class StartupTest final : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void argumentsDecideWhetherTheWindowShows();
    void secondPanelShowsTheFirstAndEnds();
    void socketOfAKilledPanelIsNoHindrance();

private:
    [[nodiscard]] std::unique_ptr<QProcess> startPanel(const QStringList& arguments);
    /// True once the panel has polled the service, long after it decided on its window.
    [[nodiscard]] bool isRunning();

    /// Whether a third of the screen is painted: more than the splash takes, less than the main window.
    [[nodiscard]] bool showsTheWindow() const;

    // A virtual display whose picture lies in a file, so that windows can be seen from outside their process.
    QProcess m_display;
    QTemporaryDir m_displayFolder;
    QString m_displayName;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<ScriptedService> m_service;
};

void StartupTest::initTestCase()
{
    m_display.start(QStringLiteral("Xvfb"),
                    {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"),
                     QStringLiteral("0"), QStringLiteral("1280x1024x24"), QStringLiteral("-nolisten"),
                     QStringLiteral("tcp"), QStringLiteral("-fbdir"), m_displayFolder.path()});
    QVERIFY2(m_display.waitForReadyRead(), "Xvfb (package xvfb) is needed");
    m_displayName = QLatin1Char(':') + QString::fromLatin1(m_display.readAllStandardOutput().trimmed());
}

void StartupTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QFile ini(m_folder->filePath(QStringLiteral("panel.ini")));
    QVERIFY(ini.open(QIODevice::WriteOnly));
    ini.write("check_updates=false\nserver_address=" + ScriptedService::testAddress().toUtf8());
    m_service = std::make_unique<ScriptedService>();
    QVERIFY(m_service->start());
}

void StartupTest::cleanup()
{
    m_service.reset();
    QTRY_VERIFY(!showsTheWindow());
}

std::unique_ptr<QProcess> StartupTest::startPanel(const QStringList& arguments)
{
    auto panel = std::make_unique<QProcess>();
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
    environment.insert(QStringLiteral("DISPLAY"), m_displayName);
    environment.insert(QStringLiteral("TMPDIR"), m_folder->path());
    environment.insert(QStringLiteral("VELMORA_CONTROL_PANEL_INI"),
                       m_folder->filePath(QStringLiteral("panel.ini")));
    panel->setProcessEnvironment(environment);
    panel->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    panel->start(QStringLiteral(VELMORA_PROGRAM), arguments);
    return panel;
}

bool StartupTest::showsTheWindow() const
{
    // Of four bytes a painted point leaves one without a value.
    QFile file(m_displayFolder.filePath(QStringLiteral("Xvfb_screen0")));
    const QByteArray picture = file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    return picture.size() - picture.count('\0') > picture.size() / 4;
}

bool StartupTest::isRunning()
{
    m_service->clearRequests();
    return m_service->waitForRequest("get_ups_device_state", 1, 15000);
}

void StartupTest::argumentsDecideWhetherTheWindowShows()
{
    // Any single argument starts in the tray; Qt's own options do not count.
    for (const char* row : {"|shows", "x|hides", "--hide x|shows", "-style fusion x|hides"}) {
        const QStringList parts = QString::fromLatin1(row).split(QLatin1Char('|'));
        const auto panel = startPanel(parts.at(0).split(QLatin1Char(' '), Qt::SkipEmptyParts));
        QVERIFY2(isRunning(), row);
        const bool shows = parts.at(1) == QLatin1String("shows");
        QTRY_VERIFY2(showsTheWindow() == shows, row);
    }
}

void StartupTest::secondPanelShowsTheFirstAndEnds()
{
    const auto first = startPanel({QStringLiteral("--hide")});
    QVERIFY(isRunning());
    QVERIFY(!showsTheWindow());
    for (int i = 0; i < 2; ++i) { // hidden, then visible
        const auto second = startPanel({});
        QVERIFY(second->waitForFinished());
        QCOMPARE(second->exitStatus(), QProcess::NormalExit);
        QCOMPARE(second->exitCode(), 1);
        QTRY_VERIFY(showsTheWindow());
    }
    QVERIFY(isRunning());
}

void StartupTest::socketOfAKilledPanelIsNoHindrance()
{
    const QString socket = m_folder->filePath(QStringLiteral("velmora_instance"));
    auto panel = startPanel({});
    QVERIFY(isRunning());
    panel->kill();
    QVERIFY(panel->waitForFinished());
    QVERIFY(QFile::exists(socket));

    panel = startPanel({});
    QVERIFY(isRunning());
    QTRY_VERIFY(showsTheWindow());
    QLocalSocket probe;
    probe.connectToServer(socket);
    QVERIFY(probe.waitForConnected());
}

QTEST_MAIN(StartupTest)
#include "StartupTest.moc"
