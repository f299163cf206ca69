#pragma once

#include "commands/celleditordelegate.h"

/// Edits the data of a command in the table's usual line edit.
class DataDelegate : public CellEditorDelegate
{
    Q_OBJECT

public:
    using CellEditorDelegate::CellEditorDelegate;

signals:
    /// The user has ended the editing by Return or Enter; emitted after the editor has closed.
    void enterdata();

protected:
    void finishByEnter(QLineEdit *editor) override;
    void finishByFocusOut(QLineEdit *editor) override;
};
