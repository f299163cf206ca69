#pragma once

class QByteArray;
class QString;

/// Makes the bytes the content of the file, all of them or none: where this fails, the file is
/// what it was before. A link is followed to the file it stands for.
///
/// The bytes are written beside the file, which they then replace, so that even the end of the
/// program does no harm. Only where the folder takes no new files are they written straight into
/// an existing file. False when the file cannot be written, or is no regular file.
bool saveFile(const QString &path, const QByteArray &bytes);
