// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "monitor/DeviceStatePanel.h"

#include "devices/core/ModelRules.h"
#include "monitor/core/DeviceCaptions.h"
#include "monitor/core/DeviceMessages.h"
#include "monitor/widgets/Picture.h"
#include "ui_VelmoraWindow.h"

using Velmora::BarView;
using Velmora::DeviceStateView;
using Velmora::FieldView;

namespace {

void showField(LineEditWidget* field, const FieldView& value)
{
    if (value)
        field->setText(*value);
    else
        field->setDefaultText();
}

void showBar(ProgressBarWidget* bar, const BarView& view)
{
    switch (view.action) {
    case BarView::Keep:
        break;
    case BarView::ShowDefault:
        bar->setDefaultValue();
        break;
    case BarView::ShowValue:
        bar->setValue(view.value);
        break;
    }
}

} // namespace

DeviceStatePanel::DeviceStatePanel(Ui::VelmoraWindow* form)
    : m_form(form)
{
    nameValues();
}

// A value stands inside the field that its caption belongs to, where a screen reader finds no caption.
void DeviceStatePanel::nameValues()
{
    const QList<QLabel*> captions = m_form->upsBox->findChildren<QLabel*>();
    for (const QLabel* caption : captions) {
        const QList<QWidget*> parts =
            caption->buddy() ? caption->buddy()->findChildren<QWidget*>() : QList<QWidget*>();
        for (QWidget* part : parts) {
            if (!qobject_cast<QAbstractButton*>(part))
                part->setAccessibleName(caption->text());
        }
    }
}

void DeviceStatePanel::hideOptionalFields()
{
    for (QWidget* widget : std::initializer_list<QWidget*>{
             m_form->upsEventsButton, m_form->loadLabel_2, m_form->loadProgressBar_2, m_form->loadLabel_3,
             m_form->loadProgressBar_3, m_form->nameAndLocationLabel, m_form->nameAndLocalizationEdit,
             m_form->deviceMessages})
        widget->hide();
}

void DeviceStatePanel::setModelText(const QString& text)
{
    if (m_form->modelNameEdit->text() != text)
        m_form->modelNameEdit->setText(text);
}

void DeviceStatePanel::setModelImage(const QString& modelName)
{
    const QString path = Velmora::devicePictureName(modelName);
    if (path == m_modelImagePath)
        return;
    m_modelImagePath = path;
    m_form->upsModel->setPixmap(Velmora::picture(path));
}

void DeviceStatePanel::showModel(const QString& modelName)
{
    const bool threePhases = Velmora::showsThreePhases(modelName);
    for (QWidget* widget : std::initializer_list<QWidget*>{m_form->upsEventsButton, m_form->loadLabel_2,
                                                           m_form->loadProgressBar_2, m_form->loadLabel_3,
                                                           m_form->loadProgressBar_3})
        widget->setVisible(threePhases);

    const Velmora::DeviceCaptions captions = Velmora::deviceCaptions(modelName);
    m_form->upsBox->setTitle(captions.box);
    m_form->modelNameLabel->setText(captions.model);
    m_form->firmwareLabel->setText(captions.firmware);
    m_form->nominalActivePowerLabel->setText(captions.nominalActivePower);
    m_form->nominalSpuriousPowerLabel->setText(captions.nominalSpuriousPower);
    m_form->workModeLabel->setText(captions.workMode);
    m_form->loadLabel->setText(captions.load);
    m_form->batteryStateLabel->setText(captions.batteryState);
    m_form->autonomyTimeLabel->setText(captions.autonomyTime);
    m_form->temperatureLabel->setText(captions.temperature);
    m_form->upsConfigurationButton->setText(captions.configurationButton);
    nameValues();

    const Velmora::MissingValueReasons reasons = Velmora::missingValueReasons(modelName);
    m_form->temperatureEdit->defaultTooltip(reasons.temperature);
    m_form->firmwareEdit->defaultTooltip(reasons.firmware);
    m_form->nominalActivePowerEdit->defaultTooltip(reasons.nominalActivePower);
    m_form->nominalSpuriousPowerEdit->defaultTooltip(reasons.nominalSpuriousPower);
}

void DeviceStatePanel::showState(const DeviceStateView& view)
{
    showFields(view);
    showNameAndLocation(view);
    showMessages(view.messages);
}

void DeviceStatePanel::showFields(const DeviceStateView& view)
{
    showBar(m_form->loadProgressBar, view.load[0]);
    showBar(m_form->loadProgressBar_2, view.load[1]);
    showBar(m_form->loadProgressBar_3, view.load[2]);
    showBar(m_form->batteryStateProgressBar, view.batteryState);
    m_form->workModeEdit->setText(view.workMode);
    showField(m_form->nominalActivePowerEdit, view.nominalActivePower);
    showField(m_form->nominalSpuriousPowerEdit, view.nominalSpuriousPower);
    showField(m_form->autonomyTimeEdit, view.autonomyTime);
    showField(m_form->firmwareEdit, view.firmware);
    showField(m_form->temperatureEdit, view.temperature);
}

void DeviceStatePanel::showNameAndLocation(const DeviceStateView& view)
{
    QLineEdit* edit = m_form->nameAndLocalizationEdit;
    if (view.nameAndLocation && edit->text() != *view.nameAndLocation)
        edit->setText(*view.nameAndLocation);
    edit->setVisible(view.nameAndLocationVisible);
    m_form->nameAndLocationLabel->setVisible(view.nameAndLocationVisible);
}

void DeviceStatePanel::showMessages(const std::optional<QStringList>& codes)
{
    QPlainTextEdit* box = m_form->deviceMessages;
    box->show();
    if (!codes) {
        if (!m_showsNoMessages) {
            box->clear();
            box->appendHtml(Velmora::noMessagesHtml());
        }
        lastMessages.clear();
        m_showsNoMessages = true;
        return;
    }
    // The text and its scroll position stay still between reports.
    if (*codes == lastMessages)
        return;
    const Velmora::DeviceMessageBlocks blocks = Velmora::deviceMessageBlocks(*codes);
    box->setPlainText(blocks.alarms);
    box->appendHtml(blocks.warningsHtml);
    box->appendHtml(blocks.noticesHtml);
    lastMessages = *codes;
    m_showsNoMessages = false;
}

void DeviceStatePanel::forgetMessages()
{
    lastMessages.clear();
    m_showsNoMessages = false;
}

void DeviceStatePanel::hideMessages()
{
    m_form->deviceMessages->hide();
}
