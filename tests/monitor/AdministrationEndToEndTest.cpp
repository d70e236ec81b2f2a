// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "admin/ConnectWithServiceWindow.h"
#include "admin/PasswordChangeWindow.h"
#include "app/ControlPanelConfiguration.h"
#include "monitor/ExtendInformationWindow.h"
#include "monitor/ServiceRun.h"
#include "monitor/UpsEventsWindow.h"
#include "support/ModalDriver.h"

#include <QApplication>
#include <QFile>
#include <QLabel>
#include <QListView>
#include <QProcess>
#include <QPushButton>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

using namespace Velmora::Tests;

namespace {

const QString otherAddress = QStringLiteral("127.0.0.44");
const QString defaultPassword = QStringLiteral("Opiekunsystem");
const QString newPassword = QStringLiteral("Zmienione-hasło");

constexpr char otherSite[] = R"({ "devices": [
    { "id": 7, "model_name": "Tarvex33_SNMP", "user_defined_name": "Hospital", "communication": "snmp",
      "ip": "192.0.2.61", "read": "public", "write": "private", "snmp_ver": "v1" },
    { "id": 8, "model_name": "LumoPro_USB", "user_defined_name": "Pharmacy", "communication": "usb" } ] })";

bool matches(const QString& text, const char* pattern)
{
    const QRegularExpression expression(QRegularExpression::anchoredPattern(QString::fromUtf8(pattern)));
    return expression.match(text).hasMatch();
}

/// Captions and values of the extended information.
QMap<QString, QString> values(const QDialog& dialog)
{
    QMap<QString, QString> found;
    for (const QLabel* caption : dialog.findChildren<QLabel*>()) {
        const auto* field = qobject_cast<const QLineEdit*>(caption->buddy());
        if (field)
            found.insert(caption->text(), field->text());
    }
    return found;
}

} // namespace

/// What an administrator does on the first day, with window and services as they ship.
class AdministrationEndToEndTest final : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();
    void everyValueAndTheHistoryCanBeRead();
    void changedPasswordHoldsAcrossRestarts();
    void panelMovesToAnotherService();

private:
    [[nodiscard]] bool openPanel();
    void trigger(const char* action) const { panel->find<QAction>(action)->trigger(); }
    [[nodiscard]] bool isAdministrator() const { return panel->find<QAction>("actionLogout")->isEnabled(); }

    QTemporaryDir m_folder;
    std::unique_ptr<WindowFixture> panel;
};

void AdministrationEndToEndTest::cleanup()
{
    panel.reset();
}

bool AdministrationEndToEndTest::openPanel()
{
    panel = std::make_unique<WindowFixture>();
    return openOnService(*panel, QStringLiteral("Production hall"));
}

void AdministrationEndToEndTest::everyValueAndTheHistoryCanBeRead()
{
    QProcess service;
    QVERIFY(startService(service));
    QVERIFY(openPanel());
    QMap<QString, QString> report;
    connect(panel->link(), &Velmora::UpsSocketController::upsDeviceState, this,
            [&report](const QMap<QString, QString>& parameters) { report = parameters; });
    // What every report holds for the dialog stands in it, and goes on changing.
    const auto readAll = [&](bool genset, const QMap<QString, const char*>& expected) {
        return driveModal<ExtendInformationWindow>(
            [this] { panel->find<QPushButton>("exInfoButton")->click(); },
            [&](const ExtendInformationWindow& dialog) {
                const QMap<QString, QString> first = values(dialog);
                for (auto row = expected.cbegin(); row != expected.cend(); ++row)
                    QVERIFY2(matches(first.value(row.key()), row.value()),
                             qPrintable(QString(row.key() + QLatin1Char(' ') + first.value(row.key()))));
                for (const Velmora::ExInformation& row : Velmora::extendedInformationCatalogue(genset))
                    QVERIFY2(!report.contains(row.key) || first.contains(row.label), qPrintable(row.key));
                QTRY_VERIFY_WITH_TIMEOUT(values(dialog) != first, patience);
            });
    };

    QVERIFY(selectDevice(*panel, QStringLiteral("Production hall")));
    QVERIFY(readAll(false, {{QStringLiteral("Numer fabryczny UPS"), "T3V-100442 "},
                            {QStringLiteral("Napięcie wejściowe"), "[\\d.]+/[\\d.]+/[\\d.]+ V"},
                            {QStringLiteral("Obciążenie"), "\\d+/\\d+/\\d+ %"}}));
    QVERIFY(driveModal<UpsEventsWindow>(
        [this] { panel->find<QPushButton>("upsEventsButton")->click(); },
        [](const UpsEventsWindow& dialog) {
            const QAbstractItemModel* model = dialog.findChild<QListView*>()->model();
            QVERIFY(model->rowCount() > 0);
            for (int row = 0; row < model->rowCount(); ++row) {
                const QString line = model->index(row, 0).data().toString();
                QVERIFY2(matches(line, "\\d\\d-\\d\\d \\d\\d:\\d\\d:\\d\\d - [^-].+"), qPrintable(line));
            }
        }));

    QVERIFY(selectDevice(*panel, QStringLiteral("Backup genset")));
    QVERIFY(readAll(true, {{QStringLiteral("Napięcie fazowe w sieci elektrycznej"), "[\\d./]+ V"},
                           {QStringLiteral("Numer seryjny sterownika"), "15037421 "},
                           {QStringLiteral("Poziom paliwa"), "\\d+ %"}}));
    QCOMPARE(panel->shown("upsEventsButton"), QStringLiteral("-")); // only three-phase devices keep a history
    QVERIFY(stopService(service));
}

