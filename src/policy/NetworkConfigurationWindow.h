// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include "policy/core/PolicyModel.h"

#include <QDialog>
#include <QPointer>

#include <memory>

class ComputerConfigurationWindow;
class DiscoverWindow;
class PasswordChangeWindow;
class QPushButton;
class QTimer;
class QTreeWidgetItem;

namespace Ui {
class NetworkConfigurationWindow;
}

namespace Velmora {
class UpsSocketController;
}

/// The policy of one device: which of its events leads to which actions on which groups of computers. The
/// service's policy is read when the dialog opens and sent back whole when it is accepted; only removing a
/// computer and changing a client's password take effect at once.
class NetworkConfigurationWindow final : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(NetworkConfigurationWindow)

public:
    NetworkConfigurationWindow(const Velmora::Utils::Ups& device, QWidget* parent);
    ~NetworkConfigurationWindow() override;

    /// `controller` outlives the dialog.
    void setSocketController(Velmora::UpsSocketController* controller);
    /// Asks the service for the policy; once in the life of a dialog.
    void getDataFromIni(const QString& upsId);
    /// False locks every push button but those that cancel, for good: administrator mode has ended.
    void setEnabledButtons(bool enabled);

    [[nodiscard]] const Velmora::PolicyModel& model() const { return m_model; }
    /// The group whose own row is selected.
    [[nodiscard]] const Group* getSelectedGroup() const;
    /// The computer whose row in a group is selected.
    [[nodiscard]] const Computer* getSelectedComputer() const;
    /// The user is told if the current row is no computer.
    [[nodiscard]] const Computer* getSelectedAvailableComputer() const;
    [[nodiscard]] bool isComputerGroup() const;
    [[nodiscard]] bool isDefaultGroup() const;
    [[nodiscard]] bool isCurrentNetworkItemLocalhost() const;
    [[nodiscard]] bool isCurrentGroupContainsLocalHost() const;
    [[nodiscard]] bool isLocalhost(const QString& address) const;

public slots:
    void setEventsFromConfig(const QVector<Event>& events);
    void setGroupsFromConfig(const QVector<Group>& groups);
    /// Completes the start if the other two answers are here already.
    void setAllComputers(const QVector<Computer>& computers);
    void netclientPasswReceived(const QString& digest);
    void addDiscoveredComputer(const QString& ip);
    void passwordChanged();
    void noResponseTimeout();
    /// The selected computer takes the name that stands in the computer dialog.
    void editComputerAndCloseConfigurationWindow();
    /// Sends the policy. Nothing is answered.
    void accept() override;
    void reject() override;

private:
    void connectEvents();
    void connectNetwork();
    void finishStart();
    void stopNoResponseTimer();
    /// Every push button that can be locked is enabled here.
    void setButtonEnabled(QPushButton* button, bool enabled) const;
    void setEnableSaveButton(bool enabled) const;

    // The list of events and the editor below it.
    void prepareEventsTree();
    void prepareWorkModeBox(const QString& configName);
    void prepareWorkModeBoxForOnlineUps();
    void fillSelectedEvents();
    void redrawEvents();
    [[nodiscard]] QTreeWidgetItem* prepareEventListRow(const Event* event) const;
    void eventEditMode(bool edit);
    void clearEditor();
    void showEditedEvent();
    /// The event of the current row; the user is told if there is none.
    [[nodiscard]] std::optional<Event> currentEvent() const;
    [[nodiscard]] Velmora::EventEntry entry() const;
    [[nodiscard]] QString refusalText(Velmora::EventVerdict verdict) const;
    void addEventButtonClickHandler();
    void editEventButtonClickHandler();
    void removeEventButtonClickHandler();
    void saveEventButtonClickHandler();
    void cancelEventButtonClickHandler();

    // The parameters of the actions.
    [[nodiscard]] bool canTurnOffUps() const;
    void systemCommandConfigurationButtonClickHandler();
    void sendEmailConfigurationButtonClickHandler();
    void shutdownSystemConfigurationButtonClickHandler();
    void outputSocketConfigurationButtonClickHandler();
    void advancedOptionsButtonClickHandler();

    // Groups and computers.
    void redrawNetworkItems();
    void redrawUnlessEditing();
    /// Null for a null computer; without a group for a null group.
    [[nodiscard]] QTreeWidgetItem* makeTreeWidgetItem(const Computer* computer, const Group* group) const;
    [[nodiscard]] QTreeWidgetItem* makeGroupItem(const Group& group) const;
    [[nodiscard]] QTreeWidgetItem* selectedNetworkItem() const;
    void networkElementsItemSelectionChangedHandler();
    void allComputersItemSelectionChangeHandler();
    void addGroupButtonClickHandler();
    void editButtonClickHandler();
    void removeGroupButtonClickHandler();
    /// True if the user accepted the name; members are changed in any case.
    [[nodiscard]] bool editGroup(Group& group);
    void arrowDownButtonClickHandler();
    void arrowUpButtonClickHandler();
    void removeComputerButtonClickHandler();
    void removeComputer(int id);

    // Clients of the computers, and their passwords.
    void addComputerButtonClickHandler();
    void closeComputerConfigurationWindow();
    void passwordChangeButtonClickHandler();
    void wirePasswordWindow(PasswordChangeWindow* window, bool local);
    void discoverButtonClickHandler();
    void sendNetclientPassRequest();
    void sendNetclientPassRequest(const QString& address);
    void setNetclientPassword(const QString& password);

    std::unique_ptr<Ui::NetworkConfigurationWindow> ui;
    Velmora::UpsSocketController* m_controller = nullptr;
    Velmora::PolicyModel m_model;
    QString m_serviceAddress;
    QVector<Event> selectedEvents; ///< what the rows of the event list show, in their order
    QTimer* noResponseTimer = nullptr;
    bool m_started = false; ///< all answers were here once
    bool m_sent = false;
    bool m_locked = false;

    // Null unless the dialog is open; answers of clients go by them.
    QPointer<ComputerConfigurationWindow> computerWindow;
    QPointer<PasswordChangeWindow> passwordWindow;
    QPointer<DiscoverWindow> discoverWindow;
    int m_passwordComputerId = -1;
    std::optional<QString> m_requestedPassword; ///< what the confirmation that is awaited will confirm
    int changedPasswordCount = 0;
};
