// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "policy/core/ConditionRules.h"
#include "policy/core/Expressions.h"

#include <QTest>

using namespace Velmora;

namespace {

const QStringList allOperators = conditionOperators(QStringLiteral("TARVEX33_USB"));

QString nested(int depth)
{
    return QString(depth, QLatin1Char('(')) + QLatin1Char('a') + QString(depth, QLatin1Char(')'));
}

} // namespace

class ConditionsTest final : public QObject
{
    Q_OBJECT

private slots:
    void conditionsAreJudged();
    void conditionsAreStoredAndReopened_data();
    void conditionsAreStoredAndReopened();
};

void ConditionsTest::conditionsAreJudged()
{
    EventDefinitions definitions;
    definitions.eventKeys =
        QStringList{QStringLiteral("stateA"), QStringLiteral("alarmB"), QStringLiteral("paramC")};
    const auto judge = [&definitions](ConditionFault fault, std::initializer_list<const char*> texts) {
        for (const char* text : texts)
            QVERIFY2(findConditionFault(QString::fromLatin1(text), definitions) == fault, text);
    };
    judge(ConditionFault::None, {"stateA==ON", "ON==stateA", "( stateA == ON)&&(alarmB==OFF)", "paramC<30",
                                 "30>=paramC", "1.5<paramC||paramC!=1e5", "stateA()==ON", "( stateA ) != ON",
                                 "paramC == 1 || ((stateA==ON&&alarmB==OFF))"});
    judge(ConditionFault::Syntax, {"stateA==ON&&", "a,ON,", "(stateA==ON", "stateA==ON)", "stateA=!", "()"});
    judge(ConditionFault::ForbiddenText, {"paramC<-5", "paramC+1<5", "paramC<<5", "stateA===ON", "paramC<5%2",
                                          "stateA==ON\n", "paramC/2>1"});
    judge(ConditionFault::StateOperator,
          {"stateA!=ON", "ON!=(stateA)", "stateA<5", "alarmB >= 3", "paramC==1&&stateA!=ON"});
    judge(ConditionFault::UnknownOperand,
          {"", "stateX==ON", "stateA==on", "STATEA==ON", "paramC==0x10", "a,ON", "stateA=ON"});
    judge(ConditionFault::Comparison, {"stateA", "paramC==ON", "stateA==1", "stateA==alarmB", "ON==OFF",
                                       "stateA==ON==ON", "paramC<1<2", "1<paramC && 5"});
}

void ConditionsTest::conditionsAreStoredAndReopened_data()
{
    QTest::addColumn<QString>("infix");
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("reopened");
    const auto row = [](const char* name, const QString& infix, const char* stored, const char* reopened) {
        QTest::newRow(name) << infix << QString::fromUtf8(stored) << QString::fromUtf8(reopened);
    };
    row("a lone operand", QStringLiteral("((a ) ) "), "a,", "a");
    row("from the loosest to the tightest", QStringLiteral("a || b && c < d <= e > f >= g == h != i"),
        "a,b,c,d,e,f,g,h,i,!=,==,>=,>,<=,<,&&,||,", "((((h!=i)<=a)&&(b>c))||((d>=e)<(f==g)))");
    row("from the tightest to the loosest", QStringLiteral("a != b == c >= d > e <= f < g && h || i"),
        "a,b,!=,c,==,d,>=,e,>,f,<=,g,<,h,&&,i,||,", "((((((((a!=b)==c)>=d)>e)<=f)<g)&&h)||i)");
    row("sides swap", addSpaceBeforeOp(QStringLiteral("a==ON&&b<=5")), "a,ON,==,b,5,<=,&&,",
        "((b<=5)&&(a==ON))");
    row("chains grown to the right come apart", addSpaceBeforeOp(QStringLiteral("a==ON&&(b==ON||c>=OFF)")),
        "a,ON,==,b,ON,==,c,OFF,>=,||,&&,", "(((b==ON)||(a==ON))&&(c>=OFF))");
    row("words take up operators without blanks", QStringLiteral("a+b==c"), "a+b==c,", "a+b==c");
    row("no operator in between", QStringLiteral("a b"), "", "");
    row("text outside ASCII", QStringLiteral("zażółć == ON"), "", "");
    row("the deepest nesting", nested(256), "a,", "a");
    row("nesting that would eat up the stack", nested(257), "", "");
    row("a text that would take seconds", QString(16385, QLatin1Char('a')), "", "");
}

void ConditionsTest::conditionsAreStoredAndReopened()
{
    QFETCH(QString, infix);
    QFETCH(QString, stored);
    QFETCH(QString, reopened);
    QCOMPARE(postfixFromInfix(infix).value_or(QString()), stored);
    QCOMPARE(infixFromPostfix(stored, allOperators), reopened);
}

QTEST_GUILESS_MAIN(ConditionsTest)
#include "ConditionsTest.moc"
