// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "admin/ConnectWithServiceWindow.h"
#include "admin/LogiInWindow.h"
#include "admin/PasswordChangeWindow.h"
#include "app/ControlPanelConfiguration.h"
#include "link/TextHelpers.h"
#include "link/UpsSocketController.h"
#include "support/ModalDriver.h"
#include "support/ScriptedPrompts.h"
#include "support/ScriptedService.h"

#include <QDialogButtonBox>
#include <QFile>
#include <QLineEdit>
#include <QSignalSpy>
#include <QToolButton>
#include <QToolTip>

using namespace Velmora::Tests;
using Velmora::UpsSocketController;
using Velmora::Utils::makeMd5;

namespace {

const QString secret = QStringLiteral("Tajne-hasło 1");
const QString newSecret = QStringLiteral("Nowe-hasło 2");
const QString wrongLogin =
    QStringLiteral("Nieprawidłowe hasło|Podane hasło Administratora jest nieprawidłowe");
const QString noService = QStringLiteral("Błąd połączenia|Brak połączenia z usługą");
const QString wrongPassword =
    QStringLiteral("Nieprawidłowe hasło|Wprowadzono nieprawidłowe hasło administratora");
const QString emptyPassword = QStringLiteral("Uwaga|Proszę wprowadzić nowe hasło");
const QString otherRepeat = QStringLiteral("Błąd|Proszę sprawdzić nowe hasło");
const QString changed = QStringLiteral("Zmiana hasła|Hasło zostało zmienione");
const QString noAnswer = QStringLiteral("Brak odpowiedzi|Usługa Velmora jest nieosiągalna");

QStringList& debugOutput()
{
    static QStringList lines;
    return lines;
}

void keepDebugOutput(QtMsgType /*type*/, const QMessageLogContext& /*context*/, const QString& message)
{
    debugOutput().append(message);
}

QByteArray textReply(const char* name, const QString& text)
{
    const QByteArray tag(name);
    return '<' + tag + '>' + text.toUtf8() + "</" + tag + '>';
}

void fill(const PasswordChangeWindow& dialog, const QString& oldPassword, const QString& newPassword,
          const QString& repeated)
{
    typeInto(dialog, "oldPasswordEdit", oldPassword);
    typeInto(dialog, "newPasswordEdit", newPassword);
    typeInto(dialog, "repeatPasswordEdit", repeated);
}

/// The timers that wait for an answer, each as it stands.
QList<QTimer*> waiting(const QDialog& dialog)
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return dialog.findChildren<QTimer*>(QStringLiteral("noResponseTimer"));
}

/// One timer, of five seconds, single-shot and running.
bool waitsOnce(const QDialog& dialog)
{
    const QList<QTimer*> timers = waiting(dialog);
    const QTimer* timer = timers.isEmpty() ? nullptr : timers.constFirst();
    return timers.size() == 1 && timer->interval() == 5000 && timer->isSingleShot() && timer->isActive();
}

} // namespace

/// Login, password change and service address over a real link, on a service that answers as told.
class AdminDialogsTest final : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void init();
    void cleanup();

    void loginComparesTheDigest_data();
    void loginComparesTheDigest();
    void loginWithoutAnAnswerStaysOpenForALateOne();
    void closedDialogsTakeNoAnswer();
    void hintNamesTheDefaultPassword();

    void entriesAreCheckedInOrder_data();
    void entriesAreCheckedInOrder();
    void administratorPasswordChanges();
    void unaskedConfirmationChangesNothing();
    void changeWithoutAnAnswerCanBeRepeated();
    void clientPasswordChanges();

    void addressIsTakenAsItStands_data();
    void addressIsTakenAsItStands();

private:
    void wire(LogiInWindow& dialog);
    void wire(PasswordChangeWindow& dialog);
    /// Waits until both sides have taken in what the other has sent.
    [[nodiscard]] bool settle();
    /// The digest that the next request carries; "?" if none arrives.
    [[nodiscard]] QString carriedDigest();

    QtMessageHandler m_usualHandler = nullptr;
    QByteArray m_ini;
    std::unique_ptr<ScriptedService> service;
    std::unique_ptr<UpsSocketController> link;
};

