#include "runner/linesource.h"

#include <QSemaphore>
#include <QThread>

#include <array>
#include <utility>
#include <windows.h>

namespace {

/// A pipe can't be waited for beside other things here, so a thread of its own reads it.
class InputLines : public LineSource
{
public:
    InputLines()
        : m_reader(QThread::create([this] { readAll(); }))
    {
        m_reader->start();
        giveTurn();
    }

    ~InputLines() override
    {
        // Nothing else ends a read that waits.
        m_reader->terminate();
        m_reader->wait();
    }

    void setReading(bool on) override
    {
        m_isReading = on;
        giveTurn();
    }

private:
    /// Lets the reader read once more, unless it may already.
    void giveTurn()
    {
        if (m_isReading && !std::exchange(m_hasTurn, true)) {
            m_turns.release();
        }
    }

    void takeTurn(const QByteArray &bytes)
    {
        m_hasTurn = false;
        take(bytes);
        giveTurn();
    }

    void readAll()
    {
        std::array<char, 4096> buffer{};
        DWORD count = 0;
        m_turns.acquire();
        while (ReadFile(GetStdHandle(STD_INPUT_HANDLE), buffer.data(), DWORD(buffer.size()), &count,
                        nullptr) != 0 &&
               count > 0) {
            const QByteArray bytes(buffer.data(), static_cast<int>(count));
            QMetaObject::invokeMethod(
                this, [this, bytes] { takeTurn(bytes); }, Qt::QueuedConnection);
            m_turns.acquire();
        }
        QMetaObject::invokeMethod(
            this, [this] { takeEnd(); }, Qt::QueuedConnection);
    }

    QSemaphore m_turns;
    bool m_isReading = true;
    bool m_hasTurn = false;
    std::unique_ptr<QThread> m_reader;
};

} // namespace

std::unique_ptr<LineSource> makeLineSource()
{
    return std::make_unique<InputLines>();
}
