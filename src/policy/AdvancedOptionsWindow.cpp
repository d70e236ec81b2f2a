// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "policy/AdvancedOptionsWindow.h"

#include "app/ControlPanelConfiguration.h"
#include "monitor/widgets/MessageBox.h"
#include "monitor/widgets/Prompts.h"
#include "policy/core/Expressions.h"
#include "ui_AdvancedOptionsWindow.h"

#include <QRegExp>
#include <QShortcut>

#include <algorithm>
#include <array>

using Velmora::ConditionEntryFault;
using Velmora::ConditionFault;
using Velmora::Utils::displayMsgBox;

namespace {

constexpr const char* validProperty = "valid";

} // namespace

AdvancedOptionsWindow::AdvancedOptionsWindow(const Velmora::Utils::Ups& device, const QStringList& event,
                                             QVector<Event>* knownEvents, QWidget* parent)
    : QDialog(parent)
    , ui(std::make_unique<Ui::AdvancedOptionsWindow>())
    , expressions(event)
    , m_definitions(Velmora::readEventDefinitions(Velmora::eventDefinitionsPath(device.model_name), device,
                                                  ControlPanelConfiguration().getLanguage()))
    , valueList(Velmora::conditionValues())
    , operatorList(Velmora::conditionOperators(device.model_name))
    , allEvents(knownEvents)
{
    ui->setupUi(this);
    layout()->setSizeConstraint(QLayout::SetFixedSize);
    wire();
    showValidity(ui->expressionTextIn);
    showValidity(ui->expressionTextOut);
    if (m_definitions.failure != Velmora::EventDefinitions::Failure::None)
        tellFailure();
    if (!m_definitions.isFound())
        return;
    prefill();
    prepareEventStateList();
}

AdvancedOptionsWindow::~AdvancedOptionsWindow() = default;

void AdvancedOptionsWindow::wire()
{
    const std::array<QListWidget*, 6> lists{ui->eventStatesListIn,  ui->operatorListIn,  ui->statesListIn,
                                            ui->eventStatesListOut, ui->operatorListOut, ui->statesListOut};
    for (QListWidget* list : lists) {
        connect(list, &QListWidget::itemDoubleClicked, this, &AdvancedOptionsWindow::listItemDoubleClicked);
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
            auto* shortcut = new QShortcut(key, list, nullptr, nullptr, Qt::WidgetShortcut);
            connect(shortcut, &QShortcut::activated, this, [this, list] {
                if (list->currentItem())
                    listItemDoubleClicked(list->currentItem());
            });
        }
    }
    connect(ui->expressionTextIn, &QTextEdit::textChanged, this, &AdvancedOptionsWindow::expressionChanged);
    connect(ui->expressionTextOut, &QTextEdit::textChanged, this, &AdvancedOptionsWindow::expressionChanged);
    connect(ui->filterIn, &QLineEdit::textChanged, this, &AdvancedOptionsWindow::filterInTextChanged);
    connect(ui->filterOut, &QLineEdit::textChanged, this, &AdvancedOptionsWindow::filterOutTextChanged);
    connect(ui->saveEventButton, &QPushButton::clicked, this, &AdvancedOptionsWindow::accept);
    connect(ui->saveAsNewEventButton, &QPushButton::clicked, this, &AdvancedOptionsWindow::accept);
    connect(ui->cancelButton, &QPushButton::clicked, this, &AdvancedOptionsWindow::reject);
}

void AdvancedOptionsWindow::tellFailure()
{
    Velmora::Question box;
    box.title = m_definitions.failureTitle();
    box.text = m_definitions.failureText();
    box.icon = QMessageBox::Critical;
    box.buttons = QMessageBox::Ok;
    (void)Velmora::Prompts::current().ask(this, box);
}

void AdvancedOptionsWindow::prefill()
{
    if (expressions.size() == 1)
        ui->eventNameTextEdit->setText(expressions.at(0));
    if (expressions.size() != 3)
        return;
    originalName = expressions.at(0);
    ui->eventNameTextEdit->setText(originalName);
    // As plain text: a < of a stored condition must not be taken for markup.
    ui->expressionTextIn->setPlainText(prepareExpressions(expressions.at(1)));
    ui->expressionTextOut->setPlainText(prepareExpressions(expressions.at(2)));
}

void AdvancedOptionsWindow::prepareEventStateList()
{
    const QStringList events = m_definitions.getEventList();
    ui->eventStatesListIn->addItems(events);
    ui->eventStatesListOut->addItems(events);
    ui->statesListIn->addItems(valueList);
    ui->statesListOut->addItems(valueList);
    ui->operatorListIn->addItems(operatorList);
    ui->operatorListOut->addItems(operatorList);
}

void AdvancedOptionsWindow::setEditMode(bool edit)
{
    ui->saveAsNewEventButton->setEnabled(!edit);
    ui->saveEventButton->setEnabled(edit);
}

QStringList AdvancedOptionsWindow::getExpressions() const
{
    return expressions;
}

QString AdvancedOptionsWindow::prepareExpressions(const QString& postfix) const
{
    return Velmora::infixFromPostfix(postfix, operatorList);
}

