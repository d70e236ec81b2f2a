// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QTest>

#include <optional>

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
    {"admin/core/", "link/"},
    {"admin/", "link/ admin/core/ monitor/widgets/ app/ControlPanelConfiguration.h"},
    {"monitor/", "link/ devices/core/ monitor/core/ monitor/widgets/ admin/ app/ControlPanelConfiguration.h"},
    {"app/ControlPanelConfiguration", ""},
    {"app/PanelLanguage", ""},
    {"app/", "monitor/ app/"},
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

QVector<Source> allSources()
{
    return sources(
        {QStringLiteral("src"), QStringLiteral("service"), QStringLiteral("tests"), QStringLiteral("bench")});
}

QString withoutComments(QString text)
{
    static const QRegularExpression comment(QStringLiteral("//[^\n]*|/\\*.*?\\*/"),
                                            QRegularExpression::DotMatchesEverythingOption);
    return text.remove(comment);
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

/// The arguments of each call of `function` that stand before the first one that is a lambda.
QVector<int> argumentsBeforeLambda(const QString& text, const QString& function)
{
    QVector<int> counts;
    const QRegularExpression call(QLatin1String("\\b") + function + QLatin1String("\\s*\\("));
    auto calls = call.globalMatch(text);
    while (calls.hasNext()) {
        int depth = 1;
        int arguments = 0;
        bool atStart = true;
        for (int i = calls.next().capturedEnd(); i < text.size() && depth > 0; ++i) {
            const QChar letter = text.at(i);
            if (letter.isSpace())
                continue;
            if (depth == 1 && atStart && letter == QLatin1Char('[')) {
                counts.append(arguments);
                break;
            }
            const bool arrow = letter == QLatin1Char('>') && text.at(i - 1) == QLatin1Char('-');
            if (QStringLiteral("([{<").contains(letter))
                ++depth;
            else if (QStringLiteral(")]}>").contains(letter) && !arrow)
                --depth;
            atStart = depth == 1 && letter == QLatin1Char(',');
            arguments += atStart ? 1 : 0;
        }
    }
    return counts;
}

/// The first thing in `text` that sources of this project do not do; none if it is clean.
std::optional<QString> badHabit(const QString& text)
{
    static const QRegularExpression banned(QStringLiteral("\\b(SIGNAL|SLOT|foreach|Q_FOREACH)\\s*\\("));
    const QRegularExpressionMatch match = banned.match(text);
    if (match.hasMatch())
        return match.captured();
    for (const int arguments : argumentsBeforeLambda(text, QStringLiteral("connect"))) {
        if (arguments < 3)
            return QStringLiteral("connect() of a lambda without a context object");
    }
    for (const int arguments : argumentsBeforeLambda(text, QStringLiteral("singleShot"))) {
        if (arguments < 2)
            return QStringLiteral("singleShot() of a lambda without a context object");
    }
    return std::nullopt;
}

} // namespace

/// The rules of the sources that no compiler holds.
class LayerTest final : public QObject
{
    Q_OBJECT

private slots:
    void includesFollowTheRooms();
    void forbiddenIncludesAreFound_data();
    void forbiddenIncludesAreFound();
    void badHabitsAreFound_data();
    void badHabitsAreFound();
    void sourcesHaveNoBadHabits();
    void sourcesNameTheirLicence();
};

void LayerTest::includesFollowTheRooms()
{
    const QRegularExpression include(QStringLiteral("^#include \"([^\"]+)\""),
                                     QRegularExpression::MultilineOption);
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

void LayerTest::forbiddenIncludesAreFound_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("include");
    QTest::addColumn<bool>("allowed");
    QTest::newRow("own room") << "link/Frame.cpp"
                              << "link/Frame.h" << true;
    QTest::newRow("the link knows nobody") << "link/Frame.cpp"
                                           << "monitor/core/WorkModes.h" << false;
    QTest::newRow("a core half knows no widgets") << "monitor/core/A.cpp"
                                                  << "monitor/widgets/Prompts.h" << false;
    QTest::newRow("nor the dialogs around it") << "monitor/core/A.cpp"
                                               << "monitor/VelmoraWindow.h" << false;
    QTest::newRow("the window knows one file of the settings") << "monitor/A.cpp"
                                                               << "app/ControlPanelConfiguration.h" << true;
    QTest::newRow("and no other") << "monitor/A.cpp"
                                  << "app/Startup.h" << false;
    QTest::newRow("a new room needs a row") << "novel/A.cpp"
                                            << "novel/A.h" << false;
}

void LayerTest::forbiddenIncludesAreFound()
{
    QFETCH(QString, path);
    QFETCH(QString, include);
    QTEST(offence(path, include).isEmpty(), "allowed");
}

void LayerTest::badHabitsAreFound_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("clean");
    QTest::newRow("context object") << "connect(a, &A::b, this, [this](int x) { f(x, 1); });" << true;
    QTest::newRow("no context object") << "connect(a->b(1, 2), &A::b, [this] { f(); });" << false;
    QTest::newRow("overload and context object")
        << "connect(a, qOverload<int, int>(&A::b), this,\n    [] {});" << true;
    QTest::newRow("overload without context object")
        << "connect(a, qOverload<int, int>(&A::b), [] {});" << false;
    QTest::newRow("shot without context object") << "QTimer::singleShot(0, [] {});" << false;
    QTest::newRow("signal by string") << "connect(a, SIGNAL"
                                         "(b()), c, SLOT"
                                         "(d()));"
                                      << false;
    QTest::newRow("Qt's loop") << "foreach"
                                  " (int a, list)"
                               << false;
}

void LayerTest::badHabitsAreFound()
{
    QFETCH(QString, text);
    QTEST(!badHabit(text), "clean");
}

void LayerTest::sourcesHaveNoBadHabits()
{
    for (const Source& source : allSources()) {
        if (source.path == QLatin1String("tests/app/LayerTest.cpp"))
            continue;
        const auto habit = badHabit(withoutComments(source.text));
        QVERIFY2(!habit, qPrintable(source.path + QLatin1String(": ") + habit.value_or(QString())));
    }
}

void LayerTest::sourcesNameTheirLicence()
{
    const QString lines = QStringLiteral("// SPDX-FileCopyrightText: 2026 The Velmora developers\n"
                                         "// SPDX-License-Identifier: MIT\n");
    QVERIFY(allSources().size() > 50);
    for (const Source& source : allSources())
        QVERIFY2(source.text.startsWith(lines), qPrintable(source.path));
}

QTEST_APPLESS_MAIN(LayerTest)
#include "LayerTest.moc"
