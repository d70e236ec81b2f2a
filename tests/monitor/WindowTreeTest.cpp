// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "app/ControlPanelConfiguration.h"
#include "monitor/WindowFixture.h"

#include <QLabel>
#include <QMenu>
#include <QPointer>
#include <QTest>

using namespace Velmora::Tests;

namespace {

const QString kept = QStringLiteral("B");

QByteArray twoDevices()
{
    return deviceList({device(1, "TarvexRT_USB", "A"), device(2, "CormelRT_XL_SNMP", "B")});
}

/// The requests without those of the fixture, with the id that they carry.
QStringList requests(const ScriptedService& service)
{
    QStringList names;
    for (const Request& request : service.requests()) {
        const int id = request.xml.indexOf("<id>");
        QString name = QString::fromLatin1(request.name);
        if (id >= 0)
            name += QLatin1Char(' ') +
                    QString::fromLatin1(request.xml.mid(id + 4, request.xml.indexOf("</id>") - id - 4));
        if (request.name != "settle")
            names.append(name);
    }
    return names;
}

} // namespace

class WindowTreeTest final : public QObject
{
    Q_OBJECT

private slots:
    void rebuild_data();
    void rebuild();
    void emptyListPromptsOncePerRun_data();
    void emptyListPromptsOncePerRun();
    void statusListPaintsRowsWithoutTellingTheService();
    void deletion_data();
    void deletion();
    void contextMenu_data();
    void contextMenu();
};

void WindowTreeTest::rebuild_data()
{
    QTest::addColumn<QByteArray>("first");
    QTest::addColumn<QString>("selected");
    QTest::addColumn<QByteArray>("second");
    QTest::addColumn<QString>("sent");
    QTest::addColumn<QString>("selectedAfter");
    const QByteArray unit = device(2, "CormelRT_XL_SNMP", "B");
    const QByteArray unknown = device(7, "Nothing_USB");

    QTest::newRow("the same list keeps the selection and tells it once")
        << twoDevices() << "B" << twoDevices() << "change_device_on_interface 2"
        << "B";
    QTest::newRow("the first device follows one that is gone")
        << twoDevices() << "B" << deviceList({device(5, "TarvexRT_USB", "E")})
        << "change_device_on_interface 5"
        << "E";
    QTest::newRow("a unit is found below its virtual device")
        << twoDevices() << "B" << deviceList({device(9, "Virtual_Device", "V", {2}), unit})
        << "change_device_on_interface 2"
        << "B";
    QTest::newRow("a later virtual device of the same id wins over the unit and both are told")
        << twoDevices() << "B"
        << deviceList({device(9, "Virtual_Device", "V", {2}), unit, device(2, "Virtual_Device", "W")})
        << "change_device_on_interface 2|change_device_on_interface 2"
        << "W";
    QTest::newRow("a row of unknown model is told as device 0")
        << deviceList({device(1, "TarvexRT_USB", "A"), unknown}) << "<NIEZNANY>"
        << deviceList({device(1, "TarvexRT_USB", "A"), unknown}) << "change_device_on_interface 0"
        << "<NIEZNANY>";
    QTest::newRow("an empty list tells nothing") << twoDevices() << "B" << deviceList({}) << ""
                                                 << "";
}

void WindowTreeTest::rebuild()
{
    QFETCH(QByteArray, first);
    QFETCH(QString, selected);
    QFETCH(QByteArray, second);
    QFETCH(QString, sent);
    QFETCH(QString, selectedAfter);
    WindowFixture panel;
    QVERIFY(panel.open(first));
    QCOMPARE(panel.service.requestCount("change_device_on_interface"), 1);
    UpsTreeElement* row = panel.row(selected);
    QVERIFY(row);
    panel.tree()->setCurrentItem(row);
    QVERIFY(panel.settle());

    panel.service.clearRequests();
    QVERIFY(panel.send(second));

    const QStringList expected = (sent.isEmpty() ? QStringList() : sent.split(QLatin1Char('|')))
                                 << QStringLiteral("get_ups_current_status_list");
    QCOMPARE(requests(panel.service), expected);
    const UpsTreeElement* current = panel.tree()->currentElement();
    QCOMPARE(current ? current->text(0) : QString(), selectedAfter);
    QCOMPARE(panel.shown("modelNameEdit").isEmpty(), !current || current->modelFullName.isEmpty());
    QCOMPARE(panel.find<QLabel>("upsModel")->pixmap(Qt::ReturnByValue).isNull(),
             !current || current->ups.id.isEmpty());
}

void WindowTreeTest::emptyListPromptsOncePerRun_data()
{
    QTest::addColumn<bool>("silenced");
    QTest::addColumn<bool>("checked");
    QTest::newRow("the prompt comes back with the next run") << false << false;
    QTest::newRow("the checked box is stored although the answer is no") << false << true;
    QTest::newRow("a stored choice keeps the prompt away") << true << false;
}

void WindowTreeTest::emptyListPromptsOncePerRun()
{
    QFETCH(bool, silenced);
    QFETCH(bool, checked);
    WindowFixture panel;
    if (silenced)
        ControlPanelConfiguration().setDontShowAddUpsPrompt(true);
    else
        panel.prompts.expect({QStringLiteral("Brak zasilaczy UPS"), QMessageBox::No, checked, {}});

    QVERIFY(panel.open(deviceList({})));
    QTRY_VERIFY(panel.prompts.allAsked());
    QVERIFY(panel.send(twoDevices()));
    QVERIFY(panel.send(deviceList({})));

    QCOMPARE(panel.prompts.asked().size(), silenced ? 0 : 1);
    QCOMPARE(ControlPanelConfiguration().getDontShowAddUpsPrompt(), silenced || checked);
}

