#include "host/qt/main_window.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QFontDialog>
#include <QMdiArea>
#include <QMenuBar>
#include <QPageSetupDialog>
#include <QPrintDialog>

#include "host/qt/bridge.h"
#include "host/qt/text_edit.h"

QAction* MainWindow::addAction(QMenu* menu, const char* text, const char* tip, void (MainWindow::*slot)()) {
    QAction* a = menu->addAction(tr(text));
    a->setStatusTip(tr(tip));
    a->setToolTip(tr(tip));
    connect(a, &QAction::triggered, this, slot);
    return a;
}

MainWindow::MainWindow(QMdiArea* mdi) : mdi_(mdi) {
    QMenu* file = menuBar()->addMenu(tr("&File"));
    saveAct = addAction(file, "&Save", "Saves output to file", &MainWindow::save);
    saveAsAct = addAction(file, "Save &As", "Prompt for file name and saves output to file", &MainWindow::saveAs);
    printSetupAct = addAction(file, "P&rint Setup", "Displays printer setup dialog", &MainWindow::printSetup);
    printAct = addAction(file, "&Print", "Prints output", &MainWindow::print);
    quitAct = file->addAction(tr("&Quit"));
    quitAct->setStatusTip(tr("Close all windows and exit"));
    quitAct->setToolTip(quitAct->statusTip());
    connect(quitAct, &QAction::triggered, qApp, &QApplication::closeAllWindows);

    QMenu* edit = menuBar()->addMenu(tr("&Edit"));
    cutAct = addAction(edit, "C&ut", "Cut the current selection's contents to the clipboard", &MainWindow::cut);
    copyAct = addAction(edit, "&Copy", "Copy the current selection's contents to the clipboard", &MainWindow::copy);
    pasteAct = addAction(edit, "&Paste", "Paste the clipboard's contents into the current selection", &MainWindow::paste);
    undoAct = addAction(edit, "&Undo", "Undo last event", &MainWindow::undo);
    redoAct = addAction(edit, "&Redo", "Redo last event", &MainWindow::redo);
    fontAct = addAction(edit, "&Font", "Select the current font through the font dialog", &MainWindow::chooseFont);

    if (mdi_) {
        setCentralWidget(mdi_);
        QMenu* window = menuBar()->addMenu(tr("&Window"));
        struct item {
            const char *text, *tip;
            void (QMdiArea::*slot)();
        };
        const item items[] = {
            {"Cl&ose", "Close the active window", &QMdiArea::closeActiveSubWindow},
            {"Close &All", "Close all the windows", &QMdiArea::closeAllSubWindows},
            {"&Tile", "Tile the windows", &QMdiArea::tileSubWindows},
            {"&Cascade", "Cascade the windows", &QMdiArea::cascadeSubWindows},
            {"Ne&xt", "Move the focus to the next window", &QMdiArea::activateNextSubWindow},
            {"Pre&vious", "Move the focus to the previous window", &QMdiArea::activatePreviousSubWindow},
        };
        for (const item& it : items) {
            QAction* a = window->addAction(tr(it.text));
            a->setStatusTip(tr(it.tip));
            a->setToolTip(a->statusTip());
            connect(a, &QAction::triggered, mdi_, it.slot);
            if (it.slot == &QMdiArea::closeActiveSubWindow) a->setShortcut(QKeySequence("Ctrl+F4"));
        }
    }
    setTextEdit(nullptr);
}

void MainWindow::setTextEdit(ZOR_TextEdit* edit) {
    if (edit_)
        for (QAction* a : {cutAct, copyAct, undoAct, redoAct}) disconnect(edit_.data(), nullptr, a, nullptr);
    edit_ = edit;
    const bool on = edit != nullptr;
    for (QAction* a : {cutAct, copyAct, pasteAct, undoAct, redoAct}) {
        a->setVisible(on);
        a->setEnabled(false);
    }
    for (QAction* a : {saveAct, saveAsAct, printSetupAct, printAct}) a->setEnabled(on);
    if (!edit) return;
    connect(edit, &QPlainTextEdit::copyAvailable, cutAct, &QAction::setEnabled);
    connect(edit, &QPlainTextEdit::copyAvailable, copyAct, &QAction::setEnabled);
    connect(edit, &QPlainTextEdit::undoAvailable, undoAct, &QAction::setEnabled);
    connect(edit, &QPlainTextEdit::redoAvailable, redoAct, &QAction::setEnabled);
    pasteAct->setEnabled(edit->readstart >= 0);
}

void MainWindow::startRead() { pasteAct->setEnabled(true); }
void MainWindow::endRead() { pasteAct->setEnabled(false); }

void MainWindow::showMenus() {
    menuBar()->show();
    for (QAction* a : menuBar()->actions()) a->setVisible(true);
}

bool MainWindow::event(QEvent* event) {
    if (event->type() == QEvent::Close) {
        if (mdi_) {
            mdi_->closeAllSubWindows();
            if (!mdi_->subWindowList().isEmpty()) {
                event->ignore();
                return true;
            }
        } else if (edit_) {
            if (!edit_->willDestroy()) {
                event->ignore();
                return true;
            }
            ZOR_TextEdit* edit = edit_;
            setTextEdit(nullptr);
            delete edit;
        }
    } else if (event->type() == QEvent::ActivationChange && isActiveWindow()) {
        raise();
    }
    return QMainWindow::event(event);
}

void MainWindow::save() {
    if (edit_) edit_->save(QString());
}
void MainWindow::saveAs() {
    if (edit_) edit_->saveAs();
}
void MainWindow::printSetup() {
    QPageSetupDialog dialog(&printer_, this);
    dialog.exec();
}
void MainWindow::print() {
    if (!edit_) return;
    QPrintDialog dialog(&printer_, this);
    dialog.setWindowTitle(tr("Print Document"));
    if (dialog.exec() == QDialog::Accepted) edit_->print(&printer_);
}
void MainWindow::cut() {
    if (edit_) edit_->cut();
}
void MainWindow::copy() {
    if (edit_) edit_->copy();
}
void MainWindow::paste() {
    if (edit_) edit_->paste();
}
void MainWindow::undo() {
    if (edit_) edit_->undo();
}
void MainWindow::redo() {
    if (edit_) edit_->redo();
}
void MainWindow::chooseFont() {
    if (!edit_) return;
    bool ok = false;
    const QFont font = QFontDialog::getFont(&ok, edit_->font(), this);
    if (ok) edit_->setFont(font);
}

void SubWindow::closeEvent(QCloseEvent* event) {
    GlueManager* glue = glue_manager.load();
    // The engine waiting on this window gets -1 rather than waiting on.
    if (glue && glue->reading && window_key(glue->readunit) == window_key(property("unit").toLongLong()))
        glue->cancelRead();
    if (controller && !controller->willDestroy()) {
        event->ignore();
        return;
    }
    QMdiSubWindow::closeEvent(event);
    deleteLater();
}
