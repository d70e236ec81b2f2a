// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "app/ControlPanelConfiguration.h"

#include <QSettings>

namespace {

const QLatin1String languageKey("language");
const QLatin1String serverAddressKey("server_address");
const QLatin1String platformKey("platform");
const QLatin1String checkUpdatesKey("check_updates");
const QLatin1String dontShowAddUpsPromptKey("dont_show_addups_prompt");

QString iniPath()
{
    return qEnvironmentVariable("VELMORA_CONTROL_PANEL_INI",
                                QStringLiteral("/usr/share/velmora/control_panel.ini"));
}

} // namespace

ControlPanelConfiguration::ControlPanelConfiguration()
    : m_settings(std::make_unique<QSettings>(iniPath(), QSettings::IniFormat))
{
    // In every object: one reader without the codec would spoil the file's cache for all others.
    m_settings->setIniCodec("UTF-8");
}

ControlPanelConfiguration::~ControlPanelConfiguration() = default;

QString ControlPanelConfiguration::getLanguage() const
{
    return m_settings->value(languageKey).toString();
}

QString ControlPanelConfiguration::getServerAddress() const
{
    return m_settings->value(serverAddressKey).toString();
}

void ControlPanelConfiguration::setServerAddress(const QString& address)
{
    m_settings->setValue(serverAddressKey, address);
}

QString ControlPanelConfiguration::getPlatform() const
{
    return m_settings->value(platformKey).toString();
}

bool ControlPanelConfiguration::getCheckForUpdates() const
{
    return m_settings->value(checkUpdatesKey, true).toBool();
}

void ControlPanelConfiguration::setCheckForUpdates(bool check)
{
    m_settings->setValue(checkUpdatesKey, check);
}

bool ControlPanelConfiguration::getDontShowAddUpsPrompt() const
{
    return m_settings->value(dontShowAddUpsPromptKey, false).toBool();
}

void ControlPanelConfiguration::setDontShowAddUpsPrompt(const bool& dontShow)
{
    m_settings->setValue(dontShowAddUpsPromptKey, dontShow);
}

bool ControlPanelConfiguration::save()
{
    // Reading the file anew would tell nothing: Qt keeps what it could not write.
    m_settings->sync();
    return m_settings->status() == QSettings::NoError;
}
