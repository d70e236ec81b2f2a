// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "policy/NetworkConfigurationWindow.h"

#include "link/UpsSocketController.h"
#include "monitor/widgets/MessageBox.h"
#include "monitor/widgets/ModalDialog.h"
#include "monitor/widgets/Prompts.h"
#include "policy/GroupConfigurationWindow.h"
#include "policy/NetworkTreeColumns.h"
#include "policy/core/NetworkRules.h"
#include "ui_NetworkConfigurationWindow.h"

using Velmora::AddressColumn;
using Velmora::computerKind;
using Velmora::groupKind;
using Velmora::isOfKind;
using Velmora::KindColumn;
using Velmora::NameColumn;
using Velmora::rowComputerId;
using Velmora::rowGroupId;
using Velmora::Utils::displayMsgBox;

// Groups and computers.

namespace {

void setBold(QTreeWidgetItem* row)
{
    QFont font = row->font(NameColumn);
    font.setBold(true);
    row->setFont(NameColumn, font);
}

QSet<int> collapsedGroups(const QTreeWidget* tree)
{
    QSet<int> ids;
    for (int i = 0; i < tree->topLevelItemCount(); ++i) {
        const QTreeWidgetItem* row = tree->topLevelItem(i);
        if (!row->isExpanded() && row->childCount() > 0)
            ids.insert(rowGroupId(*row));
    }
    return ids;
}

} // namespace

void NetworkConfigurationWindow::connectNetwork()
{
    using Window = NetworkConfigurationWindow;
    connect(ui->networkElementsTree, &QTreeWidget::itemSelectionChanged, this,
            &Window::networkElementsItemSelectionChangedHandler);
    connect(ui->availableComputers, &QTreeWidget::itemSelectionChanged, this,
            &Window::allComputersItemSelectionChangeHandler);
    connect(ui->addGroupButton, &QPushButton::clicked, this, &Window::addGroupButtonClickHandler);
    connect(ui->editButton, &QPushButton::clicked, this, &Window::editButtonClickHandler);
    connect(ui->removeGroupButton, &QPushButton::clicked, this, &Window::removeGroupButtonClickHandler);
    connect(ui->arrowDownButton, &QPushButton::clicked, this, &Window::arrowDownButtonClickHandler);
    connect(ui->arrowUpButton, &QPushButton::clicked, this, &Window::arrowUpButtonClickHandler);
    connect(ui->removeComputerButton, &QPushButton::clicked, this, &Window::removeComputerButtonClickHandler);
    connect(ui->addComputerButton, &QPushButton::clicked, this, &Window::addComputerButtonClickHandler);
    connect(ui->changePassButton, &QPushButton::clicked, this, &Window::passwordChangeButtonClickHandler);
    connect(ui->discoverButton, &QPushButton::clicked, this, &Window::discoverButtonClickHandler);
}

bool NetworkConfigurationWindow::isLocalhost(const QString& address) const
{
    return Velmora::isLocalAddress(address, m_serviceAddress);
}

QTreeWidgetItem* NetworkConfigurationWindow::makeTreeWidgetItem(const Computer* computer,
                                                                const Group* group) const
{
    if (!computer)
        return nullptr;
    auto* row =
        new QTreeWidgetItem({computer->name, Velmora::shownAddress(computer->address, m_serviceAddress)});
    row->setText(KindColumn, computerKind);
    if (group)
        row->setData(Velmora::GroupIdColumn, Qt::DisplayRole, group->id);
    row->setData(Velmora::ComputerIdColumn, Qt::DisplayRole, computer->id);
    return row;
}

QTreeWidgetItem* NetworkConfigurationWindow::makeGroupItem(const Group& group) const
{
    auto* row = new QTreeWidgetItem(
        {QStringLiteral("%1 (%2)").arg(group.name, QString::number(group.computers.size()))});
    row->setText(KindColumn, groupKind);
    row->setData(Velmora::GroupIdColumn, Qt::DisplayRole, group.id);
    setBold(row);
    for (const int id : group.computers) {
        if (QTreeWidgetItem* member = makeTreeWidgetItem(m_model.getComputerFromList(id), &group))
            row->addChild(member);
    }
    return row;
}

