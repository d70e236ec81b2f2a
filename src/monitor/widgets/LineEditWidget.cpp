// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "monitor/widgets/LineEditWidget.h"

#include "monitor/widgets/ValueHelpButton.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>

namespace {

constexpr int fieldHeight = 20;
constexpr int fieldWidth = 225;

} // namespace

LineEditWidget::LineEditWidget(QWidget* parent)
    : QWidget(parent)
    , m_modelTooltip(tr("Dane niedostępne w wybranym modelu"))
    , m_interfaceTooltip(tr("Dane niedostępne przy użyciu wybranego interfejsu komunikacyjnego"))
    , lineEdit(new QLineEdit(this))
    , helpButton(Velmora::makeValueHelpButton(this))
{
    lineEdit->setObjectName(QStringLiteral("lineEdit"));
    lineEdit->setReadOnly(true);
    lineEdit->setAlignment(Qt::AlignCenter);
    auto* layout = new QHBoxLayout(this);
    layout->setSpacing(6);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(lineEdit);
    layout->addWidget(helpButton);
    setFocusProxy(lineEdit);
    setMinimumHeight(fieldHeight);
    resize(fieldWidth, fieldHeight);
    defaultTooltip(true);
    connect(helpButton, &QPushButton::clicked, this, &LineEditWidget::on_helpButton_clicked);
}

QString LineEditWidget::text() const
{
    return lineEdit->text();
}

void LineEditWidget::show(const QString& text, bool withHelp)
{
    if (lineEdit->text() != text)
        lineEdit->setText(text);
    helpButton->setVisible(withHelp);
}

void LineEditWidget::setText(const QString& text)
{
    show(text, false);
}

void LineEditWidget::setDefaultText()
{
    show(QStringLiteral("N/D"), true);
}

void LineEditWidget::setEnabled(bool enabled)
{
    lineEdit->setEnabled(enabled);
    if (!enabled)
        setText(QString());
}

void LineEditWidget::defaultTooltip(bool modelReason)
{
    helpButton->setToolTip(modelReason ? m_modelTooltip : m_interfaceTooltip);
}

void LineEditWidget::on_helpButton_clicked()
{
    Velmora::showValueHelp(helpButton);
}
