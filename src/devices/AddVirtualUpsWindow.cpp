// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "devices/AddVirtualUpsWindow.h"

#include "devices/core/VirtualDeviceMembers.h"
#include "link/UpsSocketController.h"
#include "ui_AddVirtualUpsWindow.h"

#include <QPushButton>

using Velmora::VirtualMemberRow;
using Velmora::Utils::Ups;

namespace {

constexpr int narrowColumn = 50;
constexpr int messageColumn = 280;
constexpr int idRole = Qt::UserRole;
constexpr int stateRole = Qt::UserRole + 1;

enum Column { CheckColumn, AddressColumn, ModelColumn, StatusColumn };

} // namespace

AddVirtualUpsWindow::AddVirtualUpsWindow(QWidget* parent)
    : QDialog(parent)
    , ui(std::make_unique<Ui::AddVirtualUpsWindow>())
{
    ui->setupUi(this);
    setFixedSize(size());
    ui->buttonBox->button(QDialogButtonBox::Ok)->setEnabled(false);
    connect(ui->buttonBox, &QDialogButtonBox::accepted, this, &AddVirtualUpsWindow::accept);
    connect(ui->buttonBox, &QDialogButtonBox::rejected, this, &AddVirtualUpsWindow::reject);
}

AddVirtualUpsWindow::~AddVirtualUpsWindow() = default;

void AddVirtualUpsWindow::setSocketController(Velmora::UpsSocketController* controller)
{
    m_controller = controller;
}

void AddVirtualUpsWindow::setId(const QString& id)
{
    m_record.id = id;
}

void AddVirtualUpsWindow::setIds(const QStringList& ids)
{
    m_record.phy_ids = ids;
}

void AddVirtualUpsWindow::setUpsEdited(bool edited)
{
    m_edited = edited;
}

void AddVirtualUpsWindow::setPhyDevIncludedIntoOneVirtual(const QList<Ups>& units)
{
    phyDevIncludedIntoOneVirtual = units;
}

void AddVirtualUpsWindow::setPhyDevIncludedIntoAllVirtuals(const QList<Ups>& units)
{
    phyDevIncludedIntoAllVirtuals = units;
}

QString AddVirtualUpsWindow::getLabelName(const QString& configName)
{
    return Velmora::modelLabel(configName);
}

void AddVirtualUpsWindow::displayAvailableParallelDevices(const QList<Ups>& allUpses)
{
    const QList<Ups> members = m_edited ? phyDevIncludedIntoOneVirtual : QList<Ups>();
    const std::vector<VirtualMemberRow> rows =
        Velmora::virtualMemberRows(allUpses, phyDevIncludedIntoAllVirtuals, members);
    ui->treeWidget->clear();
    if (rows.empty()) {
        showNothingToPick();
        return;
    }
    ui->treeWidget->setHeaderLabels({QString(), tr("Adres"), tr("Model"), tr("Status")});
    ui->treeWidget->setColumnWidth(CheckColumn, narrowColumn);
    ui->treeWidget->setColumnWidth(AddressColumn, narrowColumn);
    for (const VirtualMemberRow& row : rows)
        addRow(row);
    ui->treeWidget->resizeColumnToContents(ModelColumn);
    ui->buttonBox->button(QDialogButtonBox::Ok)->setEnabled(true);
}

void AddVirtualUpsWindow::showNothingToPick()
{
    ui->treeWidget->setHeaderHidden(true);
    ui->treeWidget->setColumnWidth(0, messageColumn);
    ui->treeWidget->addTopLevelItem(
        new QTreeWidgetItem({tr("Brak urządzeń obsługujących pracę równoległą")}));
}

void AddVirtualUpsWindow::addRow(const VirtualMemberRow& row)
{
    auto* item = new QTreeWidgetItem;
    item->setText(AddressColumn, row.address);
    item->setTextAlignment(AddressColumn, Qt::AlignCenter);
    item->setText(ModelColumn, row.label);
    item->setText(StatusColumn, Velmora::virtualMemberStatusText(row.state));
    item->setData(CheckColumn, idRole, row.id);
    item->setData(CheckColumn, stateRole, static_cast<int>(row.state));
    item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
    item->setCheckState(CheckColumn, row.checked ? Qt::Checked : Qt::Unchecked);
    item->setDisabled(!row.enabled);
    ui->treeWidget->addTopLevelItem(item);
}

void AddVirtualUpsWindow::accept()
{
    m_record.model_name = QStringLiteral("Virtual_Device");
    m_record.phy_ids.clear();
    for (int i = 0; i < ui->treeWidget->topLevelItemCount(); ++i) {
        const QTreeWidgetItem* item = ui->treeWidget->topLevelItem(i);
        const QString id = item->data(CheckColumn, idRole).toString();
        if (item->checkState(CheckColumn) == Qt::Checked && !id.isEmpty())
            m_record.phy_ids.append(id);
    }
    if (m_edited)
        m_controller->sendChangeDevice(m_record);
    else
        m_controller->sendDeviceData(m_record);
    QDialog::accept();
}
