// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "monitor/widgets/Picture.h"

#include <QGuiApplication>
#include <QIcon>
#include <QImageReader>

namespace Velmora {

QPixmap picture(const QString& path)
{
    const QSize size = QImageReader(path).size();
    return size.isValid() ? QIcon(path).pixmap(size) : QPixmap();
}

QString animationFile(const QString& path)
{
    if (qApp->devicePixelRatio() <= 1)
        return path;
    return QString(path).replace(QLatin1String(".gif"), QLatin1String("@2x.gif"));
}

} // namespace Velmora
