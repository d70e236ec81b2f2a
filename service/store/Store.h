// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include "service/store/StoredData.h"

#include <functional>

namespace Velmora::Service {

/// Keeps the stored data in memory and, if it has a file, on disk.
class Store final
{
public:
    Store() = default;

    /// Starts from the file if it exists, otherwise from the initial data, which it then writes there. An
    /// empty path keeps everything in memory. False and a reason that names the file if it cannot be read or
    /// written.
    [[nodiscard]] bool open(const QString& path, const StoredData& initial, QString& reason);

    [[nodiscard]] const StoredData& data() const { return m_data; }

    /// Applies a change and writes it at once. If it cannot be written it is not taken at all: what the
    /// service then reports is always what a restart would find.
    [[nodiscard]] bool update(const std::function<void(StoredData&)>& change);

private:
    [[nodiscard]] bool read(QString& reason);
    [[nodiscard]] bool write(const StoredData& data, QString& reason) const;

    QString m_path;
    StoredData m_data;
};

} // namespace Velmora::Service
