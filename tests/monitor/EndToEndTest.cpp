// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "admin/ConnectWithServiceWindow.h"
#include "admin/PasswordChangeWindow.h"
#include "app/ControlPanelConfiguration.h"
#include "monitor/ExtendInformationWindow.h"
#include "monitor/ServiceRun.h"
#include "monitor/UpsEventsWindow.h"
#include "support/ModalDriver.h"

#include <QFile>
#include <QLabel>
#include <QListView>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

using namespace Velmora::Tests;

namespace {

const QString otherAddress = QStringLiteral("127.0.0.44");
const QString defaultPassword = QStringLiteral("Opiekunsystem");
const QString newPassword = QStringLiteral("Zmienione-hasło");
const QString connected = QStringLiteral("Połączono z usługą:");

constexpr char otherSite[] = R"({ "devices": [
    { "id": 7, "model_name": "Tarvex33_SNMP", "user_defined_name": "Hospital" },
    { "id": 8, "model_name": "LumoPro_USB", "user_defined_name": "Pharmacy" } ] })";

QRegularExpression whole(const char* pattern)
{
    return QRegularExpression(QRegularExpression::anchoredPattern(QString::fromUtf8(pattern)));
}

bool matches(const QString& text, const char* pattern)
{
    return whole(pattern).match(text).hasMatch();
}

/// Captions and values of the extended information.
QStringList values(const QDialog& dialog)
{
    QStringList found;
    for (const QLabel* caption : dialog.findChildren<QLabel*>()) {
        if (const auto* field = qobject_cast<const QLineEdit*>(caption->buddy()))
            found += caption->text() + QLatin1String(": ") + field->text();
    }
    return found;
}

} // namespace

/// The real window against the real service, each as it ships, over the real port.
class EndToEndTest final : public QObject
{
    Q_OBJECT

private slots:
    void everyValueAndTheHistoryCanBeRead();
    void administratorOutlivesTheServiceAndMovesToAnother();

private:
    /// Selects the device and holds what the window and the extended information show against patterns.
    void readAll(const WindowFixture& panel, const char* device,
                 const QVector<QPair<const char*, const char*>>& shown,
                 const QVector<const char*>& information);
};

void EndToEndTest::readAll(const WindowFixture& panel, const char* device,
                           const QVector<QPair<const char*, const char*>>& shown,
                           const QVector<const char*>& information)
{
    QVERIFY(selectDevice(panel, QString::fromLatin1(device)));
    for (const auto& [control, pattern] : shown)
        QVERIFY2(matches(panel.shown(control), pattern), control);
    const auto read = [&information](const ExtendInformationWindow& dialog) {
        const QStringList first = values(dialog);
        for (const char* line : information)
            QVERIFY2(!first.filter(whole(line)).isEmpty(), line);
        QTRY_VERIFY_WITH_TIMEOUT(values(dialog) != first, patience);
    };
    QVERIFY(
        driveModal<ExtendInformationWindow>([&] { panel.find<QPushButton>("exInfoButton")->click(); }, read));
}

void EndToEndTest::everyValueAndTheHistoryCanBeRead()
{
    QProcess service;
    QVERIFY(startService(service));
    WindowFixture panel;
    QVERIFY(openOnService(panel, QStringLiteral("Server room")));
    QStringList rows;
    for (const UpsTreeElement* row : panel.tree()->allElements())
        rows.append(row->parent() ? QLatin1Char('+') + row->text(0) : row->text(0));
    QCOMPARE(rows.join(QLatin1Char('|')),
             QStringLiteral(
                 "Server room|+Server room A|+Server room B|Production hall|Tarvex RT (USB)|"
                 "Office network|Reception|Cash desk|Backup genset|Magazyn Łódź|Quenta (USB)|<NIEZNANY>"));
    QCOMPARE(panel.tree()->currentElement(), panel.row(QStringLiteral("Server room")));
    QTRY_COMPARE(panel.shown("serviceNote"), QStringLiteral("-"));
    QTRY_VERIFY(panel.rowShows(panel.row(QStringLiteral("Server room A")), "green_m"));
    QTRY_VERIFY(panel.rowShows(panel.row(QStringLiteral("Magazyn Łódź")), "red"));

    readAll(panel, "Backup genset", {{"autonomyTimeEdit", "[\\d.]+ l"}, {"upsEventsButton", "-"}},
            {"Napięcie fazowe w sieci elektrycznej: [\\d./]+ V",
             "Częstotliwość w sieci elektrycznej: [\\d.]+ Hz", "Numer seryjny sterownika: 15037421 ",
             "Poziom paliwa: \\d+ %"});
    readAll(panel, "Production hall",
            {{"loadProgressBar_3", "\\d+ % \\[\\d+\\]"}, {"nominalActivePowerEdit", "\\d+ kW"}},
            {"Numer fabryczny UPS: T3V-100442 ", "Napięcie wejściowe: [\\d.]+/[\\d.]+/[\\d.]+ V",
             "Obciążenie: \\d+/\\d+/\\d+ %"});
    const auto readHistory = [](const UpsEventsWindow& dialog) {
        const QAbstractItemModel* lines = dialog.findChild<QListView*>()->model();
        QVERIFY(lines->rowCount() > 0);
        const QString line = lines->index(0, 0).data().toString();
        QVERIFY2(matches(line, "\\d\\d-\\d\\d \\d\\d:\\d\\d:\\d\\d - [^-].+"), qPrintable(line));
    };
    QVERIFY(driveModal<UpsEventsWindow>([&] { panel.find<QPushButton>("upsEventsButton")->click(); },
                                        readHistory));
    QVERIFY(stopService(service));
}

