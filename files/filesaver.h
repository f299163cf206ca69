#pragma once

#include <functional>

class QByteArray;
class QString;

/// Makes the bytes the content of the file, all of them or none: where this fails, the file is
/// what it was before. A link is followed to the file it stands for; owner and mode stay.
///
/// The bytes are written beside the file, which they then replace, so that even the end of the
/// program does no harm. Only where the folder doesn't allow that, or where the owner would change,
/// are they written straight into an existing file; `beforeOverwriting` is called first, if given.
/// False when the file cannot be written, or is no regular file.
bool saveFile(const QString &path, const QByteArray &bytes,
              const std::function<void()> &beforeOverwriting = {});
