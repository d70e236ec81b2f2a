// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "devices/AddUpsWindow.h"

#include "devices/SnmpOptionsWindow.h"
#include "devices/core/ModelCatalogue.h"
#include "link/UpsSocketController.h"
#include "monitor/widgets/ModalDialog.h"
#include "monitor/widgets/Prompts.h"
#include "ui_AddUpsWindow.h"

using Velmora::CommunicationKind;
using Velmora::Utils::SerialPort;
using Velmora::Utils::Ups;

namespace {

constexpr int longestName = 80;

} // namespace

AddUpsWindow::AddUpsWindow(QList<SerialPort>* ports, QWidget* parent)
    : QDialog(parent)
    , ui(std::make_unique<Ui::AddUpsWindow>())
    , m_ports(ports)
{
    ui->setupUi(this);
    layout()->setSizeConstraint(QLayout::SetFixedSize);
    ui->upsNameEdit->setMaxLength(longestName);
    ui->snmpOptionsButton->hide();
    ui->communicationPortBox->hide();
    ui->communicationPortLabel->hide();
    connect(ui->upsModelBox, &QComboBox::currentTextChanged, this,
            &AddUpsWindow::upsModelBoxCurrentIndexChangedHandler);
    connect(ui->communicationInterfaceBox, &QComboBox::currentTextChanged, this,
            &AddUpsWindow::communicationInterfaceBoxIndexChangeHandler);
    connect(ui->communicationPortBox, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &AddUpsWindow::communicationPortBoxCurrentIndexChangeHandler);
    connect(ui->snmpOptionsButton, &QPushButton::clicked, this, &AddUpsWindow::snmpOptionsButtonClickHandler);
    connect(ui->buttonBox, &QDialogButtonBox::accepted, this, &AddUpsWindow::accept);
    connect(ui->buttonBox, &QDialogButtonBox::rejected, this, &AddUpsWindow::reject);
    fillModels();
    disableOk();
}

AddUpsWindow::~AddUpsWindow() = default;

void AddUpsWindow::setSocketController(Velmora::UpsSocketController* controller)
{
    m_controller = controller;
}

void AddUpsWindow::setAllUpsList(const QList<Ups>& devices)
{
    m_devices = devices;
}

void AddUpsWindow::setUpsEdited(bool edited)
{
    m_edited = edited;
}

void AddUpsWindow::setUpsName(const QString& name)
{
    m_record.user_defined_name = m_baseline.name = name;
    ui->upsNameEdit->setText(name);
    disableOk();
}

void AddUpsWindow::setModel(const QString& configName)
{
    // An unknown model selects nothing: the first one of the box would silently replace it.
    ui->upsModelBox->setCurrentIndex(
        ui->upsModelBox->findData(Velmora::Utils::getModelShortName(configName)));
    m_record.model_name = m_baseline.model = ui->upsModelBox->currentText();
    disableOk();
}

void AddUpsWindow::setId(const QString& id)
{
    m_record.id = id;
}

void AddUpsWindow::setCommunication(const QString& communication)
{
    m_record.communication = m_baseline.interface = communication;
    ui->communicationInterfaceBox->setCurrentIndex(
        ui->communicationInterfaceBox->findText(communication, Qt::MatchFixedString));
    disableOk();
}

void AddUpsWindow::setComPort(const QString& port)
{
    m_record.com_port = m_baseline.port = port;
    // A port that is gone selects nothing: another one would move the device.
    ui->communicationPortBox->setCurrentIndex(
        ui->communicationPortBox->findText(port, Qt::MatchFixedString | Qt::MatchCaseSensitive));
    disableOk();
}

void AddUpsWindow::setIpAddress(const QString& ip)
{
    m_record.ip = m_baseline.ip = ip;
    disableOk();
}

void AddUpsWindow::setWriteCommunity(const QString& community)
{
    m_record.write = m_baseline.writeCommunity = community;
    disableOk();
}

void AddUpsWindow::setReadCommunity(const QString& community)
{
    m_record.read = m_baseline.readCommunity = community;
    disableOk();
}

void AddUpsWindow::setSnmpVerion(const QString& version)
{
    m_record.snmp_ver = m_baseline.snmpVersion = version;
    disableOk();
}

void AddUpsWindow::setSerialNumber(const QString& serialNumber)
{
    m_record.serial_no = m_baseline.serialNumber = serialNumber;
    disableOk();
}

void AddUpsWindow::fillModels()
{
    for (const QString& name : Velmora::registrableModelNames())
        ui->upsModelBox->addItem(name.toUpper(), name);
}

void AddUpsWindow::upsModelBoxCurrentIndexChangedHandler(const QString& shortName)
{
    const int port = ui->communicationPortBox->currentIndex();
    ui->communicationInterfaceBox->clear();
    const QStringList interfaces = Velmora::Utils::getInterfaceType(shortName);
    for (const QString& interface : interfaces) {
        ui->communicationInterfaceBox->addItem(interface.toUpper(), interface);
        if (Velmora::communicationKind(interface) == CommunicationKind::Rs232)
            ui->communicationPortBox->setCurrentIndex(port);
    }
    configChangesCheck();
}

void AddUpsWindow::communicationInterfaceBoxIndexChangeHandler(const QString& interfaceText)
{
    const int port = m_edited ? ui->communicationPortBox->currentIndex() : -1;
    const CommunicationKind kind = Velmora::communicationKind(interfaceText);
    const bool serial = kind == CommunicationKind::Rs232;
    ui->communicationPortBox->clear();
    if (serial) {
        fillPorts();
        if (m_edited)
            ui->communicationPortBox->setCurrentIndex(port);
    }
    ui->communicationPortBox->setEnabled(serial);
    ui->communicationPortBox->setVisible(serial);
    ui->communicationPortLabel->setVisible(serial);
    ui->snmpOptionsButton->setVisible(kind == CommunicationKind::Snmp);
    configChangesCheck();
}

