// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "service/store/Store.h"
#include "service/TestScenario.h"

#include <QFile>
#include <QJsonDocument>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

using namespace Velmora::Service;
using namespace Velmora::Tests;

class StoreTest final : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void everythingComesBack();
    void fileIsForItsOwnerOnly();
    void badFileIsNamed_data();
    void badFileIsNamed();
    void refusedWriteChangesNothing();
    void brokenScenarioIsNamed_data();
    void brokenScenarioIsNamed();

private:
    [[nodiscard]] QString path() const { return m_folder->filePath(QStringLiteral("state.json")); }
    void writeFile(const QByteArray& bytes) const;

    std::unique_ptr<QTemporaryDir> m_folder;
};

void StoreTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
}

void StoreTest::writeFile(const QByteArray& bytes) const
{
    QFile file(path());
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), bytes.size());
}

void StoreTest::everythingComesBack()
{
    QString reason;
    Store store;
    QVERIFY2(store.open(path(), defaultScenario().initial, reason), qPrintable(reason));
    QVERIFY(store.update([](StoredData& data) {
        data.settings[2].insert(QStringLiteral("output_voltage"), QStringLiteral("231"));
        data.application.insert(QStringLiteral("smtp2_server"), QStringLiteral("a \"b\" <c> & ż"));
        data.nextDeviceId = 77;
        data.policies[3].events.append(Element{
            QStringLiteral("event"), {}, {Element{QStringLiteral("odd"), QStringLiteral(" a\n<b> "), {}}}});
        data.devices.last().userDefinedName = QStringLiteral("ostatni");
        data.clientDigests.insert(QStringLiteral("192.0.2.9"), QStringLiteral("abc"));
    }));
    Store again;
    QVERIFY2(again.open(path(), StoredData(), reason), qPrintable(reason));
    QCOMPARE(QJsonDocument(toJson(again.data())).toJson(), QJsonDocument(toJson(store.data())).toJson());
    QCOMPARE(again.data().nextDeviceId, 77);
    QCOMPARE(again.data().policies.value(3).events.first().children.first().text, QStringLiteral(" a\n<b> "));
}

void StoreTest::fileIsForItsOwnerOnly()
{
    QString reason;
    Store store;
    QVERIFY(store.open(path(), defaultScenario().initial, reason));
    const QFileDevice::Permissions others =
        QFileDevice::ReadGroup | QFileDevice::WriteGroup | QFileDevice::ReadOther | QFileDevice::WriteOther;
    QVERIFY(!(QFile::permissions(path()) & others));
    QVERIFY(store.update([](StoredData& data) { data.nextDeviceId = 50; }));
    QVERIFY(!(QFile::permissions(path()) & others));
}

void StoreTest::badFileIsNamed_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("named");
    const QByteArray digest = R"("administrator_digest":"x")";
    QTest::newRow("empty file") << QByteArray() << "illegal value";
    QTest::newRow("no JSON") << QByteArray("hello") << "illegal value";
    QTest::newRow("half a file") << QByteArray(R"({"format":1,"devices":[)") << "unterminated";
    QTest::newRow("a list") << QByteArray("[]") << "not a JSON object";
    QTest::newRow("another format") << QByteArray(R"({"format":9})") << "format";
    QTest::newRow("no devices") << QByteArray(R"({"format":1})") << "devices";
    QTest::newRow("no password") << QByteArray(R"({"format":1,"devices":[]})") << "administrator_digest";
    QTest::newRow("device without id")
        << QByteArray(R"({"format":1,)" + digest + R"(,"devices":[{"model_name":"Quenta_USB"}]})")
        << "entry 1";
    QTest::newRow("device with a number for a name")
        << QByteArray(R"({"format":1,)" + digest + R"(,"devices":[{"id":1,"model_name":5}]})") << "entry 1";
}

void StoreTest::badFileIsNamed()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, named);
    writeFile(bytes);
    QString reason;
    Store store;
    QVERIFY(!store.open(path(), StoredData(), reason));
    QVERIFY2(reason.contains(path()) && reason.contains(named), qPrintable(reason));
    // A file that cannot be read is left as it is.
    QFile file(path());
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), bytes);
}

void StoreTest::refusedWriteChangesNothing()
{
    QString reason;
    Store store;
    QVERIFY(store.open(path(), defaultScenario().initial, reason));
    const QByteArray before = QJsonDocument(toJson(store.data())).toJson();
    // The folder goes away with the file, so there is nowhere to write to.
    m_folder.reset();
    QTest::ignoreMessage(QtCriticalMsg, QRegularExpression(QStringLiteral("cannot write state file")));
    QVERIFY(!store.update([](StoredData& data) { data.nextDeviceId = 500; }));
    QCOMPARE(QJsonDocument(toJson(store.data())).toJson(), before);
}

void StoreTest::brokenScenarioIsNamed_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("named");
    QTest::newRow("no JSON") << QByteArray("{,}") << "at byte 2";
    QTest::newRow("no devices") << QByteArray("{}") << "devices";
    QTest::newRow("id used twice")
        << QByteArray(R"({"devices":[{"id":1,"model_name":"A"},{"id":1,"model_name":"B"}]})") << "entry 2";
    QTest::newRow("unknown feed")
        << QByteArray(R"({"devices":[{"id":1,"model_name":"A","simulation":{"feed":"x"}}]})")
        << "unknown feed";
    QTest::newRow("failure longer than its interval")
        << QByteArray(R"({"feeds":[{"name":"f","interval":5,"duration":6}],"devices":[]})") << "\"f\"";
    QTest::newRow("misspelt field of a registration")
        << QByteArray(R"({"devices":[{"id":1,"model_name":"A","comport":"x"}]})") << "\"comport\"";
    QTest::newRow("misspelt field of a simulation")
        << QByteArray(R"({"devices":[{"id":1,"model_name":"A","simulation":{"laod":[5]}}]})") << "\"laod\"";
    QTest::newRow("number for a flag")
        << QByteArray(R"({"devices":[{"id":1,"model_name":"A","simulation":{"steady":1}}]})") << "\"steady\"";
    QTest::newRow("warm-up of a year") << QByteArray(R"({"warm_up":31536000,"devices":[]})") << "warm_up";
}

void StoreTest::brokenScenarioIsNamed()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, named);
    writeFile(bytes);
    QString reason;
    QVERIFY(!readScenario(path(), reason));
    QVERIFY2(reason.contains(path()) && reason.contains(named), qPrintable(reason));
}

QTEST_GUILESS_MAIN(StoreTest)
#include "StoreTest.moc"
