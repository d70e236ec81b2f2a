// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "devices/core/UpsConfigurationChecks.h"

#include "devices/core/DeviceRegistrationRules.h"
#include "devices/core/UpsConfiguration.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <algorithm>
#include <initializer_list>

namespace Velmora {
namespace {

using Kind = ConfigurationPrompt::Kind;
using Prompts = std::vector<ConfigurationPrompt>;

constexpr int longestCredential = 30;
constexpr int standbyDelayEnd = 65535;
constexpr ushort asciiEnd = 128;

QString translated(const char* text)
{
    return QCoreApplication::translate("UPSConfigurationWindow", text);
}

bool containsOne(const QString& configName, std::initializer_list<const char*> families)
{
    return std::any_of(families.begin(), families.end(), [&configName](const char* family) {
        return configName.contains(QLatin1String(family), Qt::CaseInsensitive);
    });
}

bool isOneOf(const QString& key, std::initializer_list<const char*> keys)
{
    return std::any_of(keys.begin(), keys.end(),
                       [&key](const char* candidate) { return key == QLatin1String(candidate); });
}

void addCommandPrompts(Prompts& prompts, const QString& configName, const QString& key)
{
    if (key == QLatin1String("battery_short_test") &&
        containsOne(configName, {"quenta", "lumolcd", "fennaiipro"}))
        prompts.push_back(
            {Kind::Information,
             translated(QT_TRANSLATE_NOOP(
                 "UPSConfigurationWindow",
                 "W przypadku niepowodzenia testu baterii UPS będzie wydawał sygnał dźwiękowy co 2 sekundy. "
                 "Jeżeli stan baterii będzie krytyczny UPS zasygnalizuje to świeceniem czerwonej diody."))});
    if (key == QLatin1String("epo") && containsOne(configName, {"tarvex33", "tarvexrt", "hedrix", "meridian",
                                                                "tarvex_dual31", "tarvexrtplus6_10"}))
        prompts.push_back(
            {Kind::Question,
             translated(QT_TRANSLATE_NOOP("UPSConfigurationWindow",
                                          "Nastąpi awaryjne wyłączenie zasilania (EPO). Czy kontynuować?"))});
    if (key == QLatin1String("reset_battery_error") && containsOne(configName, {"cormelrt", "lumolcd"}))
        prompts.push_back(
            {Kind::Warning,
             translated(QT_TRANSLATE_NOOP(
                 "UPSConfigurationWindow",
                 "Nastąpi reset licznika zużycia akumulatora.\nFunkcję resetu należy wykonać jednorazowo, "
                 "niezwłocznie po każdej wymianie akumulatora w UPS. Czy kontynuować?"))});
}

/// Why the network card of these devices would not take the value; empty if it would.
QString addressFault(const QString& key, const QString& value)
{
    const bool isAddress = isAssignedByDhcp(key) || key == QLatin1String("snmp_notification_ip");
    return isAddress && !isDottedAddress(value)
               ? translated(QT_TRANSLATE_NOOP("UPSConfigurationWindow", "Wprowadzono nieprawidłowy adres IP"))
               : QString();
}

QString credentialFault(const QString& key, const QString& value)
{
    if (!isOneOf(key, {"http_service_pass", "http_service_user", "read_community", "write_community",
                       "snmp_notification_pass"}))
        return {};
    if (value.size() > longestCredential)
        return translated(QT_TRANSLATE_NOOP("UPSConfigurationWindow",
                                            "Hasło i nazwa użytkownika nie mogą być dłuższe niż 30 znaków"));
    const bool isAscii = std::all_of(value.cbegin(), value.cend(),
                                     [](QChar character) { return character.unicode() < asciiEnd; });
    return isAscii ? QString()
                   : translated(QT_TRANSLATE_NOOP("UPSConfigurationWindow",
                                                  "Hasło lub nazwa użytkownika zawiera niedozwolone znaki"));
}

QString delayFault(const QString& key, const QString& value)
{
    static const QRegularExpression digits(QStringLiteral("\\A[0-9]*\\z"));
    if (key != QLatin1String("standby_delay"))
        return {};
    bool fits = true;
    const int delay = value.isEmpty() ? 0 : value.toInt(&fits);
    return digits.match(value).hasMatch() && fits && delay < standbyDelayEnd
               ? QString()
               : translated(QT_TRANSLATE_NOOP("UPSConfigurationWindow", "Dopuszczalny zakres to 0 - 65534"));
}

void addCardPrompts(Prompts& prompts, const QString& key, const QString& value)
{
    for (const auto& fault : {addressFault, credentialFault, delayFault}) {
        const QString text = fault(key, value);
        if (!text.isEmpty()) {
            prompts.push_back({Kind::Refusal, text});
            return;
        }
    }
    if (isAssignedByDhcp(key) || key == QLatin1String("dhcp_enable"))
        prompts.push_back(
            {Kind::Notice,
             translated(QT_TRANSLATE_NOOP(
                 "UPSConfigurationWindow",
                 "Zmiany parametrów \"Adres IP\", \"Maska podsieci\", \"Brama domyślna\" oraz \"DHCP "
                 "włączony\" zostaną zastosowane po wyłączeniu i ponownym uruchomieniu karty sieciowej "
                 "(opcja \"Resetuj ethernet\")"))});
}

} // namespace

std::vector<ConfigurationPrompt> configurationPrompts(const QString& configName, const QString& key,
                                                      const QString& value)
{
    Prompts prompts;
    addCommandPrompts(prompts, configName, key);
    // The network card of all other models checks for itself.
    if (containsOne(configName, {"cormelrt"}))
        addCardPrompts(prompts, key, value);
    return prompts;
}

} // namespace Velmora
