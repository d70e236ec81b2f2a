// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "monitor/VelmoraWindow.h"

#include "admin/UpdateDownloadWindow.h"
#include "admin/core/UpdateChecker.h"
#include "admin/core/UpdateRules.h"
#include "monitor/core/PanelIdentity.h"
#include "monitor/widgets/MessageBox.h"
#include "monitor/widgets/ModalDialog.h"
#include "monitor/widgets/Prompts.h"

using Velmora::Utils::displayMsgBox;

// Newer versions of the panel. The checker lives on a thread of its own and is reached by queued calls only.

void VelmoraWindow::createUpdateChecker()
{
    updateChecker = std::make_unique<UpdateChecker>(m_updates);
    connect(updateChecker.get(), &UpdateChecker::updateAvailable, this,
            &VelmoraWindow::displayAvailableUpdateInfo);
    connect(updateChecker.get(), &UpdateChecker::networkUnavailable, this,
            &VelmoraWindow::networkUnavailable);
    updateChecker->start();
}

void VelmoraWindow::checkForUpdates()
{
    const bool userRequested = qobject_cast<QAction*>(sender()) != nullptr;
    QMetaObject::invokeMethod(
        updateChecker.get(),
        [checker = updateChecker.get(), userRequested] { checker->checkForUpdate(userRequested); },
        Qt::QueuedConnection);
}

void VelmoraWindow::networkUnavailable()
{
    displayMsgBox(tr("Błąd połączenia"),
                  tr("Nie można połączyć się z witryną ") + m_updates.descriptor.host());
}

void VelmoraWindow::displayAvailableUpdateInfo(bool userRequested, const QString& version)
{
    if (!Velmora::isUpdate(version, Velmora::panelVersion())) {
        if (userRequested)
            displayMsgBox(tr("Aktualizacja"), tr("Brak dostępnych aktualizacji"));
        return;
    }
    // The answer of a second check can come while the first one's question stands.
    if (m_updateOffered)
        return;
    m_updateOffered = true;
    if (updateWanted(version))
        beginUpdate();
    m_updateOffered = false;
}

bool VelmoraWindow::updateWanted(const QString& version)
{
    Velmora::Question question;
    question.title = tr("Aktualizacja oprogramowania");
    question.text = tr("Dostępna jest nowa wersja Velmora!");
    question.informativeText = tr(" Czy chcesz pobrać Velmora ") + version + QLatin1Char('?');
    return Velmora::Prompts::current().ask(this, question).button == QMessageBox::Yes;
}

void VelmoraWindow::beginUpdate()
{
    if (m_updates.userId() == 0)
        downloadUpdate();
    else
        displayMsgBox(tr("Aktualizacja"),
                      tr("W celu przeprowadzenia aktualizacji należy uruchomić ControlPanel jako użytkownik "
                         "o podwyższonych uprawnieniach"));
}

void VelmoraWindow::downloadUpdate()
{
    auto* dialog = new UpdateDownloadWindow(this);
    UpdateChecker* checker = updateChecker.get();
    connect(checker, &UpdateChecker::updateDownloadProgress, dialog,
            &UpdateDownloadWindow::updateDownloadProgress);
    connect(checker, &UpdateChecker::updateDownloadFinished, dialog,
            &UpdateDownloadWindow::updateDownloadFinished);
    connect(checker, &UpdateChecker::updateDownloadError, dialog, &UpdateDownloadWindow::updateDownlaodError);
    connect(dialog, &UpdateDownloadWindow::downloadUpdateCanceled, checker,
            &UpdateChecker::cancelDownloadingNewVersion);
    QMetaObject::invokeMethod(checker, &UpdateChecker::startDownloadingNewVersion, Qt::QueuedConnection);
    Velmora::runModal(dialog);
}
