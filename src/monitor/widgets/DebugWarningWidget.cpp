// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "monitor/widgets/DebugWarningWidget.h"

#include "monitor/widgets/Picture.h"

#include <QHBoxLayout>
#include <QLabel>

namespace {

constexpr int blinkInterval = 1000;

void keepPlaceWhileHidden(QWidget* widget)
{
    QSizePolicy policy = widget->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    widget->setSizePolicy(policy);
    widget->hide();
}

} // namespace

DebugWarningWidget::DebugWarningWidget(QWidget* parent)
    : QWidget(parent)
    , m_icon(new QLabel(this))
    , m_text(new QLabel(tr("TRYB DEBUGGOWANIA"), this))
{
    m_icon->setPixmap(Velmora::picture(QStringLiteral(":/images/images/warning.png")));
    m_text->setStyleSheet(QStringLiteral("color: red; font: bold 20px;"));
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_icon);
    layout->addWidget(m_text);
    keepPlaceWhileHidden(m_icon);
    keepPlaceWhileHidden(m_text);
    m_blinkTimer.setInterval(blinkInterval);
    connect(&m_blinkTimer, &QTimer::timeout, this, &DebugWarningWidget::timeout);
}

void DebugWarningWidget::startDebugWarning()
{
    m_blinkTimer.start();
}

void DebugWarningWidget::stopDebugWarning()
{
    m_blinkTimer.stop();
    m_icon->hide();
    m_text->hide();
}

void DebugWarningWidget::timeout()
{
    // The labels' own flags: their visibility also depends on the window's, which may be in the tray.
    m_icon->setVisible(m_icon->isHidden());
    m_text->setVisible(m_text->isHidden());
}
