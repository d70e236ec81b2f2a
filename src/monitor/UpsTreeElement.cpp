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
    setIcon(0, path.isEmpty() ? QIcon() : QIcon(path));
}
