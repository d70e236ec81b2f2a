// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "service/policy/PolicyRunner.h"

#include "service/Logging.h"
#include "service/device/DeviceBackend.h"
#include "service/logs/LogRecorder.h"
#include "service/policy/DeviceConditions.h"
#include "service/store/Store.h"

#include <QDateTime>
#include <QHash>

namespace Velmora::Service {

namespace {

constexpr int longestName = 80;

QString groupName(const Policy& policy, const QString& id)
{
    for (const Element& group : policy.groups) {
        if (group.childText(QLatin1String("group_configId")) == id)
            return group.childText(QLatin1String("group_name"));
    }
    return QStringLiteral("no group");
}

// Events of different groups may have the same conditions.
QString courseKey(const Element& event)
{
    QString key;
    for (const char* field :
         {"event_number", "event_parentId", "event_state", "expressionIn", "expressionOut"})
        key += event.childText(QLatin1String(field)) % QLatin1Char('\n');
    return key;
}

// An event that names nothing but a state lasts as long as the state does.
QString beginning(const Element& event)
{
    const QString expression = event.childText(QLatin1String("expressionIn"));
    const QString state = event.childText(QLatin1String("event_state"));
    return expression.isEmpty() && isConditionKey(state) ? state % QLatin1String(",ON,==,") : expression;
}

QString eventName(const Element& event)
{
    QString name = event.childText(QLatin1String("event_state")).left(longestName);
    if (!name.isEmpty())
        return name;
    return QLatin1String("event ") % event.childText(QLatin1String("event_number"));
}

void warnOf(const Element& event, int device, const char* consequence)
{
    qCWarning(serviceLog).noquote() << "cannot read a condition of" << eventName(event) << "of device"
                                    << QString::number(device) % QLatin1String(": ") %
                                           QLatin1String(consequence);
}

} // namespace

PolicyRunner::PolicyRunner(DeviceBackend& backend, const Store& store, LogRecorder& logs, QObject* parent)
    : QObject(parent)
    , m_backend(backend)
    , m_store(store)
    , m_logs(logs)
{
    connect(&m_backend, &DeviceBackend::secondPassed, this, &PolicyRunner::run);
}

PolicyRunner::~PolicyRunner() = default;

void PolicyRunner::run(const QDateTime& time)
{
    const StoredData& data = m_store.data();
    std::map<int, Courses> courses;
    for (const DeviceRegistration& device : data.devices) {
        const auto policy = data.policies.constFind(device.id);
        if (policy == data.policies.constEnd() || policy->events.isEmpty())
            continue;
        const DeviceConditions conditions(device.modelName, m_backend.state(device.id));
        courses[device.id] = runPolicy({device, *policy, conditions, time}, m_courses[device.id]);
    }
    // What was removed or changed is forgotten with what it had still to do.
    m_courses = std::move(courses);
}

PolicyRunner::Courses PolicyRunner::runPolicy(const Situation& now, Courses& known)
{
    Courses courses;
    QHash<QString, int> twins;
    for (const Element& event : now.policy.events) {
        const QString conditions = courseKey(event);
        // A policy of another panel may hold an event twice.
        const QString key = conditions % QString::number(twins[conditions]++);
        const auto earlier = known.find(key);
        Course& course = courses[key];
        if (earlier != known.end()) {
            course = std::move(earlier->second);
        } else {
            const QString end = event.childText(QLatin1String("expressionOut"));
            course.begins = PostfixExpression::parse(beginning(event));
            course.ends = PostfixExpression::parse(end);
            if (!course.begins)
                warnOf(event, now.device.id, "it never begins");
            else if (!course.ends && !end.isEmpty())
                warnOf(event, now.device.id, "it ends when its beginning is over");
        }
        runEvent(now, event, course);
    }
    return courses;
}

void PolicyRunner::runEvent(const Situation& now, const Element& event, Course& course)
{
    const bool isTrue = course.begins && course.begins->isTrue(now.conditions);
    // Both conditions may hold at once: then the event lasts one second.
    const bool ended = course.since && (course.ends ? course.ends->isTrue(now.conditions) : !isTrue);
    const bool begins = isTrue && !course.wasTrue && (ended || !course.since);
    course.wasTrue = isTrue;
    if (!course.since && !begins)
        return;
    const QString group = groupName(now.policy, event.childText(QLatin1String("event_parentId")));
    const QVector<PolicyAction> actions = actionsOf(event, group);
    if (ended) {
        for (const PolicyAction& action : actions) {
            if (!course.done.contains(action.name))
                note(now, event,
                     QLatin1String("cancelled ") % action.name % QLatin1Char(' ') % action.details);
        }
        course.since.reset();
    }
    if (begins) {
        course.since = now.time.toSecsSinceEpoch();
        course.done.clear();
    }
    if (course.since)
        noteDueActions(now, event, actions, course);
}

void PolicyRunner::noteDueActions(const Situation& now, const Element& event,
                                  const QVector<PolicyAction>& actions, Course& course)
{
    const qint64 age = now.time.toSecsSinceEpoch() - *course.since;
    for (const PolicyAction& action : actions) {
        if (action.delay > age || course.done.contains(action.name))
            continue;
        course.done.append(action.name);
        note(now, event, action.name % QLatin1Char(' ') % action.details);
    }
}

void PolicyRunner::note(const Situation& now, const Element& event, const QString& action)
{
    // The event first: log viewers read the entry as the name of a work mode.
    const QString line = eventName(event) % QLatin1String(": ") % action;
    qCInfo(serviceLog).noquote() << "policy of device" << QString::number(now.device.id) % QLatin1Char(',')
                                 << line.left(LogRecorder::longestAction);
    m_logs.recordAction(now.device, now.time, line);
}

} // namespace Velmora::Service
