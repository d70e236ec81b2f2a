// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include "link/DeviceRecords.h"

#include <QDialog>

#include <memory>

namespace Ui {
class AddVirtualUpsWindow;
}

namespace Velmora {
class UpsSocketController;
struct VirtualMemberRow;
} // namespace Velmora

/// Picks the units that make up a virtual device. Any number of them can be saved: which are needed is the
/// service's matter.
class AddVirtualUpsWindow final : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(AddVirtualUpsWindow)

public:
    explicit AddVirtualUpsWindow(QWidget* parent);
    ~AddVirtualUpsWindow() override;

    void setId(const QString& id);
    void setIds(const QStringList& ids);
    void setUpsEdited(bool edited);
    void setPhyDevIncludedIntoOneVirtual(const QList<Velmora::Utils::Ups>& units);
    void setPhyDevIncludedIntoAllVirtuals(const QList<Velmora::Utils::Ups>& units);

    /// The model's full name; the config name itself if the catalogue lacks it.
    [[nodiscard]] static QString getLabelName(const QString& configName);

public slots:
    /// To be called last: reads what the setters were given.
    void displayAvailableParallelDevices(const QList<Velmora::Utils::Ups>& allUpses);
    /// `controller` outlives the dialog.
    void setSocketController(Velmora::UpsSocketController* controller);
    void accept() override;

private:
    void showNothingToPick();
    void addRow(const Velmora::VirtualMemberRow& row);

    std::unique_ptr<Ui::AddVirtualUpsWindow> ui;
    Velmora::UpsSocketController* m_controller = nullptr;
    Velmora::Utils::Ups m_record;
    bool m_edited = false;
    QList<Velmora::Utils::Ups> phyDevIncludedIntoOneVirtual;
    QList<Velmora::Utils::Ups> phyDevIncludedIntoAllVirtuals;
};
