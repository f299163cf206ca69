#include "commands/datadelegate.h"

#include <QLineEdit>

void DataDelegate::finishByEnter(QLineEdit *editor)
{
    emit closeEditor(editor, NoHint);
    emit enterdata();
}

void DataDelegate::finishByFocusOut(QLineEdit *editor)
{
    emit closeEditor(editor, NoHint);
}
