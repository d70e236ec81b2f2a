// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QTest>

namespace {

struct Room
{
    const char* files;  ///< path below src/, up to where the names in it may differ
    const char* mayUse; ///< the same of what its files may include beyond themselves
};

// The first row that a file's path starts with is its room's.
constexpr Room rooms[] = {
    {"link/", ""},
    {"devices/core/", "link/"},
    {"monitor/core/", "link/ devices/core/"},
    {"monitor/widgets/", "monitor/core/"},
    {"admin/core/", "link/ monitor/core/ app/ControlPanelConfiguration.h"},
    {"admin/", "link/ admin/core/ devices/ monitor/core/ monitor/widgets/ app/ControlPanelConfiguration.h"},
    {"policy/core/", "link/ devices/core/"},
    {"policy/", "link/ policy/core/ monitor/widgets/ admin/ app/ControlPanelConfiguration.h"},
    {"devices/", "link/ devices/core/ monitor/widgets/"},
    {"logs/core/", "link/ monitor/core/"},
    {"logs/", "link/ logs/core/ monitor/widgets/"},
    {"monitor/",
     "link/ devices/ devices/core/ logs/ monitor/core/ monitor/widgets/ admin/ admin/core/ policy/ "
     "app/ControlPanelConfiguration.h"},
    {"app/ControlPanelConfiguration", ""},
    {"app/PanelLanguage", ""},
    {"app/", "monitor/ monitor/widgets/ app/"},
};

struct Source
{
    QString path; ///< from the project's root
    QString text;
};

QVector<Source> sources(const QStringList& folders)
{
    const QDir root(QStringLiteral(VELMORA_ROOT));
    QVector<Source> found;
    for (const QString& folder : folders) {
        QDirIterator files(root.filePath(folder), {QStringLiteral("*.cpp"), QStringLiteral("*.h")},
                           QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            QFile file(files.next());
            if (file.open(QIODevice::ReadOnly))
                found.append({root.relativeFilePath(file.fileName()), QString::fromUtf8(file.readAll())});
        }
    }
    return found;
}

/// What `include` in the file `path` (both below src/) offends against; empty if nothing.
QString offence(const QString& path, const QString& include)
{
    for (const Room& room : rooms) {
        const QString files = QLatin1String(room.files);
        if (!path.startsWith(files))
            continue;
        auto allowed = QString(QLatin1String(room.mayUse)).split(QLatin1Char(' '), Qt::SkipEmptyParts);
        allowed.append(files);
        for (const QString& prefix : qAsConst(allowed)) {
            // A folder does not stand for the folders in it.
            if (include.startsWith(prefix) && !include.mid(prefix.size()).contains(QLatin1Char('/')))
                return {};
        }
        return path + QLatin1String(" may not include ") + include;
    }
    return path + QLatin1String(" stands in no room of the table");
}

/// The first thing in `text` that sources of this project do not do: strings for connections, Qt's own loop,
/// a lambda straight behind a signal or a shot's time, so without a context object.
QString badHabit(const QString& text)
{
    static const QRegularExpression comment(QStringLiteral("//[^\n]*"));
    static const QRegularExpression banned(
        QStringLiteral("\\b(?:SIGNAL|SLOT|foreach|Q_FOREACH)\\s*\\(|&[\\w:]+::\\w+\\)?,\\s*\\["
                       "|singleShot\\([^,;]+,\\s*\\["));
    return banned.match(QString(text).remove(comment)).captured();
}

} // namespace

/// The rules of the sources that no compiler holds.
class LayerTest final : public QObject
{
    Q_OBJECT

private slots:
    void includesFollowTheRooms();
    void sourcesKeepTheHabits();
};

void LayerTest::includesFollowTheRooms()
{
    const QRegularExpression include(QStringLiteral("^#include \"([^\"]+)\""),
                                     QRegularExpression::MultilineOption);
    // The table forbids what it does not name.
    for (const char* pair : {"link/A.cpp monitor/core/A.h", "monitor/core/A.cpp monitor/A.h",
                             "monitor/A.cpp app/Startup.h", "new/A.cpp new/A.h"}) {
        const QStringList parts = QString::fromLatin1(pair).split(QLatin1Char(' '));
        QVERIFY2(!offence(parts.constFirst(), parts.constLast()).isEmpty(), pair);
    }
    QStringList offences;
    for (const Source& source : sources({QStringLiteral("src")})) {
        auto includes = include.globalMatch(source.text);
        while (includes.hasNext()) {
            const QString name = includes.next().captured(1);
            const bool generated =
                name.startsWith(QLatin1String("ui_")) || name.endsWith(QLatin1String(".moc"));
            const QString found = generated ? QString() : offence(source.path.mid(4), name);
            if (!found.isEmpty())
                offences.append(found);
        }
    }
    QVERIFY2(offences.isEmpty(), qPrintable(offences.join(QLatin1Char('\n'))));
}

void LayerTest::sourcesKeepTheHabits()
{
    for (const char* bad :
         {"connect(a->b(1, 2), &N::A::b, [this] { f(); });", "connect(a, qOverload<int, int>(&A::b), [] {});",
          "QTimer::singleShot(0, [] {});", "connect(a, SIGNAL(b()))", "foreach (int a, list)"})
        QVERIFY2(!badHabit(QString::fromLatin1(bad)).isEmpty(), bad);
    const QString lines = QStringLiteral("// SPDX-FileCopyrightText: 2026 The Velmora developers\n"
                                         "// SPDX-License-Identifier: MIT\n");
    const auto all = sources({QStringLiteral("src"), QStringLiteral("service"), QStringLiteral("tests"),
                              QStringLiteral("bench"), QStringLiteral("fuzz")});
    QVERIFY(all.size() > 50);
    // The linker gives two types of one name one destructor, and no compiler run sees both.
    const QRegularExpression type(QStringLiteral("^(?:struct|class|enum class) (\\w+)\\b(?!;)"),
                                  QRegularExpression::MultilineOption);
    QSet<QString> types;
    for (const Source& source : all) {
        QVERIFY2(source.text.startsWith(lines), qPrintable(source.path));
        const QString habit =
            source.path.endsWith(QLatin1String("LayerTest.cpp")) ? QString() : badHabit(source.text);
        QVERIFY2(habit.isEmpty(), qPrintable(source.path + QLatin1String(": ") + habit));
        const bool shared =
            source.path.startsWith(QLatin1String("src/")) && source.path.endsWith(QLatin1String(".h"));
        auto declared = type.globalMatch(shared ? source.text : QString());
        while (declared.hasNext()) {
            const QString name = declared.next().captured(1);
            QVERIFY2(!types.contains(name), qPrintable(source.path + QLatin1String(": ") + name));
            types.insert(name);
        }
    }
}

QTEST_APPLESS_MAIN(LayerTest)
#include "LayerTest.moc"
