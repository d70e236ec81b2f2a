// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

namespace Velmora {

/// Unit of every temperature, in UTF-8.
constexpr char TEMPERATURE_LABEL[] = "°C";

/// One measurement that a state report may hold beyond the fields of the state panel.
struct ExInformation
{
    ExInformation(const QString& key, const QString& label, const QString& unit);

    QString key;   ///< key in the state report
    QString label; ///< translated caption, may hold a line break
    QString unit;  ///< may be empty
};

/// All measurements in the order in which they are shown; two captions differ for a genset.
[[nodiscard]] QList<ExInformation> extendedInformationCatalogue(bool isGenset);

/// Keys of the measurements that make the extended information worth opening: what merely identifies the
/// device or its card does not. Filled at the first call.
[[nodiscard]] const QStringList& exInformationsNames();

/// Whether a state report holds at least one key of exInformationsNames().
[[nodiscard]] bool containsAny(const QMap<QString, QString>& report);

} // namespace Velmora
