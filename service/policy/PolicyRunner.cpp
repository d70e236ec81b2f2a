// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "service/policy/PolicyRunner.h"

#include "service/Logging.h"
#include "service/device/DeviceBackend.h"
#include "service/logs/LogRecorder.h"
#include "service/policy/DeviceConditions.h"
#include "service/store/Store.h"

#include <QDateTime>

namespace Velmora::Service {

namespace {

QString groupName(const Policy& policy, const QString& id)
{
    for (const Element& group : policy.groups) {
        if (group.childText(QLatin1String("group_configId")) == id)
            return group.childText(QLatin1String("group_name"));
    }
    return QStringLiteral("no group");
}

// Two events may have the same conditions, in two groups for instance.
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

void warnOf(const Element& event, int device, const char* consequence)
{
    qCWarning(serviceLog).noquote() << "cannot read a condition of event"
                                    << event.childText(QLatin1String("event_state")).left(80) << "of device"
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
        if (policy != data.policies.constEnd() && !policy->events.isEmpty())
            courses[device.id] = runPolicy(device, *policy, m_courses[device.id], time);
    }
    // What was removed or changed is forgotten with what it had still to do.
    m_courses = std::move(courses);
}

PolicyRunner::Courses PolicyRunner::runPolicy(const DeviceRegistration& device, const Policy& policy,
                                              Courses& known, const QDateTime& time)
{
    const DeviceConditions conditions(device.modelName, m_backend.state(device.id));
    Courses courses;
    for (const Element& event : policy.events) {
        const QString key = courseKey(event);
        const auto earlier = known.find(key);
        Course course;
        if (earlier != known.end()) {
            course = std::move(earlier->second);
            known.erase(earlier);
        } else {
            const QString end = event.childText(QLatin1String("expressionOut"));
            course.begins = PostfixExpression::parse(beginning(event));
            course.ends = PostfixExpression::parse(end);
            if (!course.begins)
                warnOf(event, device.id, "it never begins");
            else if (!course.ends && !end.isEmpty())
                warnOf(event, device.id, "it ends when its beginning is over");
        }
        const QString group = groupName(policy, event.childText(QLatin1String("event_parentId")));
        runEvent(device, course, conditions, actionsOf(event, group), time,
                 event.childText(QLatin1String("event_state")));
        courses[key] = std::move(course);
    }
    return courses;
}

void PolicyRunner::runEvent(const DeviceRegistration& device, Course& course,
                            const DeviceConditions& conditions, const QVector<PolicyAction>& actions,
                            const QDateTime& time, const QString& name)
{
    const qint64 second = time.toSecsSinceEpoch();
    const QString ending = QLatin1String(" (") % name % QLatin1Char(')');
    const bool isTrue = course.begins && course.begins->isTrue(conditions);
    // Two conditions may hold at once: then the event lasts one second.
    const bool ended = course.since && (course.ends ? course.ends->isTrue(conditions) : !isTrue);
    if (ended) {
        for (const PolicyAction& action : actions) {
            if (!course.done.contains(action.name))
                note(device, time,
                     QLatin1String("cancelled ") % action.name % QLatin1Char(' ') % action.details % ending);
        }
        course.since.reset();
    }
    if (isTrue && !course.wasTrue && !course.since) {
        course.since = second;
        course.done.clear();
    }
    course.wasTrue = isTrue;
    if (!course.since)
        return;
    for (const PolicyAction& action : actions) {
        if (second - *course.since < action.delay || course.done.contains(action.name))
            continue;
        course.done.append(action.name);
        note(device, time, action.name % QLatin1Char(' ') % action.details % ending);
    }
}

void PolicyRunner::note(const DeviceRegistration& device, const QDateTime& time, const QString& line)
{
    qCInfo(serviceLog).noquote() << "policy of device" << QString::number(device.id) % QLatin1Char(':')
                                 << line.left(LogRecorder::longestAction);
    m_logs.recordAction(device, time, line);
}

} // namespace Velmora::Service
