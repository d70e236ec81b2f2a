// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QMap>
#include <QRandomGenerator>
#include <QString>

class QDialog;
class QMenu;
class QWidget;

/// Clicks, types and selects at random in whatever stands on top of the main window, and so comes through
/// all dialogs without knowing them. Only what would end the panel or its connection for good is left out.
class RandomUser final
{
    Q_DISABLE_COPY_MOVE(RandomUser)

public:
    RandomUser(QWidget* window, quint32 seed);
    ~RandomUser() = default;

    /// Does one thing. What it sets off runs from the event loop, so that a dialog that comes of it does not
    /// hold the caller.
    void act();
    /// Closes what stands on top; false if the main window is all there is.
    bool closeTop();

    /// How often each class of dialog was open.
    [[nodiscard]] const QMap<QString, int>& openedDialogs() const { return m_opened; }

private:
    void actInMainWindow();
    void actIn(QDialog* dialog);
    void actIn(QMenu* menu);
    void clickOne(const QWidget* dialog);
    void selectOne(const QWidget* dialog);
    void typeOne(const QWidget* dialog);
    [[nodiscard]] int below(int count) { return static_cast<int>(m_random.bounded(count)); }

    QWidget* m_window;
    QRandomGenerator m_random;
    QMap<QString, int> m_opened;
    QMap<QString, int> m_clicks; ///< by class of the dialog and name of the button
};
