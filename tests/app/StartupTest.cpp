// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "support/ScriptedService.h"

#include <QFile>
#include <QLocalSocket>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QtEndian>

using namespace Velmora::Tests;

namespace {

/// A virtual display whose picture lies in a file, so that windows can be seen from outside their process.
class VirtualDisplay final
{
public:
    [[nodiscard]] bool start()
    {
        m_server.start(QStringLiteral("Xvfb"),
                       {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"),
                        QStringLiteral("0"), QStringLiteral("1280x1024x24"), QStringLiteral("-nolisten"),
                        QStringLiteral("tcp"), QStringLiteral("-fbdir"), m_folder.path()});
        m_server.waitForReadyRead();
        m_name = QLatin1Char(':') + QString::fromLatin1(m_server.readAllStandardOutput().trimmed());
        return m_name.size() > 1;
    }
    [[nodiscard]] QString name() const { return m_name; }

    /// Whether a third of the screen is painted: more than the splash takes, less than the main window.
    [[nodiscard]] bool showsTheWindow() const
    {
        constexpr int colourCountField = 19 * 4;
        constexpr int colourSize = 12;
        QFile file(m_folder.filePath(QStringLiteral("Xvfb_screen0")));
        if (!file.open(QIODevice::ReadOnly))
            return false;
        const QByteArray picture = file.readAll();
        const auto field = [&picture](int at) {
            return static_cast<int>(qFromBigEndian<quint32>(picture.constData() + at));
        };
        const int start = field(0) + field(colourCountField) * colourSize;
        int painted = 0;
        for (int at = start; at + 4 <= picture.size(); at += 4)
            painted += field(at) != 0 ? 1 : 0;
        return painted > (picture.size() - start) / 4 / 3;
    }

private:
    QTemporaryDir m_folder;
    QProcess m_server;
    QString m_name;
};

} // namespace

/// The program as it ships, seen from outside.
class StartupTest final : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void argumentsDecideWhetherTheWindowShows_data();
    void argumentsDecideWhetherTheWindowShows();
    void secondPanelShowsTheFirstAndEnds();
    void socketOfAKilledPanelIsNoHindrance();

private:
    [[nodiscard]] std::unique_ptr<QProcess> startPanel(const QStringList& arguments);
    /// True once the panel has polled the service, long after it decided on its window.
    [[nodiscard]] bool isRunning();

    VirtualDisplay m_display;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<ScriptedService> m_service;
};

void StartupTest::initTestCase()
{
    QVERIFY2(m_display.start(), "Xvfb (package xvfb) is needed");
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
    QTRY_VERIFY(!m_display.showsTheWindow());
}

std::unique_ptr<QProcess> StartupTest::startPanel(const QStringList& arguments)
{
    auto panel = std::make_unique<QProcess>();
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
    environment.insert(QStringLiteral("DISPLAY"), m_display.name());
    environment.insert(QStringLiteral("TMPDIR"), m_folder->path());
    environment.insert(QStringLiteral("VELMORA_CONTROL_PANEL_INI"),
                       m_folder->filePath(QStringLiteral("panel.ini")));
    panel->setProcessEnvironment(environment);
    panel->setProcessChannelMode(QProcess::ForwardedErrorChannel);
    panel->start(QStringLiteral(VELMORA_PROGRAM), arguments);
    return panel;
}

bool StartupTest::isRunning()
{
    m_service->clearRequests();
    return m_service->waitForRequest("get_ups_device_state", 1, 15000);
}

void StartupTest::argumentsDecideWhetherTheWindowShows_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<bool>("shows");
    const QStringList ofQt{QStringLiteral("-style"), QStringLiteral("fusion")};
    const QString any = QStringLiteral("x");
    QTest::newRow("no argument shows it") << QStringList() << true;
    QTest::newRow("any single argument starts in the tray") << QStringList(any) << false;
    QTest::newRow("two arguments show it") << QStringList{QStringLiteral("--hide"), any} << true;
    QTest::newRow("Qt's own options do not count") << ofQt + QStringList(any) << false;
}

void StartupTest::argumentsDecideWhetherTheWindowShows()
{
    QFETCH(QStringList, arguments);
    QFETCH(bool, shows);
    const auto panel = startPanel(arguments);
    QVERIFY(isRunning());
    QTRY_COMPARE(m_display.showsTheWindow(), shows);
}

void StartupTest::secondPanelShowsTheFirstAndEnds()
{
    const auto first = startPanel({QStringLiteral("--hide")});
    QVERIFY(isRunning());
    QVERIFY(!m_display.showsTheWindow());
    for (int i = 0; i < 2; ++i) { // hidden, then visible
        const auto second = startPanel({});
        QVERIFY(second->waitForFinished());
        QCOMPARE(second->exitStatus(), QProcess::NormalExit);
        QCOMPARE(second->exitCode(), 1);
        QTRY_VERIFY(m_display.showsTheWindow());
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
    QTRY_VERIFY(m_display.showsTheWindow());
    QLocalSocket probe;
    probe.connectToServer(socket);
    QVERIFY(probe.waitForConnected());
}

QTEST_MAIN(StartupTest)
#include "StartupTest.moc"
