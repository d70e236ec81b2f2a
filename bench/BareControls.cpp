// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "bench/BareControls.h"

#include <QApplication>
#include <QVBoxLayout>

namespace Velmora::Bench {

BareControls::BareControls()
    : m_tree(&m_window)
    , m_icons{QIcon(QStringLiteral(":/indicators/images/indicators/green.png")),
              QIcon(QStringLiteral(":/indicators/images/indicators/yellow.png"))}
{
    m_window.setFixedSize(962, 640);
    m_tree.setHeaderHidden(true);
    m_tree.setUniformRowHeights(true);
    m_tree.setGeometry(5, 21, 179, 520);
    auto* values = new QWidget(&m_window);
    values->setGeometry(195, 0, 465, 560);
    auto* layout = new QVBoxLayout(values);
    for (QLineEdit& field : m_fields) {
        field.setReadOnly(true);
        field.setAlignment(Qt::AlignCenter);
        layout->addWidget(&field);
    }
    for (QProgressBar& bar : m_bars)
        layout->addWidget(&bar);
    layout->addWidget(&m_messages);
    m_window.show();
    buildTree(1);
}

void BareControls::showValues(int turn)
{
    for (QLineEdit& field : m_fields)
        field.setText(QStringLiteral("%1 kVA").arg(20 + turn));
    for (QProgressBar& bar : m_bars)
        bar.setValue(34 + turn);
    m_messages.setPlainText(QStringLiteral("Message %1").arg(turn));
    QApplication::processEvents();
}

void BareControls::showStates(int turn)
{
    const QIcon& icon = m_icons.at(static_cast<std::size_t>(turn));
    for (int i = 0; i < m_tree.topLevelItemCount(); ++i)
        m_tree.topLevelItem(i)->setIcon(0, icon);
    QApplication::processEvents();
}

void BareControls::buildTree(int count)
{
    m_tree.clear();
    for (int i = 0; i < count; ++i)
        (new QTreeWidgetItem(&m_tree, {QStringLiteral("Szafa %1").arg(i + 1)}))->setIcon(0, m_icons[0]);
    m_tree.expandAll();
    m_tree.resizeColumnToContents(0);
    m_tree.setCurrentItem(m_tree.topLevelItem(0));
    QApplication::processEvents();
}

} // namespace Velmora::Bench
