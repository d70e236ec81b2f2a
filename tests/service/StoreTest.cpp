// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "service/store/Store.h"
#include "service/scenario/Scenario.h"

#include <QFile>
#include <QJsonDocument>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

using namespace Velmora::Service;

namespace {

QByteArray bytesOf(const Store& store)
{
    return QJsonDocument(toJson(store.data())).toJson();
}

} // namespace

class StoreTest final : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void everythingComesBackAndARefusedWriteChangesNothing();
    void badFileIsNamedAndLeft_data();
    void badFileIsNamedAndLeft();

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_path;
    QString m_reason;
    Store m_store;
};

void StoreTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_path = m_folder->filePath(QStringLiteral("state.json"));
    const std::optional<Scenario> scenario = readScenario(QString(), m_reason);
    QVERIFY2(scenario && m_store.open(m_path, scenario->initial, m_reason), qPrintable(m_reason));
}

void StoreTest::everythingComesBackAndARefusedWriteChangesNothing()
{
    QVERIFY(m_store.update([](StoredData& data) {
        data.settings[2].insert(QStringLiteral("output_voltage"), QStringLiteral("231"));
        data.application.insert(QStringLiteral("smtp2_server"), QStringLiteral("a \"b\" <c> & ż"));
        data.nextDeviceId = 77;
        data.policies[3].events.append(Element{
            QStringLiteral("event"), {}, {Element{QStringLiteral("odd"), QStringLiteral(" a\n<b> "), {}}}});
        data.devices.last().userDefinedName = QStringLiteral("ostatni");
        data.clientDigests.insert(QStringLiteral("192.0.2.9"), QStringLiteral("abc"));
    }));
    QVERIFY(!(QFile::permissions(m_path) & (QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther)));
    Store again;
    QVERIFY2(again.open(m_path, StoredData(), m_reason), qPrintable(m_reason));
    QCOMPARE(bytesOf(again), bytesOf(m_store));
    QCOMPARE(again.data().policies.value(3).events.first().children.first().text, QStringLiteral(" a\n<b> "));

    // The folder goes away with the file, so there is nowhere to write to.
    m_folder.reset();
    QTest::ignoreMessage(QtCriticalMsg, QRegularExpression(QStringLiteral("cannot write state file")));
    QVERIFY(!m_store.update([](StoredData& data) { data.nextDeviceId = 500; }));
    QCOMPARE(bytesOf(m_store), bytesOf(again));
}

void StoreTest::badFileIsNamedAndLeft_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("named");
    const auto row = [](const char* name, const char* bytes, const char* named) {
        QTest::newRow(name) << QByteArray(bytes).replace('\'', '"') << QString::fromLatin1(named);
    };
    row("half a state", "{'format':1,'devices':[", "unterminated");
    row("state that is a list", "[]", "not a JSON object");
    row("state of another format", "{'format':9}", "format");
    row("state without a password", "{'format':1,'devices':[]}", "administrator_digest");
    row("device with a number for a name", "{'format':1,'devices':[{'id':1,'model_name':5}]}", "entry 1");
    row("scenario: id used twice", "{'devices':[{'id':1,'model_name':'A'},{'id':1,'model_name':'B'}]}",
        "entry 2");
    row("scenario: unknown feed", "{'devices':[{'id':1,'model_name':'A','simulation':{'feed':'x'}}]}",
        "unknown feed");
    row("scenario: failure longer than its interval",
        "{'feeds':[{'name':'f','interval':5,'duration':6}],'devices':[]}", "\"f\"");
    row("scenario: misspelt field", "{'devices':[{'id':1,'model_name':'A','simulation':{'laod':[5]}}]}",
        "\"laod\"");
    row("scenario: number for a flag", "{'devices':[{'id':1,'model_name':'A','simulation':{'steady':1}}]}",
        "\"steady\"");
    row("scenario: number for a text",
        "{'devices':[{'id':1,'model_name':'A','simulation':{'values':{'run_time':5}}}]}", "no text");
}

void StoreTest::badFileIsNamedAndLeft()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, named);
    QFile file(m_path);
    QVERIFY(file.open(QIODevice::ReadWrite | QIODevice::Truncate));
    QVERIFY(file.write(bytes) == bytes.size() && file.flush());
    const bool isScenario = QByteArray(QTest::currentDataTag()).startsWith("scenario");
    QVERIFY(isScenario ? !readScenario(m_path, m_reason) : !Store().open(m_path, StoredData(), m_reason));
    QVERIFY2(m_reason.contains(m_path) && m_reason.contains(named), qPrintable(m_reason));
    QVERIFY(file.seek(0));
    QCOMPARE(file.readAll(), bytes);
}

QTEST_GUILESS_MAIN(StoreTest)
#include "StoreTest.moc"
