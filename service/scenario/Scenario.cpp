// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "service/scenario/Scenario.h"

#include "link/TextHelpers.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSet>

#include <algorithm>
#include <cstddef>
#include <iterator>

// Resources of a static library reach the program only when they are asked for.
static void initializeScenarioResource()
{
    Q_INIT_RESOURCE(scenario);
}

namespace Velmora::Service {

namespace {

constexpr int longestWarmUp = 24 * 3600;

struct Field
{
    const char* name;
    QJsonValue::Type type;
};

constexpr Field scenarioFields[] = {
    {"warm_up", QJsonValue::Double},     {"debugging", QJsonValue::Bool}, {"feeds", QJsonValue::Array},
    {"serial_ports", QJsonValue::Array}, {"clients", QJsonValue::Array},  {"computers", QJsonValue::Array},
    {"policies", QJsonValue::Object},    {"devices", QJsonValue::Array},
};

constexpr Field feedFields[] = {
    {"name", QJsonValue::String},     {"first_failure", QJsonValue::Double}, {"interval", QJsonValue::Double},
    {"duration", QJsonValue::Double}, {"countdown", QJsonValue::Double},
};

constexpr Field clientFields[] = {
    {"address", QJsonValue::String},
    {"password", QJsonValue::String},
};

constexpr Field profileFields[] = {
    {"feed", QJsonValue::String},
    {"answers", QJsonValue::Bool},
    {"proper", QJsonValue::Bool},
    {"steady", QJsonValue::Bool},
    {"load", QJsonValue::Array},
    {"nominal_watts", QJsonValue::Double},
    {"nominal_volt_amperes", QJsonValue::Double},
    {"charge", QJsonValue::Double},
    {"input_voltage", QJsonValue::Double},
    {"worn_battery", QJsonValue::Bool},
    {"parallel_unit", QJsonValue::Bool},
    {"master", QJsonValue::Bool},
    {"unit_address", QJsonValue::String},
    {"power_compensation", QJsonValue::Bool},
    {"output_sockets", QJsonValue::Double},
    {"shutdown_supported", QJsonValue::Bool},
    {"messages", QJsonValue::Array},
    {"values", QJsonValue::Object},
};

/// Names the first field that is misspelt or of another type; empty if there is none.
template <std::size_t count>
QString fieldFault(const QJsonObject& object, const Field (&fields)[count])
{
    for (auto entry = object.constBegin(); entry != object.constEnd(); ++entry) {
        const auto* known = std::find_if(std::begin(fields), std::end(fields), [&entry](const Field& field) {
            return entry.key() == QLatin1String(field.name);
        });
        if (known == std::end(fields))
            return QStringLiteral("unknown field \"%1\"").arg(entry.key());
        if (entry.value().type() != known->type)
            return QStringLiteral("field \"%1\" has the wrong type").arg(entry.key());
    }
    return {};
}

template <typename Elements>
bool areAll(QJsonValue::Type type, const Elements& elements)
{
    return std::all_of(elements.constBegin(), elements.constEnd(),
                       [type](const QJsonValue& element) { return element.type() == type; });
}

/// The same for the description of a device; also looks into its lists.
QString profileFault(const QJsonObject& object)
{
    QString fault = fieldFault(object, profileFields);
    if (!fault.isEmpty())
        return fault;
    if (!areAll(QJsonValue::Double, object.value(QLatin1String("load")).toArray()))
        return QStringLiteral("\"load\" holds what is no number");
    if (!areAll(QJsonValue::String, object.value(QLatin1String("messages")).toArray()) ||
        !areAll(QJsonValue::String, object.value(QLatin1String("values")).toObject()))
        return QStringLiteral("\"messages\" or \"values\" hold what is no text");
    return {};
}

QStringList textList(const QJsonValue& value)
{
    QStringList list;
    const QJsonArray entries = value.toArray();
    for (const QJsonValue& entry : entries)
        list.append(entry.toString());
    return list;
}

DeviceProfile profileFromJson(const QJsonObject& object)
{
    DeviceProfile profile;
    profile.feed = object.value(QLatin1String("feed")).toString();
    profile.answers = object.value(QLatin1String("answers")).toBool(true);
    profile.proper = object.value(QLatin1String("proper")).toBool(true);
    profile.steady = object.value(QLatin1String("steady")).toBool(false);
    const QJsonArray loads = object.value(QLatin1String("load")).toArray();
    for (const QJsonValue& load : loads)
        profile.load.append(load.toDouble());
    profile.nominalWatts = object.value(QLatin1String("nominal_watts")).toInt();
    profile.nominalVoltAmperes = object.value(QLatin1String("nominal_volt_amperes")).toInt();
    profile.charge = object.value(QLatin1String("charge")).toDouble(100.0);
    profile.inputVoltage = object.value(QLatin1String("input_voltage")).toDouble(230.0);
    profile.wornBattery = object.value(QLatin1String("worn_battery")).toBool(false);
    profile.parallelUnit = object.value(QLatin1String("parallel_unit")).toBool(false);
    profile.master = object.value(QLatin1String("master")).toBool(false);
    profile.unitAddress = object.value(QLatin1String("unit_address")).toString();
    profile.powerCompensation = object.value(QLatin1String("power_compensation")).toBool(false);
    profile.outputSockets = object.value(QLatin1String("output_sockets")).toInt();
    profile.shutdownSupported = object.value(QLatin1String("shutdown_supported")).toBool(true);
    profile.messages = textList(object.value(QLatin1String("messages")));
    const QJsonObject values = object.value(QLatin1String("values")).toObject();
    for (auto entry = values.constBegin(); entry != values.constEnd(); ++entry)
        profile.values.insert(entry.key(), entry.value().toString());
    return profile;
}

class ScenarioReader final
{
public:
    std::optional<Scenario> read(const QJsonObject& object)
    {
        const QString fault = fieldFault(object, scenarioFields);
        if (!fault.isEmpty())
            return fail(fault);
        m_scenario.debugging = object.value(QLatin1String("debugging")).toBool(false);
        m_scenario.warmUp = object.value(QLatin1String("warm_up")).toInt(0);
        if (m_scenario.warmUp < 0 || m_scenario.warmUp > longestWarmUp)
            return fail(QStringLiteral("\"warm_up\" is not a number of seconds from 0 to 86400"));
        m_scenario.serialPorts = textList(object.value(QLatin1String("serial_ports")));
        if (!readFeeds(object) || !readDevices(object) || !readClients(object))
            return std::nullopt;
        readInitial(object);
        return m_scenario;
    }

