#pragma once

#include <QHash>
#include <QMenu>

#include <optional>

/// What the row menu can do with a row.
enum class RowAction { Edit, Insert, Clone, Delete, Up, Down, Delay };

/// The three context menus of the command table, and what keys alone do. Actions are told apart by
/// pointer, never by their texts. Menus show their keys, which only the table makes work.
class RowMenus
{
public:
    /// Menus and actions belong to the parent. The row menu begins with "edit" if asked to.
    RowMenus(QWidget *parent, bool withEdit);

    QMenu &rowMenu() const { return *m_rowMenu; }
    QMenu &selectMenu() const { return *m_selectMenu; }
    QMenu &cmdMenu() const { return *m_cmdMenu; }

    /// What takes back and does again. They mean the whole list, and stand in no menu.
    QAction &undoAction() const { return *m_undo; }
    QAction &redoAction() const { return *m_redo; }

    /// What an action of the row menu stands for; nothing for any other action.
    std::optional<RowAction> rowAction(QAction *action) const;

    /// Whether an action of the select menu checks or unchecks; nothing for any other action.
    std::optional<bool> selection(QAction *action) const;

    /// The command byte that an action of the CMD menu stands for; nothing for any other action.
    std::optional<QString> cmd(QAction *action) const;

private:
    QMenu *m_rowMenu;
    QMenu *m_selectMenu;
    QMenu *m_cmdMenu;
    QAction *m_undo = nullptr;
    QAction *m_redo = nullptr;
    QHash<QAction *, RowAction> m_rowActions;
    QHash<QAction *, bool> m_selections;
    QHash<QAction *, QString> m_cmds;
};
