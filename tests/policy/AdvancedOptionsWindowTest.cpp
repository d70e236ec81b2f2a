// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "policy/AdvancedOptionsWindow.h"
#include "devices/core/ModelCatalogue.h"
#include "devices/core/ModelRules.h"
#include "policy/core/EventDefinitions.h"
#include "support/ModalDriver.h"
#include "support/ScriptedPrompts.h"

#include <QListWidget>
#include <QSettings>
#include <QTextEdit>

using namespace Velmora::Tests;

namespace {

const QStringList stored{QStringLiteral("Zdarzenie 1"), QStringLiteral("stateNormal,ON,==,"),
                         QStringLiteral("stateNormal,OFF,==,")};

Velmora::Utils::Ups device(const QString& configName)
{
    Velmora::Utils::Ups ups;
    ups.model_name = configName;
    return ups;
}

void doubleClick(const QDialog& dialog, const char* name, int row)
{
    auto* list = dialog.findChild<QListWidget*>(QLatin1String(name));
    list->scrollToItem(list->item(row));
    const QPoint place = list->visualItemRect(list->item(row)).center();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, place);
}

QTextEdit* condition(const QDialog& dialog, const char* name)
{
    return dialog.findChild<QTextEdit*>(QLatin1String(name));
}

/// "valid" of both conditions, with the colours that say so.
QString shownAs(const QDialog& dialog)
{
    QStringList shown;
    for (const char* name : {"expressionTextIn", "expressionTextOut"})
        shown << condition(dialog, name)->property("valid").toString()
              << condition(dialog, name)->styleSheet();
    return shown.join(QLatin1Char(' '));
}

const QString bothGreen = QStringLiteral("true color: green true color: green");

} // namespace

class AdvancedOptionsWindowTest final : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { Q_INIT_RESOURCE(velmora); }
    void cleanup();
    void conditionsAreClickedTogether_data();
    void conditionsAreClickedTogether();
    void entriesAreRefusedInOrder_data();
    void entriesAreRefusedInOrder();
    void brokenConditionsAreShownAsTheyCame();
    void eventsAreFiltered();
    void deviceWithoutDefinitionsIsTold();
};

void AdvancedOptionsWindowTest::cleanup()
{
    closeStrayWindows();
    Velmora::Prompts::replace(nullptr);
}

void AdvancedOptionsWindowTest::conditionsAreClickedTogether_data()
{
    QTest::addColumn<QString>("model");
    QTest::addColumn<QString>("language");
    for (const auto& model : Velmora::Utils::getAllSuportedModelList()) {
        if (!Velmora::hasAdvancedEventOptions(model.configName))
            continue;
        for (const char* language : {"polish", "english"})
            QTest::addRow("%s in %s", qPrintable(model.configName), language)
                << model.configName << QString::fromLatin1(language);
    }
}

void AdvancedOptionsWindowTest::conditionsAreClickedTogether()
{
    QFETCH(QString, model);
    QFETCH(QString, language);
    QSettings(qEnvironmentVariable("VELMORA_CONTROL_PANEL_INI"), QSettings::IniFormat)
        .setValue(QStringLiteral("language"), language);
    const QStringList keys =
        Velmora::readEventDefinitions(Velmora::eventDefinitionsPath(model), device(model), language)
            .eventKeys;
    const bool numeric = keys.constLast().startsWith(QLatin1String("param"));
    QVector<Event> events;
    AdvancedOptionsWindow dialog(device(model), {stored.at(0)}, &events, nullptr);
    dialog.setEditMode(false);
    dialog.show();
    QCOMPARE(dialog.findChild<QListWidget*>(QStringLiteral("operatorListIn"))->count(), numeric ? 9 : 4);
    // Both conditions start with the first key; the first one goes on with the last.
    doubleClick(dialog, "eventStatesListOut", 0);
    doubleClick(dialog, "operatorListOut", 0);
    doubleClick(dialog, "statesListOut", 1);
    doubleClick(dialog, "eventStatesListIn", 0);
    doubleClick(dialog, "operatorListIn", 0);
    doubleClick(dialog, "statesListIn", 0);
    doubleClick(dialog, "operatorListIn", numeric ? 7 : 2);
    doubleClick(dialog, "eventStatesListIn", keys.size() - 1);
    doubleClick(dialog, "operatorListIn", numeric ? 3 : 0);
    if (numeric)
        QTest::keyClicks(condition(dialog, "expressionTextIn"), QStringLiteral("30"));
    else
        doubleClick(dialog, "statesListIn", 1);
    QCOMPARE(shownAs(dialog), bothGreen);
    QTest::mouseClick(dialog.findChild<QPushButton*>(QStringLiteral("saveAsNewEventButton")), Qt::LeftButton);
    QCOMPARE(dialog.result(), int(QDialog::Accepted));
    const QString last =
        keys.constLast() + (numeric ? QStringLiteral(",30,<=,") : QStringLiteral(",OFF,==,"));
    const QStringList expected{stored.at(0),
                               keys.at(0) + QStringLiteral(",ON,==,") + last + QStringLiteral("&&,"),
                               keys.at(0) + QStringLiteral(",OFF,==,")};
    QCOMPARE(dialog.getExpressions(), expected);
    const AdvancedOptionsWindow again(device(model), expected, &events, nullptr);
    QCOMPARE(shownAs(again), bothGreen);
}

