#pragma once

#include <QByteArray>

#include <optional>

/// A time in us since 1970 began (UTC) as "2026-11-21T21:44:01.123456Z". The years 1 to 9999 have a
/// text; a time beyond them has that of the nearest one.
QByteArray utcText(qint64 utcUs);

/// The time of such a text, which has exactly six digits behind the point; nothing for any other.
std::optional<qint64> parseUtcText(const QByteArray &text);
