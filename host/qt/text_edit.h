// The text window's widget: the engine's terminal on the screen.
#pragma once

#include <QPlainTextEdit>
#include <QString>

class QPrinter;

// What a window shows, as the window's menus see it.
class ZOR_ContentController {
public:
    ZOR_ContentController(qint64 unit, const QString& title, const QString& options)
        : unit(unit), title(title), options(options) {}
    virtual ~ZOR_ContentController() = default;

    qint64 unit;
    QString title;
    QString options;

    // True when the window may close.
    virtual bool willClose() = 0;
    virtual bool save(const QString& fileName) = 0;
    virtual bool saveAs() = 0;
    virtual void print(QPrinter* printer) = 0;
    virtual void cut() = 0;
    virtual void copy() = 0;
    virtual void paste() = 0;
    virtual void undo() = 0;
    virtual void redo() = 0;
    virtual void setFont(const QFont& font) = 0;
    virtual QFont font() const = 0;

    bool willDestroy() { return willClose(); }
};

class ZOR_TextEdit : public QPlainTextEdit, public ZOR_ContentController {
    Q_OBJECT
public:
    ZOR_TextEdit(qint64 unit, const QString& title, const QString& options, QWidget* parent = nullptr);

    // Document position where the current read began, -1 with no read.
    int readstart = -1;
    QString readtext;

    void appendText(const QString& text);
    void startRead();
    // The text of the last read; it is cleared.
    QString getReadText();

    bool willClose() override;
    bool save(const QString& fileName) override;
    bool saveAs() override;
    void print(QPrinter* printer) override;
    void cut() override { QPlainTextEdit::cut(); }
    void copy() override { QPlainTextEdit::copy(); }
    void paste() override { QPlainTextEdit::paste(); }
    void undo() override { QPlainTextEdit::undo(); }
    void redo() override { QPlainTextEdit::redo(); }
    void setFont(const QFont& font) override { QPlainTextEdit::setFont(font); }
    QFont font() const override { return QPlainTextEdit::font(); }

signals:
    void endRead();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    bool canInsertFromMimeData(const QMimeData* source) const override;
    void insertFromMimeData(const QMimeData* source) override;
};
