// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "monitor/UpsTreeElement.h"

UpsTreeElement::UpsTreeElement()
    : QTreeWidgetItem(QTreeWidgetItem::Type)
{}

void UpsTreeElement::setIconPath(const QString& path)
{
    if (m_iconPath == path)
        return;
    m_iconPath = path;
    QIcon icon;
    if (!path.isEmpty()) {
        icon.addFile(path);
        // A selected row would tint the picture otherwise, and with it the colour that tells the state.
        icon.addFile(path, QSize(), QIcon::Selected);
    }
    setIcon(0, icon);
}

QList<Velmora::Utils::Ups> UpsTreeElement::childUps() const
{
    QList<Velmora::Utils::Ups> devices;
    for (int i = 0; i < childCount(); ++i)
        devices.append(static_cast<const UpsTreeElement*>(child(i))->ups);
    return devices;
}
