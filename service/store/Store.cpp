// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "service/store/Store.h"

#include "service/Logging.h"

#include <QFile>
#include <QJsonDocument>
#include <QSaveFile>

namespace Velmora::Service {

namespace {

QString describe(const QString& action, const QString& path, const QString& detail)
{
    return QStringLiteral("cannot %1 state file \"%2\": %3").arg(action, path, detail);
}

} // namespace

bool Store::open(const QString& path, const StoredData& initial, QString& reason)
{
    m_path = path;
    m_data = initial;
    if (m_path.isEmpty())
        return true;
    return QFile::exists(m_path) ? read(reason) : write(m_data, reason);
}

bool Store::update(const std::function<void(StoredData&)>& change)
{
    StoredData changed = m_data;
    change(changed);
    QString reason;
    if (!m_path.isEmpty() && !write(changed, reason)) {
        qCCritical(serviceLog).noquote() << reason;
        return false;
    }
    m_data = changed;
    return true;
}

bool Store::read(QString& reason)
{
    QFile file(m_path);
    if (!file.open(QIODevice::ReadOnly)) {
        reason = describe(QStringLiteral("read"), m_path, file.errorString());
        return false;
    }
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(file.readAll(), &error);
    if (!document.isObject()) {
        reason = describe(QStringLiteral("read"), m_path,
                          error.error == QJsonParseError::NoError ? QStringLiteral("not a JSON object")
                                                                  : error.errorString());
        return false;
    }
    QString detail;
    const std::optional<StoredData> data = storedDataFromJson(document.object(), detail);
    if (!data) {
        reason = describe(QStringLiteral("read"), m_path, detail);
        return false;
    }
    m_data = *data;
    return true;
}

bool Store::write(const StoredData& data, QString& reason) const
{
    QSaveFile file(m_path);
    const QByteArray bytes = QJsonDocument(toJson(data)).toJson();
    // The file holds passwords of the mail account and of computers.
    const bool written = file.open(QIODevice::WriteOnly) &&
                         file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner) &&
                         file.write(bytes) == bytes.size() && file.commit();
    if (!written)
        reason = describe(QStringLiteral("write"), m_path, file.errorString());
    return written;
}

} // namespace Velmora::Service
