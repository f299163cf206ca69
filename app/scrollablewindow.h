#pragma once

class QWidget;

/// Lets a window be smaller than what its layout needs: its content is then scrolled. A screen of
/// few pixels, or of many that are scaled up, may well be smaller.
void makeScrollable(QWidget &window);
