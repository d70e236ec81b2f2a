// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "policy/NetworkConfigurationWindow.h"

#include "app/ControlPanelConfiguration.h"
#include "link/Sleep.h"
#include "link/TimerHelpers.h"
#include "link/UpsSocketController.h"
#include "monitor/widgets/MessageBox.h"
#include "monitor/widgets/Prompts.h"
#include "policy/NetworkTreeColumns.h"
#include "ui_NetworkConfigurationWindow.h"

#include <QMessageBox>

using Velmora::Utils::displayMsgBox;

// Opening, closing and what the service says.

namespace {

constexpr int answerTime = 10000;
constexpr unsigned long writeTime = 200;
constexpr int nameWidth = 260;

// Qt's own texts carry a mnemonic in some languages.
bool cancels(const QPushButton* button)
{
    const QString text = button->text().remove(QLatin1Char('&'));
    return text == QLatin1String("Cancel") || text == QLatin1String("Anuluj");
}

// A question has to stay answerable: what its answer would change is locked where it is carried out.
bool asksAQuestion(const QPushButton* button)
{
    return qobject_cast<const QMessageBox*>(button->window());
}

} // namespace

NetworkConfigurationWindow::NetworkConfigurationWindow(const Velmora::Utils::Ups& device, QWidget* parent)
    : QDialog(parent)
    , ui(std::make_unique<Ui::NetworkConfigurationWindow>())
    , m_model(device)
    , m_serviceAddress(ControlPanelConfiguration().getServerAddress())
{
    ui->setupUi(this);
    prepareEventsTree();
    Velmora::prepareNetworkTree(ui->networkElementsTree, {tr("Grupa"), tr("Adres")}, nameWidth);
    Velmora::prepareNetworkTree(ui->availableComputers, {tr("Nazwa"), tr("Adres")}, nameWidth);
    setEnableSaveButton(false);
    prepareWorkModeBox(device.model_name);
    ui->advancedConfigurationButton->setVisible(m_model.isAdvanced());
    const bool sockets = m_model.hasOutputSockets();
    ui->outputSocketActionLabel->setVisible(sockets);
    ui->outputSocketBox->setVisible(sockets);
    ui->outputSocketConfigurationButton->setVisible(sockets);
    connectEvents();
    connectNetwork();
    connect(ui->buttonBox, &QDialogButtonBox::accepted, this, &NetworkConfigurationWindow::accept);
    connect(ui->buttonBox, &QDialogButtonBox::rejected, this, &NetworkConfigurationWindow::reject);
}

NetworkConfigurationWindow::~NetworkConfigurationWindow()
{
    // Trees that are emptied here would call back into a half-deleted window.
    for (QTreeWidget* tree : {ui->networkElementsTree, ui->availableComputers})
        tree->disconnect(this);
}

void NetworkConfigurationWindow::setSocketController(Velmora::UpsSocketController* controller)
{
    m_controller = controller;
}

void NetworkConfigurationWindow::getDataFromIni(const QString& upsId)
{
    m_controller->getNetworkConfiguration(upsId);
    Velmora::Utils::startNoResponseTimer(noResponseTimer, this, answerTime,
                                         &NetworkConfigurationWindow::noResponseTimeout);
}

void NetworkConfigurationWindow::noResponseTimeout()
{
    stopNoResponseTimer();
    displayMsgBox(tr("Błąd odczytu"), tr("Nie odczytano pliku konfiguracyjnego"));
}

void NetworkConfigurationWindow::stopNoResponseTimer()
{
    Velmora::Utils::endTimer(noResponseTimer);
}

void NetworkConfigurationWindow::setEventsFromConfig(const QVector<Event>& events)
{
    m_model.setEvents(events);
    if (m_model.isAdvanced()) {
        const QString chosen = ui->workModeBox->currentText();
        prepareWorkModeBoxForOnlineUps();
        if (m_model.isEditing())
            ui->workModeBox->setCurrentIndex(ui->workModeBox->findText(chosen));
    }
    redrawUnlessEditing();
}

void NetworkConfigurationWindow::setGroupsFromConfig(const QVector<Group>& groups)
{
    m_model.setGroups(groups);
    redrawUnlessEditing();
}

void NetworkConfigurationWindow::setAllComputers(const QVector<Computer>& computers)
{
    m_model.setComputers(computers);
    if (m_model.isComplete() && !m_started)
        finishStart();
    else
        redrawUnlessEditing();
}

void NetworkConfigurationWindow::finishStart()
{
    m_started = true;
    stopNoResponseTimer();
    redrawNetworkItems();
    if (QTreeWidgetItem* first = ui->networkElementsTree->topLevelItem(0))
        ui->networkElementsTree->setCurrentItem(first);
    redrawEvents();
    setFixedSize(size());
    setEnableSaveButton(true);
    for (QPushButton* button : {ui->addComputerButton, ui->addGroupButton, ui->discoverButton})
        setButtonEnabled(button, true);
}

void NetworkConfigurationWindow::redrawUnlessEditing()
{
    if (m_started && !m_model.isEditing())
        redrawNetworkItems();
}

void NetworkConfigurationWindow::setButtonEnabled(QPushButton* button, bool enabled) const
{
    button->setEnabled(enabled && !m_locked);
}

void NetworkConfigurationWindow::setEnableSaveButton(bool enabled) const
{
    setButtonEnabled(ui->buttonBox->button(QDialogButtonBox::Save), enabled);
}

void NetworkConfigurationWindow::setEnabledButtons(bool enabled)
{
    if (enabled)
        return;
    m_locked = true;
    const QList<QPushButton*> buttons = findChildren<QPushButton*>();
    for (QPushButton* button : buttons) {
        if (!cancels(button) && !asksAQuestion(button))
            button->setEnabled(false);
    }
}

void NetworkConfigurationWindow::accept()
{
    // Without the service's answers there is nothing that could be sent back, what was sent is gone, and from
    // anybody but the administrator the service takes nothing.
    if (!m_started || m_sent || m_locked)
        return;
    if (m_model.isEditing())
        cancelEventButtonClickHandler();
    m_sent = true;
    QVector<Event> events = m_model.events();
    const QString& id = m_model.device().id;
    m_controller->sendAllComputers(&m_model.computers());
    m_controller->sendEvents(&events, id);
    m_controller->sendGroups(&m_model.groups(), id);
    Velmora::Utils::msleep(writeTime);
    QDialog::accept();
}

void NetworkConfigurationWindow::reject()
{
    if (changedPasswordCount == 0 || m_locked) {
        QDialog::reject();
        return;
    }
    Velmora::Question question;
    question.title = tr("Hasło dla elementu sieciowego zostało zmienione.");
    question.text = tr("Konieczne jest zachowanie konfiguracji. Czy zachować? ");
    const QPointer<NetworkConfigurationWindow> guard(this);
    const QMessageBox::StandardButton answer = Velmora::Prompts::current().ask(this, question).button;
    if (!guard)
        return;
    if (answer == QMessageBox::Yes)
        accept();
    else if (answer == QMessageBox::No)
        QDialog::reject();
}
