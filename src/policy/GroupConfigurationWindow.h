// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include "link/PolicyRecords.h"

#include <QDialog>

#include <memory>

class QTreeWidget;

namespace Ui {
class GroupConfigurationWindow;
}

/// Names a group and picks its members. Members change in the group itself, at once; the name is the caller's
/// to take over.
class GroupConfigurationWindow final : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(GroupConfigurationWindow)

public:
    explicit GroupConfigurationWindow(QWidget* parent);
    ~GroupConfigurationWindow() override;

    void setAvailableComputers(const QVector<Computer>& computers);
    /// Their names are taken, apart from that of the group under edit, which is told by its id.
    void setGroups(const QVector<Group>* groups);
    /// `group` is written to as long as the dialog is open.
    void setGroup(Group* group);

    [[nodiscard]] QString getGroupName() const;
    [[nodiscard]] Group* getGroup() const { return m_group; }

    /// Does nothing with an id that is no computer's.
    void add(int id);
    void remove(int id);

public slots:
    void addToGroupButtonHandler();
    void removeFromGroupButtonHandler();
    void accept() override;

private:
    void fillTrees();
    void moveSelected(QTreeWidget* from, QTreeWidget* to, void (GroupConfigurationWindow::*change)(int));

    std::unique_ptr<Ui::GroupConfigurationWindow> ui;
    QVector<Computer> m_computers;
    QVector<Group> m_groups;
    Group* m_group = nullptr;
};
