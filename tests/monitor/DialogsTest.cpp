// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "admin/AboutWindow.h"
#include "admin/ApplicationConfigurationWindow.h"
#include "admin/ConnectWithServiceWindow.h"
#include "admin/LogiInWindow.h"
#include "admin/PasswordChangeWindow.h"
#include "admin/SmtpTestWindow.h"
#include "admin/UpdateDownloadWindow.h"
#include "app/Startup.h"
#include "devices/UPSConfigurationWindow.h"
#include "faults/Messages.h"
#include "link/UpsSocketController.h"
#include "logs/LoggingConfigurationWindow.h"
#include "logs/UpsLogsWindow.h"
#include "monitor/ExtendInformationWindow.h"
#include "monitor/ServiceRun.h"
#include "monitor/UpsEventsWindow.h"
#include "policy/AdvancedOptionsWindow.h"
#include "policy/ComputerConfigurationWindow.h"
#include "policy/DiscoverWindow.h"
#include "policy/GroupConfigurationWindow.h"
#include "policy/NetworkConfigurationWindow.h"
#include "policy/OutputSocketWindow.h"
#include "policy/PowerOffWindow.h"
#include "policy/SendEmailWindow.h"
#include "policy/SysCommandWindow.h"
#include "support/ModalDriver.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QRegularExpression>
#include <QScopeGuard>
#include <QSettings>
#include <QTest>
#include <QTranslator>

#include <functional>

using namespace Velmora::Tests;
using Velmora::UpsSocketController;

