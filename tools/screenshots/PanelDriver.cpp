// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "screenshots/PanelDriver.h"

#include "monitor/UpsTreeElement.h"
#include "monitor/UpsTreeWidget.h"
#include "monitor/widgets/LineEditWidget.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDeadlineTimer>
#include <QDialog>
#include <QEventLoop>
#include <QLabel>
#include <QProgressBar>
#include <QScreen>
#include <QTimer>
#include <QWindow>

PanelDriver::PanelDriver(QWidget* window)
    : m_window(window)
{}

bool PanelDriver::waitUntil(const std::function<bool()>& condition, int milliseconds)
{
    constexpr int lookInterval = 25;
    const QDeadlineTimer deadline(milliseconds);
    QEventLoop loop;
    QTimer looks;
    QObject::connect(&looks, &QTimer::timeout, &loop, [&] {
        if (condition() || deadline.hasExpired())
            loop.quit();
    });
    looks.start(lookInterval);
    loop.exec();
    return condition();
}

int PanelDriver::deviceCount() const
{
    return static_cast<int>(m_window->findChild<UpsTreeWidget*>()->allElements().size());
}

bool PanelDriver::select(const QString& modelName)
{
    auto* tree = m_window->findChild<UpsTreeWidget*>();
    for (UpsTreeElement* element : tree->allElements()) {
        if (element->ups.model_name.startsWith(modelName)) {
            tree->setCurrentItem(element);
            return true;
        }
    }
    return false;
}

QString PanelDriver::fieldText(const char* name) const
{
    return m_window->findChild<LineEditWidget*>(QLatin1String(name))->text();
}

bool PanelDriver::showsLiveValues() const
{
    return !fieldText("workModeEdit").isEmpty();
}

QStringList PanelDriver::values() const
{
    QStringList texts;
    for (const auto* field : m_window->findChildren<LineEditWidget*>())
        texts.append(field->text());
    return texts;
}

bool PanelDriver::showsLostService() const
{
    return !showsLiveValues() && m_window->findChild<QLabel*>(QStringLiteral("serviceTitle"))
                                     ->styleSheet()
                                     .contains(QLatin1String("#de1414"));
}

QString PanelDriver::describe() const
{
    const UpsTreeElement* element = m_window->findChild<UpsTreeWidget*>()->currentElement();
    if (!element)
        return QStringLiteral("no device");
    if (!showsLiveValues())
        return element->text(0) + QLatin1String(", no values");
    const auto* loadField = m_window->findChild<QWidget*>(QStringLiteral("loadProgressBar"));
    const QString load = loadField->findChild<QProgressBar*>()->text();
    return QStringLiteral("%1 (%2), work mode \"%3\", load %4")
        .arg(element->text(0), element->modelFullName, fieldText("workModeEdit"), load);
}

void PanelDriver::trigger(const char* name) const
{
    if (auto* action = m_window->findChild<QAction*>(QLatin1String(name)))
        action->trigger();
    else
        m_window->findChild<QAbstractButton*>(QLatin1String(name))->click();
}

bool PanelDriver::canTrigger(const char* button) const
{
    return m_window->findChild<QAbstractButton*>(QLatin1String(button))->isEnabled();
}

void PanelDriver::requestNewDevice() const
{
    emit m_window->findChild<UpsTreeWidget*>()->addUpsActionTriggered();
}

void PanelDriver::requestChange() const
{
    m_window->findChild<UpsTreeWidget*>()->editActionTriggeredSlot();
}

bool PanelDriver::withDialog(const std::function<void()>& open,
                             const std::function<void(QDialog*)>& use) const
{
    constexpr int lookInterval = 50;
    bool used = false;
    // Opening returns only when the dialog is closed, so the dialog is used from a timer that runs
    // meanwhile.
    QTimer looks;
    QObject::connect(&looks, &QTimer::timeout, m_window, [&] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (!dialog || used)
            return;
        used = true;
        use(dialog);
    });
    looks.start(lookInterval);
    open();
    return used;
}

bool PanelDriver::save(const QString& path, const QWidget* window) const
{
    const QWidget* pictured = window ? window : m_window;
    return pictured->windowHandle()->screen()->grabWindow(pictured->winId()).save(path);
}
