// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "logs/HierarchicalHeaderView.h"

#include <QItemSelectionModel>
#include <QPainter>
#include <QPointer>
#include <QStyleOptionHeader>

/// The tree of cells and what is painted from it. The guarded pointer is the only state: the tree may change
/// or vanish at any time, and is walked anew whenever it is needed.
class HierarchicalHeaderView::private_data final
{
public:
    /// A cell of the tree and the sections that it covers.
    struct Span
    {
        QModelIndex cell;
        int firstSection = 0;
        int lastSection = 0;
        int before = 0; ///< pixels of the cell in front of the section that is asked about
        int length = 0; ///< pixels of the whole cell
    };

    [[nodiscard]] QModelIndex leafOf(int section) const;
    /// Depth first, in the order of the children. `currentLeaf` counts the leaves that were met and starts at
    /// -1. Invalid if there is no such leaf.
    [[nodiscard]] QModelIndex findLeaf(const QModelIndex& parent, int sectionIndex, int& currentLeaf) const;
    /// The leaves under a cell in order; a cell without children yields itself.
    [[nodiscard]] QModelIndexList searchLeafs(const QModelIndex& cell) const;
    /// The cells over a section, the topmost first and the leaf last.
    [[nodiscard]] QVector<Span> spans(const HierarchicalHeaderView& view, const QModelIndex& leaf,
                                      int section) const;

    void paintHorizontalSection(const HierarchicalHeaderView& view, QPainter* painter, const QRect& rect,
                                const QVector<Span>& spans) const;
    void paintVerticalSection(const HierarchicalHeaderView& view, QPainter* painter, const QRect& rect,
                              const QVector<Span>& spans) const;

    QPointer<QAbstractItemModel> headerModel;

private:
    [[nodiscard]] int childCount(const QModelIndex& cell) const;
};

int HierarchicalHeaderView::private_data::childCount(const QModelIndex& cell) const
{
    return headerModel->rowCount(cell) == 0 ? 0 : headerModel->columnCount(cell);
}

QModelIndex HierarchicalHeaderView::private_data::leafOf(int section) const
{
    int currentLeaf = -1;
    return headerModel ? findLeaf(QModelIndex(), section, currentLeaf) : QModelIndex();
}

QModelIndex HierarchicalHeaderView::private_data::findLeaf(const QModelIndex& parent, int sectionIndex,
                                                           int& currentLeaf) const
{
    const int children = childCount(parent);
    // The root of an empty tree is no leaf.
    if (children == 0)
        return parent.isValid() && ++currentLeaf == sectionIndex ? parent : QModelIndex();
    for (int column = 0; column < children; ++column) {
        const QModelIndex found = findLeaf(headerModel->index(0, column, parent), sectionIndex, currentLeaf);
        if (found.isValid())
            return found;
    }
    return {};
}

QModelIndexList HierarchicalHeaderView::private_data::searchLeafs(const QModelIndex& cell) const
{
    const int children = childCount(cell);
    if (children == 0)
        return {cell};
    QModelIndexList leaves;
    for (int column = 0; column < children; ++column)
        leaves.append(searchLeafs(headerModel->index(0, column, cell)));
    return leaves;
}

QVector<HierarchicalHeaderView::private_data::Span>
HierarchicalHeaderView::private_data::spans(const HierarchicalHeaderView& view, const QModelIndex& leaf,
                                            int section) const
{
    QVector<Span> column;
    for (QModelIndex cell = leaf; cell.isValid(); cell = cell.parent()) {
        const QModelIndexList leaves = searchLeafs(cell);
        Span span;
        span.cell = cell;
        span.firstSection = section - leaves.indexOf(leaf);
        span.lastSection = span.firstSection + leaves.size() - 1;
        for (int covered = span.firstSection; covered <= span.lastSection; ++covered) {
            if (covered < section)
                span.before += view.sectionSize(covered);
            span.length += view.sectionSize(covered);
        }
        column.prepend(span);
    }
    return column;
}

void HierarchicalHeaderView::private_data::paintHorizontalSection(const HierarchicalHeaderView& view,
                                                                  QPainter* painter, const QRect& rect,
                                                                  const QVector<Span>& spans) const
{
    int top = rect.top();
    for (const Span& span : spans) {
        const QStyleOptionHeader option = view.styleOptionForCell(span.firstSection, span.lastSection);
        const bool isLeaf = &span == &spans.constLast();
        const int height = isLeaf ? rect.bottom() + 1 - top : view.cellSize(span.cell, option).height();
        const QRect cell(rect.left() - span.before, top, span.length, height);
        view.paintCell(painter, QStyle::visualRect(option.direction, rect, cell), span.cell, option);
        top += height;
    }
}