namespace {

using Build = std::function<std::unique_ptr<QDialog>(UpsSocketController*)>;

struct DialogRow
{
    const char* name;
    Build build; ///< with everything in it that it can show
};

std::unique_ptr<QDialog> extendedInformation(bool genset)
{
    QMap<QString, QString> report;
    for (const Velmora::ExInformation& row : Velmora::extendedInformationCatalogue(genset))
        report.insert(row.key, QStringLiteral("1"));
    auto dialog = std::make_unique<ExtendInformationWindow>(genset, nullptr);
    dialog->updateControls(report);
    return dialog;
}

std::unique_ptr<QDialog> events(const char* history)
{
    auto dialog = std::make_unique<UpsEventsWindow>(nullptr);
    dialog->updateControls(QLatin1String(history));
    return dialog;
}

std::unique_ptr<QDialog> everySetting()
{
    QMap<QString, QString> settings;
    for (const Velmora::UpsConfiguration& setting : Velmora::upsConfigurationCatalogue())
        settings.insert(setting.key, QStringLiteral("1;1;2"));
    auto dialog = std::make_unique<UPSConfigurationWindow>(Velmora::Utils::Ups(), nullptr);
    dialog->setConfiguration(settings);
    return dialog;
}

std::unique_ptr<QDialog> serviceAddress(UpsSocketController* link)
{
    auto dialog = std::make_unique<ConnectWithServiceWindow>(nullptr);
    dialog->setSocketController(link);
    return dialog;
}

std::unique_ptr<QDialog> policy(const char* configName)
{
    Velmora::Utils::Ups device;
    device.model_name = QLatin1String(configName);
    device.output_socket1 = true;
    Computer computer;
    computer.id = 1;
    Group group;
    group.computers = {1};
    Event event;
    event.state = QStringLiteral("stateNormal");
    auto dialog = std::make_unique<NetworkConfigurationWindow>(device, nullptr);
    dialog->setGroupsFromConfig({group});
    dialog->setEventsFromConfig({event});
    dialog->setAllComputers({computer});
    return dialog;
}

std::unique_ptr<QDialog> conditions()
{
    static QVector<Event> noEvents;
    Velmora::Utils::Ups device;
    device.model_name = QStringLiteral("Tarvex33_SNMP");
    return std::make_unique<AdvancedOptionsWindow>(device, QStringList(), &noEvents, nullptr);
}

template <typename Dialog>
std::unique_ptr<QDialog> plain(UpsSocketController* /*link*/)
{
    return std::make_unique<Dialog>(nullptr);
}

/// Every dialog of the panel has its row here.
const DialogRow dialogRows[] = {
    {"login", [](auto* link) { return std::make_unique<LogiInWindow>(link, nullptr); }},
    {"password change",
     [](auto* link) {
         return std::make_unique<PasswordChangeWindow>(QStringLiteral("127.0.0.1"), link, nullptr);
     }},
    {"service address", serviceAddress},
    {"service-wide settings",
     [](auto* /*link*/) {
         return std::make_unique<ApplicationConfigurationWindow>(nullptr, QList<Velmora::Utils::Ups>(),
                                                                 QList<Velmora::Utils::Ups>(), nullptr);
     }},
    {"mail test", [](auto* /*link*/) { return std::make_unique<SmtpTestWindow>(nullptr); }},
    {"download of an update", [](auto* /*link*/) { return std::make_unique<UpdateDownloadWindow>(nullptr); }},
    {"about", [](auto* /*link*/) { return std::make_unique<AboutWindow>(nullptr); }},
    {"policy of a simple device", [](auto* /*link*/) { return policy("LumoPro_Rack_RS232"); }},
    {"policy of an advanced device", [](auto* /*link*/) { return policy("Tarvex33_SNMP"); }},
    {"conditions of an event", [](auto* /*link*/) { return conditions(); }},
    {"system command", plain<SysCommandWindow>},
    {"e-mail of an event", plain<SendEmailWindow>},
    {"shutdown", plain<PowerOffWindow>},
    {"output sockets",
     [](auto* /*link*/) { return std::make_unique<OutputSocketWindow>(true, true, nullptr); }},
    {"the only output socket",
     [](auto* /*link*/) { return std::make_unique<OutputSocketWindow>(true, false, nullptr); }},
    {"computer", plain<ComputerConfigurationWindow>},
    {"group", plain<GroupConfigurationWindow>},
    {"discovery", plain<DiscoverWindow>},
    {"device settings", [](auto* /*link*/) { return everySetting(); }},
    {"extended information of a UPS", [](auto* /*link*/) { return extendedInformation(false); }},
    {"extended information of a genset", [](auto* /*link*/) { return extendedInformation(true); }},
    {"events before the first history", [](auto* /*link*/) { return events(""); }},
    {"logging configuration",
     [](auto* /*link*/) { return std::make_unique<LoggingConfigurationWindow>(nullptr); }},
    {"log", [](auto* /*link*/) { return std::make_unique<UpsLogsWindow>(nullptr); }},
    {"events", [](auto* /*link*/) { return events("2;3;4;5;6;7|18;3;4;5;6;7"); }},
};

/// Every dialog of the main window with the controls that open it.
constexpr const char* walk[][3] = {
    {"ExtendInformationWindow", "exInfoButton", "actionExtendInformation"},
    {"UPSConfigurationWindow", "upsConfigurationButton", "actionUpsConfiguration"},
    {"ApplicationConfigurationWindow", "aplicationConfigurationButton", "actionApplicationConfiguration"},
    {"NetworkConfigurationWindow", "networkConfigurationButton", "actionNetworkConfiguration"},
    {"LoggingConfigurationWindow", "loggingConfigurationButton", "actionLoggingConfiguration"},
    {"UpsEventsWindow", "upsEventsButton", nullptr},
    {"PasswordChangeWindow", "actionChangePassword", nullptr},
    {"ConnectWithServiceWindow", "actionConnectWithService", nullptr},
    {"AboutWindow", "actionAbout", nullptr}};

/// Texts that read the same in both languages.
const QRegularExpression sameInBoth(QStringLiteral(
    "^(OK|ON|OFF|Bypass|Dummy \\d|VAC "
    "rms|Hz|Ah|min|godz|dni|brak|D\\+|Port|TLS|SSL|\\S+example\\.com|Velmora "
    "Professional|© .*|Qt \\S+|zlib|Boost|"
    "GNU LGPL .*|.* License.*|header|group|stateNormal|Komputery dostępne w systemie Velmora)$"));

QStringList& warnings()
{
    static QStringList lines;
    return lines;
}

void keepWarnings(QtMsgType type, const QMessageLogContext& /*context*/, const QString& message)
{
    // The platform of the tests knows no tray and cannot limit the size of windows; displays do.
    if (type != QtDebugMsg && !message.contains(QLatin1String("propagateSizeHints")) &&
        !message.contains(QLatin1String("systemTrayWindowChanged")))
        warnings().append(message);
}

QStringList itemTexts(const QWidget* widget)
{
    QStringList texts;
    const auto* view = qobject_cast<const QAbstractItemView*>(widget);
    const auto* box = qobject_cast<const QComboBox*>(widget);
    const QAbstractItemModel* model = view ? view->model() : box ? box->model() : nullptr;
    if (!model)
        return texts;
    for (int column = 0; column < model->columnCount(); ++column) {
        texts.append(model->headerData(column, Qt::Horizontal).toString());
        for (int row = 0; row < model->rowCount(); ++row)
            texts.append(model->index(row, column).data().toString());
    }
    return texts;
}

/// What a user reads or has read out, in the order of the widgets, without what is not a word.
QStringList visibleTexts(const QDialog& dialog)
{
    QStringList texts{dialog.windowTitle()};
    for (const QWidget* widget : dialog.findChildren<QWidget*>()) {
        texts.append(itemTexts(widget));
        for (const char* property : {"toolTip", "accessibleName", "title", "placeholderText"})
            texts.append(widget->property(property).toString());
        if (qobject_cast<const QLabel*>(widget) || qobject_cast<const QAbstractButton*>(widget))
            texts.append(widget->property("text").toString());
    }
    static const QRegularExpression letters(QStringLiteral("[[:alpha:]]{2}"));
    return texts.filter(letters);
}

void use(QObject* control)
{
    const bool isTree = qobject_cast<const UpsTreeWidget*>(control);
    const bool isAction = qobject_cast<const QAction*>(control);
    QMetaObject::invokeMethod(control, isTree ? "addUpsActionTriggered" : isAction ? "trigger" : "click");
}

bool isField(const QWidget* widget)
{
    return qobject_cast<const QLineEdit*>(widget) || qobject_cast<const QComboBox*>(widget) ||
           qobject_cast<const QAbstractSpinBox*>(widget) || qobject_cast<const QAbstractItemView*>(widget);
}

/// The field to the right of a label, on its line and with nothing between them.
const QWidget* fieldBeside(const QDialog& dialog, const QLabel* label)
{
    const auto placed = [&dialog](const QWidget* widget) {
        return QRect(widget->mapTo(&dialog, QPoint()), widget->size());
    };
    const QRect place = placed(label);
    const QWidget* nearest = nullptr;
    for (const QWidget* widget : dialog.findChildren<QWidget*>()) {
        const QRect other = placed(widget);
        const bool beside = widget->isVisible() && other.left() > place.right() &&
                            other.top() <= place.center().y() && other.bottom() >= place.center().y();
        if (beside && (isField(widget) || qobject_cast<const QLabel*>(widget)) &&
            (!nearest || other.left() < placed(nearest).left()))
            nearest = widget;
    }
    return nearest && isField(nearest) ? nearest : nullptr;
}

QStringList unnamedControls(const QDialog& dialog)
{
    QStringList found;
    for (const QLabel* label : dialog.findChildren<QLabel*>()) {
        const QWidget* field = label->isVisible() ? fieldBeside(dialog, label) : nullptr;
        const bool named = label->buddy() || (field && !field->accessibleName().isEmpty());
        if (field && !named)
            found.append(QLatin1String("no buddy: ") + label->text());
    }
    for (const QAbstractButton* button : dialog.findChildren<QAbstractButton*>()) {
        if (button->isVisible() && button->text().isEmpty() && button->accessibleName().isEmpty())
            found.append(QLatin1String("no name: ") + button->objectName());
    }
    return found;
}

} // namespace