void AdminDialogsTest::initTestCase()
{
    Q_INIT_RESOURCE(velmora);
    m_usualHandler = qInstallMessageHandler(keepDebugOutput);
    m_ini = qgetenv("VELMORA_CONTROL_PANEL_INI");
}

void AdminDialogsTest::cleanupTestCase()
{
    qInstallMessageHandler(m_usualHandler);
    for (const QString& line : qAsConst(debugOutput())) {
        for (const QString& text : {secret, newSecret, makeMd5(secret), makeMd5(newSecret)})
            QVERIFY2(!line.contains(text), qPrintable(line));
    }
}

void AdminDialogsTest::init()
{
    qputenv("VELMORA_CONTROL_PANEL_INI", m_ini);
    QFile::remove(QFile::decodeName(m_ini));
    service = std::make_unique<ScriptedService>();
    QVERIFY(service->start());
    link = std::make_unique<UpsSocketController>();
    link->setServerAddress(ScriptedService::testAddress());
    link->connectToServer();
    QVERIFY(service->waitForRequest("get_ups_configuration")); // the last one that comes by itself
    link->findChild<QTimer*>(QStringLiteral("pollTimer"))->stop();
    service->clearRequests();
}

void AdminDialogsTest::cleanup()
{
    closeStrayWindows();
    link.reset();
    service.reset();
}

void AdminDialogsTest::wire(LogiInWindow& dialog)
{
    connect(&dialog, &LogiInWindow::getPassword, link.get(), &UpsSocketController::getPassword);
    connect(link.get(), &UpsSocketController::adminPassFromConfig, &dialog, &LogiInWindow::comparePasswords);
    dialog.show();
}

void AdminDialogsTest::wire(PasswordChangeWindow& dialog)
{
    connect(&dialog, &PasswordChangeWindow::getPassword, link.get(), &UpsSocketController::getPassword);
    connect(&dialog, &PasswordChangeWindow::changePassword, link.get(), &UpsSocketController::changePassword);
    connect(link.get(), &UpsSocketController::adminPassFromConfig, &dialog,
            &PasswordChangeWindow::comparePasswords);
    connect(link.get(), &UpsSocketController::passwordChanged, &dialog,
            &PasswordChangeWindow::passwordChanged);
    dialog.show();
}

bool AdminDialogsTest::settle()
{
    // Requests first, since what answers them is on its way when they are in.
    const int seen = service->requestCount("settle");
    link->sendMessage(QStringLiteral("settle"));
    if (!service->waitForRequest("settle", seen + 1))
        return false;
    QSignalSpy answers(link.get(), &UpsSocketController::serviceVersionReceived);
    service->send("<service_version/>");
    return QTest::qWaitFor([&] { return !answers.isEmpty(); });
}

QString AdminDialogsTest::carriedDigest()
{
    if (!settle())
        return QStringLiteral("?");
    const QString xml = QString::fromUtf8(service->requests().constLast().xml);
    return xml.section(QStringLiteral("<pass>"), 1).section(QStringLiteral("</pass>"), 0, 0);
}

void AdminDialogsTest::loginComparesTheDigest_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("digest");
    QTest::addColumn<bool>("loggedIn");

    QTest::newRow("the right password logs in") << secret << makeMd5(secret) << true;
    QTest::newRow("a wrong one does not") << newSecret << makeMd5(secret) << false;
    QTest::newRow("an empty field is compared like any other") << "" << makeMd5(QString()) << true;
    QTest::newRow("a digest in capitals is another one") << secret << makeMd5(secret).toUpper() << false;
    QTest::newRow("a service without a digest lets nobody in") << ""
                                                               << "" << false;
}

