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

private:
    void readOn()
    {
        std::array<char, 4096> buffer{};
        const ssize_t count = read(STDIN_FILENO, buffer.data(), buffer.size());
        if (count > 0) {
            take({buffer.data(), static_cast<int>(count)});
        } else if (count == 0 || (errno != EAGAIN && errno != EINTR)) {
            m_notifier.setEnabled(false);
            takeEnd();
        }
    }

    QSocketNotifier m_notifier;
};

} // namespace

std::unique_ptr<LineSource> makeLineSource()
{
    return std::make_unique<InputLines>();
}
