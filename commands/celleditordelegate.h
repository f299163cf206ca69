#pragma once

#include "commands/textdelegate.h"

/// What the two cell editors have in common: every event on the editor commits its text, Return and
/// Enter end the editing, and losing the focus does.
///
/// The editor's property "cursorPos" holds its cursor position.
class CellEditorDelegate : public TextDelegate
{
    Q_OBJECT

public:
    using TextDelegate::TextDelegate;

    bool eventFilter(QObject *object, QEvent *event) override;
    void takeIn(QLineEdit *editor) override;

protected:
    /// Return or Enter was pressed; the text is committed.
    virtual void finishByEnter(QLineEdit *editor) = 0;

    /// The editor has lost the focus; the text is committed.
    virtual void finishByFocusOut(QLineEdit *editor) = 0;

    /// Tab was pressed; the text is committed, and the editor closes after
    /// this.
    virtual void announceTab(const QLineEdit * /*editor*/) {}

private:
    bool endByKey(QLineEdit *editor, int key);
};
