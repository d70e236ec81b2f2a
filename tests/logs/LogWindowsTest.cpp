// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "logs/LoggingConfigurationWindow.h"
#include "logs/UpsLogsWindow.h"
#include "monitor/ServiceRun.h"
#include "support/ModalDriver.h"

#include <QAbstractItemModelTester>
#include <QCheckBox>
#include <QProcess>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTableView>

using namespace Velmora::Tests;

namespace {

QPushButton* button(const QWidget& window, const char* name)
{
    return window.findChild<QPushButton*>(QLatin1String(name));
}

template <typename Dialog, typename Act>
[[nodiscard]] bool drive(const QWidget& window, const char* opener, Act act)
{
    return driveModal<Dialog>([&] { button(window, opener)->click(); }, act);
}

constexpr char configure[] = "loggingConfigurationButton";

} // namespace

class LogWindowsTest final : public QObject
{
    Q_OBJECT

private slots:
    void logsAreSetAndReadBackAndForth();
};

void LogWindowsTest::logsAreSetAndReadBackAndForth()
{
    WindowFixture panel;
    QProcess service;
    QVERIFY(startService(service, {QStringLiteral("--speed=50")}));
    // Three phases and power compensation; all three logs are written every 15 seconds.
    const QString name = QStringLiteral("Production hall");
    QVERIFY(openOnService(panel, name));
    QCOMPARE(logIn(panel), QStringList());
    panel.tree()->setCurrentItem(panel.row(name));
    QTRY_VERIFY(panel.row(name)->ups.power_compensation);
    QVERIFY(
        drive<LoggingConfigurationWindow>(*panel.window, configure, [](LoggingConfigurationWindow& dialog) {
            dialog.findChild<QSpinBox*>(QStringLiteral("intervalSpinBox"))->setValue(7);
            dialog.findChild<QCheckBox*>(QStringLiteral("messagesCheckBox"))->setChecked(false);
            pressOk(dialog);
        }));
    QTRY_VERIFY(panel.row(name)->ups.log_params == u'5' && panel.row(name)->ups.power_compensation);

    QTime newest;
    const auto read = [&](UpsLogsWindow& log) {
        const auto* table = log.findChild<QTableView*>();
        const auto time = [table](int row) {
            return QTime::fromString(table->model()->index(row, 1).data().toString());
        };
        QTRY_VERIFY(time(99).isValid());
        // The newest page comes again and again, until it ends in lines of the new interval.
        QTRY_VERIFY((button(log, "nextLog")->click(), true) && time(98).secsTo(time(99)) == 7);
        newest = time(99);
        button(log, "prevLog")->click();
        QTRY_VERIFY(time(99) < newest);
        // Any page may come late or broken, and administrator mode may end.
        log.setLogs({QStringLiteral("2026-03-01,12:00:05,27")});
        log.setLogs({QStringLiteral("a;d_plus_L1;b_L2;c_L3;e_L1"), QStringLiteral("1;2;3;4;5;6"), QString()});
        const QAbstractItemModelTester tester(table->model());
        QVERIFY(!table->model()->index(1, 2).data().isValid());
        log.setLogs({});
        QVERIFY(!table->model());
        panel.window->disableAdministratorButtons();
        QVERIFY(button(log, "nextLog")->isEnabled());
        log.close();
    };
    QVERIFY(drive<LoggingConfigurationWindow>(*panel.window, configure, [&](const QDialog& dialog) {
        QVERIFY(!button(dialog, "showEventsButton")->isEnabled());
        QVERIFY(drive<UpsLogsWindow>(dialog, "showDataButton", read));
        QVERIFY(!button(dialog, "showCompensationButton")->isEnabled());
        const auto* box = dialog.findChild<QDialogButtonBox*>();
        QVERIFY(!box->button(QDialogButtonBox::Ok)->isEnabled());
        QVERIFY(box->button(QDialogButtonBox::Cancel)->isEnabled());
    }));
    // The place in the log was given up: what is older than nothing is the newest page.
    QSignalSpy pages(panel.link(), &Velmora::UpsSocketController::upsLogs);
    panel.link()->getUpsLogs({{QStringLiteral("age"), QStringLiteral("older")},
                              {QStringLiteral("type"), QStringLiteral("parameters")}});
    QVERIFY(pages.wait());
    QVERIFY(QTime::fromString(pages.first().first().toStringList().last().section(u';', 1, 1)) >= newest);
    QVERIFY(stopService(service));
}

QTEST_MAIN(LogWindowsTest)
#include "LogWindowsTest.moc"
