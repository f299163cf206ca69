#include "app/messagemenu.h"

#include "log/messagelog.h"
#include "log/recordlog.h"

#include <QActionGroup>
#include <QContextMenuEvent>
#include <QShortcut>
#include <QTableWidget>

#include <utility>

MessageMenu::MessageMenu(QTableWidget &table, MessageLog &log, const RecordLog &records,
                         QObject *parent)
    : QObject(parent)
    , m_table(table)
    , m_log(log)
    , m_records(records)
    , m_copy(table, log, records)
    , m_times(new QActionGroup(this))
{
    m_table.installEventFilter(this);
    m_table.viewport()->installEventFilter(this);
    addCopyEntries();
    m_menu.addSeparator();
    addTimeEntries();
    addViewEntries();
    m_menu.addSeparator();
    m_goToRow = addEntry(tr("&Go to its command"), int(Qt::CTRL) + int(Qt::Key_G),
                         [this] { emit rowWanted(rowOfOrigin()); });
    addKey(int(Qt::SHIFT) + int(Qt::Key_F10), [this] { popUpAtCurrentRow(); });
}

/// The menu key's event comes to the table, the mouse's to its viewport.
bool MessageMenu::eventFilter(QObject *object, QEvent *event)
{
    if (event->type() != QEvent::ContextMenu) {
        return QObject::eventFilter(object, event);
    }
    if (object == &m_table) {
        popUpAtCurrentRow();
    } else {
        popUp(static_cast<const QContextMenuEvent *>(event)->globalPos());
    }
    return true;
}

/// The menu shows the key, which a shortcut of the table makes work.
template<typename Reaction>
QAction *MessageMenu::addEntry(const QString &text, const QKeySequence &key, Reaction reaction)
{
    QAction *entry = m_menu.addAction(text);
    connect(entry, &QAction::triggered, this, reaction);
    if (!key.isEmpty()) {
        entry->setShortcut(key);
        addKey(key, [this, entry] { trigger(*entry); });
    }
    return entry;
}

void MessageMenu::addCopyEntries()
{
    const auto addData = [this](const QString &text, DataForm form, const QKeySequence &key = {}) {
        m_copyData += addEntry(text, key, [this, form] { m_copy.copyData(form); });
    };
    m_copyRows = addEntry(tr("Copy &rows"), QKeySequence::Copy, [this] { m_copy.copyRows(); });
    addData(tr("Copy &data"), DataForm::Hex, int(Qt::CTRL) + int(Qt::SHIFT) + int(Qt::Key_C));
    addData(tr("Copy data as &text"), DataForm::Text);
    addData(tr("Copy data as &C array"), DataForm::CArray);
    addData(tr("Copy data as &Python bytes"), DataForm::Python);
}

void MessageMenu::addTimeEntries()
{
    QMenu *menu = m_menu.addMenu(tr("T&ime"));
    const auto add = [this, menu](const QString &text, ShownTime shown) {
        QAction *entry = m_times->addAction(menu->addAction(text));
        entry->setCheckable(true);
        entry->setData(int(shown));
        connect(entry, &QAction::triggered, this, [this, shown] { emit timeWanted(shown); });
    };
    add(tr("Since the &row before"), ShownTime::SinceRowBefore);
    add(tr("Of the &day"), ShownTime::OfDay);
    add(tr("&Nothing"), ShownTime::Nothing);
}

void MessageMenu::addViewEntries()
{
    m_hold = addEntry(tr("&Hold"), int(Qt::CTRL) + int(Qt::Key_H),
                      [this] { m_log.setFollowing(!m_hold->isChecked()); });
    m_hold->setCheckable(true);
    // Its key works in all of the window.
    QAction *find = addEntry(tr("&Find…"), {}, [this] { emit findWanted(); });
    find->setShortcut(QKeySequence::Find);
}

void MessageMenu::addKey(const QKeySequence &key, std::function<void()> reaction)
{
    auto *shortcut = new QShortcut(key, &m_table);
    shortcut->setContext(Qt::WidgetShortcut);
    connect(shortcut, &QShortcut::activated, this, std::move(reaction));
}

void MessageMenu::trigger(QAction &entry)
{
    refresh();
    if (entry.isEnabled()) {
        entry.trigger();
    }
}

void MessageMenu::popUp(const QPoint &place)
{
    refresh();
    m_menu.popup(place);
}

void MessageMenu::popUpAtCurrentRow()
{
    const QModelIndex cell = m_table.currentIndex();
    if (cell.isValid()) {
        m_table.scrollTo(cell);
    }
    const QRect seen = m_table.visualRect(cell) & m_table.viewport()->rect();
    popUp(m_table.viewport()->mapToGlobal(seen.bottomLeft()));
}

void MessageMenu::refresh()
{
    m_copyRows->setEnabled(m_copy.hasRows());
    const bool hasData = m_copy.hasData();
    for (QAction *entry : std::as_const(m_copyData)) {
        entry->setEnabled(hasData);
    }
    for (QAction *entry : m_times->actions()) {
        entry->setChecked(entry->data().toInt() == int(m_log.shownTime()));
    }
    m_hold->setChecked(!m_log.isFollowing());
    m_goToRow->setEnabled(rowOfOrigin() != 0);
}

std::optional<LogRecord> MessageMenu::currentRecord() const
{
    m_log.bringIn();
    const int row = m_table.currentRow();
    const bool isShown = row >= 0 && row < m_records.count() && !m_table.isRowHidden(row);
    return isShown ? std::make_optional(m_records.records().at(row)) : std::nullopt;
}

/// The identity of the command row that sent the current record; 0 where none did, or it is gone.
int MessageMenu::rowOfOrigin() const
{
    const std::optional<LogRecord> record = currentRecord();
    const int id = record ? record->rowId : 0;
    return id != 0 && m_isThere && m_isThere(id) ? id : 0;
}
