#include "app/roweditor.h"

#include "commands/commandcolumns.h"
#include "commands/commandtable.h"
#include "widgets/placement.h"

#include <QTableWidget>

RowEditor::RowEditor(QTableWidget &table, CommandTable &rows, QWidget *parent)
    : QObject(parent)
    , m_table(table)
    , m_rows(rows)
    , m_editor(parent)
{}

void RowEditor::open(int row)
{
    const CommandRow content = m_rows.row(row);
    m_editor.editCmd = content.cmd;
    m_editor.editAddr = content.addr;
    m_editor.editData = content.data;
    m_editor.editType = content.dataType;
    m_editor.loadFromMembers();
    m_editor.setModal(true);
    // A window that has just been shown, but not yet framed, is moved without its frame.
    placeBesideRow(m_editor, m_table, m_table.model()->index(row, CommandColumn::Cmd));
    m_editor.show();
}

void RowEditor::takeBack(int row)
{
    CommandRow edited;
    edited.cmd = m_editor.editCmd;
    edited.addr = m_editor.editAddr;
    edited.data = m_editor.editData;
    edited.dataType = m_editor.editType;
    m_rows.takeEdited(row, edited);
}
