#pragma once

class CommandArea;
class CommandTable;
class ReplyMeter;

/// Lets the tip of a row's send button tell how the row was answered. All must outlive the area's
/// table.
void showReplyTimes(CommandArea &area, const CommandTable &rows, const ReplyMeter &replies);
