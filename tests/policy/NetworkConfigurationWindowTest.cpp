// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "policy/NetworkConfigurationWindow.h"
#include "admin/PasswordChangeWindow.h"
#include "app/ControlPanelConfiguration.h"
#include "link/TextHelpers.h"
#include "link/UpsSocketController.h"
#include "policy/ComputerConfigurationWindow.h"
#include "policy/DiscoverWindow.h"
#include "policy/GroupConfigurationWindow.h"
#include "support/ModalDriver.h"
#include "support/ScriptedPrompts.h"
#include "support/ScriptedService.h"

#include <QCheckBox>
#include <QComboBox>
#include <QTreeWidget>

using namespace Velmora::Tests;
using Velmora::UpsSocketController;
using Velmora::Utils::makeMd5;

namespace {

const QString secret = QStringLiteral("Hasło 1");
const QString wrong = QStringLiteral("Nieprawidłowe hasło|Podane hasło Administratora jest nieprawidłowe");

Computer computer(int id, const char* name, const QString& address)
{
    Computer computer;
    computer.id = id;
    computer.name = QString::fromUtf8(name);
    computer.address = address;
    return computer;
}

Group group(int id, const char* name, const QVector<int>& computers)
{
    return {QString::fromUtf8(name), computers, id};
}

Event everyAction()
{
    Event event;
    event.state = QStringLiteral("stateNormal");
    event.expressionIn = QStringLiteral("stateNormal,OFF,==,stateAvrActive,OFF,==,&&,");
    event.number = 3;
    event.messageAction = std::make_shared<MessageAction>();
    event.messageAction->message = QStringLiteral("<Zanik> & \"żółw\" 'x'");
    event.sysCommandAction = std::make_shared<SysCommandAction>();
    event.sysCommandAction->command_line = QStringLiteral("/bin/echo");
    event.powerOffAction = std::make_shared<PowerOffAction>();
    event.powerOffAction->type = QStringLiteral("suspend");
    event.powerOffAction->delay_time = 60;
    event.sendMailAction = std::make_shared<SendMailAction>();
    event.sendMailAction->receipent = QStringLiteral("a@example.com; b@example.com");
    event.outputSocketAction = std::make_shared<OutputSocketControlAction>();
    event.outputSocketAction->second_sock_conf = true;
    return event;
}

} // namespace

/// The dialog over a real link, on a service that answers as told.
class NetworkConfigurationWindowTest final : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { Q_INIT_RESOURCE(velmora); }
    void init();
    void cleanup();
    void policyIsSentWhole();
    void lateAnswersLeaveTheEditorAlone();
    void lockedDialogStaysLocked();
    void computerIsAddedByItsClientsPassword();
    void changedPasswordAsksToBeSaved_data();
    void changedPasswordAsksToBeSaved();
    void groupKeepsMembersWithoutItsName();
    void removalAsksFirst();
    void foundComputersAreAdopted();

private:
    template <typename T>
    T* find(const char* name) const
    {
        return window->findChild<T*>(QLatin1String(name));
    }
    void click(const char* button) const { find<QPushButton>(button)->click(); }
    /// Selects a group, or the member with this index in it.
    void select(int group, int member = -1) const;
    [[nodiscard]] QByteArray lastRequest() const { return service->requests().constLast().xml; }

    ScriptedPrompts* prompts = nullptr;
    std::unique_ptr<ScriptedService> service;
    std::unique_ptr<UpsSocketController> link;
    std::unique_ptr<NetworkConfigurationWindow> window;
};

void NetworkConfigurationWindowTest::init()
{
    ControlPanelConfiguration().setServerAddress(ScriptedService::testAddress());
    prompts = &ScriptedPrompts::install();
    service = std::make_unique<ScriptedService>();
    link = std::make_unique<UpsSocketController>();
    QVERIFY(service->start());
    link->setServerAddress(ScriptedService::testAddress());
    link->connectToServer();
    QVERIFY(service->waitForRequest("get_ups_configuration"));
    link->findChild<QTimer*>(QStringLiteral("pollTimer"))->stop();
    Velmora::Utils::Ups device;
    device.id = QStringLiteral("7");
    device.model_name = QStringLiteral("Quenta_USB");
    device.output_socket1 = true;
    window = std::make_unique<NetworkConfigurationWindow>(device, nullptr);
    window->setSocketController(link.get());
    connect(link.get(), &UpsSocketController::netclientPass, window.get(),
            &NetworkConfigurationWindow::netclientPasswReceived);
    window->setGroupsFromConfig({group(0, "Default", {0}), group(1, "Biuro", {1, 0})});
    window->setEventsFromConfig({everyAction()});
    window->setAllComputers(
        {computer(0, "A", QStringLiteral("127.0.0.1")), computer(1, "B&B", QStringLiteral("192.0.2.1"))});
    window->show();
    service->clearRequests();
}

