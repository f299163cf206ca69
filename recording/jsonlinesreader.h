#pragma once

#include "recording/recordingreader.h"

/// Reads JSON Lines. A last line that was cut off is no error; a line in between is.
class JsonLinesReader : public RecordingReader
{
public:
    /// The device must be open, and outlive the reader.
    explicit JsonLinesReader(QIODevice &device)
        : m_device(device)
    {}

    std::optional<RecordEvent> next() override;

private:
    bool readHead();
    std::optional<QByteArray> nextLine();
    void failHere(const QString &words);

    QIODevice &m_device;
    /// Room for the longest line, made once: a reader that makes it for each line spends its time
    /// there.
    QByteArray m_room;
    int m_line = 0;
    bool m_isOver = false;
};
