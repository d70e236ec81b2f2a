// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QHeaderView>

#include <memory>

class QStyleOptionHeader;

/// A header whose cells may span several cells below them.
///
/// The table's model hands over a second model with the tree of cells: headerData(0, orientation, role), with
/// role Qt::UserRole for a horizontal header and the one behind it for a vertical one, holds it as a
/// QObject*. The cells of a level are the columns of row 0; a cell without any below it is a leaf, and the
/// leaves stand for the table's sections in order. Cells may have a text, a font, a least size, brushes for
/// text and ground, and a Qt::UserRole, which turns their text by a quarter. Without a tree it is a plain
/// header, and so are sections beyond the last leaf.
class HierarchicalHeaderView final : public QHeaderView
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(HierarchicalHeaderView)

public:
    explicit HierarchicalHeaderView(Qt::Orientation orientation, QWidget* parent = nullptr);
    ~HierarchicalHeaderView() override;

    void setModel(QAbstractItemModel* model) override;

public slots:
    /// Repaints the cells that span the section, which the base class does not know.
    void on_sectionResized(int logicalIndex);

protected:
    void paintSection(QPainter* painter, const QRect& rect, int logicalIndex) const override;
    [[nodiscard]] QSize sectionSizeFromContents(int logicalIndex) const override;

private:
    class private_data;

    /// The base of all drawing, for a cell that covers these sections.
    [[nodiscard]] QStyleOptionHeader styleOptionForCell(int firstSection, int lastSection) const;
    void setPositions(QStyleOptionHeader& option, int firstSection, int lastSection) const;
    [[nodiscard]] bool isSectionSelected(int logicalIndex) const;
    [[nodiscard]] QFont cellFont(const QModelIndex& cell) const;
    [[nodiscard]] QSize cellSize(const QModelIndex& cell, const QStyleOptionHeader& base) const;
    void paintCell(QPainter* painter, const QRect& rect, const QModelIndex& cell,
                   QStyleOptionHeader option) const;

    std::unique_ptr<private_data> m_data;
};
