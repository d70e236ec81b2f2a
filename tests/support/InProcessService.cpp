// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "support/InProcessService.h"

#include "link/Cipher.h"
#include "link/Frame.h"

#include <QDateTime>
#include <QJsonDocument>
#include <QTcpSocket>

namespace Velmora::Tests {

/// A socket without a peer that keeps what is written.
class FrameSink final : public QTcpSocket
{
public:
    FrameSink() { setOpenMode(QIODevice::ReadWrite | QIODevice::Unbuffered); }

    QVector<QByteArray> frames;

protected:
    qint64 writeData(const char* data, qint64 size) override
    {
        frames.append(QByteArray(data, static_cast<int>(size)));
        return size;
    }
};

namespace {

const Service::Scenario& scenario()
{
    static const Service::Scenario read = [] {
        QString reason;
        auto builtIn = Service::readScenario(QString(), reason);
        if (!builtIn)
            qFatal("%s", qPrintable(reason));
        builtIn->warmUp = 0;
        return *builtIn;
    }();
    return read;
}

} // namespace

InProcessService::InProcessService()
    : m_backend(scenario(), 1,
                {QDateTime(QDate(2026, 3, 4), QTime(5, 0)), 1.0, [this] { return m_milliseconds; }})
    , m_logs(m_backend, m_store)
    , m_policies(m_backend, m_store, m_logs)
    , m_sink(new FrameSink)
    , m_session(m_sink)
    , m_dispatcher({m_store, m_backend, m_logs, scenario()},
                   [this](const QByteArray& document) { m_session.send(document); })
{
    QString reason;
    if (!m_store.open(QString(), scenario().initial, reason))
        qFatal("%s", qPrintable(reason));
    m_backend.setDevices(m_store.data().devices, {});
    m_backend.start();
}

InProcessService::~InProcessService() = default;

QVector<QByteArray> InProcessService::ask(const QByteArray& request)
{
    m_milliseconds += 2000;
    m_backend.devices();
    m_sink->frames.clear();
    m_dispatcher.handle(m_session, QString::fromUtf8(request));
    QVector<QByteArray> documents;
    for (const QByteArray& frame : qAsConst(m_sink->frames)) {
        const bool whole = Utils::getMessegaSize(frame.left(4)) == frame.size() - Utils::frameHeaderSize;
        documents.append(whole ? decryptToUtf8(frame.mid(Utils::frameHeaderSize)) : QByteArray());
    }
    return documents;
}

QByteArray InProcessService::stored() const
{
    return QJsonDocument(Service::toJson(m_store.data())).toJson();
}

QByteArray InProcessService::pass() const
{
    return "<pass>" + m_store.data().administratorDigest.toUtf8() + "</pass>";
}

} // namespace Velmora::Tests
