// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "service/simulation/SimulatedBackend.h"

#include "service/simulation/SilentDevice.h"
#include "service/simulation/SimulatedGenset.h"
#include "service/simulation/SimulatedVirtualDevice.h"

#include <QElapsedTimer>

#include <algorithm>
#include <cmath>

namespace Velmora::Service {

namespace {

constexpr int tickMilliseconds = 500;

// Spreads neighbouring ids over the whole range of seeds (the finalizer of SplitMix64).
quint64 deviceSeed(quint64 seed, int id)
{
    quint64 mixed = seed + 0x9E3779B97F4A7C15ULL * static_cast<quint64>(id);
    mixed = (mixed ^ (mixed >> 30)) * 0xBF58476D1CE4E5B9ULL;
    mixed = (mixed ^ (mixed >> 27)) * 0x94D049BB133111EBULL;
    return mixed ^ (mixed >> 31);
}

// A device that was registered while the service ran is equipped as its family usually is.
DeviceProfile usualProfile(const DeviceRegistration& registration)
{
    DeviceProfile profile;
    const DeviceFamily& family = familyOf(registration.modelName);
    profile.parallelUnit = family.kind == DeviceKind::Ups && family.phases == 3;
    profile.outputSockets = registration.modelName.startsWith(QLatin1String("CormelRT")) ? 2 : 0;
    return profile;
}

} // namespace

qint64 SimulationClock::second() const
{
    return static_cast<qint64>(std::floor(static_cast<double>(elapsedMilliseconds()) * speed / 1000.0));
}

SimulationClock realClock(double speed)
{
    QElapsedTimer timer;
    timer.start();
    // A fixed offset: local time would look up the time zone again in every second simulated.
    const QDateTime now = QDateTime::currentDateTime();
    return SimulationClock{now.toOffsetFromUtc(now.offsetFromUtc()), speed,
                           [timer] { return timer.elapsed(); }};
}

SimulatedBackend::SimulatedBackend(const Scenario& scenario, quint64 seed, const SimulationClock& clock,
                                   QObject* parent)
    : DeviceBackend(parent)
    , m_scenario(scenario)
    , m_seed(seed)
    , m_clock(clock)
    , m_second(-scenario.warmUp)
{
    connect(&m_timer, &QTimer::timeout, this, &SimulatedBackend::catchUp);
}

SimulatedBackend::~SimulatedBackend() = default;

void SimulatedBackend::start()
{
    m_started = true;
    catchUp();
    m_timer.start(tickMilliseconds);
}

void SimulatedBackend::setDevices(const QVector<DeviceRegistration>& registrations,
                                  const QMap<int, KeyValues>& settings)
{
    catchUp();
    std::map<int, std::unique_ptr<SimulatedDevice>> devices;
    m_order.clear();
    for (const DeviceRegistration& registration : registrations) {
        const auto known = m_devices.find(registration.id);
        if (known != m_devices.end() && canKeep(*known->second, registration)) {
            known->second->setRegistration(registration);
            devices[registration.id] = std::move(known->second);
        } else {
            const DeviceProfile profile =
                m_scenario.profiles.value(registration.id, usualProfile(registration));
            devices[registration.id] = makeDevice(DeviceSetup{
                registration, profile, settings.value(registration.id), deviceSeed(m_seed, registration.id)});
        }
        m_order.append(registration.id);
    }
    m_devices = std::move(devices);
    linkVirtualDevices();
}

bool SimulatedBackend::canKeep(const SimulatedDevice& device, const DeviceRegistration& registration) const
{
    return device.registration().modelName == registration.modelName &&
           device.registration().communication == registration.communication;
}

std::unique_ptr<SimulatedDevice> SimulatedBackend::makeDevice(const DeviceSetup& setup) const
{
    if (!setup.profile.answers || !setup.profile.proper)
        return std::make_unique<SilentDevice>(setup);
    switch (familyOf(setup.registration.modelName).kind) {
    case DeviceKind::Ups:
        return std::make_unique<SimulatedUps>(setup);
    case DeviceKind::Genset:
        return std::make_unique<SimulatedGenset>(setup);
    case DeviceKind::Virtual:
        return std::make_unique<SimulatedVirtualDevice>(setup);
    case DeviceKind::Unknown:
        break;
    }
    return std::make_unique<SilentDevice>(setup);
}

void SimulatedBackend::linkVirtualDevices()
{
    for (const auto& entry : m_devices) {
        auto* group = dynamic_cast<SimulatedVirtualDevice*>(entry.second.get());
        if (!group)
            continue;
        QVector<const SimulatedUps*> units;
        for (const int id : group->registration().physicalIds) {
            if (const auto* unit = dynamic_cast<const SimulatedUps*>(find(id)))
                units.append(unit);
        }
        group->setUnits(units);
    }
}

SimulatedDevice* SimulatedBackend::find(int id) const
{
    const auto found = m_devices.find(id);
    return found == m_devices.end() ? nullptr : found->second.get();
}

QVector<DeviceStatus> SimulatedBackend::devices()
{
    catchUp();
    QVector<DeviceStatus> rows;
    rows.reserve(m_order.size());
    for (const int id : qAsConst(m_order))
        rows.append(find(id)->status());
    return rows;
}

DeviceState SimulatedBackend::state(int id)
{
    catchUp();
    const SimulatedDevice* device = find(id);
    return device ? device->state() : DeviceState();
}

KeyValues SimulatedBackend::configuration(int id)
{
    catchUp();
    const SimulatedDevice* device = find(id);
    return device ? device->configuration() : KeyValues();
}

SettingOutcome SimulatedBackend::applySetting(int id, const QString& key, const QString& value)
{
    catchUp();
    SimulatedDevice* device = find(id);
    if (device && !device->configuration().isEmpty())
        return device->applySetting(key, value);
    SettingOutcome outcome;
    outcome.reason = QStringLiteral("the device takes no settings");
    return outcome;
}

QString SimulatedBackend::eventHistory(int id)
{
    catchUp();
    const SimulatedDevice* device = find(id);
    return device ? device->eventHistory() : QString();
}

QVector<ShutdownTimer> SimulatedBackend::shutdownTimers()
{
    catchUp();
    QVector<ShutdownTimer> timers;
    for (auto entry = m_shutdownTimes.cbegin(); entry != m_shutdownTimes.cend(); ++entry)
        timers.append(ShutdownTimer{entry.key() + 1, wallSeconds(entry.value() - m_second)});
    return timers;
}

int SimulatedBackend::wallSeconds(qint64 simulatedSeconds) const
{
    return static_cast<int>(std::ceil(static_cast<double>(simulatedSeconds) / m_clock.speed));
}

void SimulatedBackend::catchUp()
{
    // Who listens to a second asks for states again.
    if (m_stepping || !m_started)
        return;
    m_stepping = true;
    const qint64 target = m_clock.second();
    while (m_second < target)
        step();
    m_stepping = false;
}

void SimulatedBackend::step()
{
    ++m_second;
    Moment moment;
    moment.second = m_second;
    moment.date = m_clock.start.addSecs(m_second);
    QVector<bool> present;
    for (const MainsFeed& feed : qAsConst(m_scenario.feeds))
        present.append(feed.isPresent(m_second));
    // Groups look at their units, so they come after all of them.
    for (const bool groups : {false, true}) {
        for (const auto& entry : m_devices) {
            if (isVirtualDevice(entry.second->registration()) != groups)
                continue;
            moment.mainsPresent = present.at(m_scenario.feedIndex(entry.second->profile().feed));
            entry.second->step(moment);
        }
    }
    updateCountdowns();
    emit secondPassed(moment.date);
}

bool SimulatedBackend::isFeedOnBattery(int feed) const
{
    return std::any_of(m_devices.cbegin(), m_devices.cend(), [this, feed](const auto& entry) {
        return entry.second->isOnBattery() && m_scenario.feedIndex(entry.second->profile().feed) == feed;
    });
}

void SimulatedBackend::updateCountdowns()
{
    for (int feed = 0; feed < m_scenario.feeds.size(); ++feed) {
        const int countdown = m_scenario.feeds.at(feed).countdown;
        const bool failed = !m_scenario.feeds.at(feed).isPresent(m_second);
        const bool began = failed && m_scenario.feeds.at(feed).isPresent(m_second - 1);
        if (began && countdown > 0 && isFeedOnBattery(feed)) {
            m_shutdownTimes.insert(feed, m_second + countdown);
            emit shutdownTimerChanged(feed + 1, wallSeconds(countdown));
        } else if (m_shutdownTimes.contains(feed) && m_shutdownTimes.value(feed) <= m_second) {
            m_shutdownTimes.remove(feed); // carried out; whoever counts has reached zero too
        } else if (m_shutdownTimes.contains(feed) && !failed) {
            m_shutdownTimes.remove(feed);
            emit shutdownTimerChanged(feed + 1, -1);
        }
    }
}

} // namespace Velmora::Service
