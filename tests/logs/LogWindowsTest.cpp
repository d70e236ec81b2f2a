// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "link/TextHelpers.h"
#include "logs/LoggingConfigurationWindow.h"
#include "logs/UpsLogsWindow.h"
#include "monitor/WindowFixture.h"
#include "support/ModalDriver.h"

#include <QAbstractItemModelTester>
#include <QCheckBox>
#include <QProcess>
#include <QSpinBox>
#include <QTableView>

using namespace Velmora::Tests;

class LogWindowsTest final : public QObject
{
    Q_OBJECT

private slots:
    void init() { panel = std::make_unique<WindowFixture>(); }
    void cleanup() { panel.reset(); }
    void whateverComesIsShownAndRightsMayEnd();
    void serviceWritesWhatIsSet();

private:
    /// Calls `act` with the logging configuration.
    template <typename Act>
    [[nodiscard]] bool configure(Act act) const
    {
        return driveModal<LoggingConfigurationWindow>(
            [this] { panel->find<QPushButton>("loggingConfigurationButton")->click(); }, act);
    }
    /// Opens a log from there and calls `act` with its window and table.
    template <typename Act>
    [[nodiscard]] static bool openLog(const QDialog& dialog, const char* button, Act act)
    {
        return driveModal<UpsLogsWindow>(
            [&] { dialog.findChild<QPushButton*>(QLatin1String(button))->click(); },
            [&](UpsLogsWindow& log) { act(log, *log.findChild<QTableView*>()); });
    }
    static void press(const QDialog& dialog, const char* button)
    {
        dialog.findChild<QPushButton*>(QLatin1String(button))->click();
    }

    std::unique_ptr<WindowFixture> panel;
};

void LogWindowsTest::whateverComesIsShownAndRightsMayEnd()
{
    QVERIFY(panel->open(deviceList({device(1, "Tarvex33_SNMP", "A")})));
    panel->window->enableAdministratorButtons();
    const auto look = [&](UpsLogsWindow& log, const QTableView& table) {
        QVERIFY(panel->send("<ups_logs><log_0>2026-03-01,12:00:05,27</log_0></ups_logs>")); // of another log
        QCOMPARE(table.model()->rowCount(), 0);
        QVERIFY(panel->send("<ups_logs><log_0>date;d_plus_L1;d_plus_L2;d_plus_L3;time_L1</log_0>"
                            "<log_1>d;1;2;3;4;5;6</log_1><log_2>d;7</log_2></ups_logs>"));
        const QAbstractItemModelTester tester(table.model(),
                                              QAbstractItemModelTester::FailureReportingMode::QtTest);
        QCOMPARE(table.model()->rowCount(), 2);
        QCOMPARE(table.model()->index(0, 3).data().toString(), QStringLiteral("3"));
        QVERIFY(!table.model()->index(1, 4).data().isValid());
        QVERIFY(panel->send("<ups_logs/>"));
        QVERIFY(!table.model()); // blank
        panel->window->disableAdministratorButtons();
        press(log, "prevLog");
        log.close();
    };
    QVERIFY(configure([&](const LoggingConfigurationWindow& dialog) {
        QVERIFY(openLog(dialog, "showDataButton", look));
        const auto* box = dialog.findChild<QDialogButtonBox*>();
        QVERIFY(!box->button(QDialogButtonBox::Ok)->isEnabled());
        QVERIFY(box->button(QDialogButtonBox::Cancel)->isEnabled());
    }));
    QVERIFY(panel->settle());
    QCOMPARE(panel->service.requestCount("clear_logs_cache"), 1);
    QCOMPARE(panel->service.requestCount("get_ups_logs"), 2);
}

void LogWindowsTest::serviceWritesWhatIsSet()
{
    QProcess service;
    service.start(QStringLiteral(VELMORA_SERVICE_PROGRAM),
                  {QStringLiteral("--listen"), ScriptedService::testAddress(), QStringLiteral("--speed"),
                   QStringLiteral("50"), QStringLiteral("--log-level"), QStringLiteral("error")});
    QVERIFY(service.waitForStarted() && service.waitForReadyRead());
    panel->window = std::make_unique<VelmoraWindow>();
    // Three phases and power compensation; the service logs all three kinds every 15 seconds.
    QTRY_VERIFY(panel->row(QStringLiteral("Production hall")));
    panel->tree()->setCurrentItem(panel->row(QStringLiteral("Production hall")));
    const auto record = [this] { return panel->row(QStringLiteral("Production hall"))->ups; };
    QTRY_VERIFY(record().power_compensation);
    panel->link()->setAdminPass(Velmora::Utils::makeMd5(QStringLiteral("Opiekunsystem")));
    panel->window->enableAdministratorButtons();

    const auto seconds = [](const QTableView& table, int fromEnd) {
        const int row = table.model()->rowCount() - fromEnd;
        const QTime time = QTime::fromString(table.model()->index(row, 1).data().toString());
        return time.isValid() ? time.msecsSinceStartOfDay() / 1000 : -1;
    };
    const auto changeTo = [&](int interval, bool messages) {
        QVERIFY(configure([&](LoggingConfigurationWindow& dialog) {
            dialog.findChild<QSpinBox*>(QStringLiteral("intervalSpinBox"))->setValue(interval);
            dialog.findChild<QCheckBox*>(QStringLiteral("messagesCheckBox"))->setChecked(messages);
            pressOk(dialog);
        }));
        QTRY_COMPARE(record().log_time_interval, QString::number(interval));
        QTRY_VERIFY(record().power_compensation);
    };
    changeTo(7, false);
    QVERIFY(configure([&](const LoggingConfigurationWindow& dialog) {
        QVERIFY(!dialog.findChild<QPushButton*>(QStringLiteral("showEventsButton"))->isEnabled());
        for (const char* button : {"showDataButton", "showCompensationButton"}) {
            QVERIFY(openLog(dialog, button, [&](const UpsLogsWindow& log, const QTableView& table) {
                QTRY_COMPARE(table.model()->rowCount(), 100);
                const int newest = seconds(table, 1);
                press(log, "prevLog");
                QTRY_VERIFY(seconds(table, 1) < newest);
                // Forth to the newest page, which comes again until it ends in lines of the new interval.
                QTRY_VERIFY((press(log, "nextLog"), true) && seconds(table, 1) - seconds(table, 2) == 7);
            }));
        }
    }));
    service.terminate();
    QVERIFY(service.waitForFinished());
}

QTEST_MAIN(LogWindowsTest)
#include "LogWindowsTest.moc"
