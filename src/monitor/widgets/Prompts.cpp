// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "monitor/widgets/Prompts.h"

#include "monitor/widgets/Picture.h"

#include <QCheckBox>
#include <QFileDialog>
#include <QInputDialog>
#include <QPointer>
#include <QTextDocument>

namespace Velmora {

namespace {

class MessageBoxPrompts final : public Prompts
{
public:
    Answer ask(QWidget* parent, const Question& question) override
    {
        // On the heap: the parent may be deleted, and the box with it, while the question stands.
        QPointer<QMessageBox> box(
            new QMessageBox(question.icon, question.title, QString(), question.buttons, parent));
        if (question.icon == QMessageBox::Question)
            box->setIconPixmap(picture(QStringLiteral(":/images/images/question_48.png")));
        box->setTextFormat(Qt::PlainText);
        box->setText(question.text);
        // The text format does not reach the informative text.
        if (!question.informativeText.isEmpty())
            box->setInformativeText(Qt::convertFromPlainText(question.informativeText));
        box->setDefaultButton(question.defaultButton);
        if (!question.checkBoxText.isEmpty())
            box->setCheckBox(new QCheckBox(question.checkBoxText, box));
        const int result = box->exec();
        if (!box)
            return {};
        const Answer answer{static_cast<QMessageBox::StandardButton>(result),
                            box->checkBox() && box->checkBox()->isChecked()};
        delete box;
        return answer;
    }

    std::optional<QString> choose(QWidget* parent, const Choice& choice) override
    {
        const QPointer<QInputDialog> dialog(new QInputDialog(parent));
        dialog->setWindowIcon(QIcon(QStringLiteral(":/images/images/appicon_32.png")));
        dialog->setWindowTitle(choice.title);
        dialog->setLabelText(choice.label);
        dialog->setComboBoxItems(choice.items);
        const bool accepted = dialog->exec() == QDialog::Accepted;
        if (!dialog)
            return {};
        const QString text = dialog->textValue();
        delete dialog;
        return accepted ? std::optional(text) : std::nullopt;
    }

    std::optional<QString> chooseFile(QWidget* parent, const QString& title, const QString& filter) override
    {
        const QString path = QFileDialog::getOpenFileName(parent, title, QString(), filter);
        return path.isEmpty() ? std::nullopt : std::optional(path);
    }

    std::optional<QString> chooseFolder(QWidget* parent, const QString& title, const QString& start) override
    {
        const QString path =
            QFileDialog::getExistingDirectory(parent, title, start, QFileDialog::ShowDirsOnly);
        return path.isEmpty() ? std::nullopt : std::optional(path);
    }
};

std::unique_ptr<Prompts>& currentPrompts()
{
    static std::unique_ptr<Prompts> prompts = std::make_unique<MessageBoxPrompts>();
    return prompts;
}

} // namespace

Prompts::~Prompts() = default;

Prompts& Prompts::current()
{
    return *currentPrompts();
}

void Prompts::replace(std::unique_ptr<Prompts> prompts)
{
    currentPrompts() = prompts ? std::move(prompts) : std::make_unique<MessageBoxPrompts>();
}

} // namespace Velmora
