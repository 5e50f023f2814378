#include "host/qt/text_edit.h"

#include <QFile>
#include <QFileDialog>
#include <QKeyEvent>
#include <QMimeData>
#include <QPrinter>
#include <QTextStream>

#include "host/qt/preferences.h"

ZOR_TextEdit::ZOR_TextEdit(qint64 unit, const QString& title, const QString& options, QWidget* parent)
    : QPlainTextEdit(parent), ZOR_ContentController(unit, title, options) {
    setLineWrapMode(QPlainTextEdit::NoWrap);
    // Undo is on only during a read, so it never reaches into the output.
    setUndoRedoEnabled(false);
    QFont f(QString::fromLatin1(ZOR_defaultFontFamily()).trimmed(), ZOR_defaultFontSize());
    f.setStyleHint(QFont::TypeWriter);
    setFont(f);
    installEventFilter(this);
}

void ZOR_TextEdit::appendText(const QString& text) {
    QTextCursor c(document());
    c.movePosition(QTextCursor::End);
    c.insertText(text);
    setTextCursor(c);
}

void ZOR_TextEdit::startRead() {
    readstart = textCursor().position();
    setUndoRedoEnabled(true);
}

QString ZOR_TextEdit::getReadText() {
    QString text = readtext;
    readtext.clear();
    return text;
}

bool ZOR_TextEdit::eventFilter(QObject* watched, QEvent* event) {
    if (watched == this && event->type() == QEvent::KeyPress) {
        const auto* key = static_cast<QKeyEvent*>(event);
        // Outside a read plain keys would alter the output; keys with
        // modifiers pass for the shortcuts.
        if (readstart < 0) return key->modifiers() == Qt::NoModifier;
        if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) {
            QTextCursor c = textCursor();
            c.setPosition(readstart, QTextCursor::KeepAnchor);
            readtext = c.selectedText().replace(QChar::ParagraphSeparator, QLatin1Char('\n'));
            readstart = -1;
            setUndoRedoEnabled(false);
            emit endRead();
            // The key goes on, so the line end shows in the window.
        }
    }
    return QPlainTextEdit::eventFilter(watched, event);
}

bool ZOR_TextEdit::canInsertFromMimeData(const QMimeData* source) const {
    return readstart >= 0 && QPlainTextEdit::canInsertFromMimeData(source);
}

void ZOR_TextEdit::insertFromMimeData(const QMimeData* source) {
    if (readstart < 0 || !source->hasText()) return;
    QTextCursor c = textCursor();
    if (c.selectionStart() < readstart) c.movePosition(QTextCursor::End);
    c.insertText(source->text());
    setTextCursor(c);
}

bool ZOR_TextEdit::willClose() {
    if (ZOR_promptSaveOnExit() && document()->isModified()) return saveAs();
    if (ZOR_autoSave()) save(QString());
    return true;
}

bool ZOR_TextEdit::save(const QString& fileName) {
    QFile file(fileName.isEmpty() ? title + " output" : fileName);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Text)) return false;
    QTextStream out(&file);
    out << toPlainText();
    out.flush();
    if (out.status() != QTextStream::Ok) return false;
    document()->setModified(false);
    return true;
}

bool ZOR_TextEdit::saveAs() {
    QFileDialog dialog(this, "Save " + title + " As", QString(), "All Files (*.*)");
    dialog.selectFile(title + " output");
    dialog.setDefaultSuffix("txt");
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return false;
    return save(dialog.selectedFiles().first());
}

void ZOR_TextEdit::print(QPrinter* printer) { QPlainTextEdit::print(printer); }
