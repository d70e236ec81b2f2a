// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "monitor/WindowFixture.h"

#include "app/ControlPanelConfiguration.h"
#include "monitor/widgets/LineEditWidget.h"
#include "monitor/widgets/ProgressBarWidget.h"

#include <QApplication>
#include <QFile>
#include <QMenu>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

// The macro stands in no namespace.
static void initResources()
{
    Q_INIT_RESOURCE(velmora);
}

namespace Velmora::Tests {

namespace {

QByteArray element(const QByteArray& name, const QByteArray& content)
{
    return '<' + name + '>' + content + "</" + name + '>';
}

QString helpMark(const QWidget* field)
{
    return field->findChild<QPushButton*>()->isHidden() ? QString() : QStringLiteral("?");
}

} // namespace

QByteArray device(int id, const char* modelName, const char* userName, const QVector<int>& unitIds)
{
    QByteArray units;
    for (int i = 0; i < unitIds.size(); ++i)
        units += element("phy_id_" + QByteArray::number(i), QByteArray::number(unitIds.at(i)));
    return element("ups", element("model_name", modelName) + element("id", QByteArray::number(id)) + units +
                              element("user_defined_name", userName) + element("log_params", "3"));
}

QByteArray deviceList(const QVector<QByteArray>& devices)
{
    QByteArray content;
    for (const QByteArray& device : devices)
        content += device;
    return element("ups_model_list", content);
}

QByteArray statusList(const QVector<QPair<int, QByteArray>>& rows)
{
    QByteArray content;
    for (const auto& [id, status] : rows) {
        const bool leads = status.endsWith('*');
        content += element("ups", element("id", QByteArray::number(id)) +
                                      element("status", leads ? status.chopped(1) : status) +
                                      element("master", leads ? "1" : "0"));
    }
    return element("ups_current_status_list", content);
}

QByteArray stateReport(const QByteArray& values, bool found)
{
    return QByteArray("<ups_device_state isUpsFound=\"") + (found ? '1' : '0') + "\" isProperDevice=\"1\">" +
           values + "</ups_device_state>";
}

WindowFixture::WindowFixture()
    : prompts(ScriptedPrompts::install())
{
    initResources();
    QFile::remove(qEnvironmentVariable("VELMORA_CONTROL_PANEL_INI"));
    ControlPanelConfiguration configuration;
    configuration.setServerAddress(ScriptedService::testAddress());
    // Tests ask nothing of the maker's server.
    configuration.setCheckForUpdates(false);
}

WindowFixture::~WindowFixture()
{
    window.reset();
    Prompts::replace(nullptr);
    closeStrayWindows();
}

bool WindowFixture::open(const QByteArray& devices)
{
    service.replyTo("get_ups_model_list", devices);
    if (!service.start())
        return false;
    window = std::make_unique<VelmoraWindow>();
    window->show();
    // The first tick of the poll stands behind the opening requests.
    if (!service.waitForRequest("get_ups_configuration"))
        return false;
    timer("pollTimer")->stop();
    return send(stateReport("<battery_capacity>80</battery_capacity>"));
}

bool WindowFixture::settle()
{
    QSignalSpy answers(link(), &UpsSocketController::serviceVersionReceived);
    service.send("<service_version>" VELMORA_VERSION "</service_version>");
    if (!QTest::qWaitFor([&] { return !answers.isEmpty(); }))
        return false;
    const int seen = service.requestCount("settle");
    link()->sendMessage(QStringLiteral("settle"));
    return service.waitForRequest("settle", seen + 1);
}

bool WindowFixture::send(const QByteArray& document)
{
    service.send(document);
    return settle();
}

UpsTreeElement* WindowFixture::row(const QString& text) const
{
    for (UpsTreeElement* element : tree()->allElements()) {
        if (element->text(0) == text)
            return element;
    }
    return nullptr;
}

bool WindowFixture::rowShows(const UpsTreeElement* row, const char* indicator) const
{
    const QIcon expected(QLatin1String(":/indicators/images/indicators/") + QLatin1String(indicator) +
                         QLatin1String(".png"));
    const QSize size = tree()->iconSize().isValid() ? tree()->iconSize() : QSize(16, 16);
    return row && row->icon(0).pixmap(size).toImage() == expected.pixmap(size).toImage();
}

QString WindowFixture::shown(const char* name) const
{
    const auto* widget = find<QWidget>(name);
    if (!widget->isVisible())
        return QStringLiteral("-");
    if (const auto* field = qobject_cast<const LineEditWidget*>(widget))
        return field->text() + helpMark(field);
    if (qobject_cast<const ProgressBarWidget*>(widget)) {
        const auto* bar = widget->findChild<QProgressBar*>();
        return bar->text() + QLatin1String(" [") + QString::number(bar->value()) + QLatin1Char(']') +
               helpMark(widget);
    }
    const char* property = widget->property("title").isValid() ? "title" : "text";
    return widget->property(property).toString();
}

QAction* WindowFixture::trayAction(const QString& text)
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (const QWidget* window : windows) {
        const auto actions = qobject_cast<const QMenu*>(window) ? window->actions() : QList<QAction*>();
        for (QAction* action : actions) {
            if (action->text() == text)
                return action;
        }
    }
    return nullptr;
}

} // namespace Velmora::Tests
