// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "policy/NetworkConfigurationWindow.h"

#include "monitor/widgets/ModalDialog.h"
#include "policy/AdvancedOptionsWindow.h"
#include "policy/OutputSocketWindow.h"
#include "policy/PowerOffWindow.h"
#include "policy/SendEmailWindow.h"
#include "policy/SysCommandWindow.h"
#include "ui_NetworkConfigurationWindow.h"

using Velmora::runModal;

// The dialogs behind the editor's buttons. Events may be sent again while one is open, so the event is looked
// up anew before anything is written to it.

namespace {

const QStringList& shutdownTypes()
{
    // In the order of TurnOffOption.
    static const QStringList types{QStringLiteral("shutdown"), QStringLiteral("shutdown_Force"),
                                   QStringLiteral("hibernation"), QStringLiteral("reboot")};
    return types;
}

template <typename ActionType>
ActionType& made(std::shared_ptr<ActionType>& slot)
{
    if (!slot)
        slot = std::make_shared<ActionType>();
    return *slot;
}

/// Runs the dialog and calls `store` with the event in the editor if the user accepted.
template <typename Dialog, typename Store>
void runForEvent(Velmora::PolicyModel& model, Dialog* dialog, Store store)
{
    runModal(dialog, [&](const Dialog& accepted) {
        if (Event* event = model.editedEvent())
            store(*event, accepted);
    });
}

} // namespace

bool NetworkConfigurationWindow::canTurnOffUps() const
{
    return isCurrentGroupContainsLocalHost() && m_model.device().ups_shutdown_supported;
}

void NetworkConfigurationWindow::systemCommandConfigurationButtonClickHandler()
{
    const Event* event = m_model.editedEvent();
    if (!event)
        return;
    auto* dialog = new SysCommandWindow(this);
    dialog->setTurnOffUpsEnabled(canTurnOffUps());
    if (const SysCommandAction* action = event->sysCommandAction.get()) {
        dialog->setCommand(action->command_line);
        dialog->setOptions(action->command_options);
        dialog->setDelayTime(action->delay_time);
        dialog->setTurnOffUps(!action->stanbyUps);
    }
    runForEvent(m_model, dialog, [](Event& edited, const SysCommandWindow& accepted) {
        SysCommandAction& action = made(edited.sysCommandAction);
        action.command_line = accepted.getCommand();
        action.command_options = accepted.getOptions();
        action.delay_time = accepted.getDelayTime();
        action.stanbyUps = !accepted.getTurnOffUps();
    });
}

void NetworkConfigurationWindow::sendEmailConfigurationButtonClickHandler()
{
    const Event* event = m_model.editedEvent();
    if (!event)
        return;
    auto* dialog = new SendEmailWindow(this);
    if (const SendMailAction* action = event->sendMailAction.get()) {
        dialog->setSender(action->sender);
        dialog->setReceiver(action->receipent);
        dialog->setSubject(action->subject);
        dialog->setContent(action->body);
    }
    runForEvent(m_model, dialog, [](Event& edited, const SendEmailWindow& accepted) {
        SendMailAction& action = made(edited.sendMailAction);
        action.sender = accepted.getSender();
        action.receipent = accepted.getReceiver();
        action.subject = accepted.getSubject();
        action.body = accepted.getContent();
    });
}

void NetworkConfigurationWindow::shutdownSystemConfigurationButtonClickHandler()
{
    const Event* event = m_model.editedEvent();
    if (!event)
        return;
    auto* dialog = new PowerOffWindow(this);
    dialog->setTurnOffUpsEnabled(canTurnOffUps());
    if (const PowerOffAction* action = event->powerOffAction.get()) {
        dialog->setDelay(action->delay_time);
        dialog->setTurnOffUps(!action->stanbyUps);
        const int mode = shutdownTypes().indexOf(action->type);
        if (mode >= 0)
            dialog->setTurnOffMode(static_cast<TurnOffOption::Option>(mode));
    }
    runForEvent(m_model, dialog, [](Event& edited, const PowerOffWindow& accepted) {
        PowerOffAction& action = made(edited.powerOffAction);
        action.delay_time = accepted.getDelay();
        action.stanbyUps = !accepted.isTurnOffUps();
        action.type = shutdownTypes().value(accepted.getTurnOffMode(), action.type);
    });
}

void NetworkConfigurationWindow::outputSocketConfigurationButtonClickHandler()
{
    const Event* event = m_model.editedEvent();
    if (!event)
        return;
    const Velmora::Utils::Ups& device = m_model.device();
    auto* dialog = new OutputSocketWindow(device.output_socket1, device.output_socket2, this);
    if (const OutputSocketControlAction* action = event->outputSocketAction.get()) {
        dialog->setFirstOutputSocketConfigured(action->first_sock_conf);
        dialog->setFirstOutputSocketEnabled(action->first_sock_ena);
        dialog->setFirstDelayTime(action->first_sock_delay);
        dialog->setSecondOutputSocketConfigured(action->second_sock_conf);
        dialog->setSecondOutputSocketEnabled(action->second_sock_ena);
        dialog->setSecondDelayTime(action->second_sock_delay);
    }
    runForEvent(m_model, dialog, [](Event& edited, const OutputSocketWindow& accepted) {
        OutputSocketControlAction& action = made(edited.outputSocketAction);
        action.first_sock_conf = accepted.isFirstOutputSocketConfigured();
        action.first_sock_ena = accepted.isFirstOutputSocketEnabled();
        action.first_sock_delay = accepted.getFirstDelayTime();
        action.second_sock_conf = accepted.isSecondOutputSocketConfigured();
        action.second_sock_ena = accepted.isSecondOutputSocketEnabled();
        action.second_sock_delay = accepted.getSecondDelayTime();
    });
}

void NetworkConfigurationWindow::advancedOptionsButtonClickHandler()
{
    if (!m_model.isEditing())
        return;
    const QStringList expressions =
        m_model.expressionsToEdit(ui->workModeBox->currentText(), tr("Zdarzenie "));
    // Of its own: the model's may be sent again while the dialog reads them.
    QVector<Event> knownEvents = m_model.events();
    auto* dialog = new AdvancedOptionsWindow(m_model.device(), expressions, &knownEvents, this);
    dialog->setEditMode(!m_model.isNewEvent());
    QStringList accepted;
    runModal(dialog,
             [&accepted](const AdvancedOptionsWindow& window) { accepted = window.getExpressions(); });
    if (accepted.size() != 3 || !m_model.isEditing())
        return;
    m_model.storeExpressions(accepted);
    prepareWorkModeBoxForOnlineUps();
    ui->workModeBox->setCurrentIndex(ui->workModeBox->findData(accepted.constFirst()));
}
