// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "devices/ConfigurationRow.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QRegExpValidator>

using Velmora::ChoiceValue;
using Velmora::UpsConfiguration;
using Velmora::UpsConfigurationPlace;

namespace {

constexpr int labelWidth = 200;
constexpr int unitWidth = 60;
constexpr int narrowEdit = 60;
constexpr int wideEdit = 120;
constexpr int narrowBox = 120;
constexpr int wideBox = 240;
constexpr int controlSpacing = 6;
constexpr int numberLength = 5;

void takeNumbersOnly(QLineEdit* edit, int receivedLength)
{
    // A longer value would be cut, and what is left of it be a change that nobody made.
    edit->setMaxLength(qMax(numberLength, receivedLength));
    edit->setValidator(new QRegExpValidator(QRegExp(QStringLiteral("[+-]?[ ]?[0-9]*([,.][0-9]+)?")), edit));
}

} // namespace

ConfigurationRow::ConfigurationRow(const UpsConfigurationPlace& place, QWidget* parent)
    : m_key(place.setting.key)
    , m_type(place.setting.type)
    , m_received(place.value)
    , m_layout(new QHBoxLayout)
{
    switch (m_type) {
    case Velmora::UpsConfTypeLineEdit:
        buildLineEdit(place, parent);
        break;
    case Velmora::UpsConfTypeCheckBox:
        buildCheckBox(place, parent);
        break;
    case Velmora::UpsConfTypeRadioGroup:
        buildRadioGroup(place, parent);
        break;
    case Velmora::UpsConfTypeComboBox:
        buildComboBox(place, parent);
        break;
    }
    finish(place.setting.visible);
}

void ConfigurationRow::addBetweenLabels(const UpsConfiguration& setting, QWidget* input)
{
    auto* label = new QLabel(setting.label, input->parentWidget());
    label->setMinimumWidth(labelWidth);
    label->setBuddy(input);
    auto* unit = new QLabel(setting.unit, input->parentWidget());
    unit->setFixedWidth(unitWidth);
    m_layout->addWidget(label, 1);
    m_layout->addWidget(input, 0, Qt::AlignVCenter);
    m_layout->addWidget(unit);
}

void ConfigurationRow::buildLineEdit(const UpsConfigurationPlace& place, QWidget* parent)
{
    auto* edit = new QLineEdit(parent);
    edit->setFixedWidth(place.setting.wide ? wideEdit : narrowEdit);
    if (Velmora::isNumericSetting(m_key))
        takeNumbersOnly(edit, place.value.size());
    if (Velmora::isSecretSetting(m_key))
        edit->setEchoMode(QLineEdit::Password);
    edit->setText(place.value);
    m_control = edit;
    addBetweenLabels(place.setting, edit);
}

void ConfigurationRow::buildCheckBox(const UpsConfigurationPlace& place, QWidget* parent)
{
    auto* box = new QCheckBox(place.setting.label, parent);
    box->setChecked(place.value.toInt() != 0);
    m_control = box;
    m_layout->addWidget(box, 0, Qt::AlignVCenter);
}

void ConfigurationRow::buildRadioGroup(const UpsConfigurationPlace& place, QWidget* parent)
{
    const ChoiceValue choice = Velmora::choiceValue(place.value);
    auto* group = new QButtonGroup(parent);
    auto* label = new QLabel(place.setting.label, parent);
    m_layout->addWidget(label);
    for (const QString& option : choice.options) {
        auto* button = new QRadioButton(option, parent);
        button->setChecked(option == choice.current && !group->checkedButton());
        group->addButton(button);
        m_layout->addWidget(button, 0, Qt::AlignVCenter);
        if (!label->buddy())
            label->setBuddy(button);
    }
    m_layout->addWidget(new QLabel(place.setting.unit, parent), 1);
    m_control = group;
}

void ConfigurationRow::buildComboBox(const UpsConfigurationPlace& place, QWidget* parent)
{
    const ChoiceValue choice = Velmora::choiceValue(place.value);
    auto* box = new QComboBox(parent);
    box->setFixedWidth(place.setting.wide ? wideBox : narrowBox);
    box->addItems(choice.options);
    box->setCurrentIndex(choice.options.indexOf(choice.current));
    m_control = box;
    addBetweenLabels(place.setting, box);
}

void ConfigurationRow::finish(bool visible)
{
    m_layout->setSpacing(controlSpacing);
    m_layout->setObjectName(m_key);
    m_layout->setProperty("name", m_key);
    m_control->setProperty("originalValue", m_received);
    for (int i = 0; i < m_layout->count(); ++i) {
        QWidget* widget = m_layout->itemAt(i)->widget();
        widget->setMaximumHeight(maximumHeight);
        if (!visible)
            widget->hide();
    }
}

std::optional<QString> ConfigurationRow::value() const
{
    if (const auto* edit = qobject_cast<const QLineEdit*>(m_control))
        return edit->text();
    if (const auto* box = qobject_cast<const QCheckBox*>(m_control))
        return box->isChecked() ? QStringLiteral("1") : QStringLiteral("0");
    if (const auto* box = qobject_cast<const QComboBox*>(m_control))
        return box->currentIndex() < 0 ? std::nullopt : std::make_optional(box->currentText());
    const auto* group = qobject_cast<const QButtonGroup*>(m_control);
    const QAbstractButton* checked = group ? group->checkedButton() : nullptr;
    return checked ? std::make_optional(checked->text()) : std::nullopt;
}

bool ConfigurationRow::differs() const
{
    return Velmora::settingDiffers(m_type, m_received, value(), m_touched);
}

void ConfigurationRow::setEnabled(bool enabled)
{
    for (int i = 0; i < m_layout->count(); ++i)
        m_layout->itemAt(i)->widget()->setEnabled(enabled);
}
