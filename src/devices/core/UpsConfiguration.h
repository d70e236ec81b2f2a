// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

/// How the settings and commands of a device are shown. Which ones a device offers is told by the service's
/// configuration map alone, key to value; the catalogue only says how each key looks.
namespace Velmora {

/// Control that edits a setting.
enum UpsConfType {
    UpsConfTypeLineEdit = 0,
    UpsConfTypeCheckBox = 1,   ///< the value is an integer, not 0 for checked
    UpsConfTypeRadioGroup = 2, ///< the value is a ChoiceValue
    UpsConfTypeComboBox = 3    ///< the value is a ChoiceValue
};

/// Presentation of one configuration key.
struct UpsConfiguration
{
    UpsConfiguration(const QString& settingKey, const QString& caption, const QString& unitText,
                     UpsConfType control, const bool& isVisible, const bool& isWide);

    QString key;   ///< key in the configuration map
    QString label; ///< translated caption, may hold a line break
    QString unit;  ///< never translated, may be empty
    UpsConfType type;
    bool visible; ///< false: takes its place but is hidden
    bool wide;
};

/// Every key that the panel can show, in the order in which they are shown.
[[nodiscard]] QList<UpsConfiguration> upsConfigurationCatalogue();

/// One key of a map as it is placed in the dialog's two columns.
struct UpsConfigurationPlace
{
    UpsConfiguration setting;
    QString value; ///< as received
    int row = 0;
    int column = 0;
};

/// Places the keys of `map` that `catalogue` holds. The columns are parted at half of what was received,
/// unknown keys included.
[[nodiscard]] std::vector<UpsConfigurationPlace>
upsConfigurationPlaces(const QList<UpsConfiguration>& catalogue, const QMap<QString, QString>& map);

/// Value of a choice on the wire: the current option, then all options, joined by ";".
struct ChoiceValue
{
    QString current;
    QStringList options;
};

[[nodiscard]] ChoiceValue choiceValue(const QString& value);

/// Whether the key's line edit takes a short number only.
[[nodiscard]] bool isNumericSetting(const QString& key);

/// Whether the key's value must not be readable on the screen.
[[nodiscard]] bool isSecretSetting(const QString& key);

/// Whether the key belongs to the card's address, which is not edited while DHCP assigns it.
[[nodiscard]] bool isAssignedByDhcp(const QString& key);

/// Whether a row was changed: the user has touched it, and its present value, none if nothing is chosen, is
/// another text than the one received. A touched check box that came as neither "0" nor "1" always differs.
[[nodiscard]] bool settingDiffers(UpsConfType type, const QString& received,
                                  const std::optional<QString>& present, bool touched);

} // namespace Velmora