void AdminDialogsTest::loginComparesTheDigest()
{
    QFETCH(QString, typed);
    QFETCH(QString, digest);
    QFETCH(bool, loggedIn);
    service->replyTo("get_password", textReply("get_password", digest));
    LogiInWindow dialog(link.get(), nullptr);
    wire(dialog);
    auto* field = dialog.findChild<QLineEdit*>();
    QCOMPARE(dialog.focusWidget(), field);
    QCOMPARE(field->echoMode(), QLineEdit::Password);
    field->setText(typed);

    for (int round = 1; round <= (loggedIn ? 1 : 2); ++round) { // a refusal leaves the way open to ask again
        pressOk(dialog);
        QVERIFY(waitsOnce(dialog));
        waiting(dialog).constFirst()->setInterval(60000);
        pressOk(dialog); // only asks again, and brings a second answer
        QCOMPARE(waiting(dialog).size(), 1);
        QCOMPARE(waiting(dialog).constFirst()->interval(), 60000); // the time goes on
        QVERIFY(settle());
        QCOMPARE(service->requestCount("get_password"), 2 * round);
        QVERIFY(waiting(dialog).isEmpty());
        QCOMPARE(dialog.isVisible(), !loggedIn);
        QCOMPARE(takeMessages(), loggedIn ? QStringList() : QStringList({wrongLogin, wrongLogin}));
        QCOMPARE(carriedDigest(), loggedIn ? digest : QString());
    }
}

void AdminDialogsTest::loginWithoutAnAnswerStaysOpenForALateOne()
{
    LogiInWindow dialog(link.get(), nullptr);
    wire(dialog);
    typeInto(dialog, "passwordEdit", secret);
    pressOk(dialog);
    waiting(dialog).constFirst()->setInterval(1);
    QCOMPARE(awaitMessages(), QStringList(noService));
    QVERIFY(waiting(dialog).isEmpty());
    QVERIFY(dialog.isVisible());

    service->send(textReply("get_password", makeMd5(secret)));
    QVERIFY(settle());
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QCOMPARE(carriedDigest(), makeMd5(secret));
    QCOMPARE(takeMessages(), QStringList());
}

void AdminDialogsTest::closedDialogsTakeNoAnswer()
{
    LogiInWindow login(link.get(), nullptr);
    const QSignalSpy enabled(&login, &LogiInWindow::enableAdminButtons);
    wire(login);
    typeInto(login, "passwordEdit", secret);
    PasswordChangeWindow change(QStringLiteral("A"), link.get(), nullptr);
    wire(change);
    fill(change, secret, newSecret, newSecret);
    for (const QDialog* dialog : std::initializer_list<const QDialog*>{&login, &change}) {
        pressOk(*dialog);
        dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Cancel)->click();
        QVERIFY(waiting(*dialog).isEmpty());
    }
    QVERIFY(service->waitForRequest("get_password", 2));

    // The answer may be read in the same turn of the event loop as the click.
    service->send(textReply("get_password", makeMd5(secret)));
    QVERIFY(settle());
    QCOMPARE(enabled.size(), 0);
    QCOMPARE(carriedDigest(), QString());
    QCOMPARE(service->requestCount("change_password"), 0);
    QCOMPARE(takeMessages(), QStringList());
}

void AdminDialogsTest::hintNamesTheDefaultPassword()
{
    LogiInWindow dialog(link.get(), nullptr);
    dialog.show();
    auto* button = dialog.findChild<QToolButton*>();
    const QString hint = QStringLiteral("Domyślne hasło: \n\"Opiekunsystem\"");
    QCOMPARE(button->toolTip(), hint);
    QCOMPARE(button->focusPolicy(), Qt::NoFocus);
    button->click();
    QVERIFY(QToolTip::isVisible());
    QCOMPARE(QToolTip::text(), hint);
    QToolTip::hideText();
}

void AdminDialogsTest::entriesAreCheckedInOrder_data()
{
    QTest::addColumn<QString>("oldPassword");
    QTest::addColumn<QString>("newPassword");
    QTest::addColumn<QString>("repeated");
    QTest::addColumn<QString>("administrator"); // what is said; empty: the change goes out
    QTest::addColumn<QString>("client");

    QTest::newRow("all in order") << secret << newSecret << newSecret << ""
                                  << "";
    QTest::newRow("a wrong old password comes first") << newSecret << ""
                                                      << "x" << wrongPassword << wrongPassword;
    QTest::newRow("case counts in the old one")
        << secret.toLower() << newSecret << newSecret << wrongPassword << wrongPassword;
    QTest::newRow("only a client may have none") << secret << ""
                                                 << "" << emptyPassword << "";
    QTest::newRow("an empty one before its repetition") << secret << ""
                                                        << "x" << emptyPassword << otherRepeat;
    QTest::newRow("repeated in another case")
        << secret << newSecret << newSecret.toUpper() << otherRepeat << otherRepeat;
}

