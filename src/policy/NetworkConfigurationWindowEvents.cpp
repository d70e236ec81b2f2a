// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "policy/NetworkConfigurationWindow.h"

#include "link/PolicyRecords.h"
#include "monitor/widgets/MessageBox.h"
#include "policy/NetworkTreeColumns.h"
#include "policy/core/WorkModeTable.h"
#include "ui_NetworkConfigurationWindow.h"

using Velmora::EventVerdict;
using Velmora::Utils::displayMsgBox;

// The list of events and the editor below it.

namespace {

constexpr int nameWidth = 200;
constexpr int narrowColumn = 40;
constexpr int wideColumn = 50;

void formatRowColumn(QStringList* columns, const Action* action)
{
    columns->append(action ? QStringLiteral("*") : QString());
}

} // namespace

void NetworkConfigurationWindow::connectEvents()
{
    using Window = NetworkConfigurationWindow;
    connect(ui->addEventButton, &QPushButton::clicked, this, &Window::addEventButtonClickHandler);
    connect(ui->editEventButton, &QPushButton::clicked, this, &Window::editEventButtonClickHandler);
    connect(ui->removeEventButton, &QPushButton::clicked, this, &Window::removeEventButtonClickHandler);
    connect(ui->saveEventButton, &QPushButton::clicked, this, &Window::saveEventButtonClickHandler);
    connect(ui->cancelEventButton, &QPushButton::clicked, this, &Window::cancelEventButtonClickHandler);
    connect(ui->advancedConfigurationButton, &QPushButton::clicked, this,
            &Window::advancedOptionsButtonClickHandler);
    connect(ui->systemCommandConfigurationButton, &QPushButton::clicked, this,
            &Window::systemCommandConfigurationButtonClickHandler);
    connect(ui->sendEmailConfigurationButton, &QPushButton::clicked, this,
            &Window::sendEmailConfigurationButtonClickHandler);
    connect(ui->shutdownSystemConfigurationButton, &QPushButton::clicked, this,
            &Window::shutdownSystemConfigurationButtonClickHandler);
    connect(ui->outputSocketConfigurationButton, &QPushButton::clicked, this,
            &Window::outputSocketConfigurationButtonClickHandler);

    connect(ui->showMessageBox, &QCheckBox::toggled, ui->messageEdit, &QLineEdit::setEnabled);
    const QList<QPair<QCheckBox*, QPushButton*>> companions{
        {ui->systemCommandBox, ui->systemCommandConfigurationButton},
        {ui->sendEmailBox, ui->sendEmailConfigurationButton},
        {ui->shutdownSystemBox, ui->shutdownSystemConfigurationButton},
        {ui->outputSocketBox, ui->outputSocketConfigurationButton}};
    for (const auto& [box, button] : companions) {
        connect(box, &QCheckBox::toggled, button,
                [this, companion = button](bool checked) { setButtonEnabled(companion, checked); });
    }
}

void NetworkConfigurationWindow::prepareEventsTree()
{
    struct Picture
    {
        const char* name;
        QString tip;
    };
    const Picture pictures[] = {{"showmessage", ui->showMessageBox->text()},
                                {"systemcommand", ui->systemCommandBox->text()},
                                {"powerOff", ui->shutdownSystemBox->text()},
                                {"sendmail", ui->sendEmailBox->text()},
                                {"outputsocket", ui->outputSocketBox->text()}};
    const bool sockets = m_model.hasOutputSockets();
    ui->eventsTree->setColumnCount(sockets ? 6 : 5);
    ui->eventsTree->setColumnWidth(0, nameWidth);
    QTreeWidgetItem* header = ui->eventsTree->headerItem();
    header->setText(0, tr("Zdarzenie"));
    for (int column = 1; column < ui->eventsTree->columnCount(); ++column) {
        const Picture& picture = pictures[column - 1];
        header->setText(column, QString());
        header->setIcon(column, QIcon(QLatin1String(":/headers/images/headers/") +
                                      QLatin1String(picture.name) + QLatin1String(".png")));
        header->setToolTip(column, picture.tip);
        header->setData(column, Qt::AccessibleTextRole, picture.tip);
        ui->eventsTree->setColumnWidth(column, sockets ? narrowColumn : wideColumn);
    }
}