void EndToEndTest::administratorOutlivesTheServiceAndMovesToAnother()
{
    const QTemporaryDir folder;
    const QStringList state{QStringLiteral("--state"), folder.filePath(QStringLiteral("state.json"))};
    QProcess service;
    QVERIFY(startService(service, state));
    WindowFixture panel;
    QVERIFY(openOnService(panel, QStringLiteral("Production hall")));
    QVERIFY(selectDevice(panel, QStringLiteral("Backup genset")));
    const auto trigger = [&panel](const char* action) { panel.find<QAction>(action)->trigger(); };
    const auto isAdministrator = [&panel] { return panel.find<QAction>("actionLogout")->isEnabled(); };
    QCOMPARE(logIn(panel, defaultPassword), QStringList());
    const auto change = [](PasswordChangeWindow& dialog) {
        typeInto(dialog, "oldPasswordEdit", defaultPassword);
        typeInto(dialog, "newPasswordEdit", newPassword);
        typeInto(dialog, "repeatPasswordEdit", newPassword);
        pressOk(dialog);
        QTRY_VERIFY(dialog.isHidden());
    };
    QVERIFY(driveModal<PasswordChangeWindow>([&] { trigger("actionChangePassword"); }, change));
    QCOMPARE(takeMessages(), QStringList(QStringLiteral("Zmiana hasła|Hasło zostało zmienione")));
    QVERIFY(isAdministrator());

    panel.timer("socketErrorTimer")->setInterval(1);
    QVERIFY(stopService(service));
    QTRY_COMPARE(panel.shown("serviceTitle"), QStringLiteral("Błąd połączenia z usługą:"));
    for (const UpsTreeElement* row : panel.tree()->allElements())
        QVERIFY(panel.rowShows(row, "red"));
    QCOMPARE(panel.shown("autonomyTimeEdit"), QString());
    QVERIFY(startService(service, state));
    QTRY_VERIFY(panel.timer("reconnectTimer"));
    panel.timer("reconnectTimer")->setInterval(50);
    QTRY_VERIFY_WITH_TIMEOUT(matches(panel.shown("autonomyTimeEdit"), "[\\d.]+ l"), patience);
    QCOMPARE(panel.shown("serviceTitle"), connected);
    QCOMPARE(panel.tree()->currentElement(), panel.row(QStringLiteral("Backup genset")));
    QTRY_VERIFY(panel.rowShows(panel.row(QStringLiteral("Server room A")), "green_m"));

    QVERIFY(!isAdministrator());
    QCOMPARE(
        logIn(panel, defaultPassword),
        QStringList(QStringLiteral("Nieprawidłowe hasło|Podane hasło Administratora jest nieprawidłowe")));
    QVERIFY(!isAdministrator());
    QCOMPARE(logIn(panel, newPassword), QStringList());
    // The service takes a change from this administrator.
    panel.tree()->setCurrentItem(panel.row(QStringLiteral("Cash desk")));
    panel.prompts.expect({QStringLiteral("Usuwanie UPS"), QMessageBox::Yes, false, {}});
    panel.window->deleteActionHandler(0);
    QTRY_VERIFY_WITH_TIMEOUT(!panel.row(QStringLiteral("Cash desk")), patience);

    QFile scenario(folder.filePath(QStringLiteral("other.json")));
    QVERIFY(scenario.open(QIODevice::WriteOnly) && scenario.write(otherSite) > 0 && scenario.flush());
    QProcess other;
    QVERIFY(startService(other, {QStringLiteral("--listen"), otherAddress, QStringLiteral("--scenario"),
                                 scenario.fileName()}));
    const auto move = [](ConnectWithServiceWindow& dialog) {
        typeInto(dialog, "addressEdit", otherAddress);
        pressOk(dialog);
    };
    QVERIFY(driveModal<ConnectWithServiceWindow>([&] { trigger("actionConnectWithService"); }, move));
    QCOMPARE(panel.shown("serviceTitle"), QStringLiteral("Trwa łączenie z usługą:"));
    QTRY_COMPARE_WITH_TIMEOUT(panel.tree()->allElements().size(), std::size_t(2), patience);
    QVERIFY(selectDevice(panel, QStringLiteral("Hospital")));
    QCOMPARE(panel.shown("serviceTitle"), connected);
    QCOMPARE(panel.shown("serviceAddress"), otherAddress);
    QCOMPARE(panel.shown("modelNameEdit"), QStringLiteral("Tarvex 33 (SNMP)"));
    QCOMPARE(ControlPanelConfiguration().getServerAddress(), otherAddress);
    QVERIFY(stopService(service) && stopService(other));
}

QTEST_MAIN(EndToEndTest)
#include "EndToEndTest.moc"