void NetworkConfigurationWindowTest::cleanup()
{
    QVERIFY(prompts->allAsked());
    QCOMPARE(takeMessages(), QStringList());
    window.reset();
    link.reset();
    service.reset();
    Velmora::Prompts::replace(nullptr);
}

void NetworkConfigurationWindowTest::select(int group, int member) const
{
    auto* tree = find<QTreeWidget>("networkElementsTree");
    QTreeWidgetItem* row = tree->topLevelItem(group);
    tree->setCurrentItem(member < 0 ? row : row->child(member));
}

void NetworkConfigurationWindowTest::policyIsSentWhole()
{
    // Editing an event without a change leaves even what the editor cannot show.
    find<QTreeWidget>("eventsTree")->setCurrentItem(find<QTreeWidget>("eventsTree")->topLevelItem(0));
    click("editEventButton");
    click("saveEventButton");
    click("addEventButton"); // and what is unfinished does not go out
    window->accept();
    window->accept();
    QVERIFY(service->waitForRequest("groups"));
    QCOMPARE(service->requestNames(), (QVector<QByteArray>{"all_computers", "events", "groups"}));
    // Names go out unescaped, so that this one is no XML.
    QCOMPARE(
        service->requests().at(0).xml,
        QByteArray("<all_computers><pass></pass><computer><computer_name>A</computer_name>"
                   "<computer_address>127.0.0.1</computer_address><computer_password></computer_password>"
                   "<computer_configId>0</computer_configId></computer><computer><computer_name>B&B"
                   "</computer_name><computer_address>192.0.2.1</computer_address><computer_password>"
                   "</computer_password><computer_configId>1</computer_configId></computer>"
                   "</all_computers>"));
    QCOMPARE(
        service->requests().at(1).xml,
        QByteArray(
            "<events><pass></pass><ups_id>7</ups_id><event><event_state>stateNormal</event_state>"
            "<expressionIn>stateNormal,ON,==,</expressionIn><expressionOut>stateNormal,OFF,==,"
            "</expressionOut><event_number>3</event_number><event_parentId>0</event_parentId><actions>"
            "<message_action><message_text>&lt;Zanik&gt; &amp; &quot;żółw&quot; &apos;x&apos;</message_text>"
            "</message_action><syscommand_action><command_line>/bin/echo</command_line><command_options>"
            "</command_options><stanbyUps>0</stanbyUps><delay_time>0</delay_time></syscommand_action>"
            "<poweroff_action><type>suspend</type><stanbyUps>0</stanbyUps><delay_time>60</delay_time>"
            "</poweroff_action><sendmail_action><charCode></charCode><sender></sender><subject></subject>"
            "<body></body><receipent>a@example.com; b@example.com</receipent></sendmail_action>"
            "<output_sock_action><first_sock_conf>0</first_sock_conf><first_sock_ena>0</first_sock_ena>"
            "<first_sock_delay>0</first_sock_delay><second_sock_conf>1</second_sock_conf><second_sock_ena>0"
            "</second_sock_ena><second_sock_delay>0</second_sock_delay></output_sock_action></actions>"
            "</event></events>"));
    QCOMPARE(service->requests().at(2).xml,
             QByteArray("<groups><pass></pass><ups_id>7</ups_id><group><group_name>Default</group_name>\n"
                        "<group_configId>0</group_configId>\n<computers><computer><computer_configId>0"
                        "</computer_configId></computer></computers></group><group><group_name>Biuro"
                        "</group_name>\n<group_configId>1</group_configId>\n<computers><computer>"
                        "<computer_configId>1</computer_configId></computer><computer><computer_configId>0"
                        "</computer_configId></computer></computers></group></groups>"));
}

