#pragma once

#include <QTableWidgetItem>

/// Makes the cells of the message log: texts that can be selected but not edited.
///
/// Each is a copy of one of a few items that have the look already. What copies have in common,
/// they share.
class LogItems
{
public:
    enum class Colour { Plain, Received };

    LogItems();

    /// A new cell, for the table that takes it. Its text stands at the left or in the middle.
    QTableWidgetItem *make(const QString &text, Qt::AlignmentFlag alignment, Colour colour) const;

private:
    QTableWidgetItem m_left;
    QTableWidgetItem m_centred;
    QTableWidgetItem m_leftReceived;
    QTableWidgetItem m_centredReceived;
};
