#include "celleditordelegate.h"

#include <QKeyEvent>
#include <QLineEdit>

namespace {

bool isEnter(int key)
{
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

bool leavesCell(int key)
{
    return key == Qt::Key_Tab || key == Qt::Key_Backtab || key == Qt::Key_Escape;
}

} // namespace

bool CellEditorDelegate::eventFilter(QObject *object, QEvent *event)
{
    auto *editor = qobject_cast<QLineEdit *>(object);
    if (editor == nullptr) {
        return QStyledItemDelegate::eventFilter(object, event);
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
        const int key = static_cast<const QKeyEvent *>(event)->key();
        if (isEnter(key)) {
            finishByEnter(editor);
            return true;
        }
        if (leavesCell(key)) {
            leaveByKey();
        }
    }
    return QStyledItemDelegate::eventFilter(object, event);
}
