// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include "link/ServiceSettings.h"

#include <QString>

namespace Velmora {

/// What stands in a field of the mail form, and whether its validator calls it acceptable.
struct SmtpFormField
{
    QString text;
    bool acceptable = false;
};

struct SmtpFormEntry
{
    QString server;
    SmtpFormField port;
    SmtpFormField senderAddress;
    SmtpFormField timeout;
};

/// The fields that are wrong.
struct SmtpFormFaults
{
    bool server = false;
    bool port = false;
    bool senderAddress = false;
    bool timeout = false;

    [[nodiscard]] bool any() const { return server || port || senderAddress || timeout; }
};

/// With `allowEmpty` a form that is blank altogether is right: no mail is sent then.
[[nodiscard]] SmtpFormFaults checkSmtpForm(const SmtpFormEntry& entry, bool allowEmpty);

/// Whether the record is what a blank form is saved as.
[[nodiscard]] bool isBlankMailAccount(const Utils::SmtpConfig& config);

/// Regular expression that a sender's address matches as a whole.
[[nodiscard]] QString senderAddressPattern();

// Kinds of encryption, by number in the form and by word on the wire.
constexpr int encryptionIdNone = 0;
constexpr int encryptionIdTls = 1;
constexpr int encryptionIdSsl = 2;
constexpr char encryptionNameNone[] = "none";
constexpr char encryptionNameTls[] = "tls";
constexpr char encryptionNameSsl[] = "ssl";

/// Ignores case; a word that is unknown means TLS.
[[nodiscard]] int encryptionId(const QString& name);
/// A number that is unknown means TLS.
[[nodiscard]] QString encryptionName(int id);

} // namespace Velmora