void AdministrationEndToEndTest::changedPasswordHoldsAcrossRestarts()
{
    const QStringList state{QStringLiteral("--state"), m_folder.filePath(QStringLiteral("state.json"))};
    {
        QProcess service;
        QVERIFY(startService(service, state));
        QVERIFY(openPanel());
        QCOMPARE(logIn(*panel, defaultPassword), QStringList());
        QVERIFY(isAdministrator());
        QVERIFY(driveModal<PasswordChangeWindow>([this] { trigger("actionChangePassword"); },
                                                 [](PasswordChangeWindow& dialog) {
                                                     typeInto(dialog, "oldPasswordEdit", defaultPassword);
                                                     typeInto(dialog, "newPasswordEdit", newPassword);
                                                     typeInto(dialog, "repeatPasswordEdit", newPassword);
                                                     pressOk(dialog);
                                                     QTRY_VERIFY(dialog.isHidden());
                                                 }));
        QCOMPARE(takeMessages(), QStringList(QStringLiteral("Zmiana hasła|Hasło zostało zmienione")));
        panel.reset();
        QVERIFY(stopService(service));
    }
    QProcess service;
    QVERIFY(startService(service, state));
    QVERIFY(openPanel());
    QVERIFY(!isAdministrator());
    QCOMPARE(
        logIn(*panel, defaultPassword),
        QStringList(QStringLiteral("Nieprawidłowe hasło|Podane hasło Administratora jest nieprawidłowe")));
    QVERIFY(!isAdministrator());
    QCOMPARE(logIn(*panel, newPassword), QStringList());
    QVERIFY(isAdministrator());
    // The service takes a change from this administrator.
    panel->tree()->setCurrentItem(panel->row(QStringLiteral("Cash desk")));
    panel->prompts.expect({QStringLiteral("Usuwanie UPS"), QMessageBox::Yes, false, {}});
    panel->window->deleteActionHandler(0);
    QTRY_VERIFY_WITH_TIMEOUT(!panel->row(QStringLiteral("Cash desk")), patience);
    QVERIFY(stopService(service));
}

void AdministrationEndToEndTest::panelMovesToAnotherService()
{
    QFile scenario(m_folder.filePath(QStringLiteral("other.json")));
    QVERIFY(scenario.open(QIODevice::WriteOnly) && scenario.write(otherSite) > 0 && scenario.flush());
    QProcess first;
    QProcess second;
    QVERIFY(startService(first));
    QVERIFY(startService(second, {QStringLiteral("--listen"), otherAddress, QStringLiteral("--scenario"),
                                  scenario.fileName()}));
    QVERIFY(openPanel());
    QTRY_COMPARE_WITH_TIMEOUT(panel->shown("serviceTitle"), QStringLiteral("Połączono z usługą:"), patience);

    QVERIFY(driveModal<ConnectWithServiceWindow>([this] { trigger("actionConnectWithService"); },
                                                 [](ConnectWithServiceWindow& dialog) {
                                                     typeInto(dialog, "addressEdit", otherAddress);
                                                     pressOk(dialog);
                                                 }));
    QCOMPARE(panel->shown("serviceTitle"), QStringLiteral("Trwa łączenie z usługą:"));
    QTRY_COMPARE_WITH_TIMEOUT(panel->tree()->allElements().size(), std::size_t(2), patience);
    QVERIFY(selectDevice(*panel, QStringLiteral("Hospital")));
    QCOMPARE(panel->shown("serviceTitle"), QStringLiteral("Połączono z usługą:"));
    QCOMPARE(panel->shown("serviceAddress"), otherAddress);
    QCOMPARE(panel->shown("modelNameEdit"), QStringLiteral("Tarvex 33 (SNMP)"));
    QVERIFY(matches(panel->shown("loadProgressBar_3"), "\\d+ % \\[\\d+\\]"));
    QCOMPARE(ControlPanelConfiguration().getServerAddress(), otherAddress);
    QVERIFY(stopService(first) && stopService(second));
}

QTEST_MAIN(AdministrationEndToEndTest)
#include "AdministrationEndToEndTest.moc"
