// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QMessageBox>
#include <QStringList>

#include <memory>
#include <optional>

namespace Velmora {

/// A question that blocks until it is answered.
struct Question
{
    QString title;
    QString text;
    QMessageBox::Icon icon = QMessageBox::Question;
    QMessageBox::StandardButtons buttons = QMessageBox::Yes | QMessageBox::No;
    QMessageBox::StandardButton defaultButton = QMessageBox::NoButton;
    QString checkBoxText;    ///< empty: no check box
    QString informativeText; ///< stands below the text
};

struct Answer
{
    QMessageBox::StandardButton button = QMessageBox::NoButton;
    bool checkBoxChecked = false;
};

/// Texts of which the user picks one; the first is offered.
struct Choice
{
    QString title;
    QString label;
    QStringList items;
};

/// Every blocking question of the panel goes through here, so that a test can answer in the user's place.
class Prompts
{
public:
    Prompts() = default;
    virtual ~Prompts();
    Q_DISABLE_COPY_MOVE(Prompts)

    /// Messages of the link are handled while the question stands, so whatever the caller holds may be gone
    /// afterwards. The answer has no button if the program is quitting.
    virtual Answer ask(QWidget* parent, const Question& question) = 0;
    /// The same holds for these three. No value if the user cancels.
    virtual std::optional<QString> choose(QWidget* parent, const Choice& choice) = 0;
    /// Path of a file that exists; `filter` as QFileDialog takes it.
    virtual std::optional<QString> chooseFile(QWidget* parent, const QString& title,
                                              const QString& filter) = 0;
    /// Path of a folder that exists; the choice begins in `start`.
    virtual std::optional<QString> chooseFolder(QWidget* parent, const QString& title,
                                                const QString& start) = 0;

    /// The prompts in force: real boxes unless a test has put its own in their place.
    [[nodiscard]] static Prompts& current();
    /// Null brings the real boxes back.
    static void replace(std::unique_ptr<Prompts> prompts);
};

} // namespace Velmora
