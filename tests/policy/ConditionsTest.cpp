// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "policy/core/ConditionRules.h"
#include "policy/core/Expressions.h"

#include <QRandomGenerator>
#include <QTest>

using namespace Velmora;

namespace {

const QStringList allOperators = conditionOperators(QStringLiteral("TARVEX33_USB"));

/// Whether a postfix condition over keys a, b, ... holds when the bits of `on` say which of them are ON.
bool evaluate(const QString& postfix, uint on)
{
    QVector<bool> values;
    const QStringList elements = postfix.split(QLatin1Char(','), Qt::SkipEmptyParts);
    for (const QString& element : elements) {
        if (!allOperators.contains(element)) {
            const int key = element.at(0).unicode() - u'a';
            values.append(element == QLatin1String("ON") || (key >= 0 && ((on >> key) & 1U) != 0));
            continue;
        }
        const bool right = values.takeLast();
        const bool left = values.takeLast();
        values.append(element == QLatin1String("==")   ? left == right
                      : element == QLatin1String("&&") ? left && right
                                                       : left || right);
    }
    return values.takeLast();
}

QString nested(int depth)
{
    return QString(depth, QLatin1Char('(')) + QLatin1Char('a') + QString(depth, QLatin1Char(')'));
}

QStringList sorted(const QString& postfix)
{
    QStringList elements = postfix.split(QLatin1Char(','));
    elements.sort();
    return elements;
}

} // namespace

Q_DECLARE_METATYPE(Velmora::ConditionFault)

class ConditionsTest final : public QObject
{
    Q_OBJECT

private slots:
    void conditionsAreJudged_data();
    void conditionsAreJudged();
    void infixBecomesPostfix_data();
    void infixBecomesPostfix();
    void postfixBecomesInfix_data();
    void postfixBecomesInfix();
    void conditionsGrownToTheLeftKeepTheirMeaning();
};

void ConditionsTest::conditionsAreJudged_data()
{
    QTest::addColumn<ConditionFault>("fault");
    const auto rows = [](ConditionFault fault, std::initializer_list<const char*> texts) {
        for (const char* text : texts)
            QTest::addRow("'%s'", text) << fault;
    };
    rows(ConditionFault::None, {"stateA==ON", "ON==stateA", "( stateA == ON)&&(alarmB==OFF)", "paramC<30",
                                "paramC<=30", "30>=paramC", "1.5<paramC||paramC!=1e5", "stateA()==ON",
                                "( stateA ) != ON", "paramC == 1 || ((stateA==ON&&alarmB==OFF))"});
    rows(ConditionFault::Syntax, {"stateA==ON&&", "a,ON,", "(stateA==ON", "stateA==ON)", "stateA=!", "()"});
    rows(ConditionFault::ForbiddenText,
         {"paramC<-5", "paramC+1<5", "paramC<<5", "stateA===ON", "paramC<5%2", "stateA==ON\n", "paramC/2>1"});
    rows(ConditionFault::StateOperator,
         {"stateA!=ON", "ON!=(stateA)", "stateA<5", "alarmB >= 3", "paramC==1&&stateA!=ON"});
    rows(ConditionFault::UnknownOperand,
         {"", "stateX==ON", "stateA==on", "STATEA==ON", "paramC==0x10", "a,ON", "stateA=ON"});
    rows(ConditionFault::Comparison, {"stateA", "paramC==ON", "stateA==1", "stateA==alarmB", "ON==OFF",
                                      "stateA==ON==ON", "paramC<1<2", "1<paramC && 5"});
}

void ConditionsTest::conditionsAreJudged()
{
    QFETCH(ConditionFault, fault);
    EventDefinitions definitions;
    definitions.eventKeys =
        QStringList{QStringLiteral("stateA"), QStringLiteral("alarmB"), QStringLiteral("paramC")};
    const QString quoted = QString::fromUtf8(QTest::currentDataTag());
    QCOMPARE(findConditionFault(quoted.mid(1, quoted.size() - 2), definitions), fault);
}

