// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT

// No blob and no packed payload does more than yield nothing, and every text comes back from its own blob.

#include "Require.h"
#include "link/Cipher.h"
#include "link/SimpleCrypt.h"
#include "link/Unpack.h"

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using Velmora::Fuzz::require;
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<int>(size));
    (void)Velmora::decryptToUtf8(bytes);
    (void)Velmora::decryptPass(QString::fromLatin1(bytes));
    require(Velmora::unpack(bytes.constData(), bytes.size(), 1000).size() <= 1000, "unpacking is bounded");
    for (const auto mode :
         {Velmora::SimpleCrypt::ProtectionMode::None, Velmora::SimpleCrypt::ProtectionMode::Checksum,
          Velmora::SimpleCrypt::ProtectionMode::Hash}) {
        Velmora::SimpleCrypt crypt(0);
        crypt.protectionMode = mode;
        require(crypt.decryptToByteArray(crypt.encryptToByteArray(bytes)) == bytes,
                "a blob gives back what it hides");
    }
    return 0;
}
