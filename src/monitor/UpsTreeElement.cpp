// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "monitor/UpsTreeElement.h"

UpsTreeElement::UpsTreeElement()
    : QTreeWidgetItem(QTreeWidgetItem::Type)
{}

void UpsTreeElement::setIndicator(const QString& path, const QIcon& picture)
{
    if (m_indicatorPath == path)
        return;
    m_indicatorPath = path;
    setIcon(0, picture);
}

QList<Velmora::Utils::Ups> UpsTreeElement::childUps() const
{
    QList<Velmora::Utils::Ups> devices;
    for (int i = 0; i < childCount(); ++i)
        devices.append(static_cast<const UpsTreeElement*>(child(i))->ups);
    return devices;
}
