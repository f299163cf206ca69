#include "runner/linesource.h"

#include <QThread>

#include <array>
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
    }

    ~InputLines() override
    {
        // Nothing else ends a read that waits.
        m_reader->terminate();
        m_reader->wait();
    }

private:
    void readAll()
    {
        std::array<char, 4096> buffer{};
        DWORD count = 0;
        while (ReadFile(GetStdHandle(STD_INPUT_HANDLE), buffer.data(), DWORD(buffer.size()), &count,
                        nullptr) != 0 &&
               count > 0) {
            const QByteArray bytes(buffer.data(), static_cast<int>(count));
            QMetaObject::invokeMethod(
                this, [this, bytes] { take(bytes); }, Qt::QueuedConnection);
        }
        QMetaObject::invokeMethod(
            this, [this] { takeEnd(); }, Qt::QueuedConnection);
    }

    std::unique_ptr<QThread> m_reader;
};

} // namespace

std::unique_ptr<LineSource> makeLineSource()
{
    return std::make_unique<InputLines>();
}
