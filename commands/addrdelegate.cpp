#include "addrdelegate.h"

#include <QLineEdit>
#include <QRegExpValidator>

QWidget *AddrDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem & /*option*/,
                                    const QModelIndex & /*index*/) const
{
    auto *editor = new QLineEdit(parent);
    const QRegExp fourDigits(QStringLiteral("[A-Fa-f0-9]{4}"), Qt::CaseSensitive);
    editor->setValidator(new QRegExpValidator(fourDigits, editor));
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
    emit AfterCommitData();
    emit closeEditor(editor, NoHint);
}

void AddrDelegate::leaveByKey()
{
    emit AfterCommitData();
}
