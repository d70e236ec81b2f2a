// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>

#include <memory>

class QSocketNotifier;

namespace Velmora::Service {

/// Turns SIGTERM and SIGINT into a signal of the event loop. One object at a time.
class TerminationSignals final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(TerminationSignals)

public:
    explicit TerminationSignals(QObject* parent = nullptr);
    ~TerminationSignals() override;

signals:
    void terminationRequested();

private:
    void drain();

    std::unique_ptr<QSocketNotifier> m_notifier;
};

} // namespace Velmora::Service
