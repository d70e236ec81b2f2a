// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Velmora {

/// Whether the panel of version `own` is offered the version `published`, both three dotted decimal numbers;
/// a version of another form is never offered.
[[nodiscard]] bool isUpdate(const QString& published, const QString& own);

/// Name of the installer on the maker's server for the platform token of the ini file; empty for a token
/// that is unknown or missing.
[[nodiscard]] QString installerFileName(const QString& platform);

} // namespace Velmora
