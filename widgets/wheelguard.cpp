#include "widgets/wheelguard.h"

#include <QComboBox>
#include <QEvent>
#include <QTabBar>
#include <QTabWidget>

WheelGuard::WheelGuard(const QTabWidget &tabs, QObject *parent)
    : QObject(parent)
{
    for (QComboBox *box : tabs.findChildren<QComboBox *>()) {
        box->installEventFilter(this);
    }
    tabs.tabBar()->installEventFilter(this);
}

bool WheelGuard::eventFilter(QObject * /*object*/, QEvent *event)
{
    if (event->type() != QEvent::Wheel) {
        return false;
    }
    // It ends here: the window would take it for the wheel at the end of the list.
    event->accept();
    return true;
}
