// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "logs/LoggingConfigurationWindow.h"

#include "link/UpsSocketController.h"
#include "logs/UpsLogsWindow.h"
#include "logs/core/LoggingSettings.h"
#include "monitor/widgets/ModalDialog.h"
#include "ui_LoggingConfigurationWindow.h"

#include <QPushButton>

#include <algorithm>
#include <iterator>

namespace {

struct LogRow
{
    const char* button;
    const char* title;
    const char* type;
};

constexpr LogRow logRows[] = {
    {"showDataButton", QT_TRANSLATE_NOOP("LoggingConfigurationWindow", "Przegląd danych"), "parameters"},
    {"showEventsButton", QT_TRANSLATE_NOOP("LoggingConfigurationWindow", "Przegląd komunikatów"), "messages"},
    {"showCompensationButton", QT_TRANSLATE_NOOP("LoggingConfigurationWindow", "Przegląd kompensacji"),
     "compensation"},
};

} // namespace

LoggingConfigurationWindow::LoggingConfigurationWindow(QWidget* parent)
    : QDialog(parent)
    , ui(std::make_unique<Ui::LoggingConfigurationWindow>())
{
    ui->setupUi(this);
    layout()->setSizeConstraint(QLayout::SetFixedSize);
    connect(ui->buttonBox, &QDialogButtonBox::accepted, this, &LoggingConfigurationWindow::accept);
    connect(ui->buttonBox, &QDialogButtonBox::rejected, this, &LoggingConfigurationWindow::reject);
    for (const QPushButton* button : {ui->showDataButton, ui->showEventsButton, ui->showCompensationButton})
        connect(button, &QPushButton::clicked, this, &LoggingConfigurationWindow::showLogsButtonClickHandler);
}

LoggingConfigurationWindow::~LoggingConfigurationWindow() = default;

void LoggingConfigurationWindow::setSocketController(Velmora::UpsSocketController* controller)
{
    m_controller = controller;
}

void LoggingConfigurationWindow::setUps(const Velmora::Utils::Ups& ups)
{
    m_record = ups;
    const Velmora::LoggingSettings settings = Velmora::loggingSettings(m_record);
    ui->fileSizeSpinBox->setValue(settings.fileSize);
    ui->intervalSpinBox->setValue(settings.interval);
    ui->compensationCheckBox->setVisible(m_record.power_compensation);
    ui->showCompensationButton->setVisible(m_record.power_compensation);
    ui->parametersCheckBox->setChecked(settings.parameters);
    ui->messagesCheckBox->setChecked(settings.messages);
    ui->compensationCheckBox->setChecked(settings.compensation);
    // They follow what the service logs now, not the boxes.
    ui->showDataButton->setEnabled(settings.parameters);
    ui->showEventsButton->setEnabled(settings.messages);
    ui->showCompensationButton->setEnabled(settings.compensation);
}

void LoggingConfigurationWindow::setEnabledButtons(bool enabled)
{
    const QPushButton* cancel = ui->buttonBox->button(QDialogButtonBox::Cancel);
    const auto buttons = findChildren<QPushButton*>();
    for (QPushButton* button : buttons) {
        // The open log is a child too, and its reader needs no rights.
        if (button != cancel && button->window() == this)
            button->setEnabled(enabled);
    }
}

void LoggingConfigurationWindow::accept()
{
    Velmora::LoggingSettings settings;
    settings.fileSize = ui->fileSizeSpinBox->value();
    settings.interval = ui->intervalSpinBox->value();
    settings.parameters = ui->parametersCheckBox->isChecked();
    settings.messages = ui->messagesCheckBox->isChecked();
    settings.compensation = ui->compensationCheckBox->isChecked();
    Velmora::storeLoggingSettings(settings, m_record);
    m_controller->sendChangeLogConfig(m_record);
    QDialog::accept();
}

void LoggingConfigurationWindow::showLogsButtonClickHandler()
{
    const QString name = sender() ? sender()->objectName() : QString();
    const auto* const row =
        std::find_if(std::begin(logRows), std::end(logRows),
                     [&name](const LogRow& candidate) { return name == QLatin1String(candidate.button); });
    if (row == std::end(logRows))
        return;
    const QString type = QLatin1String(row->type);
    auto* window = new UpsLogsWindow(this);
    window->setWindowTitle(tr(row->title));
    window->setLogType(type);
    window->setSocketController(m_controller);
    m_controller->getUpsLogs(
        {{QStringLiteral("type"), type}, {QStringLiteral("age"), QStringLiteral("first")}});
    Velmora::runModal(m_logsWindow, window);
}
