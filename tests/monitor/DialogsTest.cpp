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
#include "devices/AddUpsWindow.h"
#include "devices/AddVirtualUpsWindow.h"
#include "devices/SnmpOptionsWindow.h"
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
#include <QAccessible>
#include <QComboBox>
#include <QLabel>
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

enum Language { Polish, English, Pseudo };

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
    {"new device", [](auto* /*link*/) { return std::make_unique<AddUpsWindow>(nullptr, nullptr); }},
    {"virtual device", plain<AddVirtualUpsWindow>},
    {"options of SNMP", plain<SnmpOptionsWindow>},
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

/// What no translation is wanted for: units, and in capitals names of models and protocols.
const QRegularExpression
    data(QStringLiteral("^([A-Z0-9 /-]+|VAC rms|Hz|Ah|min|godz|dni|brak|\\S+example\\.com|Velmora "
                        "Professional.*|© .*|Qt \\S+|zlib|Boost|GNU LGPL .*|"
                        ".* License.*|header|group|stateNormal|Komputery dostępne w systemie Velmora)$"));

const QRegularExpression polishLetter(QStringLiteral("[ąćęłńóśźżĄĆĘŁŃÓŚŹŻ]"));

/// Marks whatever passes through a translation.
class BracketTranslator final : public QTranslator
{
public:
    [[nodiscard]] bool isEmpty() const override { return false; }
    [[nodiscard]] QString translate(const char* /*context*/, const char* text, const char* /*disambiguation*/,
                                    int /*n*/) const override
    {
        return QLatin1Char('[') + QString::fromUtf8(text) + QLatin1Char(']');
    }
};

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
QStringList visibleTexts(const QWidget& window)
{
    QStringList texts{window.windowTitle()};
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        texts.append(itemTexts(widget));
        for (const char* property : {"toolTip", "accessibleName", "title", "placeholderText"})
            texts.append(widget->property(property).toString());
        if (qobject_cast<const QLabel*>(widget) || qobject_cast<const QAbstractButton*>(widget))
            texts.append(widget->property("text").toString());
    }
    for (const QAction* action : window.findChildren<QAction*>())
        texts.append(action->text());
    static const QRegularExpression letters(QStringLiteral("[[:alpha:]]{2}"));
    return texts.filter(letters);
}

void use(QObject* control)
{
    const bool isTree = qobject_cast<const UpsTreeWidget*>(control);
    const bool isAction = qobject_cast<const QAction*>(control);
    QMetaObject::invokeMethod(control, isTree ? "addUpsActionTriggered" : isAction ? "trigger" : "click");
}

/// Everything that the Tab key reaches, in its order.
QVector<QWidget*> tabOrder(const QWidget& window)
{
    QVector<QWidget*> widgets;
    for (QWidget* next = window.nextInFocusChain(); next != &window; next = next->nextInFocusChain()) {
        const bool part = next->focusProxy() || next->objectName().startsWith(QLatin1String("qt_"));
        if ((next->focusPolicy() & Qt::TabFocus) && next->isVisible() && !part)
            widgets.append(next);
    }
    return widgets;
}

/// Whether a reader would come from one place to the other without going back.
bool isReadAfter(const QRect& now, const QRect& before)
{
    constexpr int tolerance = 12;
    const int down = now.center().y() - before.center().y();
    if (qAbs(down) < tolerance || before.contains(now))
        return now.left() >= before.left();
    return down > 0 || now.left() >= before.left() + tolerance;
}

/// What a screen reader could not name, and steps of the Tab key against the order of reading.
QStringList keyboardFaults(const QWidget& window)
{
    QStringList nameless;
    QStringList stepsBack;
    const QVector<QWidget*> widgets = tabOrder(window);
    const auto placeOf = [&window](const QWidget* widget) {
        return QRect(widget->mapTo(&window, QPoint()), widget->size());
    };
    for (int i = 0; i < widgets.size(); ++i) {
        QWidget* widget = widgets.at(i);
        const QString label = QLatin1String(widget->metaObject()->className()) + QLatin1Char(' ') +
                              widget->objectName() + widget->property("text").toString();
        if (QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name).isEmpty())
            nameless.append(QLatin1String("no name: ") + label);
        const QWidget* before = widgets.at((i > 0 ? i : widgets.size()) - 1);
        if (!isReadAfter(placeOf(widget), placeOf(before)))
            stepsBack.append(QLatin1String("out of order: ") + label);
    }
    // Those that are left to the mouse are read out, too.
    for (const QAbstractButton* button : window.findChildren<QAbstractButton*>()) {
        if (button->isVisible() && button->text().isEmpty() && button->accessibleName().isEmpty())
            nameless.append(QLatin1String("no name: ") + button->objectName());
    }
    // One leads from the end to the beginning.
    return stepsBack.size() > 1 ? nameless + stepsBack : nameless;
}

