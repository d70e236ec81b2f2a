// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <memory>

class QSettings;

/// The panel's own ini file: what it needs before it can reach the service. Made on the stack by whoever
/// needs it and dropped at once; dropping it is what writes a change. A change that the file does not take
/// is lost with the program at the latest, and only save() tells of it.
class ControlPanelConfiguration final
{
public:
    ControlPanelConfiguration();
    ~ControlPanelConfiguration();
    Q_DISABLE_COPY_MOVE(ControlPanelConfiguration)

    /// A word such as "polish", see panelLocaleName(); set at installation, never by the panel.
    [[nodiscard]] QString getLanguage() const;
    [[nodiscard]] QString getServerAddress() const;
    void setServerAddress(const QString& address);
    /// Token of the download for this platform; set at installation, never by the panel.
    [[nodiscard]] QString getPlatform() const;
    [[nodiscard]] bool getCheckForUpdates() const;
    void setCheckForUpdates(bool check);
    [[nodiscard]] bool getDontShowAddUpsPrompt() const;
    void setDontShowAddUpsPrompt(const bool& dontShow);

    /// Writes the changes now; false if the file does not take them.
    [[nodiscard]] bool save();

private:
    std::unique_ptr<QSettings> m_settings;
};
