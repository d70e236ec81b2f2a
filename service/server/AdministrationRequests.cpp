// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "link/TextHelpers.h"
#include "service/Logging.h"
#include "service/mail/MailTest.h"
#include "service/server/RequestDispatcher.h"

namespace Velmora::Service {

namespace {

void sendApplicationConfiguration(const RequestScope& scope, const Element& /*request*/)
{
    KeyValues settings = scope.store().data().application;
    // The password of the mail account is for administrators only.
    if (!scope.isAdministrator())
        settings.insert(QStringLiteral("smtp2_pass"), QString());
    scope.reply(valuesReply(QLatin1String("application_configuration"), settings));
}

void saveApplicationConfiguration(const RequestScope& scope, const Element& request)
{
    KeyValues settings = scope.store().data().application;
    for (auto entry = settings.begin(); entry != settings.end(); ++entry) {
        const QByteArray tag = entry.key().toLatin1();
        if (const Element* value = request.child(QLatin1String(tag)))
            entry.value() = value->text;
    }
    if (encodeFrame(valuesReply(QLatin1String("application_configuration"), settings)).isEmpty()) {
        scope.refuse(QStringLiteral("The settings were not saved: they are longer than a panel can read."));
        return;
    }
    static_cast<void>(scope.change([&settings](StoredData& changed) { changed.application = settings; }));
}

void testMailAccount(const RequestScope& scope, const Element& request)
{
    QString fault;
    const std::optional<MailSettings> settings = readMailSettings(request, fault);
    if (!settings) {
        scope.reply(mailTestReply(MailTest::failed, {fault}));
        return;
    }
    ClientSession* session = &scope.session();
    session->mailTest() = std::make_unique<MailTest>(*settings);
    MailTest* test = session->mailTest().get();
    QObject::connect(test, &MailTest::reported, session, [session](int status, const QStringList& messages) {
        session->send(mailTestReply(status, messages));
    });
    test->start();
}

void sendAdministratorDigest(const RequestScope& scope, const Element& /*request*/)
{
    scope.reply(textReply(QLatin1String("get_password"), scope.store().data().administratorDigest));
}

void changeAdministratorPassword(const RequestScope& scope, const Element& request)
{
    const QString password = request.childText(QLatin1String("new_password"));
    if (password.isEmpty()) {
        scope.refuse(QStringLiteral("The new password is empty."));
        return;
    }
    const QString digest = Velmora::Utils::makeMd5(password);
    if (scope.change([&digest](StoredData& changed) { changed.administratorDigest = digest; }))
        scope.reply(emptyReply(QLatin1String("admin_password_changed")));
}

// No answer stands for a client that cannot be reached.
void sendClientDigest(const RequestScope& scope, const Element& request)
{
    const QString address = request.childText(QLatin1String("netclient_address"));
    const QMap<QString, QString>& digests = scope.store().data().clientDigests;
    if (digests.contains(address))
        scope.reply(textReply(QLatin1String("netclient_password"), digests.value(address)));
    else
        qCInfo(serviceLog).noquote() << "no network client answers at" << address.left(64);
}

void changeClientPassword(const RequestScope& scope, const Element& request)
{
    const QString address = request.childText(QLatin1String("netclient_address"));
    if (!scope.store().data().clientDigests.contains(address)) {
        scope.refuse(QStringLiteral("No network client answers at this address."));
        return;
    }
    // It may be empty, but not left out, nor hold what looks like elements: panels send it unescaped.
    const Element* password = request.child(QLatin1String("password"));
    if (!password || !password->children.isEmpty()) {
        scope.refuse(QStringLiteral("The new password cannot be read."));
        return;
    }
    const QString digest = Velmora::Utils::makeMd5(password->text);
    if (scope.change([&](StoredData& changed) { changed.clientDigests.insert(address, digest); }))
        scope.reply(emptyReply(QLatin1String("netclient_password_changed")));
}

} // namespace

QVector<RequestEntry> administrationRequests()
{
    return {
        {"get_application_configuration", Access::Watch, sendApplicationConfiguration},
        {"application_configuration", Access::Change, saveApplicationConfiguration},
        {"smtp2_send_test_mail", Access::Change, testMailAccount},
        {"get_password", Access::Watch, sendAdministratorDigest},
        {"change_password", Access::Change, changeAdministratorPassword},
        {"get_netclient_pass", Access::Watch, sendClientDigest},
        {"change_netclient_password", Access::Change, changeClientPassword},
    };
}

} // namespace Velmora::Service
