#pragma once

#include <QObject>
#include <QPalette>

class QWidget;

/// The colours of all that no style sheet colours: message boxes, menus, tips, the texts of cells.
QPalette lightPalette();

/// Keeps the whole program light on every desktop. Style sheets set white backgrounds here and
/// there, on which the white texts of a dark desktop could not be read.
///
/// It serves the application, boxes without a parent included, for as long as a window lives.
class LightLook : public QObject
{
    Q_OBJECT

public:
    /// Takes effect at once, for widgets made before and after.
    explicit LightLook(QWidget &window);

    /// Takes the colours back when the desktop changes them.
    bool eventFilter(QObject *object, QEvent *event) override;
};
