#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

/// A value of an INI file as text, given as it stands behind the "=", up to the end of its line:
/// without quotes, escapes and a comment that may follow. Nothing for a list, and for a value of
/// any kind but text, "@Variant(…)" and the like: those are never looked into.
std::optional<QString> iniText(const QByteArray &raw);

/// The text as it has to stand behind the "=", in UTF-8; QSettings reads the same text from it.
QByteArray iniValue(const QString &text);
