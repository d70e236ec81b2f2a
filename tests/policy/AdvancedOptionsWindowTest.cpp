// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "policy/AdvancedOptionsWindow.h"

#include "support/ModalDriver.h"
#include "support/ScriptedPrompts.h"

#include <QListWidget>
#include <QTextEdit>

using namespace Velmora::Tests;

namespace {

const QStringList stored{QStringLiteral("Zdarzenie 1"), QStringLiteral("stateNormal,ON,==,"),
                         QStringLiteral("stateNormal,OFF,==,")};
const QString bothGreen = QStringLiteral("true color: green ✓ true color: green ✓");
const QString bothRed = QStringLiteral("false color: red ✗ false color: red ✗");

Velmora::Utils::Ups device(const QString& configName)
{
    Velmora::Utils::Ups ups;
    ups.model_name = configName;
    return ups;
}

template <typename Widget>
Widget* find(const QDialog& dialog, const char* name)
{
    return dialog.findChild<Widget*>(QLatin1String(name));
}

void doubleClick(const QDialog& dialog, const char* name, int row)
{
    auto* list = find<QListWidget>(dialog, name);
    list->scrollToItem(list->item(row));
    const QPoint place = list->visualItemRect(list->item(row)).center();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, place);
}

/// What both conditions are held for, with the colours and the signs that say so.
QString shownAs(const QDialog& dialog)
{
    QStringList shown;
    for (const char* name : {"expressionTextIn", "expressionTextOut"}) {
        const auto* edit = find<QTextEdit>(dialog, name);
        shown << edit->property("valid").toString() << edit->styleSheet()
              << edit->accessibleDescription().left(1);
    }
    return shown.join(QLatin1Char(' '));
}

} // namespace

class AdvancedOptionsWindowTest final : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { Q_INIT_RESOURCE(velmora); }
    void conditionsAreClickedTogether();
    void entriesAreRefusedInOrder();
    void whatCannotBeReadIsShown();

private:
    QVector<Event> m_events;
};

void AdvancedOptionsWindowTest::conditionsAreClickedTogether()
{
    const QString model = QStringLiteral("TARVEX33_USB");
    AdvancedOptionsWindow dialog(device(model), {stored.at(0)}, &m_events, nullptr);
    dialog.show();
    const int keys = find<QListWidget>(dialog, "eventStatesListIn")->count();
    // A pattern that is none lets nothing through; without one, everything comes back.
    for (const char* pattern : {"[", ""}) {
        typeInto(dialog, "filterIn", QLatin1String(pattern));
        QCOMPARE(find<QListWidget>(dialog, "eventStatesListIn")->count(), *pattern ? 0 : keys);
    }
    for (const auto& [list, row] : {std::make_pair("eventStatesListOut", 0),
                                    {"operatorListOut", 0},
                                    {"statesListOut", 1},
                                    {"eventStatesListIn", 0},
                                    {"operatorListIn", 0},
                                    {"statesListIn", 0},
                                    {"operatorListIn", 7},
                                    {"eventStatesListIn", keys - 1},
                                    {"operatorListIn", 3}})
        doubleClick(dialog, list, row);
    QTest::keyClicks(find<QTextEdit>(dialog, "expressionTextIn"), QStringLiteral("30"));
    QCOMPARE(shownAs(dialog), bothGreen);
    find<QPushButton>(dialog, "saveAsNewEventButton")->click();
    const QStringList expected{stored.at(0),
                               QStringLiteral("stateNoCommunication,ON,==,paramOutputLoadL3,30,<=,&&,"),
                               QStringLiteral("stateNoCommunication,OFF,==,")};
    QCOMPARE(dialog.getExpressions(), expected);
    QCOMPARE(shownAs(AdvancedOptionsWindow(device(model), expected, &m_events, nullptr)), bothGreen);
}

void AdvancedOptionsWindowTest::entriesAreRefusedInOrder()
{
    QVector<Event> events(2);
    events[0].state = stored.at(0);
    events[1].state = QStringLiteral("Zdarzenie 2");
    AdvancedOptionsWindow dialog(device(QStringLiteral("TARVEX33_USB")), stored, &events, nullptr);
    dialog.show();
    // Name, condition and what is said to them.
    for (const char* row :
         {"||Uwaga|Pole \"Nazwa zdarzenia\" nie może być puste",
          "a\"b||Uwaga|Nazwa zdarzenia zawiera niedozwolone znaki", "a||Uwaga|Należy wprowadzić wyrażenie.",
          "a|stateNormal|Uwaga|Wprowadzone wyrażenie jest nieprawidłowe.",
          "a|stateNormal()==ON|Uwaga|Wystąpił błąd podczas przetwarzania wyrażenia.",
          "Zdarzenie 2|stateNormal==ON|Uwaga|Konfiguracja zawiera już zdarzenie Zdarzenie 2",
          "Zdarzenie 1|stateNormal==ON|"}) {
        const QString said = QString::fromUtf8(row).section(QLatin1Char('|'), 2);
        typeInto(dialog, "eventNameTextEdit", QString::fromUtf8(row).section(QLatin1Char('|'), 0, 0));
        find<QTextEdit>(dialog, "expressionTextOut")
            ->setPlainText(QString::fromUtf8(row).section(QLatin1Char('|'), 1, 1));
        find<QPushButton>(dialog, "saveEventButton")->click();
        QCOMPARE(takeMessages().join(QString()), said);
        QCOMPARE(dialog.isHidden(), said.isEmpty());
    }
}

void AdvancedOptionsWindowTest::whatCannotBeReadIsShown()
{
    // As plain text: nothing of it is markup.
    const QString broken = QStringLiteral("==,(a<b>c),&lt;");
    const AdvancedOptionsWindow shown(device(QStringLiteral("TARVEX33_USB")),
                                      {stored.at(0), broken, QString()}, &m_events, nullptr);
    QCOMPARE(find<QTextEdit>(shown, "expressionTextIn")->toPlainText(), broken);
    QCOMPARE(shownAs(shown), bothRed);
    ScriptedPrompts& prompts = ScriptedPrompts::install();
    prompts.expect({QStringLiteral("Błąd ładowania pliku"), QMessageBox::Ok, false, {}});
    const AdvancedOptionsWindow empty(device(QStringLiteral("../x")), stored, &m_events, nullptr);
    QVERIFY(prompts.allAsked());
    Velmora::Prompts::replace(nullptr);
    QCOMPARE(find<QListWidget>(empty, "statesListIn")->count(), 0);
    QCOMPARE(shownAs(empty), bothRed);
}

QTEST_MAIN(AdvancedOptionsWindowTest)
#include "AdvancedOptionsWindowTest.moc"
