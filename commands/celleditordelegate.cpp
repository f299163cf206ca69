#include "commands/celleditordelegate.h"

#include <QKeyEvent>
#include <QLineEdit>

namespace {

bool isEnter(int key)
{
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

bool isTab(int key)
{
    return key == Qt::Key_Tab || key == Qt::Key_Backtab;
}

} // namespace

bool CellEditorDelegate::eventFilter(QObject *object, QEvent *event)
{
    auto *editor = qobject_cast<QLineEdit *>(object);
    if (editor == nullptr) {
        return TextDelegate::eventFilter(object, event);
    }
    editor->setProperty("cursorPos", editor->cursorPosition());
    emit commitData(editor);
    if (event->type() == QEvent::FocusOut) {
        emit commitData(editor);
        finishByFocusOut(editor);
        return true;
    }
    if (event->type() == QEvent::KeyPress) {
        emit commitData(editor);
        if (endByKey(editor, static_cast<const QKeyEvent *>(event)->key())) {
            return true;
        }
    }
    return TextDelegate::eventFilter(object, event);
}

bool CellEditorDelegate::endByKey(QLineEdit *editor, int key)
{
    if (isEnter(key)) {
        finishByEnter(editor);
        return true;
    }
    if (isTab(key)) {
        // Qt itself would not leave an editor whose text a validator finds unfinished.
        announceTab(editor);
        emit commitData(editor);
        emit closeEditor(editor, key == Qt::Key_Tab ? EditNextItem : EditPreviousItem);
        return true;
    }
    return false;
}

void CellEditorDelegate::takeIn(QLineEdit *editor)
{
    emit commitData(editor);
    finishByFocusOut(editor);
}
