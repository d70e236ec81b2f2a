// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "logs/UpsLogsWindow.h"

#include "link/UpsSocketController.h"
#include "logs/HierarchicalHeaderView.h"
#include "logs/LogTableModel.h"
#include "logs/TableFit.h"
#include "logs/core/LogColumns.h"
#include "logs/core/LogLines.h"
#include "ui_UpsLogsWindow.h"

#include <QScrollBar>
#include <QStandardItemModel>

using Velmora::ParametersHeader;
using Velmora::TableFit;
using Velmora::UpsSocketController;

namespace {

template <typename Model>
void fillRow(Model& model, TableFit& fit, int row, const QStringList& fields)
{
    // From the last one, so that a row is made in its full length at once.
    for (int column = fields.size() - 1; column >= 0; --column) {
        model.setItem(row, column, new QStandardItem(fields.at(column)));
        fit.add(row, column, fields.at(column));
    }
}

} // namespace

UpsLogsWindow::UpsLogsWindow(QWidget* parent)
    : QDialog(parent)
    , ui(std::make_unique<Ui::UpsLogsWindow>())
    , m_plainModel(std::make_unique<QStandardItemModel>(1, 1))
{
    ui->setupUi(this);
    setFixedSize(size());
    TableFit fit(*ui->logTable);
    fillRow(*m_plainModel, fit, 0, {tr("Brak logów do wyświetlenia")});
    showPlainModel({QString()}, fit);
    // The table would mark a cell as the current one, although none can be picked.
    ui->prevLog->setFocus();
    connect(ui->nextLog, &QPushButton::clicked, this, &UpsLogsWindow::nextLogButtonClickHandler);
    connect(ui->prevLog, &QPushButton::clicked, this, &UpsLogsWindow::prevLogButtonClickHandler);
    connect(ui->pushButton_3, &QPushButton::clicked, this, &UpsLogsWindow::reject);
}

UpsLogsWindow::~UpsLogsWindow() = default;

void UpsLogsWindow::setSocketController(UpsSocketController* controller)
{
    m_controller = controller;
    connect(controller, &UpsSocketController::upsLogs, this, &UpsLogsWindow::setLogs);
}

void UpsLogsWindow::setLogType(const QString& type)
{
    logType = type;
}

QString UpsLogsWindow::getColumnHeader(const QString& key)
{
    return Velmora::logColumnCaption(key);
}

void UpsLogsWindow::setLogs(const QStringList& lines)
{
    const int scrolled = ui->logTable->horizontalScrollBar()->value();
    clearTableModel();
    if (lines.isEmpty())
        return;
    // Replies do not say which log they are of: a late one of another log reads as far as it goes.
    if (logType == QLatin1String("messages"))
        showMessages(lines);
    else if (logType == QLatin1String("compensation"))
        showCompensation(lines);
    else if (logType == QLatin1String("parameters"))
        showParameters(lines);
    // Whoever follows a column through the pages finds it at the same place.
    ui->logTable->doItemsLayout();
    ui->logTable->horizontalScrollBar()->setValue(scrolled);
}

void UpsLogsWindow::clearTableModel()
{
    // Not setModel(nullptr), with which the view would keep one more selection model for every page.
    m_plainModel.reset();
    m_tableModel.reset();
}

void UpsLogsWindow::showPlainModel(const QStringList& captions, const TableFit& fit)
{
    m_plainModel->setHorizontalHeaderLabels(captions);
    ui->logTable->setModel(m_plainModel.get());
    fit.apply();
}

void UpsLogsWindow::showMessages(const QStringList& lines)
{
    const QStringList captions = Velmora::messagesCaptions();
    m_plainModel = std::make_unique<QStandardItemModel>(lines.size(), captions.size());
    TableFit fit(*ui->logTable);
    for (int row = 0; row < lines.size(); ++row)
        fillRow(*m_plainModel, fit, row, Velmora::messagesFields(lines.at(row)));
    showPlainModel(captions, fit);
}

void UpsLogsWindow::showCompensation(const QStringList& lines)
{
    const QStringList captions = Velmora::compensationCaptions();
    // The first line names the columns.
    m_plainModel = std::make_unique<QStandardItemModel>(lines.size() - 1, captions.size());
    TableFit fit(*ui->logTable);
    for (int row = 0; row < lines.size() - 1; ++row)
        fillRow(*m_plainModel, fit, row, Velmora::compensationFields(lines.at(row + 1)));
    showPlainModel(captions, fit);
}

void UpsLogsWindow::showParameters(const QStringList& lines)
{
    const ParametersHeader header = Velmora::readParametersHeader(lines.constFirst());
    m_tableModel = std::make_unique<LogTableModel>(lines.size() - 1, header.columns);
    TableFit fit(*ui->logTable);
    for (int row = 0; row < lines.size() - 1; ++row)
        fillRow(*m_tableModel, fit, row, Velmora::parametersFields(lines.at(row + 1), header));
    auto* headerView = new HierarchicalHeaderView(Qt::Horizontal, ui->logTable);
    headerView->ensurePolished();
    m_tableModel->setTableHeaderData(headerTree(header, *headerView).release());
    // With a model of its own at once: the view still has the selection of the page before.
    headerView->setModel(m_tableModel.get());
    ui->logTable->setHorizontalHeader(headerView);
    ui->logTable->setModel(m_tableModel.get());
    fit.apply();
    headerView->show();
}

std::unique_ptr<QStandardItemModel> UpsLogsWindow::headerTree(const ParametersHeader& header,
                                                              const QWidget& view) const
{
    QFont bold = view.font();
    bold.setBold(true);
    const int margins = 2 * view.style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, &view);
    auto tree = std::make_unique<QStandardItemModel>();
    for (const Velmora::LogHeaderCell& cell : header.cells) {
        auto* item = new QStandardItem(cell.caption);
        // A group is as wide as its columns, so each of them takes its share of the caption's width.
        const int captionWidth = QFontMetrics(bold).size(0, cell.caption).width() + margins;
        const int phases = qMax(1, cell.phases.size());
        for (const QString& phase : cell.phases) {
            auto* leaf = new QStandardItem(phase);
            leaf->setSizeHint(QSize((captionWidth + phases - 1) / phases, 0));
            item->appendColumn({leaf});
        }
        tree->appendColumn({item});
    }
    return tree;
}

void UpsLogsWindow::requestPage(const QString& age)
{
    if (m_controller)
        m_controller->getUpsLogs({{QStringLiteral("type"), logType}, {QStringLiteral("age"), age}});
}

void UpsLogsWindow::nextLogButtonClickHandler()
{
    requestPage(QStringLiteral("newer"));
}

void UpsLogsWindow::prevLogButtonClickHandler()
{
    requestPage(QStringLiteral("older"));
}

void UpsLogsWindow::reject()
{
    if (m_controller)
        m_controller->sendMessage(QStringLiteral("clear_logs_cache"));
    QDialog::reject();
}
