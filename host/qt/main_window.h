// The windows around text widgets: a main window of its own for each, or
// sub-windows of one main window.
#pragma once

#include <QMainWindow>
#include <QMdiSubWindow>
#include <QPointer>
#include <QPrinter>

#include "host/qt/text_edit.h"

class QAction;
class QMdiArea;
class WindowController;

class MainWindow : public QMainWindow {
    Q_OBJECT
public:
    // With an MDI area the window holds sub-windows and a Window menu.
    explicit MainWindow(QMdiArea* mdi = nullptr);

    void setTextEdit(ZOR_TextEdit* edit);
    ZOR_ContentController* controller() const { return edit_.data(); }
    void startRead();
    void endRead();
    void showMenus();

    QAction *saveAct, *saveAsAct, *printSetupAct, *printAct, *quitAct;
    QAction *cutAct, *copyAct, *pasteAct, *undoAct, *redoAct, *fontAct;

protected:
    bool event(QEvent* event) override;

public slots:
    void save();
    void saveAs();
    void printSetup();
    void print();
    void cut();
    void copy();
    void paste();
    void undo();
    void redo();
    void chooseFont();

private:
    QAction* addAction(QMenu* menu, const char* text, const char* tip, void (MainWindow::*slot)());
    // The current controller; the text widget may go before the window.
    QPointer<ZOR_TextEdit> edit_;
    QMdiArea* mdi_;
    QPrinter printer_;
};

class SubWindow : public QMdiSubWindow {
    Q_OBJECT
public:
    explicit SubWindow(QWidget* parent = nullptr) : QMdiSubWindow(parent) {}
    ZOR_ContentController* controller = nullptr;

protected:
    void closeEvent(QCloseEvent* event) override;
};
