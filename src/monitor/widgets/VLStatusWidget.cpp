// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "monitor/widgets/VLStatusWidget.h"

#include "monitor/widgets/Picture.h"

#include <QGridLayout>
#include <QLabel>

using Velmora::StatusIcon;
using Velmora::VLDeviceType;
using Velmora::VLStatusConnectionState;

namespace {

constexpr int iconSize = 21;

// A label that gets its text or style again repaints; a style sheet is also parsed anew.
void setLabel(QLabel* label, const QString& text, const QString& style)
{
    if (label->text() != text)
        label->setText(text);
    if (label->styleSheet() != style)
        label->setStyleSheet(style);
}

} // namespace

VLStatusWidget::VLStatusWidget(QWidget* parent)
    : QWidget(parent)
    , m_okPixmap(Velmora::picture(QStringLiteral(":/images/images/ok.png")))
    , m_errorPixmap(Velmora::picture(QStringLiteral(":/images/images/4e2.png")))
    , m_warningPixmap(Velmora::picture(QStringLiteral(":/images/images/srv_wrn.png")))
    , m_unknownPixmap(Velmora::picture(QStringLiteral(":/images/images/unknown.png")))
    , m_serviceSpinner(Velmora::animationFile(QStringLiteral(":/images/images/loading_spinner.gif")))
    , m_deviceSpinner(Velmora::animationFile(QStringLiteral(":/images/images/loading_spinner.gif")))
    , m_serviceIcon(makeLabel("serviceIcon"))
    , m_serviceTitle(makeLabel("serviceTitle"))
    , m_serviceAddressLabel(makeLabel("serviceAddress"))
    , m_serviceNote(makeLabel("serviceNote"))
    , m_deviceIcon(makeLabel("deviceIcon"))
    , m_deviceText(makeLabel("deviceText"))
    , m_clockIcon(makeLabel("clockIcon"))
    , m_countdownText(makeLabel("countdownText"))
{
    for (QLabel* icon : {m_serviceIcon, m_deviceIcon, m_clockIcon})
        icon->setFixedSize(iconSize, iconSize);
    m_clockIcon->setPixmap(Velmora::picture(QStringLiteral(":/images/images/time.png")));
    m_clockIcon->hide();
    m_countdownText->hide();
    buildLayout();
}

VLStatusWidget::~VLStatusWidget() = default;

QLabel* VLStatusWidget::makeLabel(const char* name)
{
    auto* label = new QLabel(this);
    label->setObjectName(QLatin1String(name));
    // Address and version come from outside and may look like markup.
    label->setTextFormat(Qt::PlainText);
    return label;
}

void VLStatusWidget::buildLayout()
{
    auto* serviceLines = new QVBoxLayout;
    serviceLines->setSpacing(1);
    serviceLines->addWidget(m_serviceTitle);
    serviceLines->addWidget(m_serviceAddressLabel);
    serviceLines->addWidget(m_serviceNote);

    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->addWidget(m_serviceIcon, 0, 0, Qt::AlignTop);
    grid->addLayout(serviceLines, 0, 1);
    grid->addWidget(m_deviceIcon, 1, 0, Qt::AlignTop);
    grid->addWidget(m_deviceText, 1, 1);
    grid->addWidget(m_clockIcon, 2, 0);
    grid->addWidget(m_countdownText, 2, 1);
    grid->setColumnStretch(2, 1);
    grid->setRowStretch(3, 1);
}

void VLStatusWidget::setServiceConnectionState(VLStatusConnectionState state, const QString& address)
{
    // Each report of a device says again that all is well.
    const bool versionStays = state == VLStatusConnectionState::Connected || serviceVersion.isEmpty();
    if (serviceState == state && serviceAddress == address && versionStays)
        return;
    serviceState = state;
    serviceAddress = address;
    if (state != VLStatusConnectionState::Connected)
        serviceVersion.clear();
    update_status();
}

void VLStatusWidget::setUpsConnectionState(VLStatusConnectionState state)
{
    if (upsState == state)
        return;
    upsState = state;
    update_status();
}

void VLStatusWidget::setDeviceType(VLDeviceType type)
{
    deviceType = type;
    update_status();
}

void VLStatusWidget::setServiceVersion(const QString& version)
{
    serviceVersion = version;
    update_status();
}

void VLStatusWidget::showPowerOffTimer(int seconds)
{
    powerOffSeconds = seconds;
    update_status();
}

void VLStatusWidget::hidePowerOffTimer()
{
    showPowerOffTimer(0);
}

void VLStatusWidget::update_status()
{
    setServiceState(serviceState, serviceAddress, serviceVersion);
    setUpsState(Velmora::shownDeviceState(serviceState, upsState));
    setPowerOffTimeValue(Velmora::shownPowerOffSeconds(serviceState, powerOffSeconds));
}

void VLStatusWidget::setServiceState(VLStatusConnectionState state, const QString& address,
                                     const QString& version)
{
    const Velmora::ServiceStatusView view = Velmora::serviceStatusView(state, address, version);
    showIcon(m_serviceIcon, m_serviceSpinner, view.icon);
    setLabel(m_serviceTitle, view.title, view.titleStyle);
    setLabel(m_serviceAddressLabel, view.address, view.addressStyle);
    setLabel(m_serviceNote, view.note, view.noteStyle);
    m_serviceNote->setVisible(!view.note.isEmpty());
}

void VLStatusWidget::setUpsState(VLStatusConnectionState state)
{
    const Velmora::DeviceStatusView view = Velmora::deviceStatusView(state, deviceType);
    showIcon(m_deviceIcon, m_deviceSpinner, view.icon);
    setLabel(m_deviceText, view.text, view.style.value_or(m_deviceText->styleSheet()));
}

void VLStatusWidget::setPowerOffTimeValue(int seconds)
{
    m_clockIcon->setVisible(seconds > 0);
    m_countdownText->setVisible(seconds > 0);
    setLabel(m_countdownText, Velmora::powerOffText(seconds), Velmora::powerOffStyle());
}

void VLStatusWidget::showIcon(QLabel* label, QMovie& spinner, StatusIcon icon)
{
    if (icon == StatusIcon::Spinner) {
        if (label->movie() != &spinner) {
            label->setMovie(&spinner);
            spinner.start();
        }
        return;
    }
    spinner.stop();
    const QPixmap pixmap = icon == StatusIcon::Ok        ? m_okPixmap
                           : icon == StatusIcon::Error   ? m_errorPixmap
                           : icon == StatusIcon::Warning ? m_warningPixmap
                           : icon == StatusIcon::Unknown ? m_unknownPixmap
                                                         : QPixmap();
    const QPixmap shown = label->pixmap(Qt::ReturnByValue);
    if (label->movie() || shown.cacheKey() != pixmap.cacheKey())
        label->setPixmap(pixmap);
}
