#include "host/qt/window_controller.h"

#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QMdiArea>

#include <cstdlib>

#include "host/qt/bridge.h"
#include "host/qt/main_window.h"
#include "host/qt/preferences.h"
#include "host/qt/text_edit.h"

WindowController::WindowController(std::function<int()> engine) {
    mdi_ = ZOR_getMdiMode() != 0;
    stopping_ = idle_ = false;
    if (mdi_) {
        mdi_area_ = new QMdiArea;
        createMainWindow(QFileInfo(QCoreApplication::applicationFilePath()).fileName(), ZOR_getMainWindowHeight(),
                         ZOR_getMainWindowWidth());
        bringToFront(first_main_);
    }
    createWindowForUnit(console_write_unit, QFileInfo(QCoreApplication::applicationFilePath()).fileName(), "");
    if (!ZOR_showDefaultOutputWindow()) mdi_ ? closeWindowForUnit(console_write_unit) : hideWindowForUnit(console_write_unit);

    auto* glue = new GlueManager;
    glue_manager = glue;
    connect(this, &WindowController::finishRead, glue, &GlueManager::finishRead);
    connect(this, &WindowController::endWindowSyncOperation, glue, &GlueManager::endWindowSyncOperation);
    connect(qApp, &QGuiApplication::lastWindowClosed, this, &WindowController::destroyEngineThread);
    // The engine thread emits these; each is served later on this thread.
    const auto queued = Qt::QueuedConnection;
    connect(glue, &GlueManager::writeText, this, &WindowController::writeTextToUnit, queued);
    connect(glue, &GlueManager::createWindow, this, &WindowController::createWindowForUnit, queued);
    connect(glue, &GlueManager::closeWindow, this, &WindowController::closeWindowForUnit, queued);
    connect(glue, &GlueManager::startRead, this, &WindowController::startReadingInput, queued);
    connect(glue, &GlueManager::engineRunIdle, this, &WindowController::runIdle, queued);
    connect(glue, &GlueManager::getFileNameFromWindow, this, &WindowController::getFileNameFromWindow, queued);
    connect(glue, &GlueManager::closeOnEngineStop, this, &WindowController::closeOnProgramStop, queued);

    thread_ = new ENGINE_QThread(std::move(engine));
    thread_->setStackSize(uint(ZOR_getStackSize()));
    thread_->start(QThread::InheritPriority);
}

WindowController::~WindowController() {
    // Without a bridge a waiting read returns and the engine winds down.
    ZOR_cleanup();
    if (thread_) {
        if (!thread_->wait(5000)) {
            thread_->terminate();
            thread_->wait();
        }
        delete thread_;
    }
    engine_thread = nullptr;
    for (const QPointer<QWidget>& w : windows_) delete w.data();
}

void WindowController::createWindowForUnit(qint64 unit, const QString& title, const QString& options) {
    int width = mdi_ ? ZOR_getMdiTextWindowWidth() : ZOR_getMainWindowWidth();
    int height = mdi_ ? ZOR_getMdiTextWindowHeight() : ZOR_getMainWindowHeight();
    // The first part names the kind of window; text is the only kind here.
    const QStringList parts = options.split(',', Qt::SkipEmptyParts);
    if (parts.size() > 1) width = parts[1].trimmed().toInt();
    if (parts.size() > 2) height = parts[2].trimmed().toInt();

    auto* edit = new ZOR_TextEdit(unit, title, options);
    connect(edit, &ZOR_TextEdit::endRead, this, &WindowController::endReadText);
    addTextEditForUnit(unit, edit);
    if (mdi_) {
        auto* sub = static_cast<SubWindow*>(createMDIWindow(title, height, width));
        sub->setWidget(edit);
        sub->setProperty("unit", unit);
        sub->controller = edit;
        first_main_->setTextEdit(edit);
        sub->show();
    } else {
        MainWindow* window = createMainWindow(title, height, width);
        window->setTextEdit(edit);
        window->setCentralWidget(edit);
        bringToFront(edit);
    }
}

MainWindow* WindowController::createMainWindow(const QString& title, int height, int width) {
    auto* window = new MainWindow(mdi_ && !first_main_ ? mdi_area_ : nullptr);
    window->setWindowTitle(title);
    window->resize(width, height);
    windows_.append(window);
    if (!first_main_) {
        first_main_ = window;
        if (ZOR_getShowMaximized()) {
            window->showMaximized();
        } else {
            window->resize(ZOR_getMainWindowWidth(), ZOR_getMainWindowHeight());
            window->move(40, 40);
        }
    } else {
        window->move(first_main_->pos() + QPoint(40, 40));
        window->setAttribute(Qt::WA_ShowWithoutActivating);
        window->show();
        window->stackUnder(first_main_);
    }
    return window;
}

