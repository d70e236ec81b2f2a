// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>
#include <QUrl>

#include <functional>

namespace Velmora {

/// What an update reaches outside the panel: the maker's web server and the computer that it is installed
/// on. Tests put a server and functions of their own in place of the real ones.
struct UpdateEnvironment
{
    using Command = std::function<void(const QString& program, const QStringList& arguments)>;

    UpdateEnvironment();

    QUrl descriptor;                ///< XML document that names the newest version
    QUrl installerFolder;           ///< ends in a slash
    std::function<uint()> userId;   ///< 0 is the only user who may install
    Command runAndWait;             ///< returns when the program has ended, after 30 seconds at the latest
    Command startDetached;          ///< starts a program that outlives the panel
    std::function<void()> endPanel; ///< called on the checker's thread
};

} // namespace Velmora
