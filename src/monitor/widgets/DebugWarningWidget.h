// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QTimer>
#include <QWidget>

class QLabel;

/// A blinking warning while the service is in debug mode. Keeps its place while it shows nothing.
class DebugWarningWidget final : public QWidget
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(DebugWarningWidget)

public:
    explicit DebugWarningWidget(QWidget* parent = nullptr);

    void startDebugWarning();
    void stopDebugWarning();

public slots:
    void timeout();

private:
    QTimer m_blinkTimer;
    QLabel* m_icon;
    QLabel* m_text;
};
