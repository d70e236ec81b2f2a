// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

/// A label of the forms that shows a picture of the resources, sharp on every screen.
class PictureLabel final : public QLabel
{
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(PictureLabel)
    Q_PROPERTY(QString source READ source WRITE setSource)

public:
    explicit PictureLabel(QWidget* parent = nullptr);
    ~PictureLabel() override;

    [[nodiscard]] QString source() const { return m_source; }
    void setSource(const QString& path);

private:
    QString m_source;
};
