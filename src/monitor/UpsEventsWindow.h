// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <QStandardItemModel>

#include <memory>

namespace Ui {
class UpsEventsWindow;
}

/// The event history of the current device, kept live while open.
class UpsEventsWindow final : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(UpsEventsWindow)

public:
    explicit UpsEventsWindow(QWidget* parent);
    ~UpsEventsWindow() override;

    /// `events` is the history as the device's state report holds it; without one the list keeps what it
    /// shows.
    void updateControls(const QString& events);

    [[nodiscard]] static QString getEventCodeName(const QString& code);

private:
    std::unique_ptr<Ui::UpsEventsWindow> ui;
    QStandardItemModel m_model;
    QString m_shownEvents;
};