void AdvancedOptionsWindowTest::entriesAreRefusedInOrder_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("out");
    QTest::addColumn<QString>("message");
    const auto row = [](const char* name, const char* event, const char* out, const char* message) {
        QTest::newRow(name) << QString::fromUtf8(event) << QString::fromUtf8(out)
                            << QString::fromUtf8(message);
    };
    row("no name", "", "", "Pole \"Nazwa zdarzenia\" nie może być puste");
    row("a name that XML would have to escape", "a\"b", "", "Nazwa zdarzenia zawiera niedozwolone znaki");
    row("no condition", "a", "", "Należy wprowadzić wyrażenie.");
    row("a red condition", "a", "stateNormal", "Wprowadzone wyrażenie jest nieprawidłowe.");
    row("a green condition that does not parse", "a", "stateNormal()==ON",
        "Wystąpił błąd podczas przetwarzania wyrażenia.");
    row("a name that is taken", "Zdarzenie 2", "stateNormal==ON",
        "Konfiguracja zawiera już zdarzenie Zdarzenie 2");
    row("its own name is not taken", "Zdarzenie 1", "stateNormal==ON", "");
    row("a new name", "a", "stateNormal==ON", "");
}

void AdvancedOptionsWindowTest::entriesAreRefusedInOrder()
{
    QFETCH(QString, name);
    QFETCH(QString, out);
    QFETCH(QString, message);
    QVector<Event> events(2);
    events[0].state = stored.at(0);
    events[1].state = QStringLiteral("Zdarzenie 2");
    AdvancedOptionsWindow dialog(device(QStringLiteral("TARVEX33_USB")), stored, &events, nullptr);
    dialog.setEditMode(true);
    dialog.show();
    typeInto(dialog, "eventNameTextEdit", name);
    condition(dialog, "expressionTextOut")->setPlainText(out);
    QTest::mouseClick(dialog.findChild<QPushButton*>(QStringLiteral("saveEventButton")), Qt::LeftButton);
    const QStringList messages =
        message.isEmpty() ? QStringList() : QStringList{QStringLiteral("Uwaga|") + message};
    QCOMPARE(takeMessages(), messages);
    QCOMPARE(dialog.isVisible(), !message.isEmpty());
    if (message.isEmpty())
        QCOMPARE(dialog.getExpressions(),
                 (QStringList{name, stored.at(1), QStringLiteral("stateNormal,ON,==,")}));
}

void AdvancedOptionsWindowTest::brokenConditionsAreShownAsTheyCame()
{
    const QString broken = QStringLiteral("==,(a<b>c),&lt;");
    QVector<Event> events;
    AdvancedOptionsWindow dialog(device(QStringLiteral("TARVEX33_USB")), {stored.at(0), broken, QString()},
                                 &events, nullptr);
    QCOMPARE(condition(dialog, "expressionTextIn")->toPlainText(), broken);
    QCOMPARE(shownAs(dialog), QStringLiteral("false color: red false color: red"));
}

void AdvancedOptionsWindowTest::eventsAreFiltered()
{
    QVector<Event> events;
    AdvancedOptionsWindow dialog(device(QStringLiteral("TARVEX33_USB")), {}, &events, nullptr);
    const auto* list = dialog.findChild<QListWidget*>(QStringLiteral("eventStatesListOut"));
    const int all = list->count();
    for (const auto& row : QVector<QPair<QString, int>>{
             {QStringLiteral("WORK MODE.*eco$"), 1}, {QStringLiteral("["), 0}, {QString(), all}}) {
        typeInto(dialog, "filterOut", row.first);
        QCOMPARE(list->count(), row.second);
    }
}

void AdvancedOptionsWindowTest::deviceWithoutDefinitionsIsTold()
{
    ScriptedPrompts& prompts = ScriptedPrompts::install();
    prompts.expect({QStringLiteral("Błąd ładowania pliku"), QMessageBox::Ok, false, {}});
    QVector<Event> events;
    AdvancedOptionsWindow dialog(device(QStringLiteral("../x")), stored, &events, nullptr);
    QVERIFY(prompts.allAsked());
    for (const QListWidget* list : dialog.findChildren<QListWidget*>())
        QCOMPARE(list->count(), 0);
    QCOMPARE(shownAs(dialog), QStringLiteral("false color: red false color: red"));
}

QTEST_MAIN(AdvancedOptionsWindowTest)
#include "AdvancedOptionsWindowTest.moc"