void AddUpsWindow::fillPorts()
{
    // Ports in use stay selectable: an edited device keeps its own.
    QFont inUseFont(QStringLiteral("myFontFamily"));
    inUseFont.setItalic(true);
    const QList<SerialPort> ports = m_ports ? *m_ports : QList<SerialPort>();
    for (const SerialPort& port : ports) {
        if (port.name.isEmpty())
            continue;
        ui->communicationPortBox->addItem(port.name, port.free);
        if (port.free)
            continue;
        const int item = ui->communicationPortBox->count() - 1;
        ui->communicationPortBox->setItemData(item, inUseFont, Qt::FontRole);
        ui->communicationPortBox->setItemData(item, QColor(QStringLiteral("grey")), Qt::ForegroundRole);
    }
}

void AddUpsWindow::communicationPortBoxCurrentIndexChangeHandler(int /*index*/)
{
    configChangesCheck();
}

void AddUpsWindow::on_upsNameEdit_textEdited(const QString& /*name*/)
{
    configChangesCheck();
}

Velmora::DeviceRegistrationEntry AddUpsWindow::entry() const
{
    Velmora::DeviceRegistrationEntry entry;
    entry.model = ui->upsModelBox->currentText();
    entry.interface = ui->communicationInterfaceBox->currentText();
    entry.port = ui->communicationPortBox->currentText();
    entry.ip = m_record.ip;
    entry.writeCommunity = m_record.write;
    entry.readCommunity = m_record.read;
    entry.snmpVersion = m_record.snmp_ver;
    entry.serialNumber = m_record.serial_no;
    entry.name = ui->upsNameEdit->text();
    return entry;
}

void AddUpsWindow::configChangesCheck()
{
    const Velmora::DeviceRegistrationEntry present = entry();
    const bool portFree = ui->communicationPortBox->currentData().toBool();
    ui->buttonBox->button(QDialogButtonBox::Ok)
        ->setEnabled(Velmora::registrationIsComplete(present, m_edited, portFree) &&
                     Velmora::registrationDiffers(present, m_baseline));
}

void AddUpsWindow::disableOk()
{
    ui->buttonBox->button(QDialogButtonBox::Ok)->setEnabled(false);
}

void AddUpsWindow::snmpOptionsButtonClickHandler()
{
    const QString shortName = ui->upsModelBox->currentData().toString();
    auto* options = new SnmpOptionsWindow(this);
    options->setAgentIp(m_record.ip);
    options->setReadCommunity(m_record.read);
    options->setWriteCommunity(m_record.write);
    options->setSnmpVer(m_record.snmp_ver, Velmora::isSnmpVersionSelectable(shortName));
    options->setSerialNumber(m_record.serial_no, Velmora::hasControllerSerialNumber(shortName));
    Velmora::runModal(m_snmpOptions, options, [this](const SnmpOptionsWindow& accepted) {
        m_record.ip = accepted.getAgentIp();
        m_record.read = accepted.getReadCommunity();
        m_record.write = accepted.getWriteCommunity();
        m_record.snmp_ver = accepted.getSnmpVer();
        m_record.serial_no = accepted.getSerialNumber();
        configChangesCheck();
    });
}

bool AddUpsWindow::savingOrChangingUpsAllowed(const QString& newConfigName) const
{
    const QString replaced =
        m_edited ? Velmora::Utils::getModelConfigName(m_record.model_name, m_record.communication.toUpper())
                 : QString();
    return Velmora::registrationAllowed(newConfigName, m_devices, replaced);
}

void AddUpsWindow::accept()
{
    const QString model = ui->upsModelBox->currentText();
    const QString interface = ui->communicationInterfaceBox->currentText();
    const bool resetsEvents =
        Velmora::changeResetsEvents(model, interface, m_record.model_name, m_record.communication);
    const QString configName = Velmora::Utils::getModelConfigName(model, interface);
    if (!savingOrChangingUpsAllowed(configName)) {
        refuse();
        return;
    }
    m_record.model_name = configName;
    m_record.user_defined_name = ui->upsNameEdit->text().left(longestName);
    Velmora::setCommunication(m_record, Velmora::communicationKind(interface),
                              ui->communicationPortBox->currentText());
    const QPointer<AddUpsWindow> guard(this);
    if (m_edited)
        sendChange(resetsEvents);
    else
        m_controller->sendDeviceData(m_record);
    if (!guard)
        return;
    m_controller->getAvailablePorts();
    QDialog::accept();
}

void AddUpsWindow::refuse()
{
    Velmora::Question notice;
    notice.title = tr("Uwaga");
    notice.text = tr("Oprogramowanie wspiera monitorowanie tylko jednego urządzenia tej klasy");
    notice.icon = QMessageBox::NoIcon;
    notice.buttons = QMessageBox::Ok;
    Velmora::Prompts::current().ask(this, notice);
}

void AddUpsWindow::sendChange(bool resetsEvents)
{
    if (resetsEvents) {
        Velmora::Question question;
        question.title = tr("Uwaga");
        question.text = tr("Konfiguracja dla tego zasilacza zostanie przywrócona do domyślnych zdarzeń. "
                           "Czy kontynuować?");
        // Any other answer drops the edit, and the dialog closes all the same.
        if (Velmora::Prompts::current().ask(this, question).button != QMessageBox::Yes)
            return;
        m_record.reset_events_request = true;
    }
    m_controller->sendChangeDevice(m_record);
}
