// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include "app/Startup.h"

#include "app/PanelLanguage.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFont>
#include <QStyleFactory>
#include <QTextCodec>
#include <QTranslator>

namespace Velmora::Startup {

namespace {

void installTranslator(QTranslator& translator, const QString& name)
{
    // The result does not matter: an empty translator leaves the source texts.
    (void)translator.load(name, QStringLiteral(":/translation/"));
    QCoreApplication::installTranslator(&translator);
}

} // namespace

void prepareApplication()
{
    // The panel draws nothing with OpenGL, whose libraries would cost a third of the start and most of the
    // memory.
    constexpr char glIntegration[] = "QT_XCB_GL_INTEGRATION";
    if (!qEnvironmentVariableIsSet(glIntegration))
        qputenv(glIntegration, "none");
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
