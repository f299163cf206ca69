#pragma once

#include <QObject>

/// Keeps the wheel from choosing in widgets that it merely passes. The wheel then does nothing
/// there; keys, the mouse and an open list work as ever.
class WheelGuard : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Guards a widget that must not outlive this.
    void guard(QObject *widget) { widget->installEventFilter(this); }

    bool eventFilter(QObject *object, QEvent *event) override;
};
