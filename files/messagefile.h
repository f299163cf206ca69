#pragma once

#include <QString>
#include <QVector>

#include <array>

/// The texts of a logged message: No., Header, Length, CMD, Addr, Data, CRC.
using MessageRow = std::array<QString, 7>;

/// The line that stands for a message in a saved log, without its line end. It is empty for a row
/// that is left out: one whose number reads "Uart". See docs/deliberate.md, Unsaved events.
QString messageLine(const MessageRow &row);

/// The lines that stand for the messages, each with its line end.
QString messageFileText(const QVector<MessageRow> &rows);