void NetworkConfigurationWindow::prepareWorkModeBox(const QString& configName)
{
    ui->workModeBox->clear();
    const QStringList workModes = Velmora::workModeKeys(configName);
    for (const QString& key : workModes)
        ui->workModeBox->addItem(Velmora::workMode(configName, key).label, key);
}

void NetworkConfigurationWindow::prepareWorkModeBoxForOnlineUps()
{
    ui->workModeBox->clear();
    for (const Event& event : m_model.events())
        ui->workModeBox->addItem(event.state, event.state);
}

void NetworkConfigurationWindow::fillSelectedEvents()
{
    const QTreeWidgetItem* row = selectedNetworkItem();
    selectedEvents = row ? m_model.eventsOfGroup(Velmora::rowGroupId(*row)) : QVector<Event>();
}

void NetworkConfigurationWindow::redrawEvents()
{
    ui->eventsTree->clear();
    for (const Event& event : qAsConst(selectedEvents))
        ui->eventsTree->addTopLevelItem(prepareEventListRow(&event));
}

QTreeWidgetItem* NetworkConfigurationWindow::prepareEventListRow(const Event* event) const
{
    QStringList columns(m_model.isAdvanced()
                            ? event->state
                            : Velmora::workMode(m_model.device().model_name, event->state).label);
    formatRowColumn(&columns, event->messageAction.get());
    formatRowColumn(&columns, event->sysCommandAction.get());
    formatRowColumn(&columns, event->powerOffAction.get());
    formatRowColumn(&columns, event->sendMailAction.get());
    if (m_model.hasOutputSockets())
        formatRowColumn(&columns, event->outputSocketAction.get());
    auto* row = new QTreeWidgetItem(columns);
    row->setToolTip(0, columns.constFirst());
    return row;
}

void NetworkConfigurationWindow::eventEditMode(bool edit)
{
    ui->eventConfigurationGroup->setEnabled(edit);
    setButtonEnabled(ui->saveEventButton, edit);
    ui->cancelEventButton->setEnabled(edit);
    for (QPushButton* button : {ui->addEventButton, ui->editEventButton, ui->removeEventButton})
        setButtonEnabled(button, !edit);
    const QList<QWidget*> others{ui->eventsTree, ui->networkElementsTree, ui->networkElementsGroup};
    for (QWidget* other : others)
        other->setEnabled(!edit);
    if (edit) {
        // Only the service's own computer can send mail or reach the UPS.
        const bool local = isCurrentGroupContainsLocalHost();
        ui->sendEmailBox->setEnabled(local);
        ui->outputSocketBox->setEnabled(local);
    } else {
        clearEditor();
    }
}

// Unchecking disables the companions as well.
void NetworkConfigurationWindow::clearEditor()
{
    ui->messageEdit->clear();
    for (QCheckBox* box : {ui->showMessageBox, ui->systemCommandBox, ui->sendEmailBox, ui->shutdownSystemBox,
                           ui->outputSocketBox})
        box->setChecked(false);
}

void NetworkConfigurationWindow::addEventButtonClickHandler()
{
    if (!selectedNetworkItem()) {
        displayMsgBox(tr("Uwaga!"), tr("Wybierz grupę do której chcesz dodać zdarzenie"));
        return;
    }
    eventEditMode(true);
    ui->eventsTree->clearSelection();
    m_model.addEvent();
    clearEditor();
    setEnableSaveButton(false);
}

std::optional<Event> NetworkConfigurationWindow::currentEvent() const
{
    const int row = ui->eventsTree->indexOfTopLevelItem(ui->eventsTree->currentItem());
    if (row >= 0 && row < selectedEvents.size())
        return selectedEvents.at(row);
    displayMsgBox(tr("Uwaga!"), tr("Wybierz zdarzenie"));
    return {};
}

void NetworkConfigurationWindow::editEventButtonClickHandler()
{
    const std::optional<Event> event = currentEvent();
    if (!event || !m_model.editEvent(*event))
        return;
    eventEditMode(true);
    showEditedEvent();
    setEnableSaveButton(false);
}

