// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QFile>
#include <QtGlobal>

#include <cstdlib>

#include <sys/mman.h>

namespace Velmora::Tests {

/// Sees what the process reserves from its construction on, also what is given back or never touched.
class AddressSpaceWatch final
{
public:
    AddressSpaceWatch()
    {
        // An earlier peak would hide a later one: fill up to it, without using memory.
        m_ballastSize = static_cast<size_t>(read("VmPeak:") - read("VmSize:")) * 1024;
        if (m_ballastSize > 0)
            m_ballast =
                mmap(nullptr, m_ballastSize, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
        m_before = read("VmPeak:");
    }
    ~AddressSpaceWatch()
    {
        if (m_ballast != MAP_FAILED)
            munmap(m_ballast, m_ballastSize);
    }
    Q_DISABLE_COPY_MOVE(AddressSpaceWatch)

    /// Most that was reserved at a time, in MiB.
    [[nodiscard]] qint64 grown() const { return (read("VmPeak:") - m_before) / 1024; }

private:
    static qint64 read(const char* field)
    {
        QFile status(QStringLiteral("/proc/self/status"));
        if (!status.open(QIODevice::ReadOnly))
            qFatal("cannot read the size of this process");
        const QByteArray lines = status.readAll();
        return std::atoll(lines.constData() + lines.indexOf(field) + qstrlen(field));
    }

    void* m_ballast = MAP_FAILED;
    size_t m_ballastSize = 0;
    qint64 m_before = 0;
};

} // namespace Velmora::Tests
