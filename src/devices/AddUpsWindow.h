// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include "devices/core/DeviceRegistrationRules.h"
#include "link/DeviceRecords.h"

#include <QDialog>
#include <QPointer>

#include <memory>

class SnmpOptionsWindow;

namespace Ui {
class AddUpsWindow;
}

namespace Velmora {
class UpsSocketController;
}

/// Registers a physical device with the service or changes a registration. Nothing is awaited: the result
/// shows in the service's next device list.
class AddUpsWindow final : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(AddUpsWindow)

public:
    /// `ports` outlives the dialog and is read whenever the interface changes.
    AddUpsWindow(QList<Velmora::Utils::SerialPort>* ports, QWidget* parent);
    ~AddUpsWindow() override;

    /// `controller` outlives the dialog.
    void setSocketController(Velmora::UpsSocketController* controller);
    void setAllUpsList(const QList<Velmora::Utils::Ups>& devices);

    // What the device holds. Each of these leaves Ok off until something is really changed.
    void setUpsEdited(bool edited);
    void setUpsName(const QString& name);
    void setModel(const QString& configName);
    void setId(const QString& id);
    void setCommunication(const QString& communication);
    void setComPort(const QString& port);
    void setIpAddress(const QString& ip);
    void setWriteCommunity(const QString& community);
    void setReadCommunity(const QString& community);
    void setSnmpVerion(const QString& version);
    void setSerialNumber(const QString& serialNumber);

public slots:
    void upsModelBoxCurrentIndexChangedHandler(const QString& shortName);
    void communicationInterfaceBoxIndexChangeHandler(const QString& interfaceText);
    void communicationPortBoxCurrentIndexChangeHandler(int index);
    void on_upsNameEdit_textEdited(const QString& name);
    void snmpOptionsButtonClickHandler();
    void accept() override;

private:
    void configChangesCheck();
    void disableOk();
    void fillModels();
    void fillPorts();
    [[nodiscard]] Velmora::DeviceRegistrationEntry entry() const;
    [[nodiscard]] bool savingOrChangingUpsAllowed(const QString& newConfigName) const;
    void refuse();
    void sendChange(bool resetsEvents);

    std::unique_ptr<Ui::AddUpsWindow> ui;
    QList<Velmora::Utils::SerialPort>* m_ports;
    Velmora::UpsSocketController* m_controller = nullptr;
    QList<Velmora::Utils::Ups> m_devices;
    /// Until it is saved the record's model is the model box's text and not a config name.
    Velmora::Utils::Ups m_record;
    Velmora::DeviceRegistrationEntry m_baseline;
    bool m_edited = false;
    QPointer<SnmpOptionsWindow> m_snmpOptions;
};
