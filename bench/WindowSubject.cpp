// The window, watched while it opens and is worked with: prints the milliseconds from the process's
// start to the first paint, those until every list is there, the longest time for which the event
// loop stood still, and the most memory that was used. WindowSubject ROWS waits for so many rows.

#include "frontend/HelperConnection.h"
#include "frontend/HelperProcess.h"
#include "frontend/Preferences.h"
#include "platform/core/Localized.h"
#include "window/KindPage.h"
#include "window/MainWindow.h"
#include "window/WindowInstance.h"
#include "window/WindowStyle.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <QTreeView>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <unistd.h>

using namespace std::chrono_literals;

namespace {

/// Milliseconds since the kernel made this process.
double sinceStart()
{
    QFile file(QStringLiteral("/proc/self/stat"));
    if (!file.open(QIODevice::ReadOnly))
        return -1;
    const QByteArray stat = file.readAll();
    const QList<QByteArray> fields = stat.mid(stat.lastIndexOf(')') + 2).split(' ');
    timespec now = {};
    ::clock_gettime(CLOCK_BOOTTIME, &now);
    const double started = fields[19].toDouble() / static_cast<double>(::sysconf(_SC_CLK_TCK));
    return (static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) / 1e9 - started) *
           1000;
}

QByteArray memoryPeak()
{
    QFile file(QStringLiteral("/proc/self/status"));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    for (const QByteArray &line : file.readAll().split('\n')) {
        if (line.startsWith("VmHWM:"))
            return line.mid(6).simplified().split(' ').first();
    }
    return {};
}

class Watch : public QObject
{
public:
    Watch(MainWindow *window, int rows)
        : m_window(window)
        , m_rows(rows)
    {
        window->installEventFilter(this);
        m_ticks.setTimerType(Qt::PreciseTimer);
        m_ticks.callOnTimeout([this] { tick(); });
    }

protected:
    bool eventFilter(QObject *object, QEvent *event) override
    {
        if (event->type() == QEvent::UpdateRequest && m_painted < 0) {
            // Behind the request: what it paints is on the screen then.
            QTimer::singleShot(0, this, [this] {
                m_painted = sinceStart();
                m_last.start();
                m_ticks.start(5ms);
            });
            m_painted = 0;
        }
        return QObject::eventFilter(object, event);
    }

private:
    void tick()
    {
        m_stall = std::max(m_stall, static_cast<double>(m_last.nsecsElapsed()) / 1e6 - 5);
        m_last.start();
        if (m_filled < 0 && rowsShown() >= m_rows) {
            m_filled = sinceStart();
            QTimer::singleShot(0, this, [this] { work(); });
        }
    }
    int rowsShown() const
    {
        int rows = 0;
        for (const QTreeView *view : m_window->findChildren<QTreeView *>())
            rows += view->model() ? view->model()->rowCount() : 0;
        return rows;
    }
    // One step for each turn of the event loop, on each page in turn.
    void work()
    {
        const auto pages = m_window->findChildren<KindPage *>();
        const auto step = m_step++;
        if (step / 4 >= pages.size()) {
            QTimer::singleShot(2s, this, [this] { report(); });
            return;
        }
        KindPage *const page = pages[step / 4];
        const auto buttons = page->findChildren<QPushButton *>();
        if (auto *const search = page->findChild<QLineEdit *>(); search && step % 4 < 2)
            search->setText(step % 4 == 0 ? QStringLiteral("1") : QString());
        else if (buttons.size() > 1 && step % 4 == 2)
            press(buttons, "Select All");
        else if (step % 4 == 3)
            page->reload();
        QTimer::singleShot(100ms, this, [this] { work(); });
    }
    static void press(const QList<QPushButton *> &buttons, const char *text)
    {
        for (QPushButton *const button : buttons) {
            if (button->text() == QLatin1String(text))
                button->click();
        }
    }
    void report() const
    {
        std::printf("%.0f %.0f %.0f %s\n", m_painted, m_filled, m_stall, memoryPeak().constData());
        QCoreApplication::quit();
    }

    MainWindow *const m_window;
    const int m_rows;
    QTimer m_ticks;
    QElapsedTimer m_last;
    double m_painted = -1;
    double m_filled = -1;
    double m_stall = 0;
    qsizetype m_step = 0;
};

} // namespace

int main(int argc, char **argv)
{
    const QApplication application(argc, argv);
    installTranslations(HelperProcess::bundle().resourcePath() + QStringLiteral("/translations"));
    WindowStyle::install();
    WindowInstance instance;
    instance.isFirst();
    Preferences::begin();
    HelperConnection helper;
    MainWindow window(&helper);
    const Watch watch(&window, QCoreApplication::arguments().value(1).toInt());
    window.show();
    helper.search();
    return QApplication::exec();
}
