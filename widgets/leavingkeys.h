#pragma once

class QWidget;

/// Lets F6 and Ctrl+Tab lead from anywhere in an area to the next stop of the Tab key behind it,
/// and with Shift to the one in front of it: for areas in which Tab itself goes from part to part.
void addLeavingKeys(QWidget &area);
