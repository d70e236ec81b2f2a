// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "monitor/VelmoraWindow.h"

#include "app/ControlPanelConfiguration.h"
#include "devices/core/ModelRules.h"
#include "link/UpsSocketController.h"
#include "monitor/DeviceStatePanel.h"
#include "monitor/UpsTreeElement.h"
#include "monitor/UpsTreeWidget.h"
#include "monitor/core/IndicatorNames.h"
#include "monitor/widgets/Prompts.h"
#include "monitor/widgets/VLStatusWidget.h"
#include "ui_VelmoraWindow.h"

using Velmora::Utils::currentDeviceStatus;
using Velmora::Utils::Ups;

// The device tree and the selection.

void VelmoraWindow::upsModelMessageReceived(const QVector<Ups>& upsModels)
{
    const std::vector<Velmora::DeviceTreeRow> rows = Velmora::deviceTreeLayout(upsModels);
    {
        const QSignalBlocker blocker(upsTree);
        upsTree->clear();
        upsTree->addRows(rows);
        ui->upsEventsButton->setVisible(Velmora::isThreePhaseFamily(currentDevice.model_name));
        upsTree->resizeColumnToContents(0);
    }
    if (rows.empty()) {
        setUpsModelText(QString());
        setUpsModelImage(QString());
    } else {
        expandTree();
        for (const auto& position : Velmora::deviceSelectionSteps(rows, currentDevice.id))
            setCurrentDevice(upsTree->elementAt(position));
    }
    // The rows are grey until the status list paints them: it is asked for now instead of at the next poll.
    socketController->getUpsCurrentStateList();
    if (rows.empty() && showAddUpsPrompt)
        emit signalEmptyUpsList();
    showAddUpsPrompt = false;
}

void VelmoraWindow::expandTree()
{
    {
        // The tree tells of each row that it expands, and measuring its column takes as long as it has rows.
        const QSignalBlocker blocker(upsTree);
        upsTree->expandAll();
    }
    upsTreeExpandedHandler();
}

void VelmoraWindow::setCurrentDevice(UpsTreeElement* element)
{
    if (!element)
        return;
    currentDevice = element->ups;
    setUpsModelText(element->modelFullName);
    setUpsModelImage(currentDevice.model_name);
    upsTree->setCurrentItem(element);
}

void VelmoraWindow::setUpsModelText(const QString& text)
{
    m_statePanel->setModelText(text);
}

void VelmoraWindow::setUpsModelImage(const QString& modelName)
{
    m_statePanel->setModelImage(modelName);
}

void VelmoraWindow::upsTreeCurrentIndexChangedHandler()
{
    const UpsTreeElement* element = upsTree->currentElement();
    if (!element)
        return;
    upsTree->resizeColumnToContents(0);
    currentDevice = element->ups;
    // Neither values nor history of another device stand in a dialog that is opened before the first report.
    if (currentDevice.id != m_reportingDevice)
        lastDeviceState.clear();
    m_reportingDevice = currentDevice.id;
    setUpsModelText(element->modelFullName);
    setUpsModelImage(currentDevice.model_name);
    socketController->sendChangeUpsOnInterface(currentDevice.id.toInt());
    m_statePanel->forgetMessages();
    m_statePanel->showModel(currentDevice.model_name);
    statusWidget->setDeviceType(Velmora::isGenset(currentDevice.model_name) ? Velmora::VLDeviceType::Genset
                                                                            : Velmora::VLDeviceType::Ups);
}

void VelmoraWindow::upsTreeExpandedHandler()
{
    upsTree->resizeColumnToContents(0);
}

void VelmoraWindow::showStatus(UpsTreeElement* element, const currentDeviceStatus& status)
{
    Ups& ups = element->ups;
    ups.parallel_unit = status.parallel_unit;
    ups.power_compensation = status.power_compensation;
    ups.output_socket1 = status.output_socket1;
    ups.output_socket2 = status.output_socket2;
    ups.ups_shutdown_supported = status.ups_shutdown_supported;
    ups.unit_address = QString::fromStdString(status.unit_address);
    upsTree->showIndicator(element, Velmora::indicatorPath(status.status, status.master));
    if (!currentDevice.id.isEmpty() && status.id == currentDevice.id.toInt())
        setCurrentDevice(element);
}

void VelmoraWindow::upsCurrentStatusListMessageReceived(const QVector<currentDeviceStatus>& statuses)
{
    // Refreshing the current device selects its row again, which must not tell the service of a new
    // selection.
    const QSignalBlocker blocker(upsTree);
    const QModelIndex selected = upsTree->currentIndex();
    for (UpsTreeElement* element : upsTree->allElements()) {
        // A row of unknown model stands for no device, although its id would read as 0.
        if (element->ups.id.isEmpty())
            continue;
        const int id = element->ups.id.toInt();
        for (const currentDeviceStatus& status : statuses) {
            if (status.id == id)
                showStatus(element, status);
        }
    }
    upsTree->setCurrentIndex(selected);
}

QList<Ups> VelmoraWindow::getAllUps() const
{
    QList<Ups> devices;
    for (const UpsTreeElement* element : upsTree->allElements()) {
        devices.append(element->ups);
        devices.append(element->childUps());
    }
    return devices;
}

QList<Ups> VelmoraWindow::getAllUpsAssignedToVirtualDevice() const
{
    QList<Ups> devices;
    for (const UpsTreeElement* element : upsTree->allElements()) {
        if (Velmora::isVirtualDevice(element->ups.model_name))
            devices.append(element->childUps());
    }
    return devices;
}

void VelmoraWindow::availablePortsMessageReceived(const QList<Velmora::Utils::SerialPort>& ports)
{
    m_serialPorts = ports;
}

void VelmoraWindow::deleteActionHandler(int /*row*/)
{
    const UpsTreeElement* element = upsTree->currentElement();
    if (!element)
        return;
    // The tree may be built anew while the question stands: what was asked about is what is removed.
    const QString id = element->ups.id;
    Velmora::Question question;
    question.title = tr("Usuwanie UPS");
    question.text = tr("Potwierdź usunięcie urządzenia");
    if (Velmora::Prompts::current().ask(this, question).button != QMessageBox::Yes)
        return;
    socketController->sendRemoveDevice(id);
    // The serial port of the device is free now.
    socketController->getAvailablePorts();
}

void VelmoraWindow::slotEmptyUpsList()
{
    Velmora::Question question;
    question.title = tr("Brak zasilaczy UPS");
    question.text = tr("Aktualnie Velmora nie monitoruje żadnego urządzenia.\n\n"
                       "Dodaj posiadany model UPS do Velmora aby umożliwić jego monitorowanie.\n"
                       "Velmora, po wcześniejszej konfiguracji zdarzeń, będzie mógł dokonać\n"
                       "bezpiecznego zamknięcia systemu na wypadek utraty zasilania.\n\n"
                       "Czy chcesz dodać nowy UPS teraz?\n");
    question.defaultButton = QMessageBox::Yes;
    question.checkBoxText = tr("Nie pokazuj ponownie tego komunikatu");
    const Velmora::Answer answer = Velmora::Prompts::current().ask(this, question);
    if (answer.checkBoxChecked)
        ControlPanelConfiguration().setDontShowAddUpsPrompt(true);
    if (answer.button != QMessageBox::Yes)
        return;
    if (!administratorMode)
        logIn();
    // Still watching: the login was cancelled or failed.
    if (administratorMode)
        addUpsActionHandler();
}