    [[nodiscard]] QString reason() const { return m_reason; }

private:
    std::nullopt_t fail(const QString& reason)
    {
        m_reason = reason;
        return std::nullopt;
    }

    bool failed(const QString& reason)
    {
        m_reason = reason;
        return false;
    }

    bool readFeeds(const QJsonObject& object);
    bool readDevices(const QJsonObject& object);
    bool readDevice(const QJsonObject& object, const QString& place);
    bool readClients(const QJsonObject& object);
    void readInitial(const QJsonObject& object);

    Scenario m_scenario;
    QSet<int> m_ids;
    QString m_reason;
};

bool ScenarioReader::readFeeds(const QJsonObject& object)
{
    const QJsonArray values = object.value(QLatin1String("feeds")).toArray();
    for (const QJsonValue& value : values) {
        const QJsonObject entry = value.toObject();
        const QString fault = fieldFault(entry, feedFields);
        if (!fault.isEmpty())
            return failed(QStringLiteral("a feed: ") % fault);
        MainsFeed feed;
        feed.name = entry.value(QLatin1String("name")).toString();
        feed.firstFailure = entry.value(QLatin1String("first_failure")).toInt(-1);
        feed.interval = entry.value(QLatin1String("interval")).toInt(0);
        feed.duration = entry.value(QLatin1String("duration")).toInt(0);
        feed.countdown = entry.value(QLatin1String("countdown")).toInt(0);
        if (feed.name.isEmpty())
            return failed(QStringLiteral("a feed has no \"name\""));
        if (feed.interval < 0 || feed.duration < 0 || (feed.interval > 0 && feed.duration >= feed.interval))
            return failed(
                QStringLiteral("feed \"%1\" must last from 0 to less than its interval").arg(feed.name));
        m_scenario.feeds.append(feed);
    }
    if (m_scenario.feeds.isEmpty())
        m_scenario.feeds.append(MainsFeed{QStringLiteral("mains"), -1, 0, 0, 0});
    return true;
}

bool ScenarioReader::readDevices(const QJsonObject& object)
{
    const QJsonValue devices = object.value(QLatin1String("devices"));
    if (!devices.isArray())
        return failed(QStringLiteral("\"devices\" is not a list"));
    const QJsonArray values = devices.toArray();
    for (const QJsonValue& value : values) {
        const QString place =
            QStringLiteral("entry %1 of \"devices\"").arg(m_scenario.initial.devices.size() + 1);
        if (!readDevice(value.toObject(), place))
            return false;
    }
    return true;
}

bool ScenarioReader::readDevice(const QJsonObject& object, const QString& place)
{
    const std::optional<DeviceRegistration> device = registrationFromJson(object);
    if (!device)
        return failed(place % QStringLiteral(" needs an \"id\" of 0 or more and a \"model_name\""));
    const QStringList names = object.keys();
    for (const QString& name : names) {
        if (!isRegistrationField(name) && name != QLatin1String("simulation"))
            return failed(place % QStringLiteral(": unknown field \"%1\"").arg(name));
    }
    if (m_ids.contains(device->id))
        return failed(place % QStringLiteral(" repeats the id %1").arg(device->id));
    const QJsonValue simulation = object.value(QLatin1String("simulation"));
    if (!simulation.isUndefined() && !simulation.isObject())
        return failed(place % QStringLiteral(": \"simulation\" is not an object"));
    const QString fault = profileFault(simulation.toObject());
    if (!fault.isEmpty())
        return failed(place % QStringLiteral(": ") % fault);
    const DeviceProfile profile = profileFromJson(simulation.toObject());
    const auto hasName = [&profile](const MainsFeed& feed) { return feed.name == profile.feed; };
    const bool knownFeed = std::any_of(m_scenario.feeds.cbegin(), m_scenario.feeds.cend(), hasName);
    if (!profile.feed.isEmpty() && !knownFeed)
        return failed(place % QStringLiteral(" names the unknown feed \"%1\"").arg(profile.feed));
    m_ids.insert(device->id);
    m_scenario.profiles.insert(device->id, profile);
    m_scenario.initial.devices.append(*device);
    m_scenario.initial.nextDeviceId = qMax(m_scenario.initial.nextDeviceId, device->id + 1);
    return true;
}

bool ScenarioReader::readClients(const QJsonObject& object)
{
    const QJsonArray values = object.value(QLatin1String("clients")).toArray();
    for (const QJsonValue& value : values) {
        const QJsonObject entry = value.toObject();
        const QString fault = fieldFault(entry, clientFields);
        if (!fault.isEmpty())
            return failed(QStringLiteral("a client: ") % fault);
        const SimulatedClient client{entry.value(QLatin1String("address")).toString(),
                                     entry.value(QLatin1String("password")).toString()};
        if (client.address.isEmpty())
            return failed(QStringLiteral("a client has no \"address\""));
        m_scenario.clients.append(client);
        m_scenario.initial.clientDigests.insert(client.address, Velmora::Utils::makeMd5(client.password));
    }
    return true;
}

void ScenarioReader::readInitial(const QJsonObject& object)
{
    StoredData& initial = m_scenario.initial;
    initial.application = defaultApplicationSettings();
    initial.administratorDigest = Velmora::Utils::makeMd5(QStringLiteral("Opiekunsystem"));
    initial.computers = elementsFromJson(object.value(QLatin1String("computers")));
    const QJsonObject policies = object.value(QLatin1String("policies")).toObject();
    for (const DeviceRegistration& device : qAsConst(initial.devices)) {
        const QJsonObject policy = policies.value(QString::number(device.id)).toObject();
        initial.policies.insert(
            device.id, policy.isEmpty() ? defaultPolicy()
                                        : Policy{elementsFromJson(policy.value(QLatin1String("groups"))),
                                                 elementsFromJson(policy.value(QLatin1String("events")))});
    }
}

} // namespace

int Scenario::feedIndex(const QString& name) const
{
    for (int i = 0; i < feeds.size(); ++i) {
        if (feeds.at(i).name == name)
            return i;
    }
    return 0;
}

std::optional<Scenario> readScenario(const QString& path, QString& reason)
{
    initializeScenarioResource();
    QFile file(path.isEmpty() ? QStringLiteral(":/velmora-service/default.json") : path);
    const QString subject = QStringLiteral("cannot read scenario \"%1\": ").arg(file.fileName());
    if (!file.open(QIODevice::ReadOnly)) {
        reason = subject % file.errorString();
        return std::nullopt;
    }
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll(), &error);
    if (!document.isObject()) {
        reason = subject % (error.error == QJsonParseError::NoError
                                ? QStringLiteral("not a JSON object")
                                : QStringLiteral("%1 at byte %2").arg(error.errorString()).arg(error.offset));
        return std::nullopt;
    }
    ScenarioReader reader;
    std::optional<Scenario> scenario = reader.read(document.object());
    if (!scenario)
        reason = subject % reader.reason();
    return scenario;
}

} // namespace Velmora::Service
