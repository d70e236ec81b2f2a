// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "logs/HierarchicalHeaderView.h"

#include <QScreen>
#include <QStandardItemModel>
#include <QTableView>
#include <QTest>

namespace {

/// Of five sections each way the middle three stand under one cell.
class Table final : public QStandardItemModel
{
public:
    explicit Table(bool rotated)
        : QStandardItemModel(5, 5)
    {
        caption->setData(rotated ? QVariant(true) : QVariant(), Qt::UserRole);
        for (int leaf = 0; leaf < 3; ++leaf)
            caption->appendColumn({new QStandardItem(QStringLiteral("L"))});
        tree->appendRow({new QStandardItem(QStringLiteral("A")), caption, new QStandardItem});
    }
    QVariant headerData(int /*section*/, Qt::Orientation orientation, int role) const override
    {
        const bool wanted = role == (orientation == Qt::Horizontal ? Qt::UserRole : Qt::UserRole + 1);
        return wanted ? QVariant::fromValue<QObject*>(tree.get()) : QVariant();
    }
    std::unique_ptr<QStandardItemModel> tree = std::make_unique<QStandardItemModel>();
    QStandardItem* caption = new QStandardItem(QStringLiteral("HHHH"));
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
    void spanningCellIsOneCell_data();
    void spanningCellIsOneCell();
};

void HierarchicalHeaderTest::spanningCellIsOneCell_data()
{
    QTest::addColumn<QByteArray>("traits"); // vertical, mirrored, rotated, number of a hidden section
    QTest::newRow("columns") << QByteArray("0");
    QTest::newRow("columns from right to left, one of them hidden") << QByteArray("m2");
    QTest::newRow("columns under a turned text, the last hidden") << QByteArray("r3");
    QTest::newRow("rows") << QByteArray("v0");
    QTest::newRow("rows from right to left beside a turned text") << QByteArray("vmr1");
}

void HierarchicalHeaderTest::spanningCellIsOneCell()
{
    QFETCH(QByteArray, traits);
    const bool vertical = traits.contains('v');
    const bool mirrored = traits.contains('m');
    const bool rotated = traits.contains('r');
    const int hidden = traits.right(1).toInt();
    Table table(rotated);
    QTableView view;
    view.setLayoutDirection(mirrored ? Qt::RightToLeft : Qt::LeftToRight);
    auto* header = new HierarchicalHeaderView(vertical ? Qt::Vertical : Qt::Horizontal, &view);
    vertical ? view.setVerticalHeader(header) : view.setHorizontalHeader(header);
    view.setModel(&table);
    view.resize(700, 400);
    header->setSectionHidden(hidden, true);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    for (const int size : {60, 97}) {
        header->resizeSection(hidden == 3 ? 2 : 3, size);
        QCoreApplication::processEvents();
        const QRect all = header->viewport()->rect();
        const QImage whole = painted(*header, all);
        // What was repainted by itself is what a repaint of everything gives.
        const QRect place = all.translated(header->viewport()->mapTo(&view, QPoint()));
        const QImage shown = view.screen()->grabWindow(view.winId()).toImage().copy(place);
        QCOMPARE(difference(shown, whole), QRect());
        QRect group;
        for (const int leaf : {1, 2, 3}) {
            const int position = header->sectionViewportPosition(leaf);
            const int extent = header->sectionSize(leaf);
            if (leaf == hidden)
                continue;
            const QRect part =
                vertical ? QRect(0, position, all.width(), extent) : QRect(position, 0, extent, all.height());
            group |= part;
            // Whichever of its leaves is painted, the cell looks the same.
            const QRect inner = part.adjusted(1, 1, -1, -1);
            QCOMPARE(painted(*header, inner), whole.copy(inner));
        }
        table.caption->setForeground(Qt::red);
        const QRect ink = difference(painted(*header, all), whole);
        table.caption->setData(QVariant(), Qt::ForegroundRole);
        QVERIFY(ink.isValid() && group.contains(ink));
        const QPoint off = ink.center() - group.center();
        QVERIFY(qAbs(vertical ? off.y() : off.x()) <= 1);
        // The cells of the top level stand at the outer edge.
        QVERIFY(vertical ? (off.x() > 0) == mirrored : off.y() < 0);
        // All of the text, in its direction; the bounds are rounded outwards.
        const int length = header->fontMetrics().tightBoundingRect(QStringLiteral("HHHH")).width();
        QVERIFY((rotated ? ink.height() : ink.width()) >= length - 2);
    }
}

QTEST_MAIN(HierarchicalHeaderTest)
#include "HierarchicalHeaderTest.moc"
