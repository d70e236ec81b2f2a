// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include "link/DeviceRecords.h"

#include <QMap>
#include <QString>
#include <QStringList>

namespace Velmora {

/// What the conditions of a device's events can test: work states, messages, alarms and numeric parameters,
/// as the resource of its model family names them. The keys are what the service evaluates.
struct EventDefinitions
{
    enum class Failure {
        None,
        Missing,    ///< no such file, as for every model without advanced event options
        Unreadable, ///< the file cannot be opened
        Malformed   ///< the XML broke off; what stood before the fault was read
    };

    /// What stands in eventKeys and is no numeric parameter; compared with ON or OFF.
    [[nodiscard]] bool isEventState(const QString& key) const;
    /// What stands in eventKeys and is a numeric parameter.
    [[nodiscard]] bool isParam(const QString& key) const;

    /// Labels of eventKeys in their order. A key without a label gets an empty one in eventLabels as well, so
    /// that eventKey() finds it from its blank row.
    [[nodiscard]] QStringList getEventList();
    /// The key behind a row of getEventList(): of keys that share the label the last one in the alphabet,
    /// offered or not; empty for a text that is nobody's label.
    [[nodiscard]] QString eventKey(const QString& label) const;

    /// Whether there was a file to read. If not, nothing can be offered and nothing is a valid key.
    [[nodiscard]] bool isFound() const;
    /// Title and text for the user; empty without a failure.
    [[nodiscard]] QString failureTitle() const;
    [[nodiscard]] QString failureText() const;

    QString path;
    Failure failure = Failure::None;
    QStringList eventKeys;              ///< what the device is offered, in the order of the file
    QMap<QString, QString> eventLabels; ///< by key, also of keys that this device is not offered
};

/// Resource with the definitions for the model; there need not be one.
[[nodiscard]] QString eventDefinitionsPath(const QString& configName);

/// Reads the file anew on every call. Entries that need a capability which `device` does not report are left
/// out of eventKeys. `language` is the word of the panel's settings: Polish labels for "polish", otherwise
/// English.
[[nodiscard]] EventDefinitions readEventDefinitions(const QString& path, const Utils::Ups& device,
                                                    const QString& language);

} // namespace Velmora
