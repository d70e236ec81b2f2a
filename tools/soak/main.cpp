// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "app/ControlPanelConfiguration.h"
#include "app/Startup.h"
#include "monitor/VelmoraWindow.h"
#include "soak/RandomUser.h"
#include "support/ServiceProcess.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QFile>
#include <QRegularExpression>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QTimer>
#include <QTranslator>

#include <algorithm>
#include <cstdio>

#include <unistd.h>

// The panel under a user who never rests, on a service at ten times the speed that is restarted every two
// minutes. Fails on a crash, a warning, a dialog that never opened or does not close, a service that ended by
// itself, and on memory that grows.

namespace {

constexpr int actInterval = 8;
constexpr int lookInterval = 1000;
constexpr int restartInterval = 120000;
constexpr int closingTime = 20000;
constexpr double allowedGrowth = 2; // MiB

#ifdef __SANITIZE_ADDRESS__
constexpr bool memoryIsJudged = false; // what was freed is kept back
#else
constexpr bool memoryIsJudged = true;
#endif

int warningCount = 0;

void countWarnings(QtMsgType type, const QMessageLogContext& /*context*/, const QString& message)
{
    // The offscreen platform has no tray, and no windows that could be raised, limited or given the keyboard.
    static const QRegularExpression platform(
        QStringLiteral("propagateSizeHints|systemTrayWindowChanged|This plugin does not support"));
    if (type == QtDebugMsg || message.contains(platform))
        return;
    ++warningCount;
    std::fprintf(stderr, "velmora-soak: %s\n", qUtf8Printable(message));
}

/// A web server with a newer version, of which no more than the beginning ever arrives.
void serveUpdate(QTcpServer& server, Velmora::UpdateEnvironment& updates)
{
    QObject::connect(&server, &QTcpServer::newConnection, &server, [&server] {
        QTcpSocket* client = server.nextPendingConnection();
        QObject::connect(client, &QTcpSocket::disconnected, client, &QObject::deleteLater);
        QObject::connect(client, &QTcpSocket::readyRead, client, [client] {
            const bool asksForVersion = client->readAll().contains("update.xml");
            const QByteArray body = asksForVersion
                                        ? QByteArrayLiteral("<versionNumber>99.0.0</versionNumber>")
                                        : QByteArrayLiteral("#!/bin/sh");
            const int size = asksForVersion ? body.size() : 100 * body.size();
            client->write("HTTP/1.1 200 OK\r\nContent-Length: " + QByteArray::number(size) + "\r\n\r\n" +
                          body);
        });
    });
    (void)server.listen(QHostAddress::LocalHost);
    const QString host = QStringLiteral("http://127.0.0.1:%1/").arg(server.serverPort());
    updates.descriptor = QUrl(host + QLatin1String("update.xml"));
    updates.installerFolder = QUrl(host);
    updates.userId = [] { return 0U; };
}

double residentMemory()
{
    QFile pages(QStringLiteral("/proc/self/statm"));
    if (!pages.open(QIODevice::ReadOnly))
        return 0;
    constexpr double mebibyte = 1024 * 1024;
    return pages.readAll().split(' ').value(1).toDouble() * static_cast<double>(sysconf(_SC_PAGESIZE)) /
           mebibyte;
}

double median(QVector<double> values)
{
    const auto middle = values.begin() + values.size() / 2;
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

/// `samples`: MiB, over the whole run. In the first third caches and the heap fill.
bool isLevel(const QVector<double>& samples)
{
    const int third = samples.size() / 3;
    if (third == 0)
        return false;
    const double middle = median(samples.mid(third, third));
    const double last = median(samples.mid(2 * third));
    std::printf("Resident memory: first third %.1f, middle third %.1f, last third %.1f, highest %.1f MiB\n",
                median(samples.mid(0, third)), middle, last,
                *std::max_element(samples.begin(), samples.end()));
    return !memoryIsJudged || last - middle <= allowedGrowth;
}

template <typename Function>
void every(int milliseconds, QObject* context, Function function)
{
    auto* timer = new QTimer(context);
    QObject::connect(timer, &QTimer::timeout, context, function);
    timer->start(milliseconds);
}

/// False if the service failed, a dialog did not close in the end, or memory grew.
bool keepBusy(RandomUser& user, ServiceProcess& service, qint64 milliseconds)
{
    const QDeadlineTimer end(milliseconds);
    const QDeadlineTimer closed(milliseconds + closingTime);
    bool good = true;
    QVector<double> memory;
    QEventLoop loop;
    every(restartInterval, &loop, [&] { good = service.stop() && service.start() && good; });
    every(lookInterval, &loop, [&] { memory.append(residentMemory()); });
    every(actInterval, &loop, [&] {
        if (!end.hasExpired())
            user.act();
        else if (!user.closeTop() || closed.hasExpired())
            loop.quit();
    });
    loop.exec();
    good = service.stop() && !user.closeTop() && good;
    return isLevel(memory) && good;
}

bool everyDialogOpened(const QMap<QString, int>& opened)
{
    QStringList missing = QStringLiteral(VELMORA_FORMS).split(QLatin1Char(' '));
    for (auto dialog = opened.begin(); dialog != opened.end(); ++dialog) {
        std::printf("%7d %s\n", dialog.value(), qUtf8Printable(dialog.key()));
        missing.removeAll(dialog.key());
    }
    if (!missing.isEmpty())
        std::printf("Never opened: %s\n", qUtf8Printable(missing.join(QLatin1String(", "))));
    return missing.isEmpty();
}

int soak(const QString& program, const QString& address, double minutes, quint32 seed)
{
    const QStringList options{QStringLiteral("--speed"), QStringLiteral("10"), QStringLiteral("--log-level"),
                              QStringLiteral("error")};
    ServiceProcess service(program, address, options);
    if (!service.start())
        return 1;
    QTcpServer maker;
    Velmora::UpdateEnvironment updates;
    serveUpdate(maker, updates);
    bool good = true;
    {
        VelmoraWindow window(updates);
        window.show();
        RandomUser user(&window, seed);
        good = keepBusy(user, service, static_cast<qint64>(minutes * 60000));
        good = everyDialogOpened(user.openedDialogs()) && good;
    }
    // The end of the window may warn as well.
    good = good && warningCount == 0;
    std::printf("%d warnings\n%s\n", warningCount, good ? "passed" : "FAILED");
    return good ? 0 : 1;
}

/// A panel of its own, beside any other that runs.
void separatePanel(const QString& folder)
{
    const QByteArray path = folder.toLocal8Bit();
    qputenv("TMPDIR", path);
    qputenv("XDG_RUNTIME_DIR", path);
    qputenv("VELMORA_CONTROL_PANEL_INI", path + "/control_panel.ini");
    qputenv("QT_QPA_PLATFORM", "offscreen");
}

} // namespace

int main(int argc, char** argv)
{
    Q_INIT_RESOURCE(velmora);
    Q_INIT_RESOURCE(translation);
    qInstallMessageHandler(countWarnings);
    const QTemporaryDir folder;
    separatePanel(folder.path());
    Velmora::Startup::prepareApplication();
    QApplication application(argc, argv);
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Uses the panel at random for a long time."));
    parser.addOptions({{QStringLiteral("address"), QStringLiteral("The service's address."),
                        QStringLiteral("address"), QStringLiteral("127.0.0.1")},
                       {QStringLiteral("minutes"), QStringLiteral("How long."), QStringLiteral("minutes"),
                        QStringLiteral("30")},
                       {QStringLiteral("seed"), QStringLiteral("Number that fixes the choices."),
                        QStringLiteral("seed"), QStringLiteral("1")}});
    parser.addPositionalArgument(QStringLiteral("service"), QStringLiteral("The service's program."));
    parser.addHelpOption();
    parser.process(application);
    if (parser.positionalArguments().size() != 1)
        parser.showHelp(2);
    const QString address = parser.value(QStringLiteral("address"));

    Velmora::Startup::setPanelFont();
    Velmora::Startup::setPanelStyleSheet();
    QTranslator qtTexts;
    QTranslator panelTexts;
    Velmora::Startup::installTranslators(QStringLiteral("english"), qtTexts, panelTexts);
    ControlPanelConfiguration().setServerAddress(address);
    return soak(parser.positionalArguments().constFirst(), address,
                parser.value(QStringLiteral("minutes")).toDouble(),
                parser.value(QStringLiteral("seed")).toUInt());
}
