#include "recording/eventnames.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace {

constexpr std::array kindNames{"tx", "rx", "stray", "open", "close", "note"};
constexpr std::array crcNames{"none", "ok", "bad"};

template<typename Value, std::size_t Count>
std::optional<Value> valueNamed(const std::array<const char *, Count> &names,
                                const QByteArray &name)
{
    const auto found = std::find(names.begin(), names.end(), name);
    return found == names.end() ? std::nullopt
                                : std::optional(static_cast<Value>(found - names.begin()));
}

} // namespace

QByteArray eventName(RecordEvent::Kind kind)
{
    return kindNames.at(static_cast<std::size_t>(kind));
}

std::optional<RecordEvent::Kind> eventKind(const QByteArray &name)
{
    return valueNamed<RecordEvent::Kind>(kindNames, name);
}

QByteArray crcName(RecordEvent::Crc crc)
{
    return crcNames.at(static_cast<std::size_t>(crc));
}

std::optional<RecordEvent::Crc> crcNamed(const QByteArray &name)
{
    return valueNamed<RecordEvent::Crc>(crcNames, name);
}
