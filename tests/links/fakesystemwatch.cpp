#include "fakesystemwatch.h"

namespace {

class FakeSystemWatch : public SystemWatch
{
public:
    bool start(const WindowHandle & /*window*/) override
    {
        return !FakeSystem::instance().isRefusing();
    }
};

} // namespace

FakeSystem &FakeSystem::instance()
{
    static FakeSystem system;
    return system;
}

void FakeSystem::plugIn(const WatchedDevice &device) const
{
    emit m_watch->arrived(device);
}

void FakeSystem::pullOut(const WatchedDevice &device) const
{
    emit m_watch->removed(device);
}

void FakeSystem::loseAnnouncements() const
{
    emit m_watch->announcementsLost();
}

// In place of the platform's own.
std::unique_ptr<SystemWatch> SystemWatch::create()
{
    auto watch = std::make_unique<FakeSystemWatch>();
    FakeSystem::instance().setWatch(watch.get());
    return watch;
}
