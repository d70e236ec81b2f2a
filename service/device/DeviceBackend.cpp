// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "service/device/DeviceBackend.h"

namespace Velmora::Service {

DeviceBackend::DeviceBackend(QObject* parent)
    : QObject(parent)
{}

DeviceBackend::~DeviceBackend() = default;

} // namespace Velmora::Service
