#include "host/qt/bridge.h"

#include <QCoreApplication>

#include <algorithm>
#include <cstring>
#include <ctime>

#include "host/qt/preferences.h"

std::atomic<GlueManager*> glue_manager{nullptr};
std::atomic<ENGINE_QThread*> engine_thread{nullptr};
std::atomic<int> end_thread{0};
std::atomic<int> start_events_called{0};

namespace {

bool on_engine_thread() {
    ENGINE_QThread* t = engine_thread.load();
    return t && QThread::currentThread() == t;
}

void sleep_on_engine() {
    QThread::msleep(100);
    QThread::yieldCurrentThread();
}

// Off the engine thread a wait must keep the event loop going.
void sleep_elsewhere() {
    const timespec ten_ms{0, 10000000};
    nanosleep(&ten_ms, nullptr);
    QCoreApplication::processEvents();
}

window_console g_window_console;

}  // namespace

void GlueManager::readInput(std::int64_t unit) {
    reading = true;
    cancelled = false;
    readunit = unit;
    emit startRead(unit);
}

void GlueManager::cancelRead() {
    cancelled = true;
    reading = false;
}

void GlueManager::writeTextToUnit(std::int64_t unit, const QString& text) { emit writeText(unit, text); }

void GlueManager::createWindowForUnit(std::int64_t unit, const QString& title, const QString& options) {
    emit createWindow(unit, title, options);
}

void GlueManager::processEngineStop() {
    syncop = true;
    emit closeOnEngineStop();
}

void GlueManager::finishRead(const QString& text) {
    readtext = text;
    reading = false;
}

void GlueManager::gotFileName(const QString& text) {
    readtext = text;
    reading = false;
}

void GlueManager::endWindowSyncOperation() { syncop = false; }

ENGINE_QThread::ENGINE_QThread(std::function<int()> entry) : entry_(std::move(entry)) {}

void ENGINE_QThread::run() {
    setTerminationEnabled(true);
    console* previous = &the_console();
    ZOR_setup(this);
    // Nothing with a destructor lives between here and bail_out.
    if (setjmp(jump_) == 0) {
        status = entry_();
        ZOR_stop();
    }
    // The engine is over: a late terminate must not cut into the thread's
    // own end, where a forced unwind aborts the process.
    setTerminationEnabled(false);
    set_console(previous);
}

void ENGINE_QThread::bail_out() { std::longjmp(jump_, 1); }

void ENGINE_QThread::kill() { std::raise(engine_kill_signal); }

void ZOR_setup(ENGINE_QThread* thread) {
    engine_thread = thread;
    struct sigaction action {}, old {};
    action.sa_sigaction = ZOR_signalhandler;
    action.sa_flags = SA_SIGINFO;
    sigemptyset(&action.sa_mask);
    sigaction(engine_kill_signal, &action, &old);
    if (!(old.sa_flags & SA_SIGINFO) && old.sa_handler == SIG_IGN) sigaction(engine_kill_signal, &old, nullptr);
    set_console(&g_window_console);
}

std::int64_t ZOR_readText(char* buffer, std::int64_t length, const std::int64_t* unit) {
    GlueManager* glue = glue_manager.load();
    if (length == 0 || !unit || !glue) return -1;
    glue->readInput(*unit);
    const bool engine = on_engine_thread();
    while (glue->reading) {
        if (QThread::currentThread()->isFinished()) return -2;
        engine ? sleep_on_engine() : sleep_elsewhere();
        glue = glue_manager.load();
        if (!glue) return 0;
    }
    if (glue->cancelled) return -1;
    const QString text = glue->readtext;
    if (text.size() > length) return -3;
    const QByteArray line = (text + QLatin1Char('\n')).toLatin1();
    std::strncpy(buffer, line.constData(), std::size_t(length));
    if (!engine) QCoreApplication::processEvents();
    return std::min<std::int64_t>(length, text.size());
}

std::int64_t ZOR_writeText(const char* text, const std::int64_t* length, const void*, const std::int64_t* unit) {
    GlueManager* glue = glue_manager.load();
    if (!text || !length || !unit || !glue) return -1;
    const QString s = *length == -1 ? QString::fromLatin1(text) : QString::fromLatin1(text, int(*length));
    glue->writeTextToUnit(*unit, s);
    if (!on_engine_thread()) QCoreApplication::processEvents();
    return *length;
}

void ZOR_stop() {
    if (start_events_called) return;
    if (!ZOR_closeOnProgramFinish()) {
        ZOR_startEvents();
        return;
    }
    if (GlueManager* glue = glue_manager.load()) glue->processEngineStop();
    for (;;) {
        GlueManager* glue = glue_manager.load();
        if (!glue || !glue->syncop || !on_engine_thread() || QThread::currentThread()->isFinished()) break;
        sleep_on_engine();
    }
    // Only the engine thread has a point to jump back to; elsewhere the
    // events go on until the window side ends the process.
    while (!on_engine_thread()) ZOR_yieldCurrentThread();
    engine_thread.load()->bail_out();
}

void ZOR_signalhandler(int, siginfo_t*, void*) {
    end_thread = 1;
    delete glue_manager.exchange(nullptr);
}

void ZOR_cleanup() { delete glue_manager.exchange(nullptr); }

void ZOR_yieldCurrentThread() { on_engine_thread() ? sleep_on_engine() : sleep_elsewhere(); }

void ZOR_startEvents() {
    start_events_called = 1;
    if (GlueManager* glue = glue_manager.load()) emit glue->engineRunIdle();
    while (!end_thread) QThread::msleep(100);
    if (on_engine_thread()) engine_thread.load()->bail_out();
}

void window_console::put_line(std::string_view line) {
    std::string text(line);
    text += '\n';
    const std::int64_t length = std::int64_t(text.size());
    ZOR_writeText(text.data(), &length, nullptr, &console_write_unit);
}

std::string window_console::get_line() {
    // Far wider than any answer; a longer line is lost, and the read asks
    // again.
    static char buffer[4096];
    for (;;) {
        const std::int64_t n = ZOR_readText(buffer, sizeof buffer, &console_read_unit);
        // Nothing read and no bridge left: the window went away.
        if (n == 0 && !glue_manager.load()) throw console_closed{"the text window was closed"};
        if (n >= 0) return std::string(buffer, std::size_t(n));
        if (n != -3) throw console_closed{"the text window was closed"};
    }
}
