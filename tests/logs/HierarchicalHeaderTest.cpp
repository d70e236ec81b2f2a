// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "logs/HierarchicalHeaderView.h"

#include <QScreen>
#include <QStandardItemModel>
#include <QTableView>
#include <QTest>

namespace {

/// Hands the tree over for either header.
class Table final : public QStandardItemModel
{
public:
    using QStandardItemModel::QStandardItemModel;
    QVariant headerData(int /*section*/, Qt::Orientation orientation, int role) const override
    {
        const bool wanted = role == (orientation == Qt::Horizontal ? Qt::UserRole : Qt::UserRole + 1);
        return wanted ? QVariant::fromValue<QObject*>(tree.get()) : QVariant();
    }
    std::unique_ptr<QStandardItemModel> tree = std::make_unique<QStandardItemModel>();
};

QImage painted(const QHeaderView& header, const QRect& part)
{
    QImage image(header.viewport()->size(), QImage::Format_RGB32);
    header.viewport()->render(&image, part.topLeft(), part);
    return image.copy(part);
}

QRect difference(const QImage& one, const QImage& other)
{
    QRect box;
    for (int i = 0; i < one.width() * one.height(); ++i) {
        const QPoint point(i % one.width(), i / one.width());
        if (one.pixel(point) != other.pixel(point))
            box |= QRect(point, QSize(1, 1));
    }
    return box;
}

} // namespace

class HierarchicalHeaderTest final : public QObject
{
    Q_OBJECT

private slots:
    void spanningCellIsOneCell();
};

void HierarchicalHeaderTest::spanningCellIsOneCell()
{
    // Vertical, mirrored, with a rotated text; the section that is hidden.
    for (const char* row : {"0", "m2", "r3", "v0", "vmr1"}) {
        const QByteArray traits(row);
        const bool vertical = traits.contains('v');
        const bool rotated = traits.contains('r');
        const int hidden = traits.right(1).toInt();
        Table table(5, 5);
        auto* caption = new QStandardItem(QStringLiteral("HHHH"));
        caption->setData(rotated ? QVariant(true) : QVariant(), Qt::UserRole);
        for (int leaf = 0; leaf < 3; ++leaf)
            caption->appendColumn({new QStandardItem(QStringLiteral("L"))});
        table.tree->appendRow({new QStandardItem(QStringLiteral("A")), caption, new QStandardItem});
        QTableView view;
        view.setLayoutDirection(traits.contains('m') ? Qt::RightToLeft : Qt::LeftToRight);
        auto* header = new HierarchicalHeaderView(vertical ? Qt::Vertical : Qt::Horizontal, &view);
        vertical ? view.setVerticalHeader(header) : view.setHorizontalHeader(header);
        view.setModel(&table);
        view.resize(700, 400);
        header->setSectionHidden(hidden, true);
        view.show();
        QVERIFY(QTest::qWaitForWindowExposed(&view));
        header->resizeSection(hidden == 3 ? 2 : 3, 97);
        QCoreApplication::processEvents();

        // What was repainted by itself is what a repaint of everything gives.
        const QRect all = header->viewport()->rect();
        const QImage whole = painted(*header, all);
        const QRect place = all.translated(header->viewport()->mapTo(&view, QPoint()));
        const QImage shown = view.screen()->grabWindow(view.winId()).toImage().copy(place);
        QCOMPARE(difference(shown, whole), QRect());
        QRect group;
        for (const int leaf : {1, 2, 3}) {
            const int position = header->sectionViewportPosition(leaf);
            const QSize size = vertical ? QSize(all.width(), header->sectionSize(leaf))
                                        : QSize(header->sectionSize(leaf), all.height());
            const QRect part(vertical ? QPoint(0, position) : QPoint(position, 0), size);
            if (leaf == hidden)
                continue;
            group |= part;
            // Whichever of its leaves is painted, the cell looks the same.
            const QRect inner = part.adjusted(1, 1, -1, -1);
            QCOMPARE(painted(*header, inner), whole.copy(inner));
        }
        // All of the text stands in the middle of the group; bounds are rounded outwards.
        caption->setForeground(Qt::red);
        const QRect ink = difference(painted(*header, all), whole);
        const QPoint off = ink.center() - group.center();
        QVERIFY2(qAbs(vertical ? off.y() : off.x()) <= 1, row);
        QVERIFY2(vertical ? (off.x() > 0) == traits.contains('m') : off.y() < 0, row);
        const int length = header->fontMetrics().tightBoundingRect(QStringLiteral("HHHH")).width();
        QVERIFY2((rotated ? ink.height() : ink.width()) >= length - 2, row);
    }
}

QTEST_MAIN(HierarchicalHeaderTest)
#include "HierarchicalHeaderTest.moc"
