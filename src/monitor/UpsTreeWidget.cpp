// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "monitor/UpsTreeWidget.h"

#include "monitor/UpsTreeElement.h"

#include <QMenu>
#include <QTreeWidgetItemIterator>

UpsTreeWidget::UpsTreeWidget(const bool* administratorMode, QWidget* parent)
    : QTreeWidget(parent)
    , m_administratorMode(administratorMode)
{
    setColumnCount(1);
    setHeaderHidden(true);
    setUniformRowHeights(true);
    setGeometry(5, 21, 179, 520);
    setContextMenuPolicy(Qt::CustomContextMenu);
    connect(this, &QWidget::customContextMenuRequested, this, &UpsTreeWidget::onCustomContextMenuRequested);
}

void UpsTreeWidget::clear()
{
    QTreeWidget::clear();
}

void UpsTreeWidget::addRows(const std::vector<Velmora::DeviceTreeRow>& rows)
{
    QList<QTreeWidgetItem*> elements;
    for (const Velmora::DeviceTreeRow& row : rows)
        elements.append(makeElement(row));
    addTopLevelItems(elements);
}

UpsTreeElement* UpsTreeWidget::makeElement(const Velmora::DeviceTreeRow& row)
{
    auto* element = new UpsTreeElement;
    element->setText(0, row.text);
    showIndicator(element, row.iconPath);
    element->ups = row.ups;
    element->modelFullName = row.modelFullName;
    for (const Velmora::DeviceTreeRow& child : row.children)
        element->addChild(makeElement(child));
    return element;
}

void UpsTreeWidget::showIndicator(UpsTreeElement* element, const QString& path)
{
    QIcon& picture = m_indicators[path];
    if (picture.isNull() && !path.isEmpty()) {
        picture.addFile(path);
        // A selected row would tint the picture otherwise, and with it the colour that tells the state.
        picture.addFile(path, QSize(), QIcon::Selected);
    }
    element->setIndicator(path, picture);
}

UpsTreeElement* UpsTreeWidget::currentElement() const
{
    return dynamic_cast<UpsTreeElement*>(currentItem());
}

UpsTreeElement* UpsTreeWidget::elementAt(Velmora::DeviceTreePosition position) const
{
    QTreeWidgetItem* item = topLevelItem(position.top);
    if (item && position.child >= 0)
        item = item->child(position.child);
    return dynamic_cast<UpsTreeElement*>(item);
}

std::vector<UpsTreeElement*> UpsTreeWidget::allElements() const
{
    std::vector<UpsTreeElement*> elements;
    for (QTreeWidgetItemIterator it(const_cast<UpsTreeWidget*>(this)); *it; ++it)
        elements.push_back(dynamic_cast<UpsTreeElement*>(*it));
    return elements;
}

void UpsTreeWidget::onCustomContextMenuRequested(const QPoint& pos)
{
    // Not exec(): messages of the link go on while the menu stands, and may rebuild the tree.
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const bool administrator = *m_administratorMode;
    const bool onRow = itemAt(pos) != nullptr;
    menu->addAction(tr("Dodaj"), this, &UpsTreeWidget::addUpsActionTriggered)->setEnabled(administrator);
    menu->addAction(tr("Edytuj"), this, &UpsTreeWidget::editActionTriggeredSlot)
        ->setEnabled(administrator && onRow);
    menu->addAction(tr("Usuń"), this, &UpsTreeWidget::deleteActionTriggeredSlot)
        ->setEnabled(administrator && onRow);
    menu->popup(QCursor::pos());
}

void UpsTreeWidget::editActionTriggeredSlot()
{
    emit editActionTriggered(currentIndex().row());
}

void UpsTreeWidget::deleteActionTriggeredSlot()
{
    emit deleteActionTriggered(currentIndex().row());
}
