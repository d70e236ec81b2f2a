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
    void emptyListPromptsOncePerRun();
    void statusListPaintsRowsWithoutTellingTheService();
    void deletion_data();
    void deletion();
    void contextMenu();
};

void WindowTreeTest::rebuild_data()
{
    QTest::addColumn<QByteArray>("first");
    QTest::addColumn<QByteArray>("second");
    QTest::addColumn<QString>("sent");
    QTest::addColumn<QString>("selectedAfter");
    const QByteArray group = device(9, "Virtual_Device", "V", {2});
    const QByteArray unit = device(2, "CormelRT_XL_SNMP", "B");
    const QByteArray sameId = device(2, "Virtual_Device", "W");
    const QByteArray thirdGroup = device(10, "Virtual_Device", "X", {2});
    const QByteArray unknown = deviceList({device(1, "TarvexRT_USB", "A"), device(7, "Nothing_USB")});
    const QString tells = QStringLiteral("change_device_on_interface ");

    QTest::newRow("the first device follows one that is gone")
        << twoDevices() << deviceList({device(5, "TarvexRT_USB", "E")}) << tells + u'5' << "E";
    QTest::newRow("a later virtual device of the same id wins over the unit, both are told, and that is all")
        << twoDevices() << deviceList({group, unit, sameId, thirdGroup}) << tells + u'2' + u'|' + tells + u'2'
        << "W";
    QTest::newRow("a row of unknown model is told as device 0")
        << unknown << unknown << tells + u'0' << "<NIEZNANY>";
    QTest::newRow("an empty list tells nothing") << twoDevices() << deviceList({}) << ""
                                                 << "";
}

void WindowTreeTest::rebuild()
{
    QFETCH(QByteArray, first);
    QFETCH(QByteArray, second);
    QFETCH(QString, sent);
    QFETCH(QString, selectedAfter);
    WindowFixture panel;
    QVERIFY(panel.open(first));
    QCOMPARE(panel.service.requestCount("change_device_on_interface"), 1);
    QCOMPARE(panel.window->focusWidget(), panel.tree());
    panel.tree()->setCurrentItem(panel.tree()->allElements().back());
    QVERIFY(panel.settle());
    panel.service.clearRequests();
    QVERIFY(panel.send(second));
    const QStringList expected = sent.split(QLatin1Char('|'), Qt::SkipEmptyParts)
                                 << QStringLiteral("get_ups_current_status_list");
    QCOMPARE(requests(panel.service), expected);
    const UpsTreeElement* current = panel.tree()->currentElement();
    QCOMPARE(current ? current->text(0) : QString(), selectedAfter);
    QCOMPARE(panel.shown("modelNameEdit").isEmpty(), !current || current->modelFullName.isEmpty());
    QCOMPARE(panel.find<QLabel>("upsModel")->pixmap(Qt::ReturnByValue).isNull(),
             !current || current->ups.id.isEmpty());
}

void WindowTreeTest::emptyListPromptsOncePerRun()
{
    // What the box is left with is stored although the answer is no, and keeps the prompt away later.
    for (const char* row : {"", "checked", "silenced"}) {
        const bool silenced = qstrcmp(row, "silenced") == 0;
        const bool checked = qstrcmp(row, "checked") == 0;
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
    QVERIFY(
        panel.send(statusList({{1, "genset_on*"}, {2, "on_battery"}, {0, "on_battery"}, {55, "unknown"}})));
    QVERIFY(panel.rowShows(panel.row(QStringLiteral("<NIEZNANY>")), "unknown"));
    QVERIFY(panel.rowShows(selected, "orange_m"));
    QVERIFY(panel.rowShows(panel.row(kept), "yellow"));
    QVERIFY(panel.rowShows(panel.row(QStringLiteral("V")), "grey"));

    QVERIFY(panel.send(statusList({{1, "Unknown"}})));
    QVERIFY(panel.rowShows(selected, "orange"));
    QVERIFY2(panel.rowShows(panel.row(kept), "yellow"), "a device that is not listed keeps its picture");
    QCOMPARE(panel.tree()->currentElement(), selected);
    QCOMPARE(requests(panel.service), QStringList());
}

void WindowTreeTest::deletion_data()
{
    QTest::addColumn<bool>("confirmed");
    QTest::addColumn<QByteArray>("listMeanwhile");
    QTest::newRow("no sends nothing") << false << twoDevices();
    QTest::newRow("another device stands in its place meanwhile")
        << true << deviceList({device(5, "TarvexRT_USB", "E")});
}

void WindowTreeTest::deletion()
{
    QFETCH(bool, confirmed);
    QFETCH(QByteArray, listMeanwhile);
    WindowFixture panel;
    QVERIFY(panel.open(twoDevices()));
    panel.tree()->setCurrentItem(panel.row(kept));
    const auto rebuild = [&] {
        QVERIFY(panel.send(listMeanwhile));
        panel.service.clearRequests();
    };
    panel.prompts.expect(
        {QStringLiteral("Usuwanie UPS"), confirmed ? QMessageBox::Yes : QMessageBox::No, false, rebuild});
    panel.tree()->deleteActionTriggeredSlot();
    QVERIFY(panel.prompts.allAsked());
    QVERIFY(panel.settle());
    const QStringList removal{QStringLiteral("remove_ups 2"), QStringLiteral("get_available_ports")};
    QCOMPARE(requests(panel.service), confirmed ? removal : QStringList());
}

void WindowTreeTest::contextMenu()
{
    WindowFixture panel;
    QVERIFY(panel.open(twoDevices()));
    // A watcher may do nothing, an administrator everything on a row and add beside the rows.
    for (const char* usable : {"", "Dodaj", "Dodaj Edytuj Usuń"}) {
        if (*usable)
            panel.window->enableAdministratorButtons();
        const bool beside = qstrcmp(usable, "Dodaj") == 0;
        panel.tree()->setCurrentItem(panel.row(kept));
        const QPoint first = panel.tree()->visualItemRect(panel.row(QStringLiteral("A"))).center();
        const QPoint below(first.x(), panel.tree()->viewport()->height() - 2);
        emit panel.tree()->customContextMenuRequested(beside ? below : first);
        QPointer<QMenu> menu = panel.tree()->findChild<QMenu*>();
        QVERIFY(menu);
        const QList<QAction*> entries = menu->actions();
        QStringList texts;
        for (const QAction* entry : entries) {
            if (entry->isEnabled())
                texts.append(entry->text());
        }
        QCOMPARE(texts.join(QLatin1Char(' ')), QString::fromUtf8(usable));

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
}

QTEST_MAIN(WindowTreeTest)
#include "WindowTreeTest.moc"
