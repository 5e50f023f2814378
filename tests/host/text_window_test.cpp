// The text window as the engine's terminal: reading, output, paste, the
// bridge's reads, the kill path and a whole run against the terminal's.
#include <QApplication>
#include <QClipboard>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTimer>
#include <QtTest>

#include <cstring>
#include <fstream>

#include "host/qt/bridge.h"
#include "host/qt/text_edit.h"
#include "host/qt/window_controller.h"
#include "shell/fake_platform.h"
#include "shell/main_program.h"

namespace {

// Stops where the program would end the process, and lets the engine thread
// go on to its end.
struct TestController : WindowController {
    using WindowController::WindowController;
    bool ended = false;
    void endProcess() override {
        ended = true;
        emit endWindowSyncOperation();
    }
};

ZOR_TextEdit* console_window(WindowController& wc) { return wc.getTextEditForUnit(console_write_unit); }

// Types a line into the window once the engine reads.
bool type_line(ZOR_TextEdit* edit, const QString& line) {
    for (int waited = 0; edit->readstart < 0; waited += 5) {
        if (waited > 20000) return false;
        QTest::qWait(5);
    }
    QTest::keyClicks(edit, line);
    QTest::keyClick(edit, Qt::Key_Return);
    return true;
}

// A terminal transcript: the engine's lines and, in their places, the lines
// typed, as a window shows them.
struct echo_console : memory_console {
    using memory_console::memory_console;
    std::string get_line() override {
        screen.push_back(memory_console::get_line());
        return screen.back();
    }
};

// An engine that asks once and notes how the read ended.
QString g_answer;
int ask_once() {
    the_console().put_line("your choice");
    try {
        g_answer = QString::fromStdString(the_console().get_line());
        return 0;
    } catch (const console_closed&) {
        g_answer = "<closed>";
        return 2;
    }
}

}  // namespace

class TextWindowTest : public QObject {
    Q_OBJECT
private slots:
    void readHandsOverTypedText_data() {
        QTest::addColumn<QString>("keys");  // '<' Backspace, '^' Left, '#' paste at the document start
        QTest::addColumn<QString>("handed");
        QTest::addColumn<QString>("shown");
        QTest::newRow("typed") << "12" << "12" << "prompt\n12\n";
        QTest::newRow("corrected") << "123<" << "12" << "prompt\n12\n";
        QTest::newRow("cursor moved back") << "12^" << "1" << "prompt\n1\n2";
        QTest::newRow("pasted") << "#" << "xyz" << "prompt\nxyz\n";
    }
    // Keys and paste do nothing outside a read.
    void readHandsOverTypedText() {
        QFETCH(QString, keys);
        ZOR_TextEdit edit(-3, "t", "");
        edit.appendText("prompt\n");
        QApplication::clipboard()->setText("xyz");
        QSignalSpy ends(&edit, &ZOR_TextEdit::endRead);
        QTest::keyClicks(&edit, "ab");
        QTest::keyClick(&edit, Qt::Key_Backspace);
        QTest::keyClick(&edit, Qt::Key_Return);
        edit.paste();
        QCOMPARE(edit.toPlainText(), QString("prompt\n"));
        QCOMPARE(ends.count(), 0);

        edit.startRead();
        for (QChar c : keys) {
            if (c == '<') QTest::keyClick(&edit, Qt::Key_Backspace);
            else if (c == '^') QTest::keyClick(&edit, Qt::Key_Left);
            else if (c == '#') edit.moveCursor(QTextCursor::Start), edit.paste();
            else QTest::keyClick(&edit, c.toLatin1());
        }
        QTest::keyClick(&edit, Qt::Key_Return);
        QCOMPARE(ends.count(), 1);
        QTEST(edit.getReadText(), "handed");
        QTEST(edit.toPlainText(), "shown");
        QTest::keyClicks(&edit, "x");
        QTEST(edit.toPlainText(), "shown");
    }

