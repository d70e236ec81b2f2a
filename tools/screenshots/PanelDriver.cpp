// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "screenshots/PanelDriver.h"

#include "monitor/UpsTreeElement.h"
#include "monitor/UpsTreeWidget.h"
#include "monitor/widgets/LineEditWidget.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QDeadlineTimer>
#include <QDialog>
#include <QEventLoop>
#include <QLabel>
#include <QMainWindow>
#include <QMetaProperty>
#include <QProgressBar>
#include <QRegularExpression>
#include <QScreen>
#include <QTextEdit>
#include <QTimer>
#include <QTreeWidget>
#include <QWindow>

#include <algorithm>
#include <cstdio>

namespace {

QTreeWidgetItem* lastRow(const QTreeWidget& tree)
{
    QTreeWidgetItem* row = tree.topLevelItem(tree.topLevelItemCount() - 1);
    while (row && row->childCount() > 0)
        row = row->child(row->childCount() - 1);
    return row;
}

/// Whether a user could act on it; a list or, unless it is about to be `filled`, a text has something in it.
bool isReady(const QObject* object, bool filled)
{
    const auto* widget = qobject_cast<const QWidget*>(object);
    const auto* action = qobject_cast<const QAction*>(object);
    const auto* view = qobject_cast<const QAbstractItemView*>(object);
    const auto* text = qobject_cast<const QTextEdit*>(object);
    if (!object || (widget && !(widget->isVisible() && widget->isEnabled())) ||
        (action && !action->isEnabled()))
        return false;
    return !(view && view->model()->rowCount() == 0) && (filled || !(text && text->document()->isEmpty()));
}

} // namespace

PanelDriver::PanelDriver(QMainWindow* window)
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

bool PanelDriver::showDevice(const QString& modelName) const
{
    constexpr int reportTime = 4000;
    auto* tree = m_window->findChild<UpsTreeWidget*>();
    const auto fits = [&modelName](const UpsTreeElement* element) {
        return element && element->ups.model_name.startsWith(modelName);
    };
    if (fits(tree->currentElement()))
        return true;
    const std::vector<UpsTreeElement*> rows = tree->allElements();
    const auto row = std::find_if(rows.begin(), rows.end(), fits);
    if (row == rows.end())
        return false;
    const QStringList before = values();
    tree->setCurrentItem(*row);
    // The first report after a selection may still be one of the device before, and the two may be alike.
    (void)waitUntil([&] { return values() != before; }, reportTime);
    return true;
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

QObject* PanelDriver::objectOf(const QString& step, const QWidget* window) const
{
    static const QRegularExpression nameEnd(QStringLiteral("[.=?].*"));
    return (window ? window : m_window)->findChild<QObject*>(QString(step).remove(nameEnd));
}

bool PanelDriver::await(const QString& step, const QWidget* window) const
{
    constexpr int readyTime = 15000;
    if (waitUntil([&] { return isReady(objectOf(step, window), step.contains(QLatin1Char('='))); },
                  readyTime))
        return true;
    std::fprintf(stderr, "velmora-screenshots: %s does not become ready\n", qUtf8Printable(step));
    return false;
}

void PanelDriver::act(const QString& step, const QWidget* window) const
{
    QObject* object = objectOf(step, window);
    const QString value = step.section(QLatin1Char('='), 1).replace(QLatin1Char('_'), QLatin1Char(' '));
    if (step.endsWith(QLatin1Char('?')))
        return;
    if (!value.isEmpty())
        object->setProperty(object->metaObject()->userProperty().name(), value);
    else if (step.contains(QLatin1Char('.')))
        QMetaObject::invokeMethod(object, step.section(QLatin1Char('.'), 1).toLatin1().constData());
    else if (auto* tree = qobject_cast<QTreeWidget*>(object))
        tree->setCurrentItem(lastRow(*tree));
    else
        QMetaObject::invokeMethod(object, qobject_cast<QAction*>(object) ? "trigger" : "click");
}

bool PanelDriver::take(const QStringList& steps, const QWidget* window) const
{
    return std::all_of(steps.begin(), steps.end(), [this, window](const QString& step) {
        if (!await(step, window))
            return false;
        act(step, window);
        return true;
    });
}

bool PanelDriver::withDialog(const std::function<void()>& open,
                             const std::function<void(QDialog*)>& use) const
{
    constexpr int lookInterval = 50;
    bool used = false;
    const QWidget* before = QApplication::activeModalWidget();
    // Opening returns only when the dialog is closed, so the dialog is used from a timer that runs
    // meanwhile.
    QTimer looks;
    QObject::connect(&looks, &QTimer::timeout, m_window, [&] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (!dialog || dialog == before || used)
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
    constexpr int smallestFile = 0;
    return pictured->windowHandle()->screen()->grabWindow(pictured->winId()).save(path, "PNG", smallestFile);
}