void NetworkConfigurationWindow::redrawNetworkItems()
{
    const QSet<int> collapsed = collapsedGroups(ui->networkElementsTree);
    ui->networkElementsTree->clear();
    ui->availableComputers->clear();
    if (!m_model.computers().isEmpty()) {
        auto* header = new QTreeWidgetItem({QStringLiteral("Komputery dostępne w systemie Velmora")});
        header->setText(KindColumn, Velmora::headerKind);
        setBold(header);
        for (const Computer& computer : m_model.computers())
            header->addChild(makeTreeWidgetItem(&computer, nullptr));
        ui->availableComputers->addTopLevelItem(header);
        header->setFirstColumnSpanned(true);
    }
    for (const Group& group : m_model.groups()) {
        QTreeWidgetItem* row = makeGroupItem(group);
        ui->networkElementsTree->addTopLevelItem(row);
        row->setExpanded(!collapsed.contains(group.id));
    }
    ui->availableComputers->expandAll();
    // Groups have no address and so keep their order; members are ordered.
    ui->networkElementsTree->sortItems(AddressColumn, Qt::AscendingOrder);
}

QTreeWidgetItem* NetworkConfigurationWindow::selectedNetworkItem() const
{
    return ui->networkElementsTree->selectedItems().value(0);
}

const Group* NetworkConfigurationWindow::getSelectedGroup() const
{
    const QTreeWidgetItem* row = selectedNetworkItem();
    return isOfKind(row, groupKind) ? m_model.group(rowGroupId(*row)) : nullptr;
}

const Computer* NetworkConfigurationWindow::getSelectedComputer() const
{
    const QTreeWidgetItem* row = selectedNetworkItem();
    if (!isOfKind(row, computerKind))
        return nullptr;
    const Group* group = m_model.group(rowGroupId(*row));
    const int id = rowComputerId(*row);
    return group && group->computers.contains(id) ? m_model.getComputerFromList(id) : nullptr;
}

const Computer* NetworkConfigurationWindow::getSelectedAvailableComputer() const
{
    const QTreeWidgetItem* row = ui->availableComputers->currentItem();
    const Computer* computer =
        isOfKind(row, computerKind) ? m_model.getComputerFromList(rowComputerId(*row)) : nullptr;
    if (!computer)
        displayMsgBox(tr("Uwaga!"), tr("Wybierz komputer z listy dostępnych komputerów"));
    return computer;
}

bool NetworkConfigurationWindow::isComputerGroup() const
{
    const QTreeWidgetItem* row = selectedNetworkItem();
    return row && row->text(AddressColumn).isEmpty();
}

bool NetworkConfigurationWindow::isDefaultGroup() const
{
    const QTreeWidgetItem* row = selectedNetworkItem();
    return row && Velmora::isDefaultGroup(row->text(NameColumn));
}

bool NetworkConfigurationWindow::isCurrentNetworkItemLocalhost() const
{
    const QTreeWidgetItem* row = selectedNetworkItem();
    return row && isLocalhost(row->text(AddressColumn));
}

bool NetworkConfigurationWindow::isCurrentGroupContainsLocalHost() const
{
    const QTreeWidgetItem* row = selectedNetworkItem();
    return row && m_model.groupHoldsLocalComputer(rowGroupId(*row), m_serviceAddress);
}

void NetworkConfigurationWindow::networkElementsItemSelectionChangedHandler()
{
    if (selectedNetworkItem()) {
        const bool group = isComputerGroup();
        for (QPushButton* button : {ui->changePassButton, ui->arrowUpButton})
            setButtonEnabled(button, !group);
        for (QPushButton* button : {ui->editButton, ui->removeGroupButton})
            setButtonEnabled(button, group && !isDefaultGroup());
        for (QPushButton* button : {ui->arrowDownButton, ui->removeComputerButton})
            setButtonEnabled(button, false);
        for (QPushButton* button : {ui->addEventButton, ui->editEventButton, ui->removeEventButton})
            setButtonEnabled(button, true);
    }
    fillSelectedEvents();
    redrawEvents();
}

void NetworkConfigurationWindow::allComputersItemSelectionChangeHandler()
{
    const QTreeWidgetItem* row = ui->availableComputers->selectedItems().value(0);
    const bool computer = isOfKind(row, computerKind);
    const bool removable = computer && !isLocalhost(row->text(AddressColumn));
    setButtonEnabled(ui->arrowDownButton, computer);
    setButtonEnabled(ui->removeComputerButton, removable);
    if (removable)
        setButtonEnabled(ui->arrowUpButton, false);
}

