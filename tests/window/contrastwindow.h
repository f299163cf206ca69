#pragma once

#include "codec/directeditor.h"
#include "windowdriver.h"

#include <QRect>
#include <QStringList>

/// The contrast that a text needs, and the one that an edge needs.
constexpr double readable = 4.5;
constexpr double seen = 3;

/// A window of the usual size.
class ContrastWindow : public WindowDriver
{
public:
    ContrastWindow();

    /// Presses the button that opens a port, where there is none to open, whatever the machine has.
    void openNothing();

    DirectEditor &editor() { return *window().findChild<DirectEditor *>(); }
};

/// Gives the application the colours of a dark desktop.
void makeDesktopDark();

/// Where the text of a widget is: without frames, an arrow, the unit.
QRect textRoom(const QWidget &widget);

/// The contrast of what is written in a part of a widget, as it is seen: a widget alone would be
/// grabbed without the ground that it stands on.
double contrastIn(const QWidget &widget, const QRect &room);

/// The widgets of a window whose texts can't be read, each with its contrast.
QStringList unreadable(const QWidget &window);
