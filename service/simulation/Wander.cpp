// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "service/simulation/Wander.h"

namespace Velmora::Service {

namespace {

constexpr double returnShare = 0.2;
constexpr double stepShare = 0.45;

} // namespace

double Random::between(double low, double high)
{
    // 53 bits, as many as a double can tell apart.
    const double share = static_cast<double>(m_engine() >> 11) * 0x1p-53;
    return low + (high - low) * share;
}

Wander::Wander(double mean, double spread)
    : m_mean(mean)
    , m_spread(spread)
    , m_value(mean)
{}

void Wander::move(Random& random)
{
    const double astray = random.between(-m_spread, m_spread) * stepShare;
    m_value += (m_mean - m_value) * returnShare + astray;
    m_value = qBound(m_mean - m_spread, m_value, m_mean + m_spread);
}

} // namespace Velmora::Service