bool NetworkConfigurationWindow::editGroup(Group& group)
{
    auto* dialog = new GroupConfigurationWindow(this);
    dialog->setAvailableComputers(m_model.computers());
    dialog->setGroups(&m_model.groups());
    dialog->setGroup(&group);
    bool accepted = false;
    Velmora::runModal(dialog, [&](const GroupConfigurationWindow& window) {
        accepted = true;
        group.name = window.getGroupName();
    });
    return accepted;
}

void NetworkConfigurationWindow::addGroupButtonClickHandler()
{
    Group group;
    group.id = -1; // that of no group yet
    if (!editGroup(group))
        return;
    m_model.addGroup(group);
    redrawNetworkItems();
}

void NetworkConfigurationWindow::editButtonClickHandler()
{
    const Group* selected = getSelectedGroup();
    if (!selected)
        return;
    // A copy: the groups may be sent again while the dialog is open.
    Group group = *selected;
    const bool accepted = editGroup(group);
    m_model.setGroupMembers(group.id, group.computers);
    if (!accepted)
        return;
    m_model.setGroupName(group.id, group.name);
    redrawNetworkItems();
}

void NetworkConfigurationWindow::removeGroupButtonClickHandler()
{
    const QTreeWidgetItem* row = selectedNetworkItem();
    if (!row)
        return;
    if (isOfKind(row, groupKind))
        m_model.removeGroup(rowGroupId(*row));
    redrawNetworkItems();
}

void NetworkConfigurationWindow::arrowDownButtonClickHandler()
{
    const Computer* computer = getSelectedAvailableComputer();
    if (!computer)
        return;
    const int id = computer->id;
    Velmora::Choice choice;
    choice.title = tr("Grupa");
    choice.label = tr("Wybierz grupę do której chcesz dodać komputer ") + computer->name;
    choice.items = m_model.groupNames();
    const QPointer<NetworkConfigurationWindow> guard(this);
    const std::optional<QString> name = Velmora::Prompts::current().choose(this, choice);
    if (!guard || !name)
        return;
    switch (m_model.addToGroup(*name, id)) {
    case Velmora::Membership::Added:
        redrawNetworkItems();
        break;
    case Velmora::Membership::AlreadyMember:
        displayMsgBox(tr("Uwaga!"), tr("Wybrana grupa zawiera już ten komputer"));
        break;
    case Velmora::Membership::NoSuchGroup:
        break;
    }
}

void NetworkConfigurationWindow::arrowUpButtonClickHandler()
{
    const QTreeWidgetItem* row = ui->networkElementsTree->currentItem();
    if (!row)
        return;
    if (isOfKind(row, computerKind))
        m_model.removeFromGroup(rowGroupId(*row), rowComputerId(*row));
    redrawNetworkItems();
}

void NetworkConfigurationWindow::removeComputerButtonClickHandler()
{
    const QTreeWidgetItem* row = ui->availableComputers->selectedItems().value(0);
    if (!isOfKind(row, computerKind))
        return;
    const int id = rowComputerId(*row);
    Velmora::Question question;
    question.title = tr("Uwaga!");
    question.text =
        tr("Czy na pewno usunąć komputer? \nSpowoduje to usunięcie komputera ze wszystkich grup.");
    const QPointer<NetworkConfigurationWindow> guard(this);
    const QMessageBox::StandardButton answer = Velmora::Prompts::current().ask(this, question).button;
    if (!guard)
        return;
    if (answer == QMessageBox::Yes && !m_locked)
        removeComputer(id);
    else if (answer == QMessageBox::No)
        QDialog::reject(); // the whole dialog: No drops what was edited so far as well
}

void NetworkConfigurationWindow::removeComputer(int id)
{
    m_controller->sendRemoveComputer(id);
    m_model.removeComputer(id);
    {
        const QSignalBlocker groups(ui->networkElementsTree);
        const QSignalBlocker computers(ui->availableComputers);
        redrawNetworkItems();
    }
    for (QPushButton* button : {ui->arrowDownButton, ui->removeComputerButton})
        setButtonEnabled(button, false);
}
