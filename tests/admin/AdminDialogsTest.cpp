// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "admin/ConnectWithServiceWindow.h"
#include "admin/LogiInWindow.h"
#include "admin/PasswordChangeWindow.h"
#include "link/TextHelpers.h"
#include "link/UpsSocketController.h"
#include "monitor/WindowFixture.h"
#include "support/ModalDriver.h"

#include <QFile>
#include <QScopeGuard>
#include <QSignalSpy>
#include <QToolButton>
#include <QToolTip>

#include <unistd.h>

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

QString& debugOutput()
{
    static QString lines;
    return lines;
}

QByteArray passwordReply(const QString& digest)
{
    return "<get_password>" + digest.toUtf8() + "</get_password>";
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
    void initTestCase()
    {
        qInstallMessageHandler([](auto /*type*/, auto& /*context*/, auto& line) { debugOutput() += line; });
    }
    void cleanupTestCase()
    {
        qInstallMessageHandler(nullptr);
        for (const QString& text : {secret, newSecret, makeMd5(secret), makeMd5(newSecret)})
            QVERIFY2(!debugOutput().contains(text), qPrintable(debugOutput()));
    }
    void init()
    {
        panel = std::make_unique<WindowFixture>();
        QVERIFY(panel->open(deviceList({device(1, "TarvexRT_USB", "A")})));
        panel->service.clearRequests();
    }
    void cleanup() { panel.reset(); }

    void loginComparesTheDigest_data();
    void loginComparesTheDigest();
    void loginWithoutAnAnswerStaysOpenForALateOne();
    void closedDialogsTakeNoAnswer();
    void entriesAreCheckedInOrder_data();
    void entriesAreCheckedInOrder();
    void administratorPasswordChanges();
    void addressIsTakenAsItStands();

private:
    template <typename Dialog>
    void wire(Dialog& dialog)
    {
        using Link = UpsSocketController;
        connect(&dialog, &Dialog::getPassword, panel->link(), &Link::getPassword);
        connect(panel->link(), &Link::adminPassFromConfig, &dialog, &Dialog::comparePasswords);
        if constexpr (std::is_same_v<Dialog, PasswordChangeWindow>) {
            connect(&dialog, &Dialog::changePassword, panel->link(), &Link::changePassword);
            connect(panel->link(), &Link::passwordChanged, &dialog, &Dialog::passwordChanged);
        }
        dialog.show();
    }
    /// The digest that the next request carries; "?" if none arrives.
    [[nodiscard]] QString carriedDigest();

    std::unique_ptr<WindowFixture> panel;
};

QString AdminDialogsTest::carriedDigest()
{
    if (!panel->settle())
        return QStringLiteral("?");
    const QString xml = QString::fromUtf8(panel->service.requests().constLast().xml);
    return xml.section(QStringLiteral("<pass>"), 1).section(QStringLiteral("</pass>"), 0, 0);
}

void AdminDialogsTest::loginComparesTheDigest_data()
{
    QTest::addColumn<QString>("digest"); // of the service, empty if it has none
    QTest::addColumn<QString>("typed");
    QTest::addColumn<bool>("loggedIn");
    QTest::newRow("the right password logs in") << makeMd5(secret) << secret << true;
    QTest::newRow("a wrong one does not") << makeMd5(secret) << newSecret << false;
    QTest::newRow("an empty field is compared like any other") << makeMd5(QString()) << QString() << true;
    QTest::newRow("a digest in capitals is another one") << makeMd5(secret).toUpper() << secret << false;
    QTest::newRow("a service without a digest lets nobody in") << QString() << QString() << false;
}

void AdminDialogsTest::loginComparesTheDigest()
{
    QFETCH(QString, digest);
    QFETCH(QString, typed);
    QFETCH(bool, loggedIn);
    panel->service.replyTo("get_password", passwordReply(digest));
    LogiInWindow dialog(panel->link(), nullptr);
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
        QVERIFY(panel->service.waitForRequest("get_password", 2 * round) && panel->settle());
        QVERIFY(waiting(dialog).isEmpty());
        QCOMPARE(dialog.isVisible(), !loggedIn);
        QCOMPARE(takeMessages(), loggedIn ? QStringList() : QStringList({wrongLogin, wrongLogin}));
        QCOMPARE(carriedDigest(), loggedIn ? digest : QString());
    }
}

