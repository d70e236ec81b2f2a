// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "monitor/widgets/ProgressBarWidget.h"

#include "monitor/widgets/ValueHelpButton.h"

#include <QHBoxLayout>
#include <QProgressBar>
#include <QPushButton>

namespace {

constexpr int barWidth = 215;
constexpr int barHeight = 21;
constexpr int fullBar = 100;

// The text stands half on the groove and half on the filled part, so both colours have to bear it.
void setColours(QProgressBar* bar)
{
    const QColor text(0x59, 0x59, 0x5B);
    const QColor disabledText(120, 120, 120);
    const QColor filled(0x8F, 0xD0, 0xCE);
    QPalette palette = bar->palette();
    palette.setColor(QPalette::Highlight, filled);
    for (const auto role : {QPalette::Text, QPalette::HighlightedText, QPalette::WindowText}) {
        palette.setColor(QPalette::Active, role, text);
        palette.setColor(QPalette::Inactive, role, text);
        palette.setColor(QPalette::Disabled, role, disabledText);
    }
    bar->setPalette(palette);
}

} // namespace

ProgressBarWidget::ProgressBarWidget(QWidget* parent)
    : QWidget(parent)
    , progressBar(new QProgressBar(this))
    , helpButton(Velmora::makeValueHelpButton(this))
{
    progressBar->setObjectName(QStringLiteral("progressBar"));
    progressBar->setRange(0, fullBar);
    progressBar->setValue(0);
    progressBar->setFormat(QString());
    progressBar->setAlignment(Qt::AlignCenter);
    QFont font = progressBar->font();
    font.setBold(true);
    progressBar->setFont(font);
    setColours(progressBar);
    helpButton->setToolTip(tr("Dane niedostępne w wybranym modelu"));
    auto* layout = new QHBoxLayout(this);
    layout->setSpacing(6);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(progressBar);
    layout->addWidget(helpButton);
    setFixedSize(barWidth, barHeight);
    connect(helpButton, &QPushButton::clicked, this, &ProgressBarWidget::on_helpButton_clicked);
}

void ProgressBarWidget::show(int barValue, const QString& text, bool withHelp)
{
    progressBar->setValue(qBound(0, barValue, fullBar));
    if (progressBar->format() != text)
        progressBar->setFormat(text);
    helpButton->setVisible(withHelp);
}

void ProgressBarWidget::setValue(int value)
{
    show(value, QString::number(value) + QLatin1String(" %"), false);
}

void ProgressBarWidget::setDefaultValue()
{
    show(0, QStringLiteral("N/D"), true);
}

void ProgressBarWidget::setEnabled(bool enabled)
{
    progressBar->setEnabled(enabled);
    if (!enabled)
        show(0, QString(), false);
}

void ProgressBarWidget::on_helpButton_clicked()
{
    Velmora::showValueHelp(helpButton);
}