void HierarchicalHeaderView::private_data::paintVerticalSection(const HierarchicalHeaderView& view,
                                                                QPainter* painter, const QRect& rect,
                                                                const QVector<Span>& spans) const
{
    int left = rect.left();
    for (const Span& span : spans) {
        const QStyleOptionHeader option = view.styleOptionForCell(span.firstSection, span.lastSection);
        const bool isLeaf = &span == &spans.constLast();
        const int width = isLeaf ? rect.right() + 1 - left : view.cellSize(span.cell, option).width();
        const QRect cell(left, rect.top() - span.before, width, span.length);
        view.paintCell(painter, QStyle::visualRect(option.direction, rect, cell), span.cell, option);
        left += width;
    }
}

HierarchicalHeaderView::HierarchicalHeaderView(Qt::Orientation orientation, QWidget* parent)
    : QHeaderView(orientation, parent)
    , m_data(std::make_unique<private_data>())
{
    connect(this, &QHeaderView::sectionResized, this, &HierarchicalHeaderView::on_sectionResized);
}

HierarchicalHeaderView::~HierarchicalHeaderView() = default;

void HierarchicalHeaderView::setModel(QAbstractItemModel* model)
{
    const int role = orientation() == Qt::Horizontal ? Qt::UserRole : Qt::UserRole + 1;
    const QVariant tree = model ? model->headerData(0, orientation(), role) : QVariant();
    // Before the base class asks for sizes.
    m_data->headerModel = qobject_cast<QAbstractItemModel*>(tree.value<QObject*>());
    QHeaderView::setModel(model);
    if (!model)
        return;
    const int sections = orientation() == Qt::Horizontal ? model->columnCount() : model->rowCount();
    if (sections > 0)
        initializeSections(0, sections - 1);
}

bool HierarchicalHeaderView::isSectionSelected(int logicalIndex) const
{
    if (logicalIndex < 0 || !selectionModel())
        return false;
    return orientation() == Qt::Horizontal ? selectionModel()->isColumnSelected(logicalIndex, rootIndex())
                                           : selectionModel()->isRowSelected(logicalIndex, rootIndex());
}

QStyleOptionHeader HierarchicalHeaderView::styleOptionForCell(int firstSection, int lastSection) const
{
    QStyleOptionHeader option;
    initStyleOption(&option);
    if (window()->isActiveWindow())
        option.state |= QStyle::State_Active;
    option.textAlignment = Qt::AlignCenter;
    option.iconAlignment = Qt::AlignVCenter;
    option.section = firstSection;
    setPositions(option, firstSection, lastSection);
    if (!sectionsClickable() || !selectionModel())
        return option;
    bool intersects = false;
    bool selected = true;
    for (int section = firstSection; section <= lastSection; ++section) {
        intersects = intersects || (orientation() == Qt::Horizontal
                                        ? selectionModel()->columnIntersectsSelection(section, rootIndex())
                                        : selectionModel()->rowIntersectsSelection(section, rootIndex()));
        selected = selected && isSectionSelected(section);
    }
    option.state.setFlag(QStyle::State_On, intersects);
    option.state.setFlag(QStyle::State_Sunken, selected);
    return option;
}

void HierarchicalHeaderView::setPositions(QStyleOptionHeader& option, int firstSection, int lastSection) const
{
    const int first = visualIndex(firstSection);
    const int last = visualIndex(lastSection);
    if (first == 0 && last == count() - 1)
        option.position = QStyleOptionHeader::OnlyOneSection;
    else if (first == 0)
        option.position = QStyleOptionHeader::Beginning;
    else if (last == count() - 1)
        option.position = QStyleOptionHeader::End;
    else
        option.position = QStyleOptionHeader::Middle;

    const bool previous = isSectionSelected(logicalIndex(first - 1));
    const bool next = isSectionSelected(logicalIndex(last + 1));
    if (previous && next)
        option.selectedPosition = QStyleOptionHeader::NextAndPreviousAreSelected;
    else if (previous)
        option.selectedPosition = QStyleOptionHeader::PreviousIsSelected;
    else if (next)
        option.selectedPosition = QStyleOptionHeader::NextIsSelected;
    else
        option.selectedPosition = QStyleOptionHeader::NotAdjacent;
}