void AdminDialogsTest::loginWithoutAnAnswerStaysOpenForALateOne()
{
    LogiInWindow dialog(panel->link(), nullptr);
    wire(dialog);
    typeInto(dialog, "passwordEdit", secret);
    pressOk(dialog);
    waiting(dialog).constFirst()->setInterval(1);
    QCOMPARE(awaitMessages(), QStringList(noService));
    QVERIFY(waiting(dialog).isEmpty());
    QVERIFY(dialog.isVisible());
    dialog.findChild<QToolButton*>()->click();
    QVERIFY(QToolTip::text().contains(QLatin1String("\"Opiekunsystem\"")));
    QToolTip::hideText();

    QVERIFY(panel->send(passwordReply(makeMd5(secret))));
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    QCOMPARE(carriedDigest(), makeMd5(secret));
    QCOMPARE(takeMessages(), QStringList());
}

void AdminDialogsTest::closedDialogsTakeNoAnswer()
{
    LogiInWindow login(panel->link(), nullptr);
    const QSignalSpy enabled(&login, &LogiInWindow::enableAdminButtons);
    wire(login);
    typeInto(login, "passwordEdit", secret);
    PasswordChangeWindow change(QStringLiteral("A"), panel->link(), nullptr);
    wire(change);
    fill(change, secret, newSecret, newSecret);
    for (const QDialog* dialog : std::initializer_list<const QDialog*>{&login, &change}) {
        pressOk(*dialog);
        dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Cancel)->click();
        QVERIFY(waiting(*dialog).isEmpty());
    }
    QVERIFY(panel->service.waitForRequest("get_password", 2));

    // The answer may be read in the same turn of the event loop as the click.
    QVERIFY(panel->send(passwordReply(makeMd5(secret))));
    QCOMPARE(enabled.size(), 0);
    QCOMPARE(carriedDigest(), QString());
    QCOMPARE(panel->service.requestCount("change_password"), 0);
    QCOMPARE(takeMessages(), QStringList());
}

void AdminDialogsTest::entriesAreCheckedInOrder_data()
{
    QTest::addColumn<QString>("oldPassword");
    QTest::addColumn<QString>("newPassword");
    QTest::addColumn<QString>("repeated");
    QTest::addColumn<QString>("administrator"); // what is said; empty: the change goes out
    QTest::addColumn<QString>("client");
    const QString none;
    const QString other = QStringLiteral("x");
    QTest::newRow("all in order") << secret << newSecret << newSecret << none << none;
    QTest::newRow("a wrong old password first")
        << newSecret << none << other << wrongPassword << wrongPassword;
    QTest::newRow("only a client may have none") << secret << none << none << emptyPassword << none;
    QTest::newRow("empty before repeated") << secret << none << other << emptyPassword << otherRepeat;
    QTest::newRow("another case") << secret << newSecret << newSecret.toUpper() << otherRepeat << otherRepeat;
}

void AdminDialogsTest::entriesAreCheckedInOrder()
{
    QFETCH(QString, oldPassword);
    QFETCH(QString, newPassword);
    QFETCH(QString, repeated);
    QFETCH(QString, administrator);
    QFETCH(QString, client);
    PasswordChangeWindow dialog(QStringLiteral("A"), panel->link(), nullptr);
    dialog.show();
    fill(dialog, oldPassword, newPassword, repeated);
    const QSignalSpy adminChanges(&dialog, &PasswordChangeWindow::changePassword);
    const QSignalSpy clientChanges(&dialog, &PasswordChangeWindow::changeNetclientPassword);

    dialog.comparePasswords(makeMd5(secret));
    QCOMPARE(takeMessages().join(QLatin1Char('+')), administrator);
    QCOMPARE(adminChanges.size(), administrator.isEmpty() ? 1 : 0);
    QCOMPARE(clientChanges.size(), 0);
    pressOk(dialog);
    dialog.compareNetclientPassword(makeMd5(secret));
    QVERIFY(waiting(dialog).isEmpty());
    QCOMPARE(takeMessages().join(QLatin1Char('+')), client);
    QCOMPARE(clientChanges.size(), client.isEmpty() ? 1 : 0);
    QCOMPARE(adminChanges.size(), administrator.isEmpty() ? 1 : 0);
    QVERIFY(dialog.isVisible());
    if (!client.isEmpty())
        return;
    // A client's password is none of the administrator's.
    dialog.passwordChanged();
    QVERIFY(!dialog.isVisible());
    QCOMPARE(takeMessages(), QStringList(changed));
    QCOMPARE(carriedDigest(), QString());
}

