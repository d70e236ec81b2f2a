// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include "link/PolicyRecords.h"

#include <QDialog>

#include <memory>

class QTimer;

namespace Ui {
class ComputerConfigurationWindow;
}

/// Names a computer and asks for its client's password. Whether the password is right only the client knows:
/// the dialog stays open after OK, and its owner closes it once the answer was the right one.
class ComputerConfigurationWindow final : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ComputerConfigurationWindow)

public:
    explicit ComputerConfigurationWindow(QWidget* parent);
    ~ComputerConfigurationWindow() override;

    void setComputerName(const QString& name);
    /// The address is no longer one of the taken ones.
    void setComputerAddress(const QString& address);
    void setGroups(const QStringList& names);
    /// Addresses of `computers` are taken from now on.
    void setComputersAllComputers(const QVector<Computer>* computers);
    void disableAddressAndGroup();
    void disablePassword();

    [[nodiscard]] QString getComputerName() const;
    [[nodiscard]] QString getComputerAddress() const;
    [[nodiscard]] QString getPasswordToVerify() const;
    [[nodiscard]] QString getGroup() const;

signals:
    /// The client's digest is wanted.
    void okButtonClicked();
    void cancelButtonClicked();

public slots:
    void okButtonClickHandler();
    void noResponseTimeout();
    /// The answer is here, or nobody waits for it any more.
    void stopNoResponseTimer();
    void reject() override;

private:
    void setFieldsEnabled(bool enabled);

    std::unique_ptr<Ui::ComputerConfigurationWindow> ui;
    QTimer* noResponseTimer = nullptr; ///< exists only while an answer is awaited
    QStringList m_takenAddresses;
    bool m_addressAndGroupFixed = false;
    bool m_passwordFixed = false;
};
