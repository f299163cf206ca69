#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

/// Where the bytes of a recording go, one file at a time. Every call may take as long as a disk
/// takes.
class RecordingSink
{
public:
    enum class Created { Yes, NameIsTaken, No };

    RecordingSink() = default;
    RecordingSink(const RecordingSink &) = delete;
    RecordingSink &operator=(const RecordingSink &) = delete;
    virtual ~RecordingSink() = default;

    /// Makes a new file and opens it; the one that is open is closed before. What exists is never
    /// touched.
    virtual Created create(const QString &path) = 0;

    /// Appends the bytes; false unless all of them were taken.
    virtual bool write(const QByteArray &bytes) = 0;

    /// Waits until what was written is safe from a power cut; false if that fails.
    virtual bool sync() = 0;

    /// Whether the open file can still be found under its name.
    virtual bool isThere() const = 0;

    /// Free bytes on the file's disk; nothing if the system doesn't tell.
    virtual std::optional<qint64> freeBytes() const = 0;

    /// Closes the open file.
    virtual void close() = 0;

    /// Why the last call failed, in the system's words.
    virtual QString error() const = 0;
};