    void controlCharactersInOutput_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("shown");
        QTest::newRow("backspace") << "abc\bd\n" << "abd\n";
        QTest::newRow("bell") << "x\ay" << "xy";
        QTest::newRow("backspace before bell") << "ab\a\bc" << "abc";
    }
    void controlCharactersInOutput() {
        QFETCH(QString, text);
        TestController wc(ask_once);
        ZOR_TextEdit* edit = console_window(wc);
        QTRY_VERIFY(edit->readstart >= 0);
        QCOMPARE(wc.writeTextToUnit(-4, text), 1);
        QCOMPARE(wc.writeTextToUnit(7, "no window"), -1);
        QFETCH(QString, shown);
        QCOMPARE(edit->toPlainText(), "your choice\n" + shown);
    }

    void bridgeReads_data() {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<int>("length");
        QTest::addColumn<int>("ending");  // 0 typed, 1 read cancelled, 2 bridge gone
        QTest::addColumn<int>("result");
        QTest::addColumn<QByteArray>("kept");
        QTest::newRow("line") << "abc" << 8 << 0 << 3 << QByteArray("abc\n");
        QTest::newRow("line as long as the buffer") << "abc" << 3 << 0 << 3 << QByteArray("abc#");
        QTest::newRow("empty line") << "" << 8 << 0 << 0 << QByteArray("\n");
        QTest::newRow("line too long") << "abcd" << 3 << 0 << -3 << QByteArray("####");
        QTest::newRow("cancelled") << "" << 8 << 1 << -1 << QByteArray("#");
        QTest::newRow("bridge gone") << "" << 8 << 2 << 0 << QByteArray("#");
    }
    void bridgeReads() {
        QFETCH(QString, typed);
        QFETCH(int, length);
        QFETCH(int, ending);
        auto* glue = new GlueManager;
        glue_manager = glue;
        QSignalSpy asked(glue, &GlueManager::startRead);
        QTimer::singleShot(20, [&] {
            if (ending == 0) glue->finishRead(typed);
            else if (ending == 1) glue->cancelRead();
            else ZOR_cleanup();
        });
        char read[8];
        std::memset(read, '#', sizeof read);
        const std::int64_t unit = -2;
        QTEST(int(ZOR_readText(read, length, &unit)), "result");
        QCOMPARE(asked.count(), 1);
        QFETCH(QByteArray, kept);
        QCOMPARE(QByteArray(read, kept.size()), kept);
        ZOR_cleanup();
        const std::int64_t all_ones = -1;
        QCOMPARE(int(ZOR_readText(read, 8, &unit)), -1);
        QCOMPARE(int(ZOR_writeText("x", &all_ones, nullptr, &unit)), -1);
    }

    // The thread ends either on its own, its read answered with nothing, or
    // by termination when it doesn't within the grace time.
    void closingDuringReadEndsEngine() {
        g_answer.clear();
        TestController wc(ask_once);
        ZOR_TextEdit* edit = console_window(wc);
        QTRY_VERIFY(edit->readstart >= 0);
        // Nothing to save, so no dialog stands in the way of closing.
        edit->document()->setModified(false);
        QTimer::singleShot(0, wc.firstMainWindow(), &QWidget::close);
        QTimer::singleShot(10000, qApp, &QCoreApplication::quit);
        QApplication::exec();
        QVERIFY(!wc.engineThread() || wc.engineThread()->isFinished());
        QVERIFY(g_answer.isEmpty() || g_answer == "<closed>");
        QVERIFY(!glue_manager.load());
    }

    // The demo's keyboard script in the window gives the terminal's dialogue;
    // at the end the window asks where to save it and saves exactly that.
    void demoRunsAsOnTerminal() {
        QFile::remove("well210.txt");
        QVERIFY(QFile::copy(TARNOLIX_SOURCE_DIR "/data/well210.txt", "well210.txt"));
        std::vector<std::string> keys;
        std::ifstream script(TARNOLIX_SOURCE_DIR "/data/log_job.keys");
        for (std::string line; std::getline(script, line);) keys.push_back(line);
        QVERIFY(keys.size() > 10);

        // Both runs start from the same page format: the first one leaves
        // its choice in the page format file as the next default.
        QFile::remove("quarp9_ini.txt");
        use_fake_platform();
        echo_console terminal(keys);
        {
            console_scope scope(terminal);
            QCOMPARE(run_engine(), 0);
        }
        const QString expected = QString::fromStdString(terminal.text());

        QFile::remove("quarp9_ini.txt");
        use_fake_platform();
        const QString saved = QDir::current().absoluteFilePath("window dialogue.txt");
        QFile::remove(saved);
        TestController wc(run_engine);
        ZOR_TextEdit* edit = console_window(wc);
        QTimer dialogs;
        connect(&dialogs, &QTimer::timeout, [&] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            if (!dialog) return;
            dialogs.stop();
            dialog->findChild<QLineEdit*>("fileNameEdit")->setText(saved);
            static_cast<QDialog*>(dialog)->accept();
        });
        dialogs.start(20);
        for (const std::string& line : keys) QVERIFY(type_line(edit, QString::fromStdString(line)));
        QTRY_VERIFY_WITH_TIMEOUT(wc.ended, 20000);
        QVERIFY(wc.engineThread()->wait(5000));
        QCOMPARE(wc.engineThread()->status, 0);
        QFile file(saved);
        QVERIFY(file.open(QIODevice::ReadOnly | QIODevice::Text));
        const QString got = QString::fromLatin1(file.readAll());
        // A failed comparison shows only the start: the whole expected text
        // goes beside the saved one, for a diff.
        if (got != expected) {
            QFile f("terminal dialogue.txt");
            f.open(QIODevice::WriteOnly);
            f.write(expected.toLatin1());
        }
        QCOMPARE(got, expected);
        runinfo_platform = runinfo_platform_default();
    }
};

QTEST_MAIN(TextWindowTest)
#include "text_window_test.moc"