void AdminDialogsTest::entriesAreCheckedInOrder()
{
    QFETCH(QString, oldPassword);
    QFETCH(QString, newPassword);
    QFETCH(QString, repeated);
    QFETCH(QString, administrator);
    QFETCH(QString, client);
    PasswordChangeWindow dialog(QStringLiteral("A"), link.get(), nullptr);
    dialog.show();
    fill(dialog, oldPassword, newPassword, repeated);
    const QSignalSpy adminChanges(&dialog, &PasswordChangeWindow::changePassword);
    const QSignalSpy clientChanges(&dialog, &PasswordChangeWindow::changeNetclientPassword);

    dialog.comparePasswords(makeMd5(secret));
    QCOMPARE(takeMessages().join(QLatin1Char('+')), administrator);
    QCOMPARE(adminChanges.size(), administrator.isEmpty() ? 1 : 0);
    QCOMPARE(clientChanges.size(), 0);
    dialog.compareNetclientPassword(makeMd5(secret));
    QCOMPARE(takeMessages().join(QLatin1Char('+')), client);
    QCOMPARE(clientChanges.size(), client.isEmpty() ? 1 : 0);
    QCOMPARE(adminChanges.size(), administrator.isEmpty() ? 1 : 0);
    QVERIFY(dialog.isVisible());
}

void AdminDialogsTest::administratorPasswordChanges()
{
    link->setAdminPass(makeMd5(secret));
    PasswordChangeWindow dialog(QStringLiteral("10.0.0.7"), link.get(), nullptr);
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Zmień hasło dla 10.0.0.7"));
    wire(dialog);
    fill(dialog, secret, newSecret, newSecret);
    pressOk(dialog);
    pressOk(dialog);
    QVERIFY(waitsOnce(dialog));
    QVERIFY(service->waitForRequest("get_password", 2));
    service->send(textReply("get_password", makeMd5(secret)));
    QVERIFY(service->waitForRequest("change_password"));
    QCOMPARE(QString::fromUtf8(service->requests().constLast().xml),
             QStringLiteral("<change_password><pass>%1</pass><new_password>%2</new_password>\n"
                            "</change_password>")
                 .arg(makeMd5(secret), newSecret));
    QVERIFY(waiting(dialog).isEmpty());
    QCOMPARE(carriedDigest(), makeMd5(secret));
    QVERIFY(dialog.isVisible());

    // What was sent counts, not what stands in the field meanwhile.
    typeInto(dialog, "newPasswordEdit", QStringLiteral("anything"));
    service->sendTogether({"<admin_password_changed/>", "<admin_password_changed/>"});
    QVERIFY(settle());
    QVERIFY(!dialog.isVisible());
    QCOMPARE(takeMessages(), QStringList(changed));
    QCOMPARE(carriedDigest(), makeMd5(newSecret));
}

void AdminDialogsTest::unaskedConfirmationChangesNothing()
{
    link->setAdminPass(makeMd5(secret));
    PasswordChangeWindow dialog(QStringLiteral("A"), link.get(), nullptr);
    wire(dialog);
    fill(dialog, secret, newSecret, QString());
    service->send("<admin_password_changed/>");
    QVERIFY(settle());
    service->replyTo("get_password", textReply("get_password", makeMd5(secret)));
    pressOk(dialog);
    QCOMPARE(awaitMessages(), QStringList(otherRepeat));
    service->send("<admin_password_changed/>");
    QVERIFY(settle());
    QVERIFY(dialog.isVisible());
    QCOMPARE(takeMessages(), QStringList());
    QCOMPARE(carriedDigest(), makeMd5(secret));
}

void AdminDialogsTest::changeWithoutAnAnswerCanBeRepeated()
{
    PasswordChangeWindow dialog(QStringLiteral("A"), link.get(), nullptr);
    wire(dialog);
    fill(dialog, secret, newSecret, newSecret);
    pressOk(dialog);
    waiting(dialog).constFirst()->setInterval(1);
    QCOMPARE(awaitMessages(), QStringList(noAnswer));
    QVERIFY(waiting(dialog).isEmpty());
    QVERIFY(dialog.isVisible());
    pressOk(dialog);
    QVERIFY(waitsOnce(dialog));
    service->send(textReply("get_password", makeMd5(secret)));
    QVERIFY(service->waitForRequest("change_password"));

    // The change itself may stay without an answer: nothing waits for it, and the user can ask again.
    QVERIFY(waiting(dialog).isEmpty());
    pressOk(dialog);
    service->send(textReply("get_password", makeMd5(secret)));
    QVERIFY(service->waitForRequest("change_password", 2));
}

