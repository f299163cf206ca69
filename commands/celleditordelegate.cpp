#include "celleditordelegate.h"

#include <QKeyEvent>
#include <QLineEdit>

namespace {

bool isEnter(const QEvent &event)
{
    if (event.type() != QEvent::KeyPress) {
        return false;
    }
    const int key = static_cast<const QKeyEvent &>(event).key();
    return key == Qt::Key_Return || key == Qt::Key_Enter;
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
        if (isEnter(*event)) {
            finishByEnter(editor);
            return true;
        }
    }
    return QStyledItemDelegate::eventFilter(object, event);
}
