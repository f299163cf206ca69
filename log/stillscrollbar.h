#pragma once

#include <QScrollBar>

/// A scroll bar that is painted anew only where its handle moves. Beside a table that grows at its
/// end, the handle rests at the bottom.
class StillScrollBar : public QScrollBar
{
public:
    using QScrollBar::QScrollBar;

    /// Sets a new maximum and the value to it, as one change.
    void goToEnd(int maximum);

protected:
    void sliderChange(SliderChange change) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QRect handle() const;

    QRect m_painted;
    bool m_onTheWay = false;
};
