#include "menuuser.h"

#include <QApplication>
#include <QtTest>

MenuUser::MenuUser()
{
    qApp->installEventFilter(this);
}

MenuUser::~MenuUser()
{
    qApp->removeEventFilter(this);
}

bool MenuUser::eventFilter(QObject *object, QEvent *event)
{
    auto *menu = event->type() == QEvent::Show ? qobject_cast<QMenu *>(object) : nullptr;
    if (menu != nullptr) {
        ++m_menuCount;
        m_position = menu->pos();
        m_entries.clear();
        for (const QAction *action : menu->actions()) {
            m_entries.append(action->text());
        }
        QMetaObject::invokeMethod(
            menu, [this, menu] { use(menu); }, Qt::QueuedConnection);
    }
    return false;
}

void MenuUser::use(QMenu *menu)
{
    emit shown(menu);
    for (QAction *action : menu->actions()) {
        if (action->text() == m_entry) {
            QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(action).center());
            return;
        }
    }
    QTest::keyClick(menu, Qt::Key_Escape);
}
