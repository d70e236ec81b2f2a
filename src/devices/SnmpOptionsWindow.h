// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

#include <memory>

namespace Ui {
class SnmpOptionsWindow;
}

/// Address, communities and version of a device's SNMP agent and, for gensets, the controller's serial
/// number.
class SnmpOptionsWindow final : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(SnmpOptionsWindow)

public:
    explicit SnmpOptionsWindow(QWidget* parent);
    ~SnmpOptionsWindow() override;

    void setAgentIp(const QString& ip);
    [[nodiscard]] QString getAgentIp() const;
    void setReadCommunity(const QString& community);
    [[nodiscard]] QString getReadCommunity() const;
    void setWriteCommunity(const QString& community);
    [[nodiscard]] QString getWriteCommunity() const;
    /// A version that cannot be selected is v1.
    void setSnmpVer(const QString& version, bool selectable);
    [[nodiscard]] QString getSnmpVer() const;
    void setSerialNumber(const QString& serialNumber, bool visible);
    [[nodiscard]] QString getSerialNumber() const;

public slots:
    /// Stays open on an address that is none.
    void accept() override;

private:
    std::unique_ptr<Ui::SnmpOptionsWindow> ui;
};
