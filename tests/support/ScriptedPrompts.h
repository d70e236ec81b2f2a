// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include "monitor/widgets/Prompts.h"

#include <QVector>

#include <functional>

namespace Velmora::Tests {

/// A question that the test foresees, and what the user does with it.
struct ExpectedQuestion
{
    QString title;
    QMessageBox::StandardButton answer = QMessageBox::Yes;
    bool checked = false;                ///< state in which the check box is left
    std::function<void()> whileStanding; ///< what goes on behind the question; may be empty
    std::optional<QString> text = {};    ///< the text or file that is chosen; none cancels
};

/// Answers the panel's questions in the user's place, in the order foreseen. A question that nobody foresaw
/// fails the test and stays without an answer.
class ScriptedPrompts final : public Prompts
{
public:
    /// Puts a new one in force; it lives until Prompts::replace().
    static ScriptedPrompts& install();

    void expect(const ExpectedQuestion& question) { m_expected.append(question); }
    [[nodiscard]] bool allAsked() const { return m_expected.isEmpty(); }
    /// Every question that was put, with its texts.
    [[nodiscard]] const QVector<Question>& asked() const { return m_asked; }

    Answer ask(QWidget* parent, const Question& question) override;
    std::optional<QString> choose(QWidget* parent, const Choice& choice) override;
    std::optional<QString> chooseFile(QWidget* parent, const QString& title, const QString& filter) override;
    std::optional<QString> chooseFolder(QWidget* parent, const QString& title, const QString& start) override;

private:
    /// What was foreseen for the next question, after it stood; the failure if it is not this one.
    ExpectedQuestion take(const Question& question);

    QVector<ExpectedQuestion> m_expected;
    QVector<Question> m_asked;
};

/// For cleanup(): closes what a test left open and deletes what waits for it, so that no window of one test
/// stands in the way of the next.
void closeStrayWindows();

} // namespace Velmora::Tests
