// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include "service/policy/PolicyActions.h"
#include "service/policy/PostfixExpression.h"

#include <QObject>
#include <QStringList>

#include <map>

class QDateTime;

namespace Velmora::Service {

class DeviceBackend;
class DeviceConditions;
class LogRecorder;
class Store;
struct DeviceRegistration;
struct Policy;

/// Watches the conditions of all policies and notes which actions are due. It carries none of them out: each
/// becomes a line in the messages log of its device and in the log of the service.
///
/// An event begins in the second in which its first condition becomes true and ends when its second one is.
/// Actions whose delay is not over by then are cancelled. What a panel saves applies at once: an unchanged
/// condition goes on with the new actions, a new one begins if it is true already.
class PolicyRunner final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(PolicyRunner)

public:
    /// Runs from the next second of the backend on. All three must outlive the runner.
    PolicyRunner(DeviceBackend& backend, const Store& store, LogRecorder& logs, QObject* parent = nullptr);
    ~PolicyRunner() override;

private:
    /// How far one event has come.
    struct Course
    {
        std::optional<PostfixExpression> begins;
        std::optional<PostfixExpression> ends; ///< without one the event ends when its beginning is over
        bool wasTrue = false;                  ///< its beginning, a second ago
        std::optional<qint64> since;           ///< second in which it began, while it has not ended
        QStringList done;                      ///< names of the actions noted since then
    };
    using Courses = std::map<QString, Course>;

    /// A device and its policy at one moment.
    struct Situation
    {
        const DeviceRegistration& device;
        const Policy& policy;
        const DeviceConditions& conditions;
        const QDateTime& time;
    };

    void run(const QDateTime& time);
    [[nodiscard]] Courses runPolicy(const Situation& now, Courses& known);
    void runEvent(const Situation& now, const Element& event, Course& course);
    void noteDueActions(const Situation& now, const Element& event, const QVector<PolicyAction>& actions,
                        Course& course);
    void note(const Situation& now, const Element& event, const QString& action);

    DeviceBackend& m_backend;
    const Store& m_store;
    LogRecorder& m_logs;
    std::map<int, Courses> m_courses; ///< by device; an event is known by its conditions
};

} // namespace Velmora::Service
