#include "wheelguard.h"

#include <QEvent>

bool WheelGuard::eventFilter(QObject * /*object*/, QEvent *event)
{
    if (event->type() != QEvent::Wheel) {
        return false;
    }
    // It ends here: the window would take it for the wheel at the end of the list.
    event->accept();
    return true;
}
