// SPDX-FileCopyrightText: 2026 The Velmora developers
// SPDX-License-Identifier: MIT

// Loaded into a Qt program with LD_PRELOAD, so that programs are measured as they ship. Writes to the file
// descriptor in VELMORA_PAINT_PROBE_FD one line when the main window is first painted and one when the
// temperature first shows a value, each with the time of CLOCK_MONOTONIC in nanoseconds. With
// VELMORA_PAINT_PROBE_ALL set, each paint after that is a line with the widget's class and name.

#include <QApplication>
#include <QEvent>
#include <QLineEdit>
#include <QMainWindow>

#include <cinttypes>
#include <cstdio>
#include <ctime>
#include <unistd.h>

namespace {

class PaintProbe final : public QObject
{
public:
    PaintProbe(int descriptor, QObject* application)
        : QObject(application)
        , m_descriptor(descriptor)
    {
        application->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() != QEvent::Paint)
            return false;
        if (m_valuesPainted) {
            dprintf(m_descriptor, "%s:%s\n", watched->metaObject()->className(),
                    qPrintable(watched->objectName()));
        } else if (!m_windowPainted && qobject_cast<QMainWindow*>(watched)) {
            m_windowPainted = true;
            report("window");
        } else if (showsTemperature(qobject_cast<QLineEdit*>(watched))) {
            report("values");
            m_valuesPainted = true;
            // What comes after this is measured as if there were no probe.
            if (!m_reportsAll)
                QCoreApplication::instance()->removeEventFilter(this);
        }
        return false;
    }

private:
    static bool showsTemperature(const QLineEdit* edit)
    {
        return edit && !edit->text().isEmpty() &&
               edit->parent()->objectName() == QLatin1String("temperatureEdit");
    }

    void report(const char* what) const
    {
        timespec now{};
        clock_gettime(CLOCK_MONOTONIC, &now);
        dprintf(m_descriptor, "%s %" PRId64 "\n", what, int64_t{now.tv_sec} * 1'000'000'000 + now.tv_nsec);
    }

    const int m_descriptor;
    const bool m_reportsAll = qEnvironmentVariableIsSet("VELMORA_PAINT_PROBE_ALL");
    bool m_windowPainted = false;
    bool m_valuesPainted = false;
};

void installProbe()
{
    bool valid = false;
    const int descriptor = qEnvironmentVariableIntValue("VELMORA_PAINT_PROBE_FD", &valid);
    if (valid && qobject_cast<QApplication*>(QCoreApplication::instance()))
        new PaintProbe(descriptor, QCoreApplication::instance());
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(installProbe)
