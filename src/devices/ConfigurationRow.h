// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include "devices/core/UpsConfiguration.h"

#include <QObject>

class QHBoxLayout;
class QWidget;

/// The controls of one setting. They belong to the widget that they stand on; the row only points at them.
class ConfigurationRow final
{
public:
    /// Height that no label and no control exceeds.
    static constexpr int maximumHeight = 35;

    /// Controls on `parent` that show the place's value. Nothing is connected yet, so that filling counts as
    /// no change. The layout is to be put into that of `parent`.
    ConfigurationRow(const Velmora::UpsConfigurationPlace& place, QWidget* parent);

    [[nodiscard]] const QString& key() const { return m_key; }
    [[nodiscard]] Velmora::UpsConfType type() const { return m_type; }
    [[nodiscard]] QHBoxLayout* layout() const { return m_layout; }
    /// The QLineEdit, QCheckBox, QComboBox or QButtonGroup, with the received value as "originalValue".
    [[nodiscard]] QObject* control() const { return m_control; }

    /// From now on the row may differ from what was received.
    void touch() { m_touched = true; }
    [[nodiscard]] bool differs() const;
    /// In the form that is sent; none if nothing is chosen.
    [[nodiscard]] std::optional<QString> value() const;
    /// Captions go with the controls.
    void setEnabled(bool enabled);

private:
    void buildLineEdit(const Velmora::UpsConfigurationPlace& place, QWidget* parent);
    void buildCheckBox(const Velmora::UpsConfigurationPlace& place, QWidget* parent);
    void buildRadioGroup(const Velmora::UpsConfigurationPlace& place, QWidget* parent);
    void buildComboBox(const Velmora::UpsConfigurationPlace& place, QWidget* parent);
    void addBetweenLabels(const Velmora::UpsConfiguration& setting, QWidget* input);
    void finish(bool visible);

    QString m_key;
    Velmora::UpsConfType m_type;
    QString m_received;
    bool m_touched = false;
    QHBoxLayout* m_layout;
    QObject* m_control = nullptr;
};
