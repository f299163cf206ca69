#include "files/commandfile.h"
#include "files/recoverytext.h"

#include <cstdlib>

namespace {

/// What is recovered is recovered again as itself.
bool isRecoveredAgain(const CommandFile &file)
{
    const QByteArray kept = recoveryText(file.rows);
    const CommandFile again = readCommandFile(kept);
    return again.isRecovery && recoveryText(again.rows) == kept;
}

/// A loaded list that is saved is a list that loads and saves as itself.
bool staysTheSame(const CommandFile &file)
{
    const QString saved = commandFileText(file.rows);
    // At the beginning of a line it is taken for a byte-order mark.
    if (saved.contains(QChar(QChar::ByteOrderMark))) {
        return true;
    }
    const CommandFile again = readCommandFile(saved.toUtf8());
    return !again.hasInvalidLines && commandFileText(again.rows) == saved;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const quint8 *data, std::size_t size)
{
    const auto *const bytes = reinterpret_cast<const char *>(data);
    const CommandFile file = readCommandFile(QByteArray(bytes, static_cast<int>(size)));
    if (file.isRecovery ? !isRecoveredAgain(file) : !staysTheSame(file)) {
        std::abort();
    }
    return 0;
}
