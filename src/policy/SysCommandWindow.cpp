// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "policy/SysCommandWindow.h"

#include "monitor/widgets/Picture.h"
#include "monitor/widgets/Prompts.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

namespace {

constexpr int commandWidth = 280;
constexpr int longestDelay = 999900;

} // namespace

SysCommandWindow::SysCommandWindow(QWidget* parent)
    : QDialog(parent)
    , m_command(new QLineEdit)
    , m_options(new QLineEdit)
    , m_delay(new QSpinBox)
    , m_turnOffUps(new QCheckBox(tr("Po wykonaniu polecenia wyłącz zasilacz UPS")))
{
    setModal(true);
    setWindowTitle(tr("Polecenie systemowe"));
    m_delay->setRange(0, longestDelay);
    m_command->setMinimumWidth(commandWidth);
    m_delay->setSuffix(QStringLiteral("s"));

    auto* open = new QPushButton(tr("Otwórz"));
    open->setAutoDefault(false);
    connect(open, &QPushButton::clicked, this, &SysCommandWindow::openButtonClickHandler);

    auto* group = new QGroupBox(tr("Polecenia systemowe"));
    auto* grid = new QGridLayout(group);
    addRow(grid, tr("Polecenie"), m_command);
    grid->addWidget(open, 0, 2);
    addRow(grid, tr("Opcje"), m_options);
    addRow(grid, tr("Czas po którym polecenie zostanie wykonane"), m_delay);
    grid->addWidget(m_turnOffUps, grid->rowCount(), 0, 1, 2);

    auto* logo = new QLabel;
    logo->setObjectName(QStringLiteral("ondaraLabel"));
    logo->setPixmap(Velmora::picture(QStringLiteral(":/images/images/ondara_logo_s.png")));
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, this, &SysCommandWindow::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &SysCommandWindow::reject);
    auto* foot = new QHBoxLayout;
    foot->addWidget(logo);
    foot->addWidget(buttons);

    auto* column = new QVBoxLayout(this);
    column->addWidget(group);
    column->addLayout(foot);
    column->setSizeConstraint(QLayout::SetFixedSize);
}

SysCommandWindow::~SysCommandWindow() = default;

void SysCommandWindow::addRow(QGridLayout* grid, const QString& text, QWidget* field)
{
    auto* label = new QLabel(text);
    label->setBuddy(field);
    const int row = field == m_command ? 0 : grid->rowCount();
    grid->addWidget(label, row, 0);
    grid->addWidget(field, row, 1);
}

void SysCommandWindow::openButtonClickHandler()
{
    const QPointer<SysCommandWindow> guard(this);
    const auto path =
        Velmora::Prompts::current().chooseFile(this, tr("Wybierz plik"), tr("Wszystkie pliki (*.*)"));
    if (guard && path)
        m_command->setText(*path);
}

void SysCommandWindow::setCommand(const QString& command)
{
    m_command->setText(command);
}

void SysCommandWindow::setOptions(const QString& options)
{
    m_options->setText(options);
}

void SysCommandWindow::setDelayTime(int delay)
{
    m_delay->setValue(delay);
}

void SysCommandWindow::setTurnOffUps(bool turnOff)
{
    m_turnOffUps->setChecked(turnOff);
}

void SysCommandWindow::setTurnOffUpsEnabled(bool enabled)
{
    m_turnOffUps->setEnabled(enabled);
}

QString SysCommandWindow::getCommand() const
{
    return m_command->text();
}

QString SysCommandWindow::getOptions() const
{
    return m_options->text();
}

int SysCommandWindow::getDelayTime() const
{
    return m_delay->value();
}

bool SysCommandWindow::getTurnOffUps() const
{
    return m_turnOffUps->isChecked();
}
