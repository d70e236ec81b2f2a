// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "policy/GroupConfigurationWindow.h"

#include "monitor/widgets/MessageBox.h"
#include "policy/NetworkTreeColumns.h"
#include "policy/core/NetworkRules.h"
#include "ui_GroupConfigurationWindow.h"

#include <algorithm>

using Velmora::GroupNameVerdict;
using Velmora::Utils::displayMsgBox;

namespace {

constexpr int nameWidth = 160;

} // namespace

GroupConfigurationWindow::GroupConfigurationWindow(QWidget* parent)
    : QDialog(parent)
    , ui(std::make_unique<Ui::GroupConfigurationWindow>())
{
    ui->setupUi(this);
    for (QTreeWidget* tree : {ui->computersInGroupTree, ui->availableComputersTree})
        Velmora::prepareNetworkTree(tree, {tr("Nazwa"), tr("Adres")}, nameWidth);
    connect(ui->addToGroupButton, &QPushButton::clicked, this,
            &GroupConfigurationWindow::addToGroupButtonHandler);
    connect(ui->removeFromGroupButton, &QPushButton::clicked, this,
            &GroupConfigurationWindow::removeFromGroupButtonHandler);
    connect(ui->buttonBox, &QDialogButtonBox::accepted, this, &GroupConfigurationWindow::accept);
    connect(ui->buttonBox, &QDialogButtonBox::rejected, this, &GroupConfigurationWindow::reject);
}

GroupConfigurationWindow::~GroupConfigurationWindow() = default;

void GroupConfigurationWindow::setAvailableComputers(const QVector<Computer>& computers)
{
    m_computers = computers;
    fillTrees();
}

void GroupConfigurationWindow::setGroups(const QVector<Group>* groups)
{
    m_groups = *groups;
    fillTrees();
}

void GroupConfigurationWindow::setGroup(Group* group)
{
    m_group = group;
    ui->groupNameEdit->setText(group ? group->name : QString());
    fillTrees();
}

void GroupConfigurationWindow::fillTrees()
{
    ui->computersInGroupTree->clear();
    ui->availableComputersTree->clear();
    for (const Computer& computer : qAsConst(m_computers)) {
        auto* row = new QTreeWidgetItem({computer.name, computer.address});
        row->setData(Velmora::ComputerIdColumn, Qt::DisplayRole, computer.id);
        const bool member = m_group && m_group->computers.contains(computer.id);
        (member ? ui->computersInGroupTree : ui->availableComputersTree)->addTopLevelItem(row);
    }
}

QString GroupConfigurationWindow::getGroupName() const
{
    return ui->groupNameEdit->text();
}

void GroupConfigurationWindow::add(int id)
{
    const bool known = std::any_of(m_computers.cbegin(), m_computers.cend(),
                                   [id](const Computer& computer) { return computer.id == id; });
    if (m_group && known)
        m_group->computers.append(id);
}

void GroupConfigurationWindow::remove(int id)
{
    if (m_group)
        m_group->computers.removeOne(id);
}

void GroupConfigurationWindow::moveSelected(QTreeWidget* from, QTreeWidget* to,
                                            void (GroupConfigurationWindow::*change)(int))
{
    const QList<QTreeWidgetItem*> rows = from->selectedItems();
    for (QTreeWidgetItem* row : rows) {
        (this->*change)(Velmora::rowComputerId(*row));
        to->addTopLevelItem(from->takeTopLevelItem(from->indexOfTopLevelItem(row)));
    }
}

void GroupConfigurationWindow::addToGroupButtonHandler()
{
    moveSelected(ui->availableComputersTree, ui->computersInGroupTree, &GroupConfigurationWindow::add);
}

void GroupConfigurationWindow::removeFromGroupButtonHandler()
{
    moveSelected(ui->computersInGroupTree, ui->availableComputersTree, &GroupConfigurationWindow::remove);
}

void GroupConfigurationWindow::accept()
{
    QStringList takenNames;
    for (const Group& group : qAsConst(m_groups)) {
        if (!m_group || group.id != m_group->id)
            takenNames.append(group.name);
    }
    switch (Velmora::checkGroupName(getGroupName(), takenNames)) {
    case GroupNameVerdict::Accepted:
        QDialog::accept();
        break;
    case GroupNameVerdict::ForbiddenCharacter:
        displayMsgBox(tr("Błędna nazwa grupy"), tr("Nazwa grupy zawiera niedozwolone znaki"));
        break;
    case GroupNameVerdict::Taken:
        displayMsgBox(tr("Błędna nazwa grupy"), tr("Istnieje już grupa o podanej nazwie"));
        break;
    }
}
