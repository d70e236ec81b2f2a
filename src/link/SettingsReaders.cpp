// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "link/SettingsReaders.h"

#include "link/TokenHelpers.h"

namespace Velmora::Utils {

namespace {

// Unlike the other flags of the wire, these two are true for anything but the text "0".
bool readSwitch(QXmlStreamReader& reader)
{
    return readText(reader) != QLatin1String("0");
}

void readField(QXmlStreamReader& reader, ApplicationConfiguration& configuration)
{
    const QStringRef name = reader.name();
    if (name == QLatin1String("smtp2_security_type"))
        configuration.security_type = readText(reader);
    else if (name == QLatin1String("smtp2_server"))
        configuration.server = readText(reader);
    else if (name == QLatin1String("smtp2_port"))
        configuration.port = readNumber(reader);
    else if (name == QLatin1String("smtp2_timeout"))
        configuration.timeout = readNumber(reader);
    else if (name == QLatin1String("smtp2_sender_address"))
        configuration.sender_address = readText(reader);
    else if (name == QLatin1String("smtp2_authentication"))
        configuration.authentication = readSwitch(reader);
    else if (name == QLatin1String("smtp2_user"))
        configuration.user = readText(reader);
    else if (name == QLatin1String("smtp2_pass"))
        configuration.pass = readText(reader);
    else if (name == QLatin1String("log_files_path"))
        configuration.log_files_path = readText(reader);
    else if (name == QLatin1String("run_on_boot"))
        configuration.run_on_boot = readSwitch(reader);
}

} // namespace

std::unique_ptr<ApplicationConfiguration> parseAppConfiguration(QXmlStreamReader& reader)
{
    auto configuration = std::make_unique<ApplicationConfiguration>();
    if (reader.name() != QLatin1String("application_configuration"))
        return configuration;
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isStartElement())
            readField(reader, *configuration);
    }
    return configuration;
}

} // namespace Velmora::Utils