/// What holds for every dialog, in both languages.
class DialogsTest final : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void dialogsAreSound_data();
    void dialogsAreSound();
    void everyControlLeadsToItsDialog();
    void dialogsTakeEveryMessage_data();
    void dialogsTakeEveryMessage();
};

void DialogsTest::initTestCase()
{
    Q_INIT_RESOURCE(velmora);
    Q_INIT_RESOURCE(translation);
    Velmora::Startup::setPanelStyleSheet();
}

void DialogsTest::dialogsAreSound_data()
{
    QTest::addColumn<int>("row");
    for (int row = 0; row < int(std::size(dialogRows)); ++row)
        QTest::newRow(dialogRows[row].name) << row;
}

void DialogsTest::dialogsAreSound()
{
    QFETCH(int, row);
    UpsSocketController link;
    QStringList texts[2];
    const QtMessageHandler usual = qInstallMessageHandler(keepWarnings);
    const auto restore = qScopeGuard([usual] { qInstallMessageHandler(usual); });
    warnings().clear();
    for (const bool english : {false, true}) {
        QTranslator qtTexts;
        QTranslator panelTexts;
        const QString language = english ? QStringLiteral("english") : QStringLiteral("polish");
        Velmora::Startup::installTranslators(language, qtTexts, panelTexts);
        // Labels of events follow the settings.
        QSettings(qEnvironmentVariable("VELMORA_CONTROL_PANEL_INI"), QSettings::IniFormat)
            .setValue(QStringLiteral("language"), language);
        const std::unique_ptr<QDialog> dialog = dialogRows[row].build(&link);
        dialog->show();
        QVERIFY(QTest::qWaitForWindowExposed(dialog.get()));
        QCOMPARE(unnamedControls(*dialog), QStringList());
        texts[english ? 1 : 0] = visibleTexts(*dialog);
        QTest::keyClick(dialog.get(), Qt::Key_Escape);
        QVERIFY(dialog->isHidden());
        QCOMPARE(dialog->result(), int(QDialog::Rejected));
    }
    QCOMPARE(warnings(), QStringList());

    static const QRegularExpression polishLetter(QStringLiteral("[ąćęłńóśźżĄĆĘŁŃÓŚŹŻ]"));
    QVERIFY(texts[0].size() >= 2);
    QCOMPARE(texts[1].size(), texts[0].size());
    QStringList polishLeft = texts[1].filter(polishLetter);
    polishLeft.removeAll(QStringLiteral("Komputery dostępne w systemie Velmora"));
    QCOMPARE(polishLeft, QStringList());
    QStringList untranslated;
    for (int i = 0; i < texts[0].size(); ++i) {
        if (texts[0].at(i) == texts[1].at(i) && !sameInBoth.match(texts[0].at(i)).hasMatch())
            untranslated.append(texts[0].at(i));
    }
    QCOMPARE(untranslated, QStringList());
}

