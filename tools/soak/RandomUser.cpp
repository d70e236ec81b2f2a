// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "soak/RandomUser.h"

#include "admin/core/PasswordRules.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QRegularExpression>

#include <algorithm>

namespace {

constexpr char seenProperty[] = "seenByTheSoak";

// One thing in so many done in a dialog is to close it, and so is one of so many clicks on its OK and Cancel.
constexpr int patience = 60;
constexpr int hesitation = 10;

template <typename Widget>
QList<Widget*> usable(const QWidget* parent)
{
    QList<Widget*> found;
    for (Widget* widget : parent->findChildren<Widget*>()) {
        if (widget->window() == parent->window() && widget->isVisible() && widget->isEnabled())
            found.append(widget);
    }
    return found;
}

} // namespace

RandomUser::RandomUser(QWidget* window, quint32 seed)
    : m_window(window)
    , m_random(seed)
{}

void RandomUser::act()
{
    if (auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget()))
        actIn(menu);
    else if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget()))
        actIn(dialog);
    else if (!closeTop())
        actInMainWindow();
}

bool RandomUser::closeTop()
{
    QWidget* top = QApplication::activePopupWidget();
    if (!top)
        top = QApplication::activeModalWidget();
    if (top)
        QMetaObject::invokeMethod(top, &QWidget::close, Qt::QueuedConnection);
    return top != nullptr;
}

void RandomUser::actInMainWindow()
{
    switch (below(4)) {
    case 0: {
        // Neither the end of the panel nor a browser.
        QList<QAction*> actions = m_window->findChildren<QAction*>(
            QRegularExpression(QStringLiteral("^action(?!Exit|OnlineHelp)")));
        if (QAction* action = actions.at(below(actions.size())); action->isEnabled())
            QMetaObject::invokeMethod(action, &QAction::trigger, Qt::QueuedConnection);
        break;
    }
    case 1: {
        auto* tree = m_window->findChild<QAbstractItemView*>(QStringLiteral("upsTree"));
        const QPoint place = tree->visualRect(tree->currentIndex()).center();
        QMetaObject::invokeMethod(
            tree, [tree, place] { emit tree->customContextMenuRequested(place); }, Qt::QueuedConnection);
        break;
    }
    case 2:
        selectOne(m_window);
        break;
    default:
        clickOne(m_window);
        break;
    }
}

void RandomUser::actIn(QMenu* menu)
{
    const QList<QAction*> actions = menu->actions();
    if (actions.isEmpty()) {
        (void)closeTop();
        return;
    }
    menu->setActiveAction(actions.at(below(actions.size())));
    QCoreApplication::postEvent(menu, new QKeyEvent(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier));
    // An action that is disabled leaves the menu open.
    QCoreApplication::postEvent(menu, new QKeyEvent(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier));
}

void RandomUser::actIn(QDialog* dialog)
{
    const QString name = QLatin1String(dialog->metaObject()->className());
    if (!dialog->property(seenProperty).toBool()) {
        dialog->setProperty(seenProperty, true);
        ++m_opened[name];
        if (name == QLatin1String("LogiInWindow"))
            dialog->findChild<QLineEdit*>()->setText(Velmora::defaultAdministratorPassword());
        return;
    }
    // Another address would lead the panel away, and a file dialog to the files of whoever runs this.
    if (name == QLatin1String("ConnectWithServiceWindow") || qobject_cast<QFileDialog*>(dialog) ||
        below(patience) == 0) {
        (void)closeTop();
        return;
    }
    switch (below(4)) {
    case 0:
        selectOne(dialog);
        break;
    case 1:
        if (name != QLatin1String("LogiInWindow"))
            typeOne(dialog);
        break;
    default:
        clickOne(dialog);
        break;
    }
}

void RandomUser::clickOne(const QWidget* dialog)
{
    const QList<QAbstractButton*> buttons = usable<QAbstractButton>(dialog);
    if (buttons.isEmpty())
        return;
    const auto clicks = [this, dialog](const QAbstractButton* button) -> int& {
        return m_clicks[QLatin1String(dialog->metaObject()->className()) + button->objectName()];
    };
    QAbstractButton* button = buttons.at(below(buttons.size()));
    // Half the time the one that was clicked least: what is rarely enabled gets its turn.
    if (below(2) == 0)
        button =
            *std::min_element(buttons.begin(), buttons.end(), [&clicks](const auto* left, const auto* right) {
                return clicks(left) < clicks(right);
            });
    ++clicks(button);
    const bool leaves = button->parent() == dialog->findChild<QDialogButtonBox*>();
    if (!leaves || qobject_cast<const QMessageBox*>(dialog) || below(hesitation) == 0)
        QMetaObject::invokeMethod(button, &QAbstractButton::click, Qt::QueuedConnection);
}

void RandomUser::selectOne(const QWidget* dialog)
{
    const QList<QComboBox*> boxes = usable<QComboBox>(dialog);
    const QList<QAbstractItemView*> views = usable<QAbstractItemView>(dialog);
    const int choice = below(boxes.size() + views.size() + 1);
    if (choice < boxes.size()) {
        boxes.at(choice)->setCurrentIndex(below(boxes.at(choice)->count() + 1) - 1);
    } else if (choice < boxes.size() + views.size()) {
        QAbstractItemView* view = views.at(choice - boxes.size());
        const QAbstractItemModel* model = view->model();
        if (!model)
            return;
        const QModelIndex top = model->index(below(model->rowCount() + 1), 0);
        const int children = model->rowCount(top);
        view->setCurrentIndex(children > 0 && below(2) == 0 ? model->index(below(children), 0, top) : top);
        const auto doubleClick = [view] {
            // Mice hit no rows that are gone.
            if (view->currentIndex().isValid())
                emit view->doubleClicked(view->currentIndex());
        };
        if (below(2) == 0)
            QMetaObject::invokeMethod(view, doubleClick, Qt::QueuedConnection);
    }
}

void RandomUser::typeOne(const QWidget* dialog)
{
    static const QStringList texts{QString(), QStringLiteral("60"), QStringLiteral("127.0.0.1"),
                                   QStringLiteral("a@b.test"), QStringLiteral("ŁADOWANIE  ON (")};
    const QList<QLineEdit*> fields = usable<QLineEdit>(dialog);
    if (fields.isEmpty())
        return;
    QLineEdit* field = fields.at(below(fields.size()));
    field->setText(texts.at(below(texts.size())));
    // Half the time what the field accepts: forms of many fields would never be right as a whole.
    for (int tries = below(2) * 20; tries > 0 && !field->hasAcceptableInput(); --tries)
        field->setText(texts.at(below(texts.size())));
}
