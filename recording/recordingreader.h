#pragma once

#include "recording/recordevent.h"
#include "recording/recordingfacts.h"

#include <QString>

#include <memory>
#include <optional>

class QIODevice;

/// Reads one file of a recording, event by event, so that its size doesn't matter.
class RecordingReader
{
public:
    RecordingReader() = default;
    RecordingReader(const RecordingReader &) = delete;
    RecordingReader &operator=(const RecordingReader &) = delete;
    virtual ~RecordingReader() = default;

    /// What the file begins with; known once `next` was called.
    const RecordingHead &head() const { return m_head; }

    /// The next event; nothing at the end of the file, or if the rest can't be read.
    virtual std::optional<RecordEvent> next() = 0;

    /// The end of the file, known once `next` has returned nothing; nothing if the file was not
    /// closed in good order.
    const std::optional<RecordingTail> &tail() const { return m_tail; }

    /// Whether the file ends within an event, as one does whose writer was killed. What came before
    /// was read.
    bool isTorn() const { return m_isTorn; }

    /// What can't be read, and where ("line 3: no time"); empty if all could be read.
    QString error() const { return m_error; }

protected:
    void setHead(const RecordingHead &head) { m_head = head; }
    void setTail(const RecordingTail &tail) { m_tail = tail; }
    void setTorn() { m_isTorn = true; }
    void fail(const QString &error) { m_error = error; }

private:
    RecordingHead m_head;
    std::optional<RecordingTail> m_tail;
    bool m_isTorn = false;
    QString m_error;
};

/// A reader of what an open device holds, which must outlive it: of pcapng where the device begins
/// like one, otherwise of JSON Lines.
std::unique_ptr<RecordingReader> makeRecordingReader(QIODevice &device);