void DialogsTest::everyControlLeadsToItsDialog()
{
    const QtMessageHandler usual = qInstallMessageHandler(keepWarnings);
    const auto restore = qScopeGuard([usual] { qInstallMessageHandler(usual); });
    warnings().clear();
    QProcess service;
    QVERIFY(startService(service));
    WindowFixture panel;
    QVERIFY(openOnService(panel, QStringLiteral("Production hall")));
    QVERIFY(selectDevice(panel, QStringLiteral("Production hall")));
    QCOMPARE(logIn(panel), QStringList());
    QTRY_VERIFY_WITH_TIMEOUT(panel.find<QAction>("actionUpsConfiguration")->isEnabled(), patience);
    for (const auto& [dialogName, button, action] : walk) {
        for (const char* control : {button, action}) {
            const auto open = [object = panel.find(control)] { use(object); };
            const auto look = [name = dialogName](const QDialog& dialog) {
                QCOMPARE(dialog.metaObject()->className(), name);
            };
            QVERIFY2(!control || driveModal<QDialog>(open, look), control);
        }
    }
    panel.window.reset();
    QVERIFY(stopService(service));
    QCOMPARE(warnings(), QStringList());
}

void DialogsTest::dialogsTakeEveryMessage_data()
{
    QTest::addColumn<QByteArray>("control");
    for (const auto& [dialogName, button, action] : walk)
        QTest::newRow(dialogName) << QByteArray(button);
    QTest::newRow("LogiInWindow") << QByteArray("actionActAsAdministrator");
    QTest::newRow("AddUpsWindow") << QByteArray("upsTree");
}

void DialogsTest::dialogsTakeEveryMessage()
{
    QFETCH(QByteArray, control);
    static const QVector<QByteArray> messages = serviceMessages();
    const QtMessageHandler usual = qInstallMessageHandler(keepWarnings);
    const auto restore = qScopeGuard([usual] { qInstallMessageHandler(usual); });
    warnings().clear();
    WindowFixture panel;
    QVERIFY(panel.open(deviceList({device(7, "Tarvex33_SNMP", "A")})));
    panel.window->enableAdministratorButtons();
    QVERIFY(panel.send("<ups_configuration><epo>0</epo></ups_configuration>"));
    QVERIFY(panel.send(stateReport("<input_voltage>230</input_voltage><events>2;3;4;5;6;7|</events>")));
    QPointer<QDialog> opened;
    const auto interrupt = [&](QDialog& dialog) {
        opened = &dialog;
        for (const QByteArray& message : messages) {
            panel.service.send(message);
            panel.service.sendTogether({message, message});
            QVERIFY2(panel.settle(), message.left(200).constData());
            (void)takeMessages();
        }
        // The device of the dialog is gone by now, and the connection breaks off within a message.
        const QByteArray frame = ScriptedService::frame(messages.constFirst());
        panel.service.sendRaw(frame.left(frame.size() / 2));
        panel.service.resetConnection();
        QVERIFY(panel.service.waitForConnections(2));
        QVERIFY(panel.settle());
    };
    const bool came = driveModal<QDialog>([&] { use(panel.find(control.constData())); }, interrupt);
    QVERIFY(came);
    QTRY_VERIFY(!opened);
    QVERIFY(panel.settle());
    panel.window.reset();
    QCOMPARE(warnings(), QStringList());
}

QTEST_MAIN(DialogsTest)
#include "DialogsTest.moc"
