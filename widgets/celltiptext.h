#pragma once

#include <QString>

/// What a tip has room for.
struct TipRoom
{
    int lines = 0;
    /// In each line, at two characters and a blank.
    int bytesPerLine = 0;
};

/// The text of a cell with line breaks, as a tip shows it: 16 bytes a line, between bytes and
/// words. Where these are more lines than there is room for they get longer, by 16 bytes at a time;
/// what there is no room for at all is replaced by "…".
QString cellTipText(const QString &text, const TipRoom &room);
