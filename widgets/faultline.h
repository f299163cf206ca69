#pragma once

class QPainter;
class QRect;

/// Underlines a text in red: something is wrong with it. The rectangle is the place of its line.
void paintFaultLine(QPainter &painter, const QRect &text);
