#pragma once

#include "widgets/plaincelldelegate.h"

class QLineEdit;

/// Edits a cell of the command table in a line edit. What is there already is not written again, so
/// that a cell which was only looked at counts as unchanged.
class TextDelegate : public PlainCellDelegate
{
    Q_OBJECT

public:
    using PlainCellDelegate::PlainCellDelegate;

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    void setModelData(QWidget *editor, QAbstractItemModel *model,
                      const QModelIndex &index) const override;

    bool eventFilter(QObject *object, QEvent *event) override;

    QString fault(const QModelIndex &index) const override;

    /// Ends the editing as if the user had gone elsewhere: writes the text and closes the editor.
    virtual void takeIn(QLineEdit *editor);

signals:
    /// A cell is about to be edited.
    void editorOpens() const;

protected:
    /// To be called for each new editor.
    void prepare(QLineEdit *editor) const;

    /// What an editor shows of a cell.
    virtual QString editedText(const QModelIndex &index) const;

    /// Whether an editor still holds what it was opened with, and nothing was typed.
    static bool isUntouched(const QLineEdit &editor);
};