void AdminDialogsTest::administratorPasswordChanges()
{
    panel->link()->setAdminPass(makeMd5(secret));
    PasswordChangeWindow dialog(QStringLiteral("10.0.0.7"), panel->link(), nullptr);
    QCOMPARE(dialog.windowTitle(), QStringLiteral("Zmień hasło dla 10.0.0.7"));
    wire(dialog);
    fill(dialog, secret, newSecret, QString());
    const auto answer = [this] { panel->service.send(passwordReply(makeMd5(secret))); };
    const auto confirm = [this] {
        panel->service.sendTogether({"<admin_password_changed/>", "<admin_password_changed/>"});
        return panel->settle();
    };
    // What nobody asked for changes nothing, neither before the request nor behind a refusal.
    QVERIFY(confirm());
    pressOk(dialog);
    answer();
    QCOMPARE(awaitMessages(), QStringList(otherRepeat));
    QVERIFY(confirm());
    QVERIFY(dialog.isVisible());
    QCOMPARE(takeMessages(), QStringList());
    QCOMPARE(carriedDigest(), makeMd5(secret));

    fill(dialog, secret, newSecret, newSecret);
    pressOk(dialog);
    waiting(dialog).constFirst()->setInterval(1);
    QCOMPARE(awaitMessages(), QStringList(noAnswer));
    QVERIFY(waiting(dialog).isEmpty());
    // The change itself may stay without an answer too: the user can ask again.
    for (int round = 1; round <= 2; ++round) {
        pressOk(dialog);
        pressOk(dialog);
        QVERIFY(waitsOnce(dialog));
        answer();
        QVERIFY(panel->service.waitForRequest("change_password", round));
        QVERIFY(waiting(dialog).isEmpty());
    }
    QCOMPARE(QString::fromUtf8(panel->service.requests().constLast().xml),
             QStringLiteral("<change_password><pass>%1</pass><new_password>%2</new_password>\n"
                            "</change_password>")
                 .arg(makeMd5(secret), newSecret));
    QCOMPARE(carriedDigest(), makeMd5(secret));
    QVERIFY(dialog.isVisible());

    // What was sent counts, not what stands in the field meanwhile.
    typeInto(dialog, "newPasswordEdit", QStringLiteral("anything"));
    QVERIFY(confirm());
    QVERIFY(!dialog.isVisible());
    QCOMPARE(takeMessages(), QStringList(changed));
    QCOMPARE(carriedDigest(), makeMd5(newSecret));
}

void AdminDialogsTest::addressIsTakenAsItStands()
{
    // The panel's file is the administrator's, and its user is somebody else.
    QFile::setPermissions(qEnvironmentVariable("VELMORA_CONTROL_PANEL_INI"), QFile::ReadOwner);
    const uid_t user = geteuid();
    QCOMPARE(seteuid(user == 0 ? 65534 : user), 0);
    const auto restore = qScopeGuard([user] { QCOMPARE(seteuid(user), 0); });
    // Deleted before it comes to look a name up.
    const auto idleLink = std::make_unique<UpsSocketController>();
    const QString old = QStringLiteral("old");
    idleLink->setServerAddress(old);
    ConnectWithServiceWindow dialog(nullptr);
    dialog.setSocketController(idleLink.get());
    dialog.show();
    QCOMPARE(dialog.findChild<QLineEdit*>()->text(), old);
    typeInto(dialog, "addressEdit", QStringLiteral("  \t "));
    pressOk(dialog);
    QCOMPARE(takeMessages(),
             QStringList(QStringLiteral("Uwaga|Należy podać adres IP lub nazwę domenową komputera")));
    QVERIFY(dialog.isVisible());
    QCOMPARE(idleLink->getServerAddress(), old);

    // Anything else is taken, blanks and all; what cannot be kept holds for this run.
    const QString address = QStringLiteral(" ups, zasilanie-łódź.example ");
    typeInto(dialog, "addressEdit", address);
    pressOk(dialog);
    QCOMPARE(takeMessages(),
             QStringList(QStringLiteral("Uwaga|Nie można zapisać adresu usługi w pliku ustawień.\nZmiana "
                                        "obowiązuje do zakończenia programu.")));
    QVERIFY(!dialog.isVisible());
    QCOMPARE(idleLink->getServerAddress(), address);
    QVERIFY(idleLink->findChild<QTimer*>(QStringLiteral("reconnectTimer")));
}

QTEST_MAIN(AdminDialogsTest)
#include "AdminDialogsTest.moc"
