#include "runner/linesource.h"

#include <QSocketNotifier>

#include <array>
#include <cerrno>
#include <unistd.h>

namespace {

class InputLines : public LineSource
{
public:
    InputLines()
        : m_notifier(STDIN_FILENO, QSocketNotifier::Read)
    {
        connect(&m_notifier, &QSocketNotifier::activated, this, [this] { readOn(); });
    }

    void setReading(bool on) override { m_notifier.setEnabled(on && !m_hasEnded); }

private:
    void readOn()
    {
        std::array<char, 4096> buffer{};
        const ssize_t count = read(STDIN_FILENO, buffer.data(), buffer.size());
        if (count > 0) {
            take({buffer.data(), static_cast<int>(count)});
        } else if (count == 0 || (errno != EAGAIN && errno != EINTR)) {
            m_hasEnded = true;
            m_notifier.setEnabled(false);
            takeEnd();
        }
    }

    QSocketNotifier m_notifier;
    bool m_hasEnded = false;
};

} // namespace

std::unique_ptr<LineSource> makeLineSource()
{
    return std::make_unique<InputLines>();
}
