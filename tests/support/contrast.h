#pragma once

#include <QColor>
#include <QImage>

class QWidget;

/// The contrast of two colours as WCAG 2 reckons it: from 1, none, to 21, black on white.
double contrast(const QColor &one, const QColor &other);

/// The contrast of what is written in a picture against its ground: that colour which most of it
/// has. 1 where nothing is written.
double textContrast(const QImage &picture);

/// The contrast of a widget's left edge, halfway up, against what is outside it or inside it,
/// whichever is less.
double edgeContrast(QWidget &widget);