QSize HierarchicalHeaderView::cellSize(const QModelIndex& cell, const QStyleOptionHeader& base) const
{
    QFont measured = cellFont(cell);
    measured.setBold(true);
    QStyleOptionHeader option = base;
    option.fontMetrics = QFontMetrics(measured);
    // Empty but not null: for a null text the style leaves a margin out.
    option.text = QLatin1String("");
    QSize size = option.fontMetrics.size(0, cell.data().toString());
    if (cell.data(Qt::UserRole).isValid())
        size.transpose();
    const QSize frame = style()->sizeFromContents(QStyle::CT_HeaderSection, &option, QSize(), this);
    size += frame - option.fontMetrics.size(0, QString());
    return size.expandedTo(cell.data(Qt::SizeHintRole).toSize());
}

QSize HierarchicalHeaderView::sectionSizeFromContents(int logicalIndex) const
{
    const QModelIndex leaf = m_data->leafOf(logicalIndex);
    if (!leaf.isValid())
        return QHeaderView::sectionSizeFromContents(logicalIndex);
    const QStyleOptionHeader option = styleOptionForCell(logicalIndex, logicalIndex);
    QSize size = cellSize(leaf, option);
    for (QModelIndex cell = leaf.parent(); cell.isValid(); cell = cell.parent()) {
        const QSize above = cellSize(cell, option);
        if (orientation() == Qt::Horizontal)
            size.rheight() += above.height();
        else
            size.rwidth() += above.width();
    }
    return size;
}

void HierarchicalHeaderView::paintSection(QPainter* painter, const QRect& rect, int logicalIndex) const
{
    if (!rect.isValid())
        return;
    const QModelIndex leaf = m_data->leafOf(logicalIndex);
    if (!leaf.isValid()) {
        QHeaderView::paintSection(painter, rect, logicalIndex);
        return;
    }
    const QVector<private_data::Span> spans = m_data->spans(*this, leaf, logicalIndex);
    if (orientation() == Qt::Horizontal)
        m_data->paintHorizontalSection(*this, painter, rect, spans);
    else
        m_data->paintVerticalSection(*this, painter, rect, spans);
}

QFont HierarchicalHeaderView::cellFont(const QModelIndex& cell) const
{
    const QVariant own = cell.data(Qt::FontRole);
    return own.isValid() ? own.value<QFont>() : font();
}

void HierarchicalHeaderView::paintCell(QPainter* painter, const QRect& rect, const QModelIndex& cell,
                                       QStyleOptionHeader option) const
{
    const QVariant foreground = cell.data(Qt::ForegroundRole);
    const QVariant background = cell.data(Qt::BackgroundRole);
    option.rect = rect;
    option.fontMetrics = QFontMetrics(cellFont(cell));
    if (foreground.isValid())
        option.palette.setBrush(QPalette::ButtonText, foreground.value<QBrush>());
    if (background.isValid()) {
        option.palette.setBrush(QPalette::Button, background.value<QBrush>());
        option.palette.setBrush(QPalette::Window, background.value<QBrush>());
    }
    const bool rotated = cell.data(Qt::UserRole).isValid();
    option.text = rotated ? QString() : cell.data().toString();
    // Styles leave the painter with another clip than they found.
    painter->save();
    painter->setFont(cellFont(cell));
    if (background.isValid())
        painter->setBrushOrigin(rect.topLeft());
    style()->drawControl(QStyle::CE_Header, &option, painter, this);
    painter->restore();
    if (!rotated)
        return;
    painter->save();
    painter->setFont(cellFont(cell));
    painter->translate(rect.left(), rect.bottom() + 1);
    painter->rotate(-90);
    option.text = cell.data().toString();
    option.rect = QRect(0, 0, rect.height(), rect.width());
    style()->drawControl(QStyle::CE_HeaderLabel, &option, painter, this);
    painter->restore();
}

void HierarchicalHeaderView::on_sectionResized(int logicalIndex)
{
    const QModelIndex leaf = m_data->leafOf(logicalIndex);
    if (isHidden() || !leaf.isValid())
        return;
    // All of them: the centred text of the cell moves in the sections in front of the resized one as well.
    const private_data::Span group = m_data->spans(*this, leaf, logicalIndex).constFirst();
    for (int section = group.firstSection; section <= group.lastSection; ++section) {
        if (section >= count() || isSectionHidden(section))
            continue;
        // The base class paints columns from right to left one pixel beside where it says they are.
        const int position = sectionViewportPosition(section);
        const int size = sectionSize(section) + (isRightToLeft() ? 1 : 0);
        viewport()->update(orientation() == Qt::Horizontal ? QRect(position, 0, size, viewport()->height())
                                                           : QRect(0, position, viewport()->width(), size));
    }
}
