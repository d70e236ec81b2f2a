// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QStringList>
#include <QTest>
#include <QTimer>

namespace Velmora::Tests {

/// Calls `open`, which blocks in a modal dialog of this type, and `act` while the dialog stands. A dialog
/// that `act` leaves open is rejected, and so is any other one that comes in its place. False if the dialog
/// never came.
template <typename Dialog, typename Open, typename Act>
[[nodiscard]] bool driveModal(Open open, Act act)
{
    constexpr int looks = 5000;
    bool came = false;
    int looked = 0;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, &look, [&] {
        auto* modal = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        auto* dialog = qobject_cast<Dialog*>(modal);
        if (!dialog && ++looked < looks)
            return;
        look.stop();
        came = dialog != nullptr;
        const QPointer<QDialog> guard(modal);
        if (dialog)
            act(*dialog);
        if (guard && guard->isVisible())
            guard->reject();
    });
    look.start(1);
    open();
    return came;
}

inline void pressOk(const QDialog& dialog)
{
    dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
}

inline void typeInto(const QDialog& dialog, const char* field, const QString& text)
{
    dialog.findChild<QLineEdit*>(QLatin1String(field))->setText(text);
}

/// Closes the message boxes that stand and tells what they said, each as "title|text".
[[nodiscard]] inline QStringList takeMessages()
{
    QStringList messages;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows) {
        auto* box = qobject_cast<QMessageBox*>(window);
        if (!box || !box->isVisible())
            continue;
        messages.append(box->windowTitle() + QLatin1Char('|') + box->text());
        box->close();
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return messages;
}

/// The same once there is one; empty if none comes.
[[nodiscard]] inline QStringList awaitMessages()
{
    QStringList messages;
    (void)QTest::qWaitFor([&messages] {
        messages = takeMessages();
        return !messages.isEmpty();
    });
    return messages;
}

} // namespace Velmora::Tests
