// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "policy/NetworkConfigurationWindow.h"
#include "admin/PasswordChangeWindow.h"
#include "app/ControlPanelConfiguration.h"
#include "link/TextHelpers.h"
#include "link/UpsSocketController.h"
#include "link/XmlWriter.h"
#include "policy/ComputerConfigurationWindow.h"
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

// With what the editor does not show, too.
Event everyAction()
{
    Event event;
    event.state = QStringLiteral("stateNormal");
    event.number = 3;
    event.messageAction = std::make_shared<MessageAction>();
    event.messageAction->message = QStringLiteral("<Zanik> & \"żółw\" 'x'");
    event.sysCommandAction = std::make_shared<SysCommandAction>();
    event.powerOffAction = std::make_shared<PowerOffAction>();
    event.powerOffAction->type = QStringLiteral("suspend");
    event.powerOffAction->delay_time = 60;
    event.sendMailAction = std::make_shared<SendMailAction>();
    event.sendMailAction->charCode = QStringLiteral("UTF-8");
    event.outputSocketAction = std::make_shared<OutputSocketControlAction>();
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
    void lockedDialogStaysLocked();
    void computerIsAddedByItsClientsPassword();
    void changedPasswordAsksToBeSaved();
    void removalAsksFirst();

private:
    template <typename T>
    T* find(const char* name) const
    {
        return window->findChild<T*>(QLatin1String(name));
    }
    void click(const char* button) const { find<QPushButton>(button)->click(); }
    void editFirstEvent() const;
    /// Selects a member of the second group.
    void select(int member) const;
    void sendDigest(const QString& password) const
    {
        service->send("<netclient_password>" + makeMd5(password).toUtf8() + "</netclient_password>");
    }
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
    window->setGroupsFromConfig({{QStringLiteral("Default"), {0}, 0}, {QStringLiteral("Biuro"), {1, 0}, 1}});
    window->setEventsFromConfig({everyAction()});
    window->setAllComputers({{QStringLiteral("A"), QStringLiteral("127.0.0.1"), {}, {}, {}, {}, 0},
                             {QStringLiteral("B&B"), QStringLiteral("192.0.2.1"), {}, {}, {}, {}, 1}});
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

void NetworkConfigurationWindowTest::select(int member) const
{
    auto* tree = find<QTreeWidget>("networkElementsTree");
    tree->setCurrentItem(tree->topLevelItem(1)->child(member));
}

void NetworkConfigurationWindowTest::editFirstEvent() const
{
    auto* tree = find<QTreeWidget>("eventsTree");
    tree->setCurrentItem(tree->topLevelItem(0));
    click("editEventButton");
    click("saveEventButton");
}

void NetworkConfigurationWindowTest::policyIsSentWhole()
{
    // Editing an event without a change leaves even what the editor cannot show.
    editFirstEvent();
    window->accept();
    window->accept();
    QVERIFY(service->waitForRequest("groups"));
    QCOMPARE(service->requestNames(), (QVector<QByteArray>{"all_computers", "events", "groups"}));
    Event expected = everyAction();
    expected.expressionIn = QStringLiteral("stateNormal,ON,==,");
    expected.expressionOut = QStringLiteral("stateNormal,OFF,==,");
    QVector<Event> events{expected};
    QVERIFY(service->requests().at(1).xml.contains(Velmora::Utils::makeXml(&events, QStringLiteral("7"))));
}

void NetworkConfigurationWindowTest::lockedDialogStaysLocked()
{
    click("addEventButton");
    window->setEnabledButtons(false);
    click("cancelEventButton");
    select(0);
    find<QCheckBox>("systemCommandBox")->setChecked(true);
    for (const QPushButton* button : window->findChildren<QPushButton*>())
        QVERIFY2(!button->isEnabled() || button->text() == QLatin1String("Cancel"),
                 qPrintable(button->text()));
    window->accept(); // as a question about it does that was put before
    QVERIFY(window->isVisible());
}

void NetworkConfigurationWindowTest::computerIsAddedByItsClientsPassword()
{
    const auto add = [this](ComputerConfigurationWindow& dialog) {
        typeInto(dialog, "computerAddressEdit", QStringLiteral("192.0.2.9"));
        dialog.findChild<QComboBox*>(QStringLiteral("groupBox"))->setCurrentText(QStringLiteral("Biuro"));
        typeInto(dialog, "passwordEdit", secret.toLower());
        for (int press = 0; press < 2; ++press)
            dialog.okButtonClickHandler();
        QVERIFY(service->waitForRequest("get_netclient_pass"));
        QVERIFY(lastRequest().contains("<netclient_address>192.0.2.9</netclient_address>"));
        sendDigest(secret);
        QCOMPARE(awaitMessages().size(), 1);
        QCOMPARE(window->model().computers().size(), 2);
        typeInto(dialog, "passwordEdit", secret);
        sendDigest(secret); // counts although nobody waits any more
        QTRY_VERIFY(dialog.isHidden());
    };
    QVERIFY(driveModal<ComputerConfigurationWindow>([this] { click("addComputerButton"); }, add));
    QCOMPARE(service->requestCount("get_netclient_pass"), 1);
    QCOMPARE(window->model().computers().constLast().password, secret);
    QCOMPARE(window->model().group(1)->computers, (QVector<int>{1, 0, 2}));
}

void NetworkConfigurationWindowTest::changedPasswordAsksToBeSaved()
{
    select(1);
    const auto change = [this](PasswordChangeWindow& dialog) {
        emit link->passwordChanged(); // somebody else's
        typeInto(dialog, "newPasswordEdit", secret);
        typeInto(dialog, "repeatPasswordEdit", secret);
        pressOk(dialog);
        QVERIFY(service->waitForRequest("get_netclient_pass"));
        sendDigest(QString());
        QVERIFY(service->waitForRequest("change_netclient_password"));
        QVERIFY(lastRequest().contains("<netclient_address>192.0.2.1</netclient_address>\n<password>"));
        service->send("<netclient_password_changed/>");
        QTRY_VERIFY(dialog.isHidden());
    };
    QVERIFY(driveModal<PasswordChangeWindow>([this] { click("changePassButton"); }, change));
    QCOMPARE(awaitMessages().size(), 1);
    QCOMPARE(window->model().getComputerFromList(1)->password, secret);
    click("addEventButton");
    const QString title = QStringLiteral("Hasło dla elementu sieciowego zostało zmienione.");
    prompts->expect({title, QMessageBox::NoButton, false, {}});
    window->reject();
    QVERIFY(window->isVisible() && window->model().isEditing());
    prompts->expect({title, QMessageBox::Yes, false, {}});
    window->reject();
    QVERIFY(service->waitForRequest("events"));
    QCOMPARE(window->model().events().size(), 1); // without the unfinished one
    QVERIFY(window->isHidden());
}

void NetworkConfigurationWindowTest::removalAsksFirst()
{
    auto* tree = find<QTreeWidget>("availableComputers");
    tree->setCurrentItem(tree->topLevelItem(0)->child(0));
    QVERIFY(!find<QPushButton>("removeComputerButton")->isEnabled()); // the service's own
    tree->setCurrentItem(tree->topLevelItem(0)->child(1));
    prompts->expect({QStringLiteral("Uwaga!"), QMessageBox::Yes, false, {}});
    click("removeComputerButton");
    QVERIFY(service->waitForRequest("remove_computer"));
    QCOMPARE(window->model().group(1)->computers, QVector<int>{0});
    // No row is selected now, but the events of the last one still stand and can be edited.
    editFirstEvent();
    QCOMPARE(window->model().events().constFirst().parentId, 0);
}

QTEST_MAIN(NetworkConfigurationWindowTest)
#include "NetworkConfigurationWindowTest.moc"