void NetworkConfigurationWindowTest::lateAnswersLeaveTheEditorAlone()
{
    click("addEventButton");
    find<QCheckBox>("sendEmailBox")->setChecked(true);
    window->setEventsFromConfig(QVector<Event>(50, everyAction()));
    window->setGroupsFromConfig({});
    window->setAllComputers({});
    QCOMPARE(window->model().events().size(), 51);
    click("saveEventButton");
    QCOMPARE(takeMessages(), QStringList(QStringLiteral("Uwaga!|Konfiguracja zawiera już zdarzenie "
                                                        "Praca w trybie sieciowym")));
    QVERIFY(window->model().isEditing());
    click("cancelEventButton");
    QCOMPARE(window->model().events().size(), 50);
    window->setAllComputers({});
    QCOMPARE(find<QTreeWidget>("networkElementsTree")->topLevelItemCount(), 0);
}

void NetworkConfigurationWindowTest::lockedDialogStaysLocked()
{
    click("addEventButton");
    window->setEnabledButtons(false);
    click("cancelEventButton");
    select(1, 0);
    find<QCheckBox>("systemCommandBox")->setChecked(true);
    for (const QPushButton* button : window->findChildren<QPushButton*>()) {
        const bool cancels = button->text().contains(QRegularExpression(QStringLiteral("Cancel|Anuluj")));
        QVERIFY2(!button->isEnabled() || cancels, qPrintable(button->objectName()));
    }
}

void NetworkConfigurationWindowTest::computerIsAddedByItsClientsPassword()
{
    const auto add = [this](ComputerConfigurationWindow& dialog) {
        typeInto(dialog, "computerNameEdit", QStringLiteral("C"));
        typeInto(dialog, "computerAddressEdit", QStringLiteral("192.0.2.9"));
        dialog.findChild<QComboBox*>(QStringLiteral("groupBox"))->setCurrentText(QStringLiteral("Biuro"));
        dialog.findChild<QPushButton*>(QStringLiteral("okButton"))->click();
        dialog.findChild<QPushButton*>(QStringLiteral("okButton"))->click();
        QVERIFY(service->waitForRequest("get_netclient_pass"));
        QVERIFY(lastRequest().contains("<netclient_address>192.0.2.9</netclient_address>"));
        service->send("<netclient_password>" + makeMd5(secret).toUtf8() + "</netclient_password>");
        QCOMPARE(awaitMessages(), QStringList(wrong));
        QCOMPARE(window->model().computers().size(), 2);
        typeInto(dialog, "passwordEdit", secret);
        // Late or right: with or without a timer the answer counts.
        service->send("<netclient_password>" + makeMd5(secret).toUtf8() + "</netclient_password>");
        QTRY_VERIFY(dialog.isHidden());
    };
    QVERIFY(driveModal<ComputerConfigurationWindow>([this] { click("addComputerButton"); }, add));
    QCOMPARE(service->requestCount("get_netclient_pass"), 1);
    QCOMPARE(window->model().computers().constLast().password, secret);
    QCOMPARE(window->model().group(1)->computers, (QVector<int>{1, 0, 2}));
    window->netclientPasswReceived(makeMd5(secret)); // nobody waits for it
    QCOMPARE(window->model().computers().size(), 3);
}

void NetworkConfigurationWindowTest::changedPasswordAsksToBeSaved_data()
{
    QTest::addColumn<int>("answer");
    QTest::newRow("it is saved") << int(QMessageBox::Yes);
    QTest::newRow("it is dropped") << int(QMessageBox::No);
    QTest::newRow("the dialog stays") << int(QMessageBox::NoButton);
}

void NetworkConfigurationWindowTest::changedPasswordAsksToBeSaved()
{
    QFETCH(int, answer);
    select(1, 1);
    const auto change = [this](PasswordChangeWindow& dialog) {
        emit link->passwordChanged(); // somebody else's
        typeInto(dialog, "newPasswordEdit", secret);
        typeInto(dialog, "repeatPasswordEdit", secret);
        pressOk(dialog);
        QVERIFY(service->waitForRequest("get_netclient_pass"));
        service->send("<netclient_password>" + makeMd5(QString()).toUtf8() + "</netclient_password>");
        QVERIFY(service->waitForRequest("change_netclient_password"));
        QVERIFY(lastRequest().contains("<netclient_address>192.0.2.1</netclient_address>\n<password>"));
        service->send("<netclient_password_changed/>");
        QTRY_VERIFY(dialog.isHidden());
    };
    QVERIFY(driveModal<PasswordChangeWindow>([this] { click("changePassButton"); }, change));
    QCOMPARE(awaitMessages().size(), 1);
    QCOMPARE(window->model().getComputerFromList(1)->password, secret);
    click("addEventButton"); // the unfinished event is not saved
    prompts->expect({QStringLiteral("Hasło dla elementu sieciowego zostało zmienione."),
                     QMessageBox::StandardButton(answer),
                     false,
                     {}});
    window->reject();
    QCOMPARE(window->isVisible(), answer == QMessageBox::NoButton);
    QCOMPARE(window->model().isEditing(), answer != QMessageBox::Yes);
    if (answer == QMessageBox::Yes)
        QVERIFY(service->waitForRequest("events"));
    QCOMPARE(service->requestCount("events"), answer == QMessageBox::Yes ? 1 : 0);
}

