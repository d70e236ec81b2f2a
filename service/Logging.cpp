// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "service/Logging.h"

#include <QDateTime>

#include <cstdio>

namespace Velmora::Service {

Q_LOGGING_CATEGORY(serviceLog, "velmora.service", QtInfoMsg)

namespace {

const char* levelName(QtMsgType type)
{
    switch (type) {
    case QtDebugMsg:
        return "debug";
    case QtInfoMsg:
        return "info";
    case QtWarningMsg:
        return "warning";
    case QtCriticalMsg:
    case QtFatalMsg:
        break;
    }
    return "error";
}

// What peers send may hold line feeds or terminal sequences: one message stays one plain line.
QString oneLine(QString message)
{
    for (QChar& character : message) {
        if (character.category() == QChar::Other_Control)
            character = QLatin1Char(' ');
    }
    return message;
}

void writeMessage(QtMsgType type, const QMessageLogContext& /*context*/, const QString& message)
{
    const QString line = QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd hh:mm:ss.zzz ")) %
                         QLatin1String(levelName(type)) % QLatin1String(": ") % oneLine(message) %
                         QLatin1Char('\n');
    const QByteArray bytes = line.toUtf8();
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stderr);
}

} // namespace

QStringList logLevels()
{
    return {QStringLiteral("error"), QStringLiteral("warning"), QStringLiteral("info"),
            QStringLiteral("debug")};
}

void startLogging(const QString& level)
{
    const int verbosity = logLevels().indexOf(level);
    auto rule = [verbosity](const char* type, int needed) -> QString {
        return QLatin1String("velmora.service.") % QLatin1String(type) %
               QLatin1String(verbosity >= needed ? "=true\n" : "=false\n");
    };
    QLoggingCategory::setFilterRules(rule("warning", 1) % rule("info", 2) % rule("debug", 3));
    qInstallMessageHandler(writeMessage);
}

} // namespace Velmora::Service
