// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "admin/ApplicationConfigurationWindow.h"

#include "admin/SmtpTestWindow.h"
#include "app/ControlPanelConfiguration.h"
#include "devices/AddUpsWindow.h"
#include "devices/AddVirtualUpsWindow.h"
#include "link/UpsSocketController.h"
#include "monitor/widgets/MessageBox.h"
#include "monitor/widgets/ModalDialog.h"
#include "monitor/widgets/Prompts.h"
#include "ui_ApplicationConfigurationWindow.h"

#include <QAction>
#include <QIntValidator>
#include <QLineEdit>
#include <QRegExpValidator>
#include <QStyle>

using Velmora::SmtpFormField;
using Velmora::Utils::SmtpConfig;

namespace {

constexpr int highestPort = 65535;
constexpr int shortestTimeout = 10;
constexpr int longestTimeout = 120;

/// Takes plain digits only: with the user's locale it would let group separators pass that toInt() does not
/// read.
QIntValidator* numberValidator(int lowest, int highest, QObject* parent)
{
    auto* validator = new QIntValidator(lowest, highest, parent);
    QLocale plain = QLocale::c();
    plain.setNumberOptions(QLocale::RejectGroupSeparator | QLocale::OmitGroupSeparator);
    validator->setLocale(plain);
    return validator;
}

SmtpFormField field(const QLineEdit* edit)
{
    return {edit->text(), edit->hasAcceptableInput()};
}

/// A wrong field is red and, for whom colour does not reach, carries a sign that says what is wanted there.
void mark(QLineEdit* edit, bool wrong, const QString& wanted)
{
    edit->setStyleSheet(wrong ? QStringLiteral("background-color: red;") : QString());
    edit->setToolTip(wrong ? wanted : QString());
    edit->setAccessibleDescription(edit->toolTip());
    const QString signName = QStringLiteral("wrongEntry");
    delete edit->findChild<QAction*>(signName);
    if (!wrong)
        return;
    QAction* sign = edit->addAction(edit->style()->standardIcon(QStyle::SP_MessageBoxWarning),
                                    QLineEdit::TrailingPosition);
    sign->setObjectName(signName);
    sign->setText(wanted);
}

} // namespace

ApplicationConfigurationWindow::ApplicationConfigurationWindow(QList<Velmora::Utils::SerialPort>* ports,
                                                               const QList<Velmora::Utils::Ups>& members,
                                                               const QList<Velmora::Utils::Ups>& devices,
                                                               QWidget* parent)
    : QDialog(parent)
    , ui(std::make_unique<Ui::ApplicationConfigurationWindow>())
    , m_ports(ports)
    , m_members(members)
    , m_devices(devices)
{
    ui->setupUi(this);
    layout()->setSizeConstraint(QLayout::SetFixedSize);
    prepareSmtpForm();
    connectForm();
    setEnabledButtons(false);
}

ApplicationConfigurationWindow::~ApplicationConfigurationWindow() = default;

void ApplicationConfigurationWindow::prepareSmtpForm()
{
    ui->smtpSecurityBox->addItem(tr("Brak"), ENCRYPTION_ID_NONE);
    ui->smtpSecurityBox->addItem(QStringLiteral("TLS"), ENCRYPTION_ID_TLS);
    ui->smtpSecurityBox->addItem(QStringLiteral("SSL"), ENCRYPTION_ID_SSL);
    ui->smtpPortEdit->setValidator(numberValidator(0, highestPort, this));
    ui->smtpTimeoutEdit->setValidator(numberValidator(shortestTimeout, longestTimeout, this));
    ui->smtpSenderAddressEdit->setValidator(
        new QRegExpValidator(QRegExp(Velmora::senderAddressPattern()), this));
    updateSmtpForm();
}

