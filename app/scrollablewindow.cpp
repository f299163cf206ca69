#include "scrollablewindow.h"

#include <QScrollArea>
#include <QVBoxLayout>

void makeScrollable(QWidget &window)
{
    auto *area = new QScrollArea(&window);
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
