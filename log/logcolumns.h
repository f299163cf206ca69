#pragma once

/// The columns of the message log; the last one stays empty.
namespace LogColumn {

enum : int { Number, Header, Length, Cmd, Addr, Data, Crc, Rest, Count };

} // namespace LogColumn