void ApplicationConfigurationWindow::connectForm()
{
    using Window = ApplicationConfigurationWindow;
    connect(ui->smtpAuthenticationBox, &QCheckBox::stateChanged, this,
            &Window::slotSmtpAuthenticationChanged);
    connect(ui->smtpTestButton, &QPushButton::clicked, this, &Window::sendTestMailButtonClickHandler);
    connect(ui->openDirButton, &QPushButton::clicked, this, &Window::openButtonClickHandler);
    connect(ui->addUpsButton, &QPushButton::clicked, this, &Window::addUpsButtonClickHandler);
    connect(ui->addVirtualUpsButton, &QPushButton::clicked, this, &Window::addVirtualUpsButtonClickHandler);
    connect(ui->buttonBox, &QDialogButtonBox::accepted, this, &Window::accept);
    connect(ui->buttonBox, &QDialogButtonBox::rejected, this, &Window::reject);
}

void ApplicationConfigurationWindow::setSocketController(Velmora::UpsSocketController* controller)
{
    m_controller = controller;
}

void ApplicationConfigurationWindow::getApplicationConfigurationFromIni()
{
    m_controller->getApplicationConfiguration();
}

void ApplicationConfigurationWindow::setApplicationConfigurationFromIni(
    const Velmora::Utils::ApplicationConfiguration& configuration)
{
    fillSmtpForm(configuration);
    ui->runOnBootBox->setChecked(configuration.run_on_boot);
    ui->logDirPathEdit->setText(configuration.log_files_path);
    ui->checkUpdatesBox->setChecked(ControlPanelConfiguration().getCheckForUpdates());
    m_configuration = configuration;
    setEnabledButtons(true);
}

void ApplicationConfigurationWindow::fillSmtpForm(const SmtpConfig& config)
{
    ui->smtpSecurityBox->setCurrentIndex(
        ui->smtpSecurityBox->findData(Velmora::encryptionId(config.security_type)));
    // What was saved blank is shown blank: with zeros in it nothing could be saved any more.
    const bool blank = Velmora::isBlankMailAccount(config);
    ui->smtpServerEdit->setText(config.server);
    ui->smtpPortEdit->setText(blank ? QString() : QString::number(config.port));
    ui->smtpSenderAddressEdit->setText(config.sender_address);
    ui->smtpTimeoutEdit->setText(blank ? QString() : QString::number(config.timeout));
    ui->smtpAuthenticationBox->setChecked(config.authentication);
    ui->smtpUserEdit->setText(config.user);
    ui->smtpPassEdit->setText(config.pass);
    updateSmtpForm();
}

void ApplicationConfigurationWindow::updateSmtpForm()
{
    const bool authentication = ui->smtpAuthenticationBox->isChecked();
    ui->smtpUserEdit->setEnabled(authentication);
    ui->smtpPassEdit->setEnabled(authentication);
}

void ApplicationConfigurationWindow::slotSmtpAuthenticationChanged(int /*state*/)
{
    updateSmtpForm();
}

void ApplicationConfigurationWindow::getSmtpFormData(SmtpConfig* config) const
{
    config->security_type = Velmora::encryptionName(ui->smtpSecurityBox->currentData().toInt());
    config->server = ui->smtpServerEdit->text();
    config->port = ui->smtpPortEdit->text().toInt();
    config->timeout = ui->smtpTimeoutEdit->text().toInt();
    config->sender_address = ui->smtpSenderAddressEdit->text();
    config->authentication = ui->smtpAuthenticationBox->isChecked();
    config->user = ui->smtpUserEdit->text();
    config->pass = ui->smtpPassEdit->text();
}

bool ApplicationConfigurationWindow::checkSmtpForm(bool allowEmpty)
{
    const Velmora::SmtpFormFaults faults =
        Velmora::checkSmtpForm({ui->smtpServerEdit->text(), field(ui->smtpPortEdit),
                                field(ui->smtpSenderAddressEdit), field(ui->smtpTimeoutEdit)},
                               allowEmpty);
    mark(ui->smtpServerEdit, faults.server, tr("Adres serwera"));
    mark(ui->smtpPortEdit, faults.port, tr("Liczba od %1 do %2").arg(0).arg(highestPort));
    mark(ui->smtpSenderAddressEdit, faults.senderAddress, tr("Adres e-mail, np. ups@example.com"));
    mark(ui->smtpTimeoutEdit, faults.timeout,
         tr("Liczba od %1 do %2").arg(shortestTimeout).arg(longestTimeout));
    return !faults.any();
}

