#include "widgets/leavingkeys.h"

#include <QShortcut>
#include <QWidget>

namespace {

enum class Direction { Forward, Backward };

bool isTabStop(const QWidget &widget)
{
    return widget.isVisible() && widget.isEnabled() && widget.focusProxy() == nullptr &&
           (widget.focusPolicy() & Qt::TabFocus) == Qt::TabFocus;
}

QWidget *neighbour(const QWidget &widget, Direction direction)
{
    return direction == Direction::Forward ? widget.nextInFocusChain()
                                           : widget.previousInFocusChain();
}

void leave(const QWidget &area, Direction direction)
{
    QWidget *widget = neighbour(area, direction);
    while (widget != &area && (area.isAncestorOf(widget) || !isTabStop(*widget))) {
        widget = neighbour(*widget, direction);
    }
    if (widget != &area) {
        widget->setFocus(direction == Direction::Forward ? Qt::TabFocusReason
                                                         : Qt::BacktabFocusReason);
    }
}

void addKey(QWidget &area, const QKeySequence &key, Direction direction)
{
    auto *shortcut = new QShortcut(key, &area);
    shortcut->setContext(Qt::WidgetWithChildrenShortcut);
    QObject::connect(shortcut, &QShortcut::activated, &area,
                     [&area, direction] { leave(area, direction); });
}

} // namespace

void addLeavingKeys(QWidget &area)
{
    for (const int key : {int(Qt::Key_F6), int(Qt::CTRL) + int(Qt::Key_Tab)}) {
        addKey(area, key, Direction::Forward);
        addKey(area, int(Qt::SHIFT) + key, Direction::Backward);
    }
}
