// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include "monitor/core/StatusStripView.h"

#include <QMovie>
#include <QPixmap>
#include <QWidget>

class QLabel;

/// The status box: link to the service, link to the device, countdown to power-off.
class VLStatusWidget final : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(VLStatusWidget)

public:
    explicit VLStatusWidget(QWidget* parent = nullptr);
    ~VLStatusWidget() override;

    /// Any state but Connected forgets the service's version.
    void setServiceConnectionState(Velmora::VLStatusConnectionState state, const QString& address);
    void setUpsConnectionState(Velmora::VLStatusConnectionState state);
    void setDeviceType(Velmora::VLDeviceType type);
    void setServiceVersion(const QString& version);
    /// Seconds until power-off. Shown while the service is connected.
    void showPowerOffTimer(int seconds);
    void hidePowerOffTimer();

private:
    void update_status();
    void setServiceState(Velmora::VLStatusConnectionState state, const QString& address,
                         const QString& version);
    void setUpsState(Velmora::VLStatusConnectionState state);
    void setPowerOffTimeValue(int seconds);
    void showIcon(QLabel* label, QMovie& spinner, Velmora::StatusIcon icon);
    [[nodiscard]] QLabel* makeLabel(const char* name);
    void buildLayout();

    Velmora::VLStatusConnectionState serviceState = Velmora::VLStatusConnectionState::Initial;
    Velmora::VLStatusConnectionState upsState = Velmora::VLStatusConnectionState::Initial;
    Velmora::VLDeviceType deviceType = Velmora::VLDeviceType::Ups;
    int powerOffSeconds = 0;
    QString serviceVersion;
    QString serviceAddress;

    const QPixmap m_okPixmap;
    const QPixmap m_errorPixmap;
    const QPixmap m_warningPixmap;
    const QPixmap m_unknownPixmap;
    QMovie m_serviceSpinner;
    QMovie m_deviceSpinner;

    QLabel* m_serviceIcon;
    QLabel* m_serviceTitle;
    QLabel* m_serviceAddressLabel;
    QLabel* m_serviceNote;
    QLabel* m_deviceIcon;
    QLabel* m_deviceText;
    QLabel* m_clockIcon;
    QLabel* m_countdownText;
};
