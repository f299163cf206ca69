#pragma once

#include "commands/celleditordelegate.h"

/// Edits an address: at most four hex digits.
class AddrDelegate : public CellEditorDelegate
{
    Q_OBJECT

public:
    using CellEditorDelegate::CellEditorDelegate;

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;

    /// Whether the editor that AfterCommitData announces is left as it was opened. Return and Enter
    /// confirm an address; all else leaves an untouched one as it is.
    bool leavesUntouched() const { return m_leavesUntouched; }

signals:
    /// The user has ended the editing by Return or Enter; emitted before the editor closes.
    void enterdata();

    /// An address has been committed and its editor is about to close.
    void AfterCommitData();

protected:
    void finishByEnter(QLineEdit *editor) override;
    void finishByFocusOut(QLineEdit *editor) override;
    void announceTab(const QLineEdit *editor) override;

    /// Blanks, which stand for no address in a loaded row, are not shown.
    QString editedText(const QModelIndex &index) const override;

private:
    void announceLeaving(const QLineEdit &editor);

    bool m_leavesUntouched = false;
};
