// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "service/TestScenario.h"

#include <QDir>
#include <QFile>
#include <QTemporaryFile>

namespace Velmora::Tests {

namespace {

Service::Scenario readOrFail(const QString& path)
{
    QString reason;
    const std::optional<Service::Scenario> scenario = Service::readScenario(path, reason);
    if (!scenario)
        qFatal("%s", qPrintable(reason));
    return *scenario;
}

} // namespace

Service::Scenario scenarioFrom(const char* json)
{
    QTemporaryFile file(QDir::tempPath() + QStringLiteral("/scenario-XXXXXX.json"));
    if (!file.open() || file.write(QByteArray(json).replace('\'', '"')) < 0 || !file.flush())
        qFatal("cannot write a scenario");
    return readOrFail(file.fileName());
}

Service::Scenario defaultScenario()
{
    return readOrFail(QString());
}

QString quickScenarioFile(const QString& folder)
{
    static_cast<void>(defaultScenario()); // registers the resource
    QFile source(QStringLiteral(":/velmora-service/default.json"));
    QFile file(folder + QStringLiteral("/quick.json"));
    if (!source.open(QIODevice::ReadOnly) || !file.open(QIODevice::WriteOnly) ||
        file.write(source.readAll().replace("\"warm_up\": 1800", "\"warm_up\": 0")) < 0)
        qFatal("cannot write a scenario");
    return file.fileName();
}

TimedBackend::TimedBackend(const Service::Scenario& scenario, quint64 seed, double speed)
    : m_backend(scenario, seed,
                Service::SimulationClock{QDateTime(QDate(2026, 3, 4), QTime(5, 6, 7)), speed,
                                         [this] { return m_milliseconds; }})
{
    m_backend.setDevices(scenario.initial.devices, {});
    m_backend.start();
}

QString TimedBackend::value(int id, const char* key)
{
    return m_backend.state(id).values.value(QLatin1String(key));
}

} // namespace Velmora::Tests
