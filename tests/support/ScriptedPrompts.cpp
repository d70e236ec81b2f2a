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

Answer ScriptedPrompts::ask(QWidget* /*parent*/, const Question& question)
{
    m_asked.append(question);
    const QString title = m_expected.isEmpty() ? QString() : m_expected.constFirst().title;
    if (question.title != title || title.isEmpty()) {
        const QString failure = QLatin1String("unexpected question \"") + question.title +
                                QLatin1String("\", foreseen was \"") + title + QLatin1Char('"');
        QTest::qFail(qPrintable(failure), __FILE__, __LINE__);
        return {};
    }
    const ExpectedQuestion expected = m_expected.takeFirst();
    if (expected.whileStanding)
        expected.whileStanding();
    return {expected.answer, expected.checked};
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
