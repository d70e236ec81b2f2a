// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include "admin/core/UpdateEnvironment.h"

#include <QObject>
#include <QThread>
#include <QTimer>

class QNetworkAccessManager;
class QNetworkReply;

/// Looks on the maker's web server for a newer panel and fetches its installer. After start() it lives on a
/// thread of its own: its slots are reached by queued calls only, its signals arrive queued.
class UpdateChecker final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(UpdateChecker)

public:
    /// Has no parent, since it moves to another thread.
    explicit UpdateChecker(Velmora::UpdateEnvironment environment);
    /// Drops what is under way, then stops and joins the thread.
    ~UpdateChecker() override;

    void start();

signals:
    /// `userRequested`: the user asked for the check and was not yet told that the server does not answer.
    void updateAvailable(bool userRequested, QString version);
    void networkUnavailable();
    /// Percent; negative while the size of the installer is unknown.
    void updateDownloadProgress(int percent);
    void updateDownloadFinished();
    /// The reason in words; the file that stood before is untouched.
    void updateDownloadError(QString reason);

public slots:
    /// Failures show, by networkUnavailable(), only in a check that the user requested.
    void checkForUpdate(bool userRequested);
    void descriptorVersionIsReady(QNetworkReply* reply);
    void downloadProgress(qint64 received, qint64 total);
    void startDownloadingNewVersion();
    void cancelDownloadingNewVersion();
    void noResponseTimeout();
    void installerDownloadFinished();

private:
    [[nodiscard]] QNetworkReply* get(const QUrl& url);
    /// Writes the reply's body; an empty text if all of it stands in the file, the reason otherwise.
    [[nodiscard]] static QString saveInstaller(QNetworkReply& reply);
    void startInstaller() const;
    void leaveThread(QThread* home);

    const Velmora::UpdateEnvironment m_environment;
    QThread m_thread;                           ///< stays on the thread that made it
    QNetworkAccessManager* m_manager = nullptr; ///< made by the first request, on the thread that uses it
    QNetworkReply* m_installerReply = nullptr;  ///< null unless an installer is being fetched
    QTimer m_noResponseTimer{this};             ///< a child, so that it moves along
    QString m_version;                          ///< what the last descriptor named
};
