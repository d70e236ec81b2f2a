// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include "link/DeviceRecords.h"

#include <QList>
#include <QString>
#include <QStringList>

/// The models that the panel knows. The service names a device's model by its config name only; everything a
/// user reads or picks about a model comes from here. All comparisons are exact and case-sensitive.
namespace Velmora::Utils {

/// One entry per model and interface, in the order in which the boxes of the dialogs list them. Built anew on
/// every call, since two names follow the language that is installed at that moment.
[[nodiscard]] QList<Model> getAllSuportedModelList();

/// The entry with this config name; null if `models`, which the pointer leads into, has none.
[[nodiscard]] const Model* findModel(const QList<Model>& models, const QString& configName);

/// Short name of a config name; "unknown" if no model has it.
[[nodiscard]] QString getModelShortName(const QString& configName);

/// Config name of a short name on an interface ("USB", "RS232", "SNMP" or empty); "unknown" if there is none.
[[nodiscard]] QString getModelConfigName(const QString& shortName, const QString& interface);

/// Interfaces of every entry with this short name, in catalogue order; empty for an unknown name.
[[nodiscard]] QStringList getInterfaceType(const QString& shortName);

} // namespace Velmora::Utils