void ApplicationConfigurationWindow::setEnabledButtons(bool enabled)
{
    for (QPushButton* button : {ui->buttonBox->button(QDialogButtonBox::Ok), ui->addUpsButton,
                                ui->addVirtualUpsButton, ui->openDirButton, ui->smtpTestButton})
        button->setEnabled(enabled);
}

void ApplicationConfigurationWindow::accept()
{
    // The buttons also go on when the service is no longer busy: a record that never came is not overwritten.
    if (!m_configuration || !checkSmtpForm(true))
        return;
    saveConfigurationToFile();
    QDialog::accept();
}

void ApplicationConfigurationWindow::saveConfigurationToFile()
{
    saveUpdateSwitch();
    m_configuration->run_on_boot = ui->runOnBootBox->isChecked();
    m_configuration->log_files_path = ui->logDirPathEdit->text();
    m_configuration->control_panel_path.clear();
    getSmtpFormData(&*m_configuration);
    m_controller->sendAppConfiguration(&*m_configuration);
}

void ApplicationConfigurationWindow::saveUpdateSwitch() const
{
    const bool check = ui->checkUpdatesBox->isChecked();
    ControlPanelConfiguration configuration;
    const bool isChange = configuration.getCheckForUpdates() != check;
    configuration.setCheckForUpdates(check);
    // The file may belong to the administrator of the computer.
    if (!configuration.save() && isChange)
        Velmora::Utils::displayMsgBox(tr("Uwaga"),
                                      tr("Nie można zapisać w pliku ustawień panelu, czy ma on sprawdzać "
                                         "dostępność aktualizacji."));
}

void ApplicationConfigurationWindow::openButtonClickHandler()
{
    const QPointer<ApplicationConfigurationWindow> guard(this);
    const auto folder =
        Velmora::Prompts::current().chooseFolder(this, tr("Wybierz katalog"), ui->logDirPathEdit->text());
    if (guard && folder)
        ui->logDirPathEdit->setText(*folder);
}

void ApplicationConfigurationWindow::addUpsButtonClickHandler()
{
    auto* dialog = new AddUpsWindow(m_ports, this);
    dialog->setWindowTitle(tr("Nowy UPS"));
    dialog->setUpsName(QString());
    dialog->setSocketController(m_controller);
    dialog->setAllUpsList(m_devices);
    // The base's acceptance: this dialog's own would send its settings.
    Velmora::runModal(dialog, [this](AddUpsWindow& /*accepted*/) { QDialog::accept(); });
}

void ApplicationConfigurationWindow::addVirtualUpsButtonClickHandler()
{
    auto* dialog = new AddVirtualUpsWindow(this);
    dialog->setWindowTitle(tr("Wirtualny UPS"));
    dialog->setSocketController(m_controller);
    dialog->setPhyDevIncludedIntoAllVirtuals(m_members);
    dialog->displayAvailableParallelDevices(m_devices);
    Velmora::runModal(dialog, [this](AddVirtualUpsWindow& /*accepted*/) { QDialog::accept(); });
}

void ApplicationConfigurationWindow::sendTestMailButtonClickHandler()
{
    if (!checkSmtpForm(false))
        return;
    SmtpConfig config;
    getSmtpFormData(&config);
    emit SendTestMail(config);
    // Progress arrives through the dialog's own loop, so none can be missed between the two.
    Velmora::runModal(m_smtpTest, new SmtpTestWindow(this));
}

void ApplicationConfigurationWindow::updateSmtp2TestResultWindow(const int& status,
                                                                 const QStringList& messages)
{
    if (m_smtpTest)
        m_smtpTest->updateStatus(status, messages);
}
