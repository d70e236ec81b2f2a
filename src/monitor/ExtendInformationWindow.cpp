// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "monitor/ExtendInformationWindow.h"

#include "ui_ExtendInformationWindow.h"

#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>

namespace {

constexpr int columns = 3;
constexpr int cellWidth = 220;
constexpr int cellHeight = 25;
constexpr int captionGap = 6; ///< a caption may be wider than its value

} // namespace

ExtendInformationWindow::ExtendInformationWindow(bool isGenset, QWidget* parent)
    : QDialog(parent)
    , ui(std::make_unique<Ui::ExtendInformationWindow>())
    , m_catalogue(Velmora::extendedInformationCatalogue(isGenset))
{
    ui->setupUi(this);
    auto* content = new QWidget;
    m_grid = new QGridLayout(content);
    m_grid->setSpacing(0);
    for (int column = 0; column < columns; ++column) {
        m_grid->setColumnMinimumWidth(column, cellWidth);
        m_grid->setColumnStretch(column, 1);
    }
    auto* scrollArea = new QScrollArea(ui->informationsGroupBox);
    scrollArea->setFrameShape(QFrame::NoFrame);
    scrollArea->setWidgetResizable(true);
    scrollArea->setWidget(content);
    ui->informationsLayout->addWidget(scrollArea);
    connect(ui->buttonBox, &QDialogButtonBox::accepted, this, &QDialog::accept);
}

ExtendInformationWindow::~ExtendInformationWindow() = default;

bool ExtendInformationWindow::containsAny(const QMap<QString, QString>& report)
{
    return Velmora::containsAny(report);
}

void ExtendInformationWindow::updateControls(const QMap<QString, QString>& report)
{
    int count = 0;
    for (const Velmora::ExInformation& row : qAsConst(m_catalogue)) {
        const auto value = report.constFind(row.key);
        if (value == report.cend())
            continue;
        const Cell cell = cellAt(count++);
        if (cell.caption->text() != row.label) {
            cell.caption->setText(row.label);
            cell.value->setAccessibleName(row.label);
        }
        const QString text = *value + QLatin1Char(' ') + row.unit;
        if (cell.value->text() != text)
            cell.value->setText(text);
    }
}

ExtendInformationWindow::Cell ExtendInformationWindow::cellAt(int index)
{
    if (index < m_cells.size())
        return m_cells.at(index);
    auto* caption = new QLabel;
    caption->setTextFormat(Qt::PlainText);
    caption->setFixedHeight(cellHeight);
    caption->setContentsMargins(0, 0, captionGap, 0);
    auto* value = new QLineEdit;
    value->setReadOnly(true);
    value->setAlignment(Qt::AlignCenter);
    value->setFixedSize(cellWidth, cellHeight);
    value->setStyleSheet(QStringLiteral("border-image: url(:/images/images/control_background.png)"));
    caption->setBuddy(value);
    auto* layout = new QVBoxLayout;
    layout->setSpacing(0);
    layout->addWidget(caption);
    layout->addWidget(value, 1);
    m_grid->addLayout(layout, index / columns, index % columns);
    m_cells.append(Cell{caption, value});
    return m_cells.constLast();
}