void AdminDialogsTest::clientPasswordChanges()
{
    link->setAdminPass(makeMd5(secret));
    PasswordChangeWindow dialog(QStringLiteral("A"), link.get(), nullptr);
    connect(link.get(), &UpsSocketController::netclientPass, &dialog,
            &PasswordChangeWindow::compareNetclientPassword);
    connect(link.get(), &UpsSocketController::passwordChanged, &dialog,
            &PasswordChangeWindow::passwordChanged);
    const QSignalSpy asked(&dialog, &PasswordChangeWindow::getPassword);
    const QSignalSpy changes(&dialog, &PasswordChangeWindow::changeNetclientPassword);
    dialog.show();
    fill(dialog, secret, newSecret, newSecret);
    pressOk(dialog);
    QCOMPARE(asked.size(), 1);
    QVERIFY(waitsOnce(dialog));
    service->send(textReply("netclient_password", makeMd5(secret)));
    QVERIFY(settle());
    QVERIFY(waiting(dialog).isEmpty());
    QCOMPARE(changes.size(), 1);
    QCOMPARE(changes.constFirst().constFirst().toString(), newSecret);
    QCOMPARE(dialog.getCurrentPassword(), newSecret);

    service->send("<netclient_password_changed/>");
    QVERIFY(settle());
    QVERIFY(!dialog.isVisible());
    QCOMPARE(takeMessages(), QStringList(changed));
    QCOMPARE(carriedDigest(), makeMd5(secret));
}

void AdminDialogsTest::addressIsTakenAsItStands_data()
{
    QTest::addColumn<QString>("address");
    QTest::addColumn<QByteArray>("below"); // of the ini file; nobody can write below a regular file
    QTest::addColumn<QString>("message");
    const QString blank = QStringLiteral("Uwaga|Należy podać adres IP lub nazwę domenową komputera");
    QTest::newRow("nothing is refused") << "" << QByteArray() << blank;
    QTest::newRow("blanks are refused") << "  \t " << QByteArray() << blank;
    QTest::newRow("anything else is taken, blanks and all")
        << " ups, zasilanie-łódź.example " << QByteArray() << "";
    QTest::newRow("what cannot be kept holds for this run")
        << "127.0.0.1" << QByteArray("/panel.ini")
        << "Uwaga|Nie można zapisać adresu usługi w pliku ustawień.\nZmiana obowiązuje do zakończenia "
           "programu.";
}

void AdminDialogsTest::addressIsTakenAsItStands()
{
    QFETCH(QString, address);
    QFETCH(QByteArray, below);
    QFETCH(QString, message);
    QFile file(QFile::decodeName(m_ini));
    QVERIFY(file.open(QIODevice::WriteOnly));
    qputenv("VELMORA_CONTROL_PANEL_INI", m_ini + below);
    // Deleted before it comes to look a name up.
    const auto idleLink = std::make_unique<UpsSocketController>();
    idleLink->setServerAddress(QStringLiteral("old"));
    ConnectWithServiceWindow dialog(nullptr);
    dialog.setSocketController(idleLink.get());
    QCOMPARE(dialog.findChild<QLineEdit*>()->text(), QStringLiteral("old"));
    typeInto(dialog, "addressEdit", address);
    pressOk(dialog);
    const bool taken = !address.trimmed().isEmpty();
    QCOMPARE(takeMessages().join(QLatin1Char('+')), message);
    QCOMPARE(dialog.result() == QDialog::Accepted, taken);
    QCOMPARE(idleLink->getServerAddress(), taken ? address : QStringLiteral("old"));
    QCOMPARE(ControlPanelConfiguration().getServerAddress(), message.isEmpty() ? address : QString());
    QCOMPARE(bool(idleLink->findChild<QTimer*>(QStringLiteral("reconnectTimer"))), taken);
}

QTEST_MAIN(AdminDialogsTest)
#include "AdminDialogsTest.moc"
