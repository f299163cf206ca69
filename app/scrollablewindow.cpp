#include "app/scrollablewindow.h"

#include <QAbstractItemView>
#include <QScrollArea>
#include <QVBoxLayout>
#include <QWheelEvent>

namespace {

bool isInTable(const QWidget *widget)
{
    while (widget != nullptr && qobject_cast<const QAbstractItemView *>(widget) == nullptr) {
        widget = widget->parentWidget();
    }
    return widget != nullptr;
}

/// Scrolls by the wheel, but for what a table has left of it: that is for the window.
class WindowArea : public QScrollArea
{
public:
    using QScrollArea::QScrollArea;

protected:
    void wheelEvent(QWheelEvent *event) override
    {
        if (isInTable(childAt(mapFromGlobal(event->globalPosition().toPoint())))) {
            event->ignore();
        } else {
            QScrollArea::wheelEvent(event);
        }
    }
};

} // namespace

void makeScrollable(QWidget &window)
{
    auto *area = new WindowArea(&window);
    auto *content = new QWidget;
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);
    area->setWidgetResizable(true);
    // Inside the window first: what changes its window loses its place in the tab order.
    area->setWidget(content);
    content->setLayout(window.layout());
    auto *layout = new QVBoxLayout(&window);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(area);
}
