#include "commands/rowmenus.h"

#include "frames/messages.h"

#include <QWidget>

namespace {

QAction *makeAction(QObject *parent, const QString &text, const QKeySequence &key)
{
    auto *action = new QAction(text, parent);
    action->setShortcut(key);
    return action;
}

QAction *addAction(QMenu &menu, const QString &text, const QKeySequence &key = {})
{
    QAction *action = makeAction(menu.parent(), text, key);
    menu.addAction(action);
    return action;
}

template<typename Meaning>
std::optional<Meaning> meaningOf(const QHash<QAction *, Meaning> &meanings, QAction *action)
{
    const auto found = meanings.constFind(action);
    return found != meanings.cend() ? std::optional(*found) : std::nullopt;
}

} // namespace

RowMenus::RowMenus(QWidget *parent, bool withEdit)
    : m_rowMenu(new QMenu(parent))
    , m_selectMenu(new QMenu(parent))
    , m_cmdMenu(new QMenu(parent))
{
    if (withEdit) {
        m_rowActions.insert(addAction(*m_rowMenu, Messages::tr("edit")), RowAction::Edit);
    }
    m_rowActions.insert(addAction(*m_rowMenu, Messages::tr("insert"), Qt::Key_Insert),
                        RowAction::Insert);
    m_rowActions.insert(
        addAction(*m_rowMenu, Messages::tr("clone"), int(Qt::CTRL) + int(Qt::Key_D)),
        RowAction::Clone);
    m_rowActions.insert(
        addAction(*m_rowMenu, Messages::tr("delete"), int(Qt::CTRL) + int(Qt::Key_Delete)),
        RowAction::Delete);
    m_rowActions.insert(addAction(*m_rowMenu, Messages::tr("up"), int(Qt::ALT) + int(Qt::Key_Up)),
                        RowAction::Up);
    m_rowActions.insert(
        addAction(*m_rowMenu, Messages::tr("down"), int(Qt::ALT) + int(Qt::Key_Down)),
        RowAction::Down);
    m_rowActions.insert(addAction(*m_rowMenu, Messages::tr("delay")), RowAction::Delay);
    m_undo = makeAction(parent, Messages::tr("undo"), int(Qt::CTRL) + int(Qt::Key_Z));
    m_redo =
        makeAction(parent, Messages::tr("redo"), int(Qt::CTRL) + int(Qt::SHIFT) + int(Qt::Key_Z));

    m_selections.insert(addAction(*m_selectMenu, Messages::tr("select all")), true);
    m_selections.insert(addAction(*m_selectMenu, Messages::tr("select none")), false);

    for (const char *byte : {"10", "03", "42"}) {
        const QString cmd = QLatin1String(byte);
        m_cmds.insert(addAction(*m_cmdMenu, cmd), cmd);
    }
}

std::optional<RowAction> RowMenus::rowAction(QAction *action) const
{
    return meaningOf(m_rowActions, action);
}

std::optional<bool> RowMenus::selection(QAction *action) const
{
    return meaningOf(m_selections, action);
}

std::optional<QString> RowMenus::cmd(QAction *action) const
{
    return meaningOf(m_cmds, action);
}
