// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include "monitor/core/DeviceStateView.h"

#include <QStringList>

namespace Ui {
class VelmoraWindow;
}

/// The middle of the main window: puts views of the device's state onto the form's fields. It takes no
/// decision of its own.
class DeviceStatePanel final
{
public:
    /// `form` outlives the panel.
    explicit DeviceStatePanel(Ui::VelmoraWindow* form);

    /// Hides what only some devices have, until a device that has it is selected or reports it.
    void hideOptionalFields();

    void setModelText(const QString& text);
    /// Shows the picture of the model family; none for a model without one.
    void setModelImage(const QString& modelName);
    /// Captions, per-phase bars and reasons for missing values of the selected device's model.
    void showModel(const QString& modelName);

    /// `view` must not be one of a failed report.
    void showState(const Velmora::DeviceStateView& view);
    /// The next report draws its messages even if it has the same codes as the last one.
    void forgetMessages();
    void hideMessages();

private:
    void nameValues();
    void showFields(const Velmora::DeviceStateView& view);
    void showNameAndLocation(const Velmora::DeviceStateView& view);
    void showMessages(const std::optional<QStringList>& codes);

    Ui::VelmoraWindow* m_form;
    QStringList lastMessages;
    bool m_showsNoMessages = false; ///< the box holds the text for a device without messages
    QString m_modelImagePath;
};
