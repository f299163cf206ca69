#pragma once

#include <functional>

class QByteArray;
class QString;

/// Writes the bytes straight into an existing file, which keeps its owner, its mode and its links.
///
/// A full disk is noticed beforehand where the system can tell, and the old content comes back
/// where writing fails. A program that is killed on the way leaves a beginning of the bytes, never
/// a mixture of old and new; so `beforehand` is called before the first change, to keep a copy.
/// False when the file cannot be written, is no regular file, or is larger than 64 MiB.
bool overwriteFile(const QString &path, const QByteArray &bytes,
                   const std::function<void()> &beforehand);
