// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>

/// What follows from a device's config name (Ups::model_name) alone.
namespace Velmora {

/// A device that stands for a group of parallel physical units.
[[nodiscard]] bool isVirtualDevice(const QString& configName);

/// A generating set; its spelling is exact.
[[nodiscard]] bool isGenset(const QString& configName);

/// Powers of these devices are shown in kW and kVA.
[[nodiscard]] bool isLargeDevice(const QString& configName);

/// The three-phase family, which also keeps an event history.
[[nodiscard]] bool isThreePhaseFamily(const QString& configName);

/// Load is shown per phase: the three-phase family and virtual devices.
[[nodiscard]] bool showsThreePhases(const QString& configName);

/// False for a model whose settings cannot be edited, whatever the service reports.
[[nodiscard]] bool hasEditableConfiguration(const QString& configName);

/// Resource path of the model family's picture, without suffix; a name without a picture leads to no file.
[[nodiscard]] QString devicePictureName(const QString& configName);

/// Name of the resource ":/data/data/<stem>.xml" with the model's event definitions. A model without advanced
/// event options gets its config name, behind which there is no file.
[[nodiscard]] QString eventDefinitionStem(const QString& configName);

/// Stems of all event definition resources that exist.
[[nodiscard]] QStringList eventDefinitionStems();

/// Whether events of this model can be bound to expressions instead of plain states.
[[nodiscard]] bool hasAdvancedEventOptions(const QString& configName);

} // namespace Velmora
