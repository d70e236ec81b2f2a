// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "devices/UPSConfigurationWindow.h"

#include "devices/core/UpsConfigurationChecks.h"
#include "monitor/widgets/MessageBox.h"
#include "monitor/widgets/Prompts.h"
#include "ui_UPSConfigurationWindow.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>

using Velmora::ConfigurationPrompt;
using Velmora::UpsConfigurationPlace;

namespace {

constexpr int columns = 2;
constexpr int columnWidth = 320;
constexpr int columnSpacing = 24;
constexpr int rowSpacing = 4;
constexpr double largestShareOfScreen = 0.85;

} // namespace

UPSConfigurationWindow::UPSConfigurationWindow(const Velmora::Utils::Ups& ups, QWidget* parent)
    : QDialog(parent)
    , ui(std::make_unique<Ui::UPSConfigurationWindow>())
    , m_ups(ups)
    , m_catalogue(Velmora::upsConfigurationCatalogue())
{
    ui->setupUi(this);
    auto* content = new QWidget;
    m_grid = new QGridLayout(content);
    m_grid->setHorizontalSpacing(columnSpacing);
    m_grid->setVerticalSpacing(rowSpacing);
    for (int column = 0; column < columns; ++column)
        m_grid->setColumnMinimumWidth(column, columnWidth);
    m_scrollArea = new QScrollArea(ui->informationsGroupBox);
    m_scrollArea->setFrameShape(QFrame::NoFrame);
    m_scrollArea->setWidgetResizable(true);
    m_scrollArea->setWidget(content);
    ui->informationsLayout->addWidget(m_scrollArea);
    connect(ui->buttonBox, &QDialogButtonBox::accepted, this, &UPSConfigurationWindow::accept);
    connect(ui->buttonBox, &QDialogButtonBox::rejected, this, &UPSConfigurationWindow::reject);
}

UPSConfigurationWindow::~UPSConfigurationWindow() = default;

void UPSConfigurationWindow::setConfiguration(const QMap<QString, QString>& configuration)
{
    if (m_applied)
        return;
    m_applied = true;
    dhcp = configuration.value(QStringLiteral("dhcp_enable")).toInt() != 0;
    const std::vector<UpsConfigurationPlace> places =
        Velmora::upsConfigurationPlaces(m_catalogue, configuration);
    QWidget* content = m_scrollArea->widget();
    // Controls that are added to what is visible show only later and have no size before.
    content->hide();
    m_rows.reserve(places.size());
    for (const UpsConfigurationPlace& place : places) {
        m_rows.emplace_back(place, content);
        m_grid->addLayout(m_rows.back().layout(), place.row, place.column);
        connectRow(m_rows.back());
    }
    // Few rows stand at the top instead of spreading.
    m_grid->setRowStretch(m_grid->rowCount(), 1);
    content->show();
    enableNetworkConfLineEdits(!dhcp);
    // The tabulator key goes on from here to the rows, and from the last one to the buttons.
    m_scrollArea->setFocus();
    growToContent();
}

void UPSConfigurationWindow::connectRow(const ConfigurationRow& row)
{
    const auto chosen = qOverload<int>(&UPSConfigurationWindow::changed);
    if (auto* edit = qobject_cast<QLineEdit*>(row.control())) {
        connect(edit, &QLineEdit::textChanged, this,
                qOverload<const QString&>(&UPSConfigurationWindow::changed));
    } else if (auto* box = qobject_cast<QCheckBox*>(row.control())) {
        connect(box, &QCheckBox::stateChanged, this, chosen);
    } else if (auto* choices = qobject_cast<QComboBox*>(row.control())) {
        connect(choices, qOverload<int>(&QComboBox::currentIndexChanged), this, chosen);
        choices->setFocusPolicy(Qt::StrongFocus);
        choices->installEventFilter(this);
    } else if (auto* group = qobject_cast<QButtonGroup*>(row.control())) {
        connect(group, &QButtonGroup::idClicked, this, chosen);
    }
}