void NetworkConfigurationWindow::showEditedEvent()
{
    const Event& event = *m_model.editedEvent();
    ui->workModeBox->setCurrentIndex(ui->workModeBox->findData(event.state));
    ui->messageEdit->setText(event.messageAction ? event.messageAction->message : QString());
    ui->showMessageBox->setChecked(event.messageAction != nullptr);
    ui->systemCommandBox->setChecked(event.sysCommandAction != nullptr);
    ui->sendEmailBox->setChecked(event.sendMailAction != nullptr);
    ui->shutdownSystemBox->setChecked(event.powerOffAction != nullptr);
    ui->outputSocketBox->setChecked(event.outputSocketAction != nullptr);
}

void NetworkConfigurationWindow::removeEventButtonClickHandler()
{
    const std::optional<Event> event = currentEvent();
    if (!event)
        return;
    m_model.removeEvent(*event);
    fillSelectedEvents();
    redrawEvents();
}

Velmora::EventEntry NetworkConfigurationWindow::entry() const
{
    Velmora::EventEntry entry;
    if (ui->workModeBox->currentIndex() >= 0)
        entry.key = ui->workModeBox->currentData().toString();
    if (const QTreeWidgetItem* row = selectedNetworkItem())
        entry.groupId = Velmora::rowGroupId(*row);
    entry.showMessage = ui->showMessageBox->isChecked();
    entry.message = ui->messageEdit->text();
    entry.systemCommand = ui->systemCommandBox->isChecked();
    entry.sendEmail = ui->sendEmailBox->isChecked();
    entry.shutdownSystem = ui->shutdownSystemBox->isChecked();
    entry.outputSocket = ui->outputSocketBox->isChecked();
    return entry;
}

void NetworkConfigurationWindow::saveEventButtonClickHandler()
{
    const EventVerdict verdict = m_model.saveEvent(entry());
    if (verdict == EventVerdict::NothingEdited)
        return;
    if (verdict != EventVerdict::Accepted) {
        displayMsgBox(tr("Uwaga!"), refusalText(verdict));
        return;
    }
    fillSelectedEvents();
    redrawEvents();
    if (m_model.isAdvanced())
        prepareWorkModeBoxForOnlineUps();
    eventEditMode(false);
    setEnableSaveButton(true);
}

void NetworkConfigurationWindow::cancelEventButtonClickHandler()
{
    eventEditMode(false);
    stopNoResponseTimer();
    m_model.cancelEvent();
    // Actions that were configured, and those that a refused save took away, stay as they are now.
    const int row = ui->eventsTree->indexOfTopLevelItem(ui->eventsTree->currentItem());
    fillSelectedEvents();
    redrawEvents();
    ui->eventsTree->setCurrentItem(ui->eventsTree->topLevelItem(row));
    if (m_model.isAdvanced())
        prepareWorkModeBoxForOnlineUps();
    setEnableSaveButton(true);
}

QString NetworkConfigurationWindow::refusalText(EventVerdict verdict) const
{
    switch (verdict) {
    case EventVerdict::Duplicate:
        return tr("Konfiguracja zawiera już zdarzenie ") + ui->workModeBox->currentText();
    case EventVerdict::NoShutdownParameters:
        return tr("Nie zostały ustawione parametry zamknięcia systemu.\nWybierz przycisk \"Konfiguruj\".");
    case EventVerdict::NoCommandParameters:
        return tr("Nie zostały ustawione parametry polecenia systemowego.\n"
                  "Wybierz przycisk \"Konfiguruj\".");
    case EventVerdict::NoEmailParameters:
        return tr("Nie zostały ustawione parametry dla wysyłania email.\nWybierz przycisk \"Konfiguruj\".");
    case EventVerdict::NoSocketParameters:
        return tr("Nie zostały ustawione parametry gniazda sterowalnego.\nWybierz przycisk \"Konfiguruj\".");
    case EventVerdict::CommandNotBeforeShutdown:
        return tr("Nieprawidłowa konfiguracja.\nOpóźnienie wykonania polecenia systemowego jest większe od "
                  "opóźnienia zamknięcia systemu.\nPolecenie systemowe nie zostanie wykonane.");
    case EventVerdict::SocketNotBeforeShutdown:
        return tr("Nieprawidłowa konfiguracja.\nOpóźnienie włączenia/wyłączenia gniazda sterowalnego jest "
                  "większe od opóźnienia zamknięcia systemu.\nPolecenie dla gniazda sterowalnego nie "
                  "zostanie wykonane.");
    case EventVerdict::Accepted:
    case EventVerdict::NothingEdited:
        break;
    }
    return {};
}
