#include "runner/linesource.h"

#include <QSemaphore>

#include <array>
#include <functional>
#include <mutex>
#include <thread>
#include <utility>
#include <windows.h>

namespace {

QByteArray readInput()
{
    std::array<char, 4096> buffer{};
    DWORD count = 0;
    const BOOL isRead = ReadFile(GetStdHandle(STD_INPUT_HANDLE), buffer.data(),
                                 DWORD(buffer.size()), &count, nullptr);
    return isRead != 0 ? QByteArray(buffer.data(), int(count)) : QByteArray();
}

/// A pipe can't be waited for beside other things here, so a thread of its own reads it. Nothing
/// ends a read that waits: the thread may be left behind, and then ends with the process.
class InputReader
{
public:
    using Take = std::function<void(const QByteArray &bytes)>;

    /// What is read is taken in the owner's thread; no bytes are the end.
    InputReader(QObject &owner, Take take)
        : m_owner(&owner)
        , m_take(std::move(take))
    {}

    void run()
    {
        do {
            m_turns.acquire();
        } while (handOver(readInput()));
    }

    void readOnce() { m_turns.release(); }

    void leaveOwner()
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_owner = nullptr;
    }

private:
    /// Whether more is to be read.
    bool handOver(const QByteArray &bytes)
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        if (m_owner == nullptr) {
            return false;
        }
        QMetaObject::invokeMethod(
            m_owner, [take = m_take, bytes] { take(bytes); }, Qt::QueuedConnection);
        return !bytes.isEmpty();
    }

    QSemaphore m_turns;
    std::mutex m_mutex;
    QObject *m_owner;
    const Take m_take;
};

class InputLines : public LineSource
{
public:
    InputLines()
        : m_reader(std::make_shared<InputReader>(
              *this, [this](const QByteArray &bytes) { takeTurn(bytes); }))
    {
        std::thread([reader = m_reader] { reader->run(); }).detach();
        giveTurn();
    }

    ~InputLines() override { m_reader->leaveOwner(); }

    InputLines(const InputLines &) = delete;
    InputLines &operator=(const InputLines &) = delete;

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
            m_reader->readOnce();
        }
    }

    void takeTurn(const QByteArray &bytes)
    {
        if (bytes.isEmpty()) {
            takeEnd();
            return;
        }
        m_hasTurn = false;
        take(bytes);
        giveTurn();
    }

    bool m_isReading = true;
    bool m_hasTurn = false;
    const std::shared_ptr<InputReader> m_reader;
};

} // namespace

std::unique_ptr<LineSource> makeLineSource()
{
    return std::make_unique<InputLines>();
}