/// What stays Polish in English, and what no translation reaches. `texts` are those of one window, by
/// language.
QString translationFaults(const QStringList (&texts)[3])
{
    if (texts[Polish].size() < 2 || texts[English].size() != texts[Polish].size() ||
        texts[Pseudo].size() != texts[Polish].size())
        return QStringLiteral("texts come and go with the language");
    QStringList faults = texts[English].filter(polishLetter);
    faults.removeAll(QStringLiteral("Komputery dostępne w systemie Velmora"));
    for (int i = 0; i < texts[Pseudo].size(); ++i) {
        const QString text = texts[Pseudo].at(i);
        // Names of events come in both languages from the resources.
        const bool follows = text.contains(QLatin1Char('[')) || texts[Polish].at(i) != texts[English].at(i);
        if (!follows && !data.match(text).hasMatch())
            faults.append(text);
    }
    return faults.join(QLatin1Char(';'));
}

/// The translators of one language, as the panel installs them.
class Translation final
{
public:
    explicit Translation(Language language)
    {
        const QString word = language == Polish ? QStringLiteral("polish") : QStringLiteral("english");
        Velmora::Startup::installTranslators(word, m_qtTexts, m_panelTexts);
        if (language == Pseudo)
            QCoreApplication::installTranslator(&m_brackets);
        // Labels of events follow the settings.
        QSettings(qEnvironmentVariable("VELMORA_CONTROL_PANEL_INI"), QSettings::IniFormat)
            .setValue(QStringLiteral("language"), word);
    }

private:
    QTranslator m_qtTexts;
    QTranslator m_panelTexts;
    BracketTranslator m_brackets;
};

} // namespace

/// What holds for every dialog, in both languages.
class DialogsTest final : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void dialogsAreSound_data();
    void dialogsAreSound();
    void mainWindowIsSound();
    void everyControlLeadsToItsDialog_data();
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
    QStringList texts[3];
    const QtMessageHandler usual = qInstallMessageHandler(keepWarnings);
    const auto restore = qScopeGuard([usual] { qInstallMessageHandler(usual); });
    warnings().clear();
    for (const Language language : {Polish, English, Pseudo}) {
        const Translation translation(language);
        const std::unique_ptr<QDialog> dialog = dialogRows[row].build(&link);
        // Nothing is scrolled out of sight.
        dialog->resize(dialog->width(), 5000);
        dialog->show();
        QVERIFY(QTest::qWaitForWindowExposed(dialog.get()));
        QCOMPARE(keyboardFaults(*dialog).join(QLatin1Char(';')), QString());
        texts[language] = visibleTexts(*dialog);
        QTest::keyClick(dialog.get(), Qt::Key_Escape);
        QVERIFY(dialog->isHidden());
        QCOMPARE(dialog->result(), int(QDialog::Rejected));
    }
    QCOMPARE(warnings(), QStringList());

    QCOMPARE(translationFaults(texts), QString());
}

void DialogsTest::mainWindowIsSound()
{
    QStringList texts[3];
    for (const Language language : {Polish, English, Pseudo}) {
        const Translation translation(language);
        WindowFixture panel;
        QVERIFY(panel.open(deviceList({device(7, "Tarvex33_SNMP", "A"), device(8, "Borel_SNMP", "B")})));
        panel.window->enableAdministratorButtons();
        QVERIFY(panel.send(stateReport("<input_voltage>230</input_voltage><load>50</load>")));
        QCOMPARE(keyboardFaults(*panel.window).join(QLatin1Char(';')), QString());
        texts[language] = visibleTexts(*panel.window);
    }
    QCOMPARE(translationFaults(texts), QString());
}

void DialogsTest::everyControlLeadsToItsDialog_data()
{
    QTest::addColumn<int>("language");
    QTest::newRow("in Polish") << int(Polish);
    QTest::newRow("in English") << int(English);
}

void DialogsTest::everyControlLeadsToItsDialog()
{
    QFETCH(int, language);
    const Translation translation(static_cast<Language>(language));
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
