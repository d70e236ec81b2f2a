// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "admin/core/UpdateChecker.h"

#include "admin/core/UpdateRules.h"
#include "app/ControlPanelConfiguration.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QSaveFile>
#include <QXmlStreamReader>

#include <utility>

namespace {

constexpr int answerTime = 5000;
constexpr int statusOk = 200;

QString updateFile()
{
    return QStringLiteral("update.bin");
}

} // namespace

UpdateChecker::UpdateChecker(Velmora::UpdateEnvironment environment)
    : m_environment(std::move(environment))
{
    m_noResponseTimer.setObjectName(QStringLiteral("noResponseTimer"));
    m_noResponseTimer.setSingleShot(true);
    m_noResponseTimer.setInterval(answerTime);
    connect(&m_noResponseTimer, &QTimer::timeout, this, &UpdateChecker::noResponseTimeout);
}

UpdateChecker::~UpdateChecker()
{
    if (!m_thread.isRunning())
        return;
    QThread* home = QThread::currentThread();
    QMetaObject::invokeMethod(
        this, [this, home] { leaveThread(home); }, Qt::QueuedConnection);
    m_thread.wait();
}

void UpdateChecker::start()
{
    moveToThread(&m_thread);
    m_thread.start(QThread::InheritPriority);
}

void UpdateChecker::leaveThread(QThread* home)
{
    m_noResponseTimer.stop();
    cancelDownloadingNewVersion();
    delete std::exchange(m_manager, nullptr);
    moveToThread(home);
    m_thread.quit();
}

QNetworkReply* UpdateChecker::get(const QUrl& url)
{
    if (!m_manager) {
        m_manager = new QNetworkAccessManager(this);
        // A redirect that is not followed would count as an answer, and its page as an installer.
        m_manager->setRedirectPolicy(QNetworkRequest::NoLessSafeRedirectPolicy);
    }
    return m_manager->get(QNetworkRequest(url));
}

void UpdateChecker::checkForUpdate(bool userRequested)
{
    if (userRequested && !m_noResponseTimer.isActive())
        m_noResponseTimer.start();
    QNetworkReply* reply = get(m_environment.descriptor);
    connect(reply, &QNetworkReply::finished, this, [this, reply] { descriptorVersionIsReady(reply); });
}

void UpdateChecker::descriptorVersionIsReady(QNetworkReply* reply)
{
    reply->deleteLater();
    // The timer runs on, and tells a user who asked.
    if (reply->error() != QNetworkReply::NoError)
        return;
    const QByteArray body = reply->readAll();
    QXmlStreamReader reader(QString::fromUtf8(body.constData()));
    // What comes from the network cannot make itself longer: a few bytes could stand for gigabytes.
    reader.setEntityExpansionLimit(0);
    while (!reader.atEnd()) {
        if (!reader.readNextStartElement() || reader.name() != QLatin1String("versionNumber"))
            continue;
        reader.readNext();
        m_version = reader.text().toString();
        emit updateAvailable(m_noResponseTimer.isActive(), m_version);
    }
    m_noResponseTimer.stop();
}

void UpdateChecker::noResponseTimeout()
{
    emit networkUnavailable();
}

void UpdateChecker::startDownloadingNewVersion()
{
    cancelDownloadingNewVersion();
    const QString fileName = Velmora::installerFileName(ControlPanelConfiguration().getPlatform());
    QUrl url = m_environment.installerFolder;
    url.setPath(url.path() + fileName);
    m_installerReply = get(url);
    connect(m_installerReply, &QNetworkReply::downloadProgress, this, &UpdateChecker::downloadProgress);
    connect(m_installerReply, &QNetworkReply::finished, this, &UpdateChecker::installerDownloadFinished);
}

void UpdateChecker::downloadProgress(qint64 received, qint64 total)
{
    // An empty body has a total of 0, one of unknown size -1.
    if (total > 0)
        emit updateDownloadProgress(static_cast<int>(100 * received / total));
    else
        emit updateDownloadProgress(static_cast<int>(total));
}

void UpdateChecker::cancelDownloadingNewVersion()
{
    QNetworkReply* reply = std::exchange(m_installerReply, nullptr);
    if (!reply)
        return;
    // abort() reports the end at once: nobody is to take it for an error.
    reply->disconnect(this);
    reply->abort();
    reply->deleteLater();
}

void UpdateChecker::installerDownloadFinished()
{
    QNetworkReply* reply = std::exchange(m_installerReply, nullptr);
    if (!reply)
        return;
    reply->deleteLater();
    const QString failure =
        reply->error() == QNetworkReply::NoError ? saveInstaller(*reply) : reply->errorString();
    if (!failure.isEmpty()) {
        emit updateDownloadError(failure);
        return;
    }
    emit updateDownloadFinished();
    startInstaller();
}

QString UpdateChecker::saveInstaller(QNetworkReply& reply)
{
    // Some answers that are no error bring no file, or a part of one.
    const int status = reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    if (status != statusOk)
        return tr("Serwer nie przysłał całego pliku (HTTP %1)").arg(status);
    // Replaces an older file as a whole: on a full disk no half of an installer is left to be run.
    QSaveFile file(updateFile());
    const QByteArray body = reply.readAll();
    if (!file.open(QIODevice::WriteOnly) || file.write(body) != body.size() || !file.commit())
        return tr("Nie można zapisać pliku %1: %2").arg(updateFile(), file.errorString());
    return {};
}

void UpdateChecker::startInstaller() const
{
    m_environment.runAndWait(QStringLiteral("chmod"), {QStringLiteral("+x"), updateFile()});
    m_environment.startDetached(QStringLiteral("xterm"), {QLatin1String("./") + updateFile()});
    m_environment.endPanel();
}