void WindowTreeTest::statusListPaintsRowsWithoutTellingTheService()
{
    WindowFixture panel;
    QVERIFY(panel.open(deviceList({device(8, "Virtual_Device", "V", {1}),
                                   device(9, "Virtual_Device", "W", {1}), device(1, "Tarvex33_SNMP", "A"),
                                   device(2, "CormelRT_XL_SNMP", "B"), device(7, "Nothing_USB")})));
    // The selected unit stands in two groups, and painting the other row of it must not move the selection.
    UpsTreeElement* selected = panel.row(QStringLiteral("A"));
    panel.tree()->setCurrentItem(selected);
    QVERIFY(panel.settle());
    panel.service.clearRequests();

    // 0 is what the empty id of a row of unknown model reads as, and no device has the id 55.
    QVERIFY(panel.send(
        statusList({{1, "on_power_line*"}, {2, "on_battery"}, {0, "on_battery"}, {55, "unknown"}})));
    QVERIFY(panel.rowShows(panel.row(QStringLiteral("<NIEZNANY>")), "unknown"));
    QVERIFY(panel.rowShows(selected, "green_m"));
    QVERIFY(panel.rowShows(panel.row(kept), "yellow"));
    QVERIFY(panel.rowShows(panel.row(QStringLiteral("V")), "grey"));

    QVERIFY(panel.send(statusList({{1, "no_communication"}})));
    QVERIFY(panel.rowShows(selected, "red"));
    QVERIFY2(panel.rowShows(panel.row(kept), "yellow"), "a device that is not listed keeps its picture");
    QCOMPARE(panel.tree()->currentElement(), selected);
    QCOMPARE(requests(panel.service), QStringList());
}

void WindowTreeTest::deletion_data()
{
    QTest::addColumn<bool>("confirmed");
    QTest::addColumn<QByteArray>("listMeanwhile");
    QTest::addColumn<QStringList>("sent");
    const QStringList removal{QStringLiteral("remove_ups 2"), QStringLiteral("get_available_ports")};
    QTest::newRow("yes removes the device and asks for its port") << true << QByteArray() << removal;
    QTest::newRow("no sends nothing") << false << QByteArray() << QStringList();
    QTest::newRow("the tree built anew meanwhile") << true << twoDevices() << removal;
    QTest::newRow("another device stands in its place meanwhile")
        << true << deviceList({device(5, "TarvexRT_USB", "E")}) << removal;
    QTest::newRow("the last row goes meanwhile") << true << deviceList({}) << removal;
}

void WindowTreeTest::deletion()
{
    QFETCH(bool, confirmed);
    QFETCH(QByteArray, listMeanwhile);
    QFETCH(QStringList, sent);
    WindowFixture panel;
    QVERIFY(panel.open(twoDevices()));
    panel.tree()->setCurrentItem(panel.row(kept));
    panel.prompts.expect(
        {QStringLiteral("Usuwanie UPS"), confirmed ? QMessageBox::Yes : QMessageBox::No, false, [&] {
             if (!listMeanwhile.isEmpty())
                 QVERIFY(panel.send(listMeanwhile));
             QVERIFY(panel.settle());
             panel.service.clearRequests();
         }});
    panel.tree()->deleteActionTriggeredSlot();
    QVERIFY(panel.prompts.allAsked());
    QVERIFY(panel.settle());
    QCOMPARE(requests(panel.service), sent);
}

void WindowTreeTest::contextMenu_data()
{
    QTest::addColumn<bool>("administrator");
    QTest::addColumn<bool>("onRow");
    QTest::addColumn<QString>("enabled");
    QTest::newRow("a watcher may do nothing") << false << true << "";
    QTest::newRow("an administrator may do everything on a row") << true << true << "Dodaj Edytuj Usuń";
    QTest::newRow("an administrator may add beside the rows") << true << false << "Dodaj";
}

void WindowTreeTest::contextMenu()
{
    QFETCH(bool, administrator);
    QFETCH(bool, onRow);
    QFETCH(QString, enabled);
    WindowFixture panel;
    QVERIFY(panel.open(twoDevices()));
    if (administrator)
        panel.window->enableAdministratorButtons();
    const QRect firstRow = panel.tree()->visualItemRect(panel.row(QStringLiteral("A")));
    panel.tree()->setCurrentItem(panel.row(kept));
    const QPoint beside(firstRow.center().x(), panel.tree()->viewport()->height() - 2);
    emit panel.tree()->customContextMenuRequested(onRow ? firstRow.center() : beside);

    QPointer<QMenu> menu = panel.tree()->findChild<QMenu*>();
    QVERIFY(menu);
    const QList<QAction*> entries = menu->actions();
    QStringList usable;
    for (const QAction* entry : entries) {
        if (entry->isEnabled())
            usable.append(entry->text());
    }
    QCOMPARE(usable.join(QLatin1Char(' ')), enabled);

    // The entries mean the selected row, whatever row was clicked, even if the tree was built anew.
    QVERIFY(panel.send(twoDevices()));
    if (entries.constLast()->isEnabled()) {
        panel.service.clearRequests();
        panel.prompts.expect({QStringLiteral("Usuwanie UPS"), QMessageBox::Yes, false, {}});
        entries.constLast()->trigger();
        QVERIFY(panel.settle());
        QCOMPARE(requests(panel.service).value(0), QStringLiteral("remove_ups 2"));
    }
    menu->close();
    QTRY_VERIFY2(!menu, "a closed menu is freed");
}

QTEST_MAIN(WindowTreeTest)
#include "WindowTreeTest.moc"
