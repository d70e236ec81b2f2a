// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include "devices/ConfigurationRow.h"
#include "link/DeviceRecords.h"

#include <QDialog>
#include <QPair>

#include <memory>
#include <vector>

class QGridLayout;
class QScrollArea;

namespace Ui {
class UPSConfigurationWindow;
}

namespace Velmora {
struct ConfigurationPrompt;
}

/// Shows the settings and commands of one device and lets the user change one of them at a time. It sends
/// nothing: whoever runs it does, with what getConfiguration() gives.
class UPSConfigurationWindow final : public QDialog
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(UPSConfigurationWindow)

public:
    /// In pixels.
    static constexpr int MAXIMUM_CONFIGURATION_WIDGET_HEIGHT = ConfigurationRow::maximumHeight;

    UPSConfigurationWindow(const Velmora::Utils::Ups& ups, QWidget* parent);
    ~UPSConfigurationWindow() override;

    [[nodiscard]] const Velmora::Utils::Ups& ups() const { return m_ups; }

    /// Builds the rows from what the service sent. Only the first map counts: a later one would take the
    /// rows from under the user's hands.
    void setConfiguration(const QMap<QString, QString>& configuration);

    /// Key and new value of the first changed row, radio groups left out; two empty texts without one.
    [[nodiscard]] QPair<QString, QString> getChangedProperty() const;
    /// New values of all changed rows by key.
    [[nodiscard]] QMap<QString, QString> getConfiguration() const;

    /// With false, disables the line edits of the card's address. With true, disabled ones stay as they are.
    void enableNetworkConfLineEdits(bool enable);
    /// Whether the change can be saved.
    void setEnabledButtons(bool enabled);
    /// Locks all rows but the sender's while that one differs from what was received.
    void changed(QObject* sender);

public slots:
    void changed(int value);
    void changed(const QString& value);
    void accept() override;

protected:
    /// Keeps the wheel, which scrolls the rows, from changing a choice on its way.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void connectRow(const ConfigurationRow& row);
    void growToContent();
    [[nodiscard]] bool put(const Velmora::ConfigurationPrompt& prompt);

    std::unique_ptr<Ui::UPSConfigurationWindow> ui;
    Velmora::Utils::Ups m_ups;
    QList<Velmora::UpsConfiguration> m_catalogue;
    bool m_applied = false;
    bool dhcp = false; ///< as it was received: what the user ticks counts once the card has taken it
    QScrollArea* m_scrollArea = nullptr;
    QGridLayout* m_grid = nullptr;
    std::vector<ConfigurationRow> m_rows; ///< in the order of the grid's items
};
