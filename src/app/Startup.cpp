// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "app/Startup.h"

#include "app/PanelLanguage.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFont>
#include <QPalette>
#include <QStyleFactory>
#include <QTextCodec>
#include <QTranslator>

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace Velmora::Startup {

namespace {

// Compressing a request takes some 270 kB for a moment.
constexpr int keptHeap = 1024 * 1024;

// Without this the heap's end would go back to the system after each poll and be fetched and zeroed again for
// the next one, a quarter of what a poll costs.
void keepFreedHeap()
{
#ifdef __GLIBC__
    mallopt(M_TRIM_THRESHOLD, keptHeap);
#endif
}

void installTranslator(QTranslator& translator, const QString& name)
{
    // The result does not matter: an empty translator leaves the source texts.
    (void)translator.load(name, QStringLiteral(":/translation/"));
    QCoreApplication::installTranslator(&translator);
}

} // namespace

void prepareApplication()
{
    keepFreedHeap();
    // The panel draws nothing with OpenGL, whose libraries would cost a third of the start and most of the
    // memory.
    constexpr char glIntegration[] = "QT_XCB_GL_INTEGRATION";
    if (!qEnvironmentVariableIsSet(glIntegration))
        qputenv(glIntegration, "none");
    // Everything follows the scale of the screen, and icons bring pixels of their own for it. The factor
    // stays rounded: a common screen of 100 dots an inch would blur every line for nothing.
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
}

void setPanelFont()
{
    QFont font = QApplication::font();
    font.setFamily(QStringLiteral("DejaVu Serif"));
    QApplication::setFont(font);
}

void setWorkingFolder()
{
    QDir::setCurrent(QDir(QCoreApplication::applicationDirPath()).absolutePath());
}

void setPanelStyleSheet()
{
    // Selections and focus frames in the buttons' accent, dark enough for white text.
    const QColor accent(0x14, 0x80, 0x7d);
    QPalette palette = QApplication::palette();
    palette.setColor(QPalette::Active, QPalette::Highlight, accent);
    palette.setColor(QPalette::Inactive, QPalette::Highlight, accent);
    QApplication::setPalette(palette);
    QFile sheet(QStringLiteral(":/styles/global.qss"));
    if (sheet.open(QIODevice::ReadOnly))
        qApp->setStyleSheet(QString::fromUtf8(sheet.readAll()));
}

void installTranslators(const QString& language, QTranslator& qtTexts, QTranslator& panelTexts)
{
    const QString locale = panelLocaleName(language);
    installTranslator(qtTexts, QLatin1String("qt_") + locale);
    installTranslator(panelTexts, QLatin1String("velmora_") + locale);
}

} // namespace Velmora::Startup
