#pragma once

#include <QObject>

class QTabWidget;

/// Keeps the wheel from choosing in the boxes that it merely passes on a tab widget's pages, and
/// from changing the page. The wheel then does nothing there; keys, the mouse and an open list work
/// as usual.
class WheelGuard : public QObject
{
    Q_OBJECT

public:
    /// Guards the boxes that the tabs have by now.
    explicit WheelGuard(const QTabWidget &tabs, QObject *parent = nullptr);

    bool eventFilter(QObject *object, QEvent *event) override;
};
