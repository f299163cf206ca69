#include "files/settingstext.h"
#include "fuzzing.h"

namespace {

bool areSame(const Settings &left, const Settings &right)
{
    return left.lastLoadPath == right.lastLoadPath && left.lastSavePath == right.lastSavePath &&
           left.linkMode == right.linkMode && left.noAppendHeader == right.noAppendHeader &&
           left.noAppendLength == right.noAppendLength && left.isEditorFun == right.isEditorFun;
}

} // namespace

/// Whatever the file holds, what is saved into it is what is read from it, and once is enough.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray content = fuzzInput(data, size);
    Settings settings = settingsIn(content);
    // A half of a pair of characters does not exist in UTF-8.
    settings.lastLoadPath = QString::fromUtf8(settings.lastLoadPath.toUtf8());
    settings.lastSavePath = QString::fromUtf8(content);
    settings.noAppendLength = int(size);
    const QByteArray written = withSettings(content, settings);
    require(areSame(settingsIn(written), settings));
    require(withSettings(written, settings) == written);
    return 0;
}
