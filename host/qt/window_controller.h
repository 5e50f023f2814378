// Owns every window of the host and serves the engine's requests on the
// main thread.
#pragma once

#include <QHash>
#include <QList>
#include <QObject>
#include <QPointer>

#include <functional>

#include "host/qt/main_window.h"

class ENGINE_QThread;
class QMdiArea;
class QWidget;
class ZOR_TextEdit;

class WindowController : public QObject {
    Q_OBJECT
public:
    // Creates the default text window and starts the engine thread on the
    // given entry (the engine's own entry in the program).
    explicit WindowController(std::function<int()> engine);
    ~WindowController() override;

    QWidget* getWidgetForUnit(qint64 unit) const;
    ZOR_TextEdit* getTextEditForUnit(qint64 unit) const;
    void addTextEditForUnit(qint64 unit, ZOR_TextEdit* edit);
    MainWindow* createMainWindow(const QString& title, int height, int width);
    QWidget* createMDIWindow(const QString& title, int height, int width);
    void bringToFront(QWidget* widget);

    ENGINE_QThread* engineThread() const { return thread_; }
    MainWindow* firstMainWindow() const { return first_main_; }

public slots:
    void createWindowForUnit(qint64 unit, const QString& title, const QString& options);
    // 1 when written, -1 when the unit has no text window.
    int writeTextToUnit(qint64 unit, const QString& text);
    void startReadingInput(qint64 unit);
    void endReadText();
    void closeWindowForUnit(qint64 unit);
    void hideWindowForUnit(qint64 unit);
    void closeOnProgramStop();
    void destroyEngineThread();
    void runIdle();
    void getFileNameFromWindow(qint64 unit, int flag);

signals:
    void finishRead(const QString& text);
    void endWindowSyncOperation();

protected:
    // The end of the process once the engine has stopped.
    virtual void endProcess();

private:
    QHash<qint64, QPointer<ZOR_TextEdit>> text_windows_;
    ENGINE_QThread* thread_ = nullptr;
    QMdiArea* mdi_area_ = nullptr;
    bool mdi_ = false;
    QPointer<ZOR_TextEdit> reading_;
    QPointer<MainWindow> first_main_;
    QList<QPointer<QWidget>> windows_;
    bool stopping_ = false;
    bool idle_ = false;
};
