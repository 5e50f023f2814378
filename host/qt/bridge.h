// The bridge between the engine thread and the window thread. The engine
// only reads and writes lines; each request crosses to the main thread as a
// queued signal, and a read waits by polling a flag.
#pragma once

#include <QObject>
#include <QString>
#include <QThread>

#include <atomic>
#include <csetjmp>
#include <csignal>
#include <cstdint>
#include <functional>

#include "shell/console.h"

// The console units the engine's channels go to; -4, -3 and -2 all name the
// default text window.
inline constexpr std::int64_t console_write_unit = -3;
inline constexpr std::int64_t console_read_unit = -2;
// The key of a unit's window in the table of windows.
inline constexpr std::int64_t window_key(std::int64_t unit) { return unit >= -4 && unit <= -2 ? -2 : unit; }

// The kill signal of the engine thread (SIGPWR on Linux).
inline constexpr int engine_kill_signal = 30;

class GlueManager : public QObject {
    Q_OBJECT
public:
    // Polled flags, written by one thread and read by the other. Atomics
    // give the polling its defined order; nothing here locks.
    std::atomic<bool> reading{false};
    std::atomic<bool> cancelled{false};
    std::atomic<std::int64_t> readunit{0};
    QString readtext;  // written before reading is cleared
    std::atomic<bool> syncop{false};

    // Run on the caller's thread.
    void readInput(std::int64_t unit);
    void cancelRead();
    void writeTextToUnit(std::int64_t unit, const QString& text);
    void createWindowForUnit(std::int64_t unit, const QString& title, const QString& options);
    void processEngineStop();

signals:
    void writeText(qint64 unit, QString text);
    void createWindow(qint64 unit, QString title, QString options);
    void closeWindow(qint64 unit);
    void startRead(qint64 unit);
    void engineRunIdle();
    void getFileNameFromWindow(qint64 unit, int flag);
    void closeOnEngineStop();

public slots:
    void finishRead(const QString& text);
    void gotFileName(const QString& text);
    void endWindowSyncOperation();
};

class ENGINE_QThread : public QThread {
public:
    // The engine's entry; run_engine in the program, a stand-in in tests.
    explicit ENGINE_QThread(std::function<int()> entry);
    // Jumps back to run, which then returns: the thread ends.
    [[noreturn]] void bail_out();
    // Raises the kill signal.
    void kill();
    int status = 0;  // what the engine's entry returned

protected:
    void run() override;

private:
    std::function<int()> entry_;
    std::jmp_buf jump_;
};

// Process-wide host state.
extern std::atomic<GlueManager*> glue_manager;
extern std::atomic<ENGINE_QThread*> engine_thread;
extern std::atomic<int> end_thread;
extern std::atomic<int> start_events_called;

int ZorWindowEnvironment(int argc, char** argv);
void ZOR_setup(ENGINE_QThread* thread);
std::int64_t ZOR_readText(char* buffer, std::int64_t length, const std::int64_t* unit);
// A length of all ones means the text ends with a NUL.
std::int64_t ZOR_writeText(const char* text, const std::int64_t* length, const void* unused,
                           const std::int64_t* unit);
void ZOR_stop();
void ZOR_signalhandler(int sig, siginfo_t* info, void* extra);
void ZOR_cleanup();
void ZOR_yieldCurrentThread();
void ZOR_startEvents();

// The engine's console in the window: every line goes through the entry
// points above.
struct window_console : console {
    void put_line(std::string_view line) override;
    std::string get_line() override;
};
