#pragma once

#include "celleditordelegate.h"

/// Edits an address: at most four hex digits.
class AddrDelegate : public CellEditorDelegate
{
    Q_OBJECT

public:
    using CellEditorDelegate::CellEditorDelegate;

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;

signals:
    /// The user has ended the editing by Return or Enter; emitted before the editor closes.
    void enterdata();

    /// An address has been committed and its editor is about to close.
    void AfterCommitData();

protected:
    void finishByEnter(QLineEdit *editor) override;
    void finishByFocusOut(QLineEdit *editor) override;
    void leaveByKey() override;
};
