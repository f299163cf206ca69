#include "commands/textdelegate.h"

#include "commands/cellfault.h"
#include "commands/commandcolumns.h"
#include "commands/onelineedit.h"

#include <QKeyEvent>
#include <QLineEdit>

namespace {

const char *const openedWith = "openedWith";

/// Whether a key takes back or does again what has nothing to do with the text being edited.
bool meansTheList(const QKeyEvent &key, const QLineEdit *editor)
{
    return editor != nullptr && ((key.matches(QKeySequence::Undo) && !editor->isUndoAvailable()) ||
                                 (key.matches(QKeySequence::Redo) && !editor->isRedoAvailable()));
}

} // namespace

QWidget *TextDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                                    const QModelIndex &index) const
{
    QWidget *widget = PlainCellDelegate::createEditor(parent, option, index);
    if (auto *editor = qobject_cast<QLineEdit *>(widget)) {
        prepare(editor);
    }
    return widget;
}

void TextDelegate::prepare(QLineEdit *editor) const
{
    keepOnOneLine(*editor);
    emit editorOpens();
}

/// The view calls this after each commit, too: setting a text anew would move the cursor.
void TextDelegate::setEditorData(QWidget *widget, const QModelIndex &index) const
{
    auto *editor = qobject_cast<QLineEdit *>(widget);
    if (editor == nullptr) {
        PlainCellDelegate::setEditorData(widget, index);
        return;
    }
    const QString text = editedText(index);
    if (!editor->property(openedWith).isValid()) {
        editor->setProperty(openedWith, text);
    }
    if (editor->text() != text) {
        editor->setText(text);
    }
}

void TextDelegate::setModelData(QWidget *widget, QAbstractItemModel *model,
                                const QModelIndex &index) const
{
    const auto *editor = qobject_cast<const QLineEdit *>(widget);
    if (editor == nullptr || editor->text() != editedText(index)) {
        PlainCellDelegate::setModelData(widget, model, index);
    }
}

bool TextDelegate::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        const auto &key = *static_cast<const QKeyEvent *>(event);
        // Elsewhere in the table this key deletes a row.
        if (key.matches(QKeySequence::DeleteEndOfWord)) {
            event->accept();
            return true;
        }
        if (meansTheList(key, qobject_cast<const QLineEdit *>(object))) {
            event->ignore();
            return true;
        }
    }
    return QStyledItemDelegate::eventFilter(object, event);
}

QString TextDelegate::fault(const QModelIndex &index) const
{
    const auto text = [&index](int column) {
        return index.siblingAtColumn(column).data().toString();
    };
    CommandRow row;
    row.cmd = text(CommandColumn::Cmd);
    row.addr = text(CommandColumn::Addr);
    row.data = text(CommandColumn::Data);
    return cellFault(row, index.column());
}

void TextDelegate::takeIn(QLineEdit *editor)
{
    emit commitData(editor);
    emit closeEditor(editor, NoHint);
}

QString TextDelegate::editedText(const QModelIndex &index) const
{
    return index.data(Qt::EditRole).toString();
}

bool TextDelegate::isUntouched(const QLineEdit &editor)
{
    return !editor.isModified() && editor.property(openedWith) == editor.text();
}