void UPSConfigurationWindow::growToContent()
{
    const QSize scrollBar(m_scrollArea->verticalScrollBar()->sizeHint().width(), 0);
    const QSize lacking = m_scrollArea->widget()->sizeHint() + scrollBar - m_scrollArea->viewport()->size();
    const QSize wanted = size() + lacking.expandedTo(QSize(0, 0));
    const QRect area = screen()->availableGeometry();
    QRect place(QPoint(), size().expandedTo(wanted.boundedTo(area.size() * largestShareOfScreen)));
    // It grows to all sides, but not beyond the screen.
    place.moveCenter(geometry().center());
    place.moveBottom(qMin(place.bottom(), area.bottom()));
    place.moveRight(qMin(place.right(), area.right()));
    place.moveTop(qMax(place.top(), area.top()));
    place.moveLeft(qMax(place.left(), area.left()));
    setGeometry(place);
}

bool UPSConfigurationWindow::eventFilter(QObject* watched, QEvent* event)
{
    const auto* box = qobject_cast<const QComboBox*>(watched);
    if (!box || box->hasFocus() || event->type() != QEvent::Wheel)
        return QDialog::eventFilter(watched, event);
    event->ignore();
    return true;
}

void UPSConfigurationWindow::changed(int /*value*/)
{
    changed(QObject::sender());
}

void UPSConfigurationWindow::changed(const QString& /*value*/)
{
    changed(QObject::sender());
}

void UPSConfigurationWindow::changed(QObject* sender)
{
    // The device takes its settings one by one.
    bool same = true;
    for (ConfigurationRow& row : m_rows) {
        if (sender && row.control() == sender) {
            row.touch();
            same = !row.differs();
        }
    }
    for (ConfigurationRow& row : m_rows) {
        if (!sender || row.control() != sender)
            row.setEnabled(same);
    }
    enableNetworkConfLineEdits(!dhcp);
}

void UPSConfigurationWindow::enableNetworkConfLineEdits(bool enable)
{
    for (ConfigurationRow& row : m_rows) {
        if (Velmora::isAssignedByDhcp(row.key()) && !enable)
            row.setEnabled(false);
    }
}

QPair<QString, QString> UPSConfigurationWindow::getChangedProperty() const
{
    for (const ConfigurationRow& row : m_rows) {
        if (row.type() != Velmora::UpsConfTypeRadioGroup && row.differs())
            return {row.key(), row.value().value_or(QString())};
    }
    return {};
}

QMap<QString, QString> UPSConfigurationWindow::getConfiguration() const
{
    QMap<QString, QString> configuration;
    for (const ConfigurationRow& row : m_rows) {
        if (row.differs())
            configuration.insert(row.key(), row.value().value_or(QString()));
    }
    return configuration;
}

void UPSConfigurationWindow::setEnabledButtons(bool enabled)
{
    ui->buttonBox->button(QDialogButtonBox::Save)->setEnabled(enabled);
}

void UPSConfigurationWindow::accept()
{
    const QPair<QString, QString> change = getChangedProperty();
    for (const ConfigurationPrompt& prompt :
         Velmora::configurationPrompts(m_ups.model_name, change.first, change.second)) {
        if (!put(prompt))
            return;
    }
    QDialog::accept();
}

bool UPSConfigurationWindow::put(const ConfigurationPrompt& prompt)
{
    if (prompt.kind == ConfigurationPrompt::Kind::Information) {
        Velmora::Utils::displayMsgBox(tr("Uwaga"), prompt.text);
        return true;
    }
    const bool isQuestion = prompt.kind == ConfigurationPrompt::Kind::Question;
    const bool needsYes = isQuestion || prompt.kind == ConfigurationPrompt::Kind::Warning;
    Velmora::Question question;
    question.title = tr("Uwaga");
    question.text = prompt.text;
    question.icon = isQuestion ? QMessageBox::Question : QMessageBox::Warning;
    if (needsYes)
        question.defaultButton = QMessageBox::No;
    else
        question.buttons = QMessageBox::Ok;
    const QPointer<UPSConfigurationWindow> guard(this);
    const QMessageBox::StandardButton answer = Velmora::Prompts::current().ask(this, question).button;
    // Meanwhile the dialog, or the right to save, may have gone.
    if (!guard || !ui->buttonBox->button(QDialogButtonBox::Save)->isEnabled())
        return false;
    return prompt.kind == ConfigurationPrompt::Kind::Notice || answer == QMessageBox::Yes;
}
