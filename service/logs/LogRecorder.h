// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include "service/device/DeviceTypes.h"
#include "service/logs/LogBook.h"

#include <QObject>

#include <map>

class QDateTime;

namespace Velmora::Service {

class DeviceBackend;
class Store;

/// Writes the logs of all devices by the settings of their registrations and hands out pages of them. The
/// logs live as long as the process.
class LogRecorder final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(LogRecorder)

public:
    /// Backend and store must outlive the recorder.
    LogRecorder(DeviceBackend& backend, const Store& store, QObject* parent = nullptr);
    ~LogRecorder() override;

    [[nodiscard]] QStringList page(int device, LogKind kind, LogAge age, LogPosition& position) const;
    void forget(int device);
    /// Writes what the policy would do into the messages log of a device that has one. Longer texts are cut.
    void recordAction(const DeviceRegistration& device, const QDateTime& time, const QString& action);

    static constexpr int longestAction = 300;

private:
    void record(const QDateTime& time);
    void recordDevice(const DeviceRegistration& device, const QDateTime& time);
    LogBook& book(int device, LogKind kind);

    DeviceBackend& m_backend;
    const Store& m_store;
    std::map<std::pair<int, LogKind>, LogBook> m_books;
    QMap<int, QString> m_lastMessages; ///< codes of the latest line of each messages log
};

} // namespace Velmora::Service