QStringList AdvancedOptionsWindow::buildAstTreeAndParseExpressions() const
{
    QStringList result{ui->eventNameTextEdit->text()};
    for (const QTextEdit* edit : {ui->expressionTextIn, ui->expressionTextOut}) {
        const auto postfix = Velmora::postfixFromInfix(Velmora::addSpaceBeforeOp(edit->toPlainText()));
        if (!postfix)
            return {};
        result.append(*postfix);
    }
    return result;
}

void AdvancedOptionsWindow::expressionChanged()
{
    if (auto* edit = qobject_cast<QTextEdit*>(sender()))
        showValidity(edit);
}

void AdvancedOptionsWindow::showValidity(QTextEdit* edit)
{
    const QString text = edit->toPlainText();
    const ConditionFault fault = Velmora::findConditionFault(text, m_definitions);
    const bool valid = fault == ConditionFault::None;
    const QString verdict = text.isEmpty() ? tr("✗ Brak warunku") : validityText(fault);
    (edit == ui->expressionTextIn ? ui->validityLabelIn : ui->validityLabelOut)->setText(verdict);
    edit->setAccessibleDescription(verdict);

    const QVariant shown = edit->property(validProperty);
    if (shown.isValid() && shown.toBool() == valid)
        return;
    edit->setProperty(validProperty, valid);
    edit->setStyleSheet(valid ? QStringLiteral("color: green") : QStringLiteral("color: red"));
}

QString AdvancedOptionsWindow::validityText(ConditionFault fault)
{
    switch (fault) {
    case ConditionFault::None:
        break;
    case ConditionFault::Syntax:
        return tr("✗ Nawiasy lub operatory nie pasują do siebie");
    case ConditionFault::ForbiddenText:
        return tr("✗ Niedozwolony znak, liczba ujemna lub nowy wiersz");
    case ConditionFault::StateOperator:
        return tr("✗ Stan można porównać tylko operatorem ==");
    case ConditionFault::UnknownOperand:
        return tr("✗ Nieznana nazwa lub wartość");
    case ConditionFault::Comparison:
        return tr("✗ Stan porównuje się z ON lub OFF, a parametr z liczbą");
    }
    return tr("✓ Warunek jest prawidłowy");
}

void AdvancedOptionsWindow::listItemDoubleClicked(QListWidgetItem* item)
{
    const QString list = item->listWidget()->objectName();
    const bool isEvent = list.startsWith(QLatin1String("eventStatesList"));
    QTextEdit* edit = list.contains(QLatin1String("In")) ? ui->expressionTextIn : ui->expressionTextOut;
    edit->insertPlainText(isEvent ? m_definitions.eventKey(item->text()) : item->text());
}

void AdvancedOptionsWindow::filterInTextChanged(const QString& pattern)
{
    filter(ui->eventStatesListIn, pattern);
}

void AdvancedOptionsWindow::filterOutTextChanged(const QString& pattern)
{
    filter(ui->eventStatesListOut, pattern);
}

void AdvancedOptionsWindow::filter(QListWidget* list, const QString& pattern)
{
    list->clear();
    list->addItems(m_definitions.getEventList().filter(QRegExp(pattern, Qt::CaseInsensitive)));
}

bool AdvancedOptionsWindow::isNameTaken(const QString& name) const
{
    return std::any_of(allEvents->cbegin(), allEvents->cend(),
                       [&name](const Event& event) { return event.state == name; });
}

bool AdvancedOptionsWindow::reportEntry() const
{
    const bool valid = ui->expressionTextIn->property(validProperty).toBool() &&
                       ui->expressionTextOut->property(validProperty).toBool();
    QString text;
    switch (
        Velmora::findConditionEntryFault({ui->eventNameTextEdit->text(), ui->expressionTextIn->toPlainText(),
                                          ui->expressionTextOut->toPlainText(), valid})) {
    case ConditionEntryFault::None:
        return true;
    case ConditionEntryFault::EmptyName:
        text = tr("Pole \"Nazwa zdarzenia\" nie może być puste");
        break;
    case ConditionEntryFault::ForbiddenCharacters:
        text = tr("Nazwa zdarzenia zawiera niedozwolone znaki");
        break;
    case ConditionEntryFault::EmptyCondition:
        text = tr("Należy wprowadzić wyrażenie.");
        break;
    case ConditionEntryFault::InvalidCondition:
        text = tr("Wprowadzone wyrażenie jest nieprawidłowe.");
        break;
    }
    displayMsgBox(tr("Uwaga"), text);
    return false;
}

void AdvancedOptionsWindow::accept()
{
    if (!reportEntry())
        return;
    expressions = buildAstTreeAndParseExpressions();
    if (expressions.isEmpty()) {
        displayMsgBox(tr("Uwaga"), tr("Wystąpił błąd podczas przetwarzania wyrażenia."));
        return;
    }
    const QString name = ui->eventNameTextEdit->text();
    const bool keepsName = sender() == ui->saveEventButton && name == originalName;
    if (!keepsName && isNameTaken(name)) {
        displayMsgBox(tr("Uwaga"), tr("Konfiguracja zawiera już zdarzenie ") + name);
        return;
    }
    QDialog::accept();
}
