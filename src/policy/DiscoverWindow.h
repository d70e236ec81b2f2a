// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include "link/PolicyRecords.h"

#include <QDialog>
#include <QPointer>

#include <memory>

class ComputerConfigurationWindow;
class QTreeWidgetItem;

namespace Ui {
class DiscoverWindow;
}

/// Finds computers that run a client of the service and lets the user adopt them. The probe goes out by UDP;
/// who hears it reports to the service, which tells the panel: the answers come in over the link for as long
/// as the dialog is open.
class DiscoverWindow final : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(DiscoverWindow)

public:
    explicit DiscoverWindow(QWidget* parent);
    ~DiscoverWindow() override;

    /// Computers that are known already.
    void setComputers(const QVector<Computer>* computers);
    void setGroupsNames(const QStringList& names);
    /// What was adopted; the ids are still to be given.
    [[nodiscard]] QList<Computer> getComputers() const { return newComputers; }
    [[nodiscard]] static bool isLocalhost(const QString& address);

signals:
    void getNetclientPassword(QString address);

public slots:
    /// Sends the probe and runs the dialog.
    int exec() override;
    void addComputerIp(const QString& ip);
    /// `digest` is that of the client's password.
    void comparePasswordsAndAddComputerToTree(const QString& digest);
    void sendNetclientPassRequest();
    void closeComputerConfigurationWindow();
    void addButtonClickHandler();

private:
    void sendProbes();
    void adopt(QTreeWidgetItem* row, const ComputerConfigurationWindow& entry);

    std::unique_ptr<Ui::DiscoverWindow> ui;
    QStringList ownAddresses;
    QStringList groupNames;
    QList<Computer> newComputers;
    QPointer<ComputerConfigurationWindow> computerWindow; ///< null unless a computer is being adopted
};
