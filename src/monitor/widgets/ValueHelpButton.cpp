// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "monitor/widgets/ValueHelpButton.h"

#include <QCoreApplication>
#include <QPushButton>
#include <QToolTip>

namespace Velmora {

namespace {

constexpr int buttonSize = 21;
constexpr int iconSize = 19;
constexpr int tooltipTime = 5000;

} // namespace

QPushButton* makeValueHelpButton(QWidget* parent)
{
    auto* button = new QPushButton(parent);
    button->setObjectName(QStringLiteral("helpButton"));
    button->setFlat(true);
    button->setMaximumSize(buttonSize, buttonSize);
    button->setIcon(QIcon(QStringLiteral(":/images/images/small_help.png")));
    button->setIconSize(QSize(iconSize, iconSize));
    button->setFocusPolicy(Qt::NoFocus);
    // The style sheet of the program would make this as large as a dialog's button.
    button->setStyleSheet(
        QStringLiteral("* {border-image: none; outline: none; min-width: 20;min-height: 20;} "));
    button->setAccessibleName(QCoreApplication::translate("ValueHelpButton", "Dlaczego brak wartości?"));
    button->hide();
    return button;
}

void showValueHelp(QPushButton* button)
{
    QToolTip::showText(button->mapToGlobal(QPoint(0, 0)), button->toolTip(), button, QRect(), tooltipTime);
}

} // namespace Velmora
