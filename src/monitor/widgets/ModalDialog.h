// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <QPointer>

namespace Velmora {

/// Runs `dialog`, which its window knows through `member` while it is open, and deletes it. `whenAccepted` is
/// called with the dialog still alive if the user accepted it.
///
/// Replies arrive, the tree is built anew and administrator mode may end while the dialog runs, and another
/// dialog may be opened on top of it: hence the guard, and the look whether `member` is still this dialog's.
template <typename Dialog, typename WhenAccepted>
void runModal(QPointer<Dialog>& member, Dialog* dialog, WhenAccepted whenAccepted)
{
    const QPointer<Dialog> guard(dialog);
    member = guard;
    const bool accepted = dialog->exec() == QDialog::Accepted;
    if (member == guard)
        member.clear();
    if (!guard)
        return;
    if (accepted)
        whenAccepted(*guard);
    guard->deleteLater();
}

template <typename Dialog>
void runModal(QPointer<Dialog>& member, Dialog* dialog)
{
    runModal(member, dialog, [](Dialog&) {});
}

/// For a dialog that nothing is handed on to while it runs.
template <typename Dialog, typename WhenAccepted>
void runModal(Dialog* dialog, WhenAccepted whenAccepted)
{
    QPointer<Dialog> member;
    runModal(member, dialog, whenAccepted);
}

template <typename Dialog>
void runModal(Dialog* dialog)
{
    runModal(dialog, [](Dialog&) {});
}

} // namespace Velmora