void NetworkConfigurationWindowTest::groupKeepsMembersWithoutItsName()
{
    select(1);
    const auto edit = [this](GroupConfigurationWindow& dialog) {
        window->setGroupsFromConfig(window->model().groups());
        typeInto(dialog, "groupNameEdit", QStringLiteral("Default"));
        dialog.accept();
        QCOMPARE(takeMessages().size(), 1);
        dialog.findChild<QTreeWidget*>(QStringLiteral("computersInGroupTree"))->selectAll();
        dialog.removeFromGroupButtonHandler();
    };
    QVERIFY(driveModal<GroupConfigurationWindow>([this] { click("editButton"); }, edit));
    QCOMPARE(window->model().group(1)->name, QStringLiteral("Biuro"));
    QCOMPARE(window->model().group(1)->computers, QVector<int>());
}

void NetworkConfigurationWindowTest::removalAsksFirst()
{
    auto* tree = find<QTreeWidget>("availableComputers");
    tree->setCurrentItem(tree->topLevelItem(0)->child(0));
    QVERIFY(!find<QPushButton>("removeComputerButton")->isEnabled()); // the service's own
    prompts->expect({QStringLiteral("Grupa"), QMessageBox::Yes, false, {}, QStringLiteral("Biuro")});
    click("arrowDownButton");
    QCOMPARE(takeMessages(), QStringList(QStringLiteral("Uwaga!|Wybrana grupa zawiera już ten komputer")));
    tree->setCurrentItem(tree->topLevelItem(0)->child(1));
    prompts->expect({QStringLiteral("Uwaga!"), QMessageBox::Yes, false, {}});
    click("removeComputerButton");
    QVERIFY(service->waitForRequest("remove_computer"));
    QCOMPARE(window->model().group(1)->computers, QVector<int>{0});
    // Neither tree has a selected row now, but the events still stand and can be edited.
    find<QTreeWidget>("eventsTree")->setCurrentItem(find<QTreeWidget>("eventsTree")->topLevelItem(0));
    click("editEventButton");
    click("saveEventButton");
    QCOMPARE(window->model().events().constFirst().parentId, 0);
}

void NetworkConfigurationWindowTest::foundComputersAreAdopted()
{
    const auto adopt = [this](ComputerConfigurationWindow& dialog) {
        typeInto(dialog, "computerNameEdit", QStringLiteral("C"));
        typeInto(dialog, "passwordEdit", secret);
        dialog.okButtonClickHandler();
        QVERIFY(service->waitForRequest("get_netclient_pass"));
        window->addDiscoveredComputer(QStringLiteral("198.51.100.8")); // disturbs nothing
        service->send("<netclient_password>" + makeMd5(secret).toUtf8() + "</netclient_password>");
        QTRY_VERIFY(dialog.isHidden());
    };
    const auto discover = [&](DiscoverWindow& dialog) {
        auto* unknown = dialog.findChild<QTreeWidget*>(QStringLiteral("unmanagedComputersTree"));
        for (const char* ip : {"198.51.100.7", "198.51.100.7", "192.0.2.1"})
            window->addDiscoveredComputer(QLatin1String(ip));
        QCOMPARE(unknown->topLevelItemCount(), 1);
        unknown->setCurrentItem(unknown->topLevelItem(0));
        QVERIFY(driveModal<ComputerConfigurationWindow>([&] { dialog.addButtonClickHandler(); }, adopt));
        pressOk(dialog);
    };
    QVERIFY(driveModal<DiscoverWindow>([this] { click("discoverButton"); }, discover));
    QCOMPARE(window->model().computers().constLast().id, 2);
    QCOMPARE(window->model().computers().constLast().address, QStringLiteral("198.51.100.7"));
    QCOMPARE(window->model().group(1)->computers.size(), 2);
}

QTEST_MAIN(NetworkConfigurationWindowTest)
#include "NetworkConfigurationWindowTest.moc"