QWidget* WindowController::createMDIWindow(const QString& title, int height, int width) {
    auto* sub = new SubWindow;
    sub->setWindowTitle(title);
    mdi_area_->addSubWindow(sub);
    sub->resize(width, height);
    return sub;
}

void WindowController::addTextEditForUnit(qint64 unit, ZOR_TextEdit* edit) { text_windows_[window_key(unit)] = edit; }

ZOR_TextEdit* WindowController::getTextEditForUnit(qint64 unit) const {
    return text_windows_.value(window_key(unit)).data();
}

QWidget* WindowController::getWidgetForUnit(qint64 unit) const {
    ZOR_TextEdit* edit = getTextEditForUnit(unit);
    if (!edit) return nullptr;
    if (mdi_)
        for (QWidget* w = edit->parentWidget(); w; w = w->parentWidget())
            if (auto* sub = qobject_cast<QMdiSubWindow*>(w)) return sub;
    return edit->window();
}

void WindowController::bringToFront(QWidget* widget) {
    if (!widget) return;
    if (mdi_)
        for (QWidget* w = widget; w; w = w->parentWidget())
            if (auto* sub = qobject_cast<QMdiSubWindow*>(w)) mdi_area_->setActiveSubWindow(sub);
    QWidget* window = widget->window();
    window->show();
    window->raise();
    window->activateWindow();
}

int WindowController::writeTextToUnit(qint64 unit, const QString& text) {
    ZOR_TextEdit* edit = getTextEditForUnit(unit);
    if (!edit) return -1;
    QString rest = text;
    for (;;) {
        // Backspaces are served before bells, wherever they stand.
        int at = rest.indexOf(QChar(8));
        if (at >= 0) {
            if (at > 0) edit->appendText(rest.left(at));
            QTextCursor c = edit->textCursor();
            c.deletePreviousChar();
            edit->setTextCursor(c);
            rest = rest.mid(at + 1);
            continue;
        }
        at = rest.indexOf(QChar(7));
        if (at >= 0) {
            if (at > 0) edit->appendText(rest.left(at));
            QApplication::beep();
            rest = rest.mid(at + 1);
            continue;
        }
        edit->appendText(rest);
        return 1;
    }
}

void WindowController::startReadingInput(qint64 unit) {
    ZOR_TextEdit* edit = getTextEditForUnit(unit);
    if (!edit) return;
    reading_ = edit;
    edit->startRead();
    bringToFront(edit);
    if (auto* window = qobject_cast<MainWindow*>(edit->window())) window->startRead();
}

void WindowController::endReadText() {
    auto* edit = qobject_cast<ZOR_TextEdit*>(sender());
    if (!edit) return;
    const QString text = edit->getReadText();
    if (auto* window = qobject_cast<MainWindow*>(edit->window())) window->endRead();
    reading_ = nullptr;
    emit finishRead(text);
}

void WindowController::closeWindowForUnit(qint64 unit) {
    if (QWidget* w = getWidgetForUnit(unit)) w->close();
}

void WindowController::hideWindowForUnit(qint64 unit) {
    if (QWidget* w = getWidgetForUnit(unit)) w->hide();
}

void WindowController::closeOnProgramStop() {
    stopping_ = true;
    const QList<qint64> keys = text_windows_.keys();
    for (qint64 key : keys)
        if (key != window_key(console_write_unit)) closeWindowForUnit(key);
    if (first_main_) first_main_->close();
    endProcess();
}

void WindowController::endProcess() { std::exit(0); }

void WindowController::destroyEngineThread() {
    if (stopping_ || !thread_ || thread_->isFinished()) return;
    thread_->kill();
    thread_->wait(100);
    reading_ = nullptr;
    if (thread_->isRunning()) {
        thread_->terminate();
        while (!thread_->wait(100)) {
        }
    }
    delete thread_;
    thread_ = nullptr;
    engine_thread = nullptr;
}

void WindowController::runIdle() {
    idle_ = true;
    for (const QPointer<QWidget>& w : windows_)
        if (auto* window = qobject_cast<MainWindow*>(w.data())) window->showMenus();
}

void WindowController::getFileNameFromWindow(qint64 unit, int flag) {
    QWidget* parent = getWidgetForUnit(unit);
    const QString name = flag ? QFileDialog::getSaveFileName(parent) : QFileDialog::getOpenFileName(parent);
    if (GlueManager* glue = glue_manager.load()) glue->gotFileName(name);
}
