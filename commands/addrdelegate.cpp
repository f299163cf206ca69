#include "commands/addrdelegate.h"

#include "frames/hextext.h"

#include <QLineEdit>
#include <QRegExpValidator>

QWidget *AddrDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem & /*option*/,
                                    const QModelIndex & /*index*/) const
{
    auto *editor = new QLineEdit(parent);
    const QRegExp fourDigits(QStringLiteral("[A-Fa-f0-9]{4}"), Qt::CaseSensitive);
    editor->setValidator(new QRegExpValidator(fourDigits, editor));
    prepare(editor);
    return editor;
}

void AddrDelegate::finishByEnter(QLineEdit *editor)
{
    emit commitData(editor);
    emit AfterCommitData();
    emit enterdata();
    emit closeEditor(editor, NoHint);
}

void AddrDelegate::finishByFocusOut(QLineEdit *editor)
{
    announceLeaving(*editor);
    emit closeEditor(editor, NoHint);
}

void AddrDelegate::announceTab(const QLineEdit *editor)
{
    announceLeaving(*editor);
}

QString AddrDelegate::editedText(const QModelIndex &index) const
{
    const QString text = CellEditorDelegate::editedText(index);
    return isBlank(text) ? QString() : text;
}

void AddrDelegate::announceLeaving(const QLineEdit &editor)
{
    m_leavesUntouched = isUntouched(editor);
    emit AfterCommitData();
    m_leavesUntouched = false;
}
