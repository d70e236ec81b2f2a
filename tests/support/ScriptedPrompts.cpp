// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "support/ScriptedPrompts.h"

#include <QApplication>
#include <QTest>

namespace Velmora::Tests {

ScriptedPrompts& ScriptedPrompts::install()
{
    auto prompts = std::make_unique<ScriptedPrompts>();
    ScriptedPrompts& installed = *prompts;
    Prompts::replace(std::move(prompts));
    return installed;
}

ExpectedQuestion ScriptedPrompts::take(const Question& question)
{
    m_asked.append(question);
    const QString title = m_expected.isEmpty() ? QString() : m_expected.constFirst().title;
    if (question.title != title || title.isEmpty()) {
        const QString failure = QLatin1String("unexpected question \"") + question.title +
                                QLatin1String("\", foreseen was \"") + title + QLatin1Char('"');
        QTest::qFail(qPrintable(failure), __FILE__, __LINE__);
        return {QString(), QMessageBox::NoButton, false, {}};
    }
    ExpectedQuestion expected = m_expected.takeFirst();
    if (expected.whileStanding)
        expected.whileStanding();
    return expected;
}

Answer ScriptedPrompts::ask(QWidget* /*parent*/, const Question& question)
{
    const ExpectedQuestion expected = take(question);
    return {expected.answer, expected.checked};
}

std::optional<QString> ScriptedPrompts::choose(QWidget* /*parent*/, const Choice& choice)
{
    Question question;
    question.title = choice.title;
    question.text = choice.label + QLatin1Char('|') + choice.items.join(QLatin1Char('|'));
    return take(question).text;
}

std::optional<QString> ScriptedPrompts::chooseFile(QWidget* /*parent*/, const QString& title,
                                                   const QString& filter)
{
    Question question;
    question.title = title;
    question.text = filter;
    return take(question).text;
}

std::optional<QString> ScriptedPrompts::chooseFolder(QWidget* parent, const QString& title,
                                                     const QString& start)
{
    return chooseFile(parent, title, start);
}

void closeStrayWindows()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows) {
        if (window->isVisible())
            window->close();
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace Velmora::Tests
