#pragma once

/// The columns of the command table; the last two are hidden.
namespace CommandColumn {

enum : int { Description, Select, Cmd, Addr, Data, Crc, Send, DataType, OriginalData, Count };

} // namespace CommandColumn
