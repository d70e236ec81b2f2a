// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include "admin/core/SmtpFormRules.h"
#include "link/DeviceRecords.h"
#include "link/ServiceSettings.h"

#include <QDialog>
#include <QPointer>

#include <memory>
#include <optional>

class SmtpTestWindow;

namespace Ui {
class ApplicationConfigurationWindow;
}

namespace Velmora {
class UpsSocketController;
}

/// Settings of the service that belong to no device, and the panel's own switch for the update check. Waits
/// with its buttons off until the service has sent what it holds.
class ApplicationConfigurationWindow final : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ApplicationConfigurationWindow)

public:
    static constexpr int ENCRYPTION_ID_NONE = Velmora::encryptionIdNone;
    static constexpr int ENCRYPTION_ID_TLS = Velmora::encryptionIdTls;
    static constexpr int ENCRYPTION_ID_SSL = Velmora::encryptionIdSsl;
    static constexpr auto& ENCRYPTION_NAME_NONE = Velmora::encryptionNameNone;
    static constexpr auto& ENCRYPTION_NAME_TLS = Velmora::encryptionNameTls;
    static constexpr auto& ENCRYPTION_NAME_SSL = Velmora::encryptionNameSsl;

    /// `ports` outlives the dialog. `members` are the units of all virtual devices.
    ApplicationConfigurationWindow(QList<Velmora::Utils::SerialPort>* ports,
                                   const QList<Velmora::Utils::Ups>& members,
                                   const QList<Velmora::Utils::Ups>& devices, QWidget* parent);
    ~ApplicationConfigurationWindow() override;

    /// `controller` outlives the dialog.
    void setSocketController(Velmora::UpsSocketController* controller);
    /// Asks the service for what the dialog shows.
    void getApplicationConfigurationFromIni();

signals:
    void SendTestMail(const Velmora::Utils::SmtpConfig& config);

public slots:
    void setApplicationConfigurationFromIni(const Velmora::Utils::ApplicationConfiguration& configuration);
    void updateSmtp2TestResultWindow(const int& status, const QStringList& messages);
    void setEnabledButtons(bool enabled);
    void slotSmtpAuthenticationChanged(int state);
    void openButtonClickHandler();
    void addUpsButtonClickHandler();
    void addVirtualUpsButtonClickHandler();
    void sendTestMailButtonClickHandler();
    void accept() override;

private:
    void prepareSmtpForm();
    void connectForm();
    void fillSmtpForm(const Velmora::Utils::SmtpConfig& config);
    void updateSmtpForm();
    void getSmtpFormData(Velmora::Utils::SmtpConfig* config) const;
    /// Marks what is wrong; true if nothing is.
    [[nodiscard]] bool checkSmtpForm(bool allowEmpty);
    void saveConfigurationToFile();
    void saveUpdateSwitch() const;

    std::unique_ptr<Ui::ApplicationConfigurationWindow> ui;
    Velmora::UpsSocketController* m_controller = nullptr;
    QList<Velmora::Utils::SerialPort>* m_ports;
    QList<Velmora::Utils::Ups> m_members;
    QList<Velmora::Utils::Ups> m_devices;
    std::optional<Velmora::Utils::ApplicationConfiguration> m_configuration; ///< as received
    QPointer<SmtpTestWindow> m_smtpTest;
};