void ConditionsTest::infixBecomesPostfix_data()
{
    QTest::addColumn<QString>("infix");
    QTest::addColumn<QString>("postfix");
    const auto row = [](const char* name, const QString& infix, const char* postfix) {
        QTest::newRow(name) << infix << QString::fromUtf8(postfix);
    };
    row("a lone operand", QStringLiteral("((a ) ) "), "a,");
    row("chains grow to the left", QStringLiteral("a == b == c"), "a,b,==,c,==,");
    row("the first comparisons bind loosest", QStringLiteral("a < b <= c > d >= e == f != g"),
        "a,b,c,d,e,f,g,!=,==,>=,>,<=,<,");
    row("the last comparisons bind tightest", QStringLiteral("a != b == c >= d > e <= f < g"),
        "a,b,!=,c,==,d,>=,e,>,f,<=,g,<,");
    row("and binds tighter than or", QStringLiteral("a || b && (c || d)"), "a,b,c,d,||,&&,||,");
    row("blanks come in where they are missing", addSpaceBeforeOp(QStringLiteral("(a==ON)&&b<=5||c>=OFF")),
        "a,ON,==,b,5,<=,&&,c,OFF,>=,||,");
    row("operators without blanks are part of a word", QStringLiteral("a+b==c"), "a+b==c,");
    row("nothing", QString(), "");
    row("no operator in between", QStringLiteral("a b"), "");
    row("text outside ASCII", QStringLiteral("zażółć == ON"), "");
    row("the deepest nesting", nested(256), "a,");
    row("nesting that would eat up the stack", nested(257), "");
    row("a text that would take seconds", QString(16385, QLatin1Char('a')), "");
}

void ConditionsTest::infixBecomesPostfix()
{
    QFETCH(QString, infix);
    QFETCH(QString, postfix);
    QCOMPARE(postfixFromInfix(infix).value_or(QString()), postfix);
}

void ConditionsTest::postfixBecomesInfix_data()
{
    QTest::addColumn<QString>("infix");
    QTest::newRow("stateNormal,ON,==,") << QStringLiteral("(stateNormal==ON)");
    QTest::newRow("a,ON,==,b,OFF,==,&&,") << QStringLiteral("((b==OFF)&&(a==ON))");
    QTest::newRow("a,ON,==,b,ON,==,c,ON,==,||,&&,") << QStringLiteral("(((b==ON)||(a==ON))&&(c==ON))");
    QTest::newRow("a,") << QStringLiteral("a");
    QTest::newRow(",,") << QString();
    for (const char* unmapped : {"a,ON,", "==,a,", "a,==,b,", "a,ON,==,b,", "a,ON,~,"})
        QTest::newRow(unmapped) << QString::fromLatin1(unmapped);
}

void ConditionsTest::postfixBecomesInfix()
{
    QFETCH(QString, infix);
    QCOMPARE(infixFromPostfix(QString::fromLatin1(QTest::currentDataTag()), allOperators), infix);
}

void ConditionsTest::conditionsGrownToTheLeftKeepTheirMeaning()
{
    QRandomGenerator random(5); // the same conditions on every run
    for (int round = 0; round < 300; ++round) {
        QString infix;
        for (int term = random.bounded(6); term >= 0; --term) {
            const QString value = random.bounded(2) != 0 ? QStringLiteral("ON") : QStringLiteral("OFF");
            const QString comparison =
                QLatin1Char(char('a' + random.bounded(8))) + QLatin1String("==") + value;
            const QString joint = random.bounded(2) != 0 ? QStringLiteral("&&") : QStringLiteral("||");
            infix = infix.isEmpty() ? comparison
                                    : QLatin1Char('(') + infix + QLatin1Char(')') + joint + comparison;
        }
        const QString stored = postfixFromInfix(addSpaceBeforeOp(infix)).value_or(QString());
        const QString reopened = addSpaceBeforeOp(infixFromPostfix(stored, allOperators));
        const QString again = postfixFromInfix(reopened).value_or(QString());
        QVERIFY2(!stored.isEmpty() && sorted(again) == sorted(stored), qPrintable(infix));
        for (uint on = 0; on < 256; ++on)
            QVERIFY2(evaluate(again, on) == evaluate(stored, on), qPrintable(infix));
    }
}

QTEST_APPLESS_MAIN(ConditionsTest)
#include "ConditionsTest.moc"
