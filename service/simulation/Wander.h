// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <random>

namespace Velmora::Service {

/// Random numbers that are the same on every platform for the same seed, which the standard library's
/// distributions do not promise.
class Random final
{
public:
    explicit Random(quint64 seed)
        : m_engine(seed)
    {}

    [[nodiscard]] double between(double low, double high);

private:
    std::mt19937_64 m_engine;
};

/// A measured value that drifts about its mean: each move takes it a little back and a little astray.
class Wander final
{
public:
    Wander(double mean, double spread);

    void move(Random& random);
    [[nodiscard]] double value() const { return m_value; }

private:
    double m_mean;
    double m_spread; ///< how far from the mean it may get
    double m_value;
};

} // namespace Velmora::Service
