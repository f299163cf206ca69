#include "files/commandfile.h"
#include "fuzzing.h"
#include "runner/testfile.h"

namespace {

int lineCount(const QByteArray &bytes)
{
    return bytes.count('\n') + 1;
}

bool isTold(const FileFault &fault, int lines)
{
    return fault.line >= 1 && fault.line <= lines && fault.fault.column >= 1 &&
           !fault.fault.words.isEmpty();
}

} // namespace

/// Whatever the file holds: it has the rows that the window loads from it, what is wrong is told
/// with its place, and rows that send nothing expect nothing.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes = fuzzInput(data, size);
    const TestFile file = readTestFile(QStringLiteral("f"), bytes);
    const CommandFile loaded = readCommandFile(bytes);
    if (!loaded.hasTooManyRows && !bytes.startsWith("\xEF\xBB\xBF")) {
        require(file.rows.size() == loaded.rows.size());
        require(!loaded.hasInvalidLines || !file.faults.isEmpty());
    }
    int line = 0;
    for (const TestRow &row : file.rows) {
        require(row.line > line && row.line <= lineCount(bytes));
        line = row.line;
        for (const auto &replies : row.expectation.replies) {
            require(!replies.isEmpty());
        }
    }
    for (const FileFault &fault : file.faults) {
        require(isTold(fault, lineCount(bytes)));
    }
    return 0;
}
