#include "expectations/bytepattern.h"
#include "fuzzing.h"

#include <vector>

namespace {

/// Reads a pattern part by part, and keeps all the numbers of bytes that fit the parts so far.
bool fitsStepByStep(const QString &pattern, const QByteArray &bytes)
{
    const QString parts = QString(pattern).remove(QLatin1Char(' '));
    std::vector<bool> reached(static_cast<size_t>(bytes.size()) + 1, false);
    reached[0] = true;
    for (int part = 0; part < parts.size(); part += 2) {
        std::vector<bool> next(reached.size(), false);
        for (size_t taken = 0; taken < reached.size(); ++taken) {
            if (parts.mid(part, 2) == QLatin1String("**")) {
                next[taken] = reached[taken] || (taken > 0 && next[taken - 1]);
            } else if (taken > 0 && reached[taken - 1]) {
                const QString hex = QString::fromLatin1(
                    bytes.mid(static_cast<int>(taken) - 1, 1).toHex().toUpper());
                const auto fits = [&](int half) {
                    const QChar wanted = parts.at(part + half);
                    return wanted == QLatin1Char('?') || wanted == hex.at(half);
                };
                next[taken] = fits(0) && fits(1);
            }
        }
        reached = next;
    }
    return reached.back();
}

} // namespace

/// The first line is the pattern, what follows are the bytes.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray input = fuzzInput(data, size).left(2000);
    const int lineEnd = input.indexOf('\n');
    const QByteArray bytes = lineEnd < 0 ? QByteArray() : input.mid(lineEnd + 1);
    const Parsed<BytePattern> parsed = BytePattern::parse(QString::fromLatin1(input.left(lineEnd)));
    if (!parsed.value) {
        require(parsed.fault.column >= 1 && !parsed.fault.words.isEmpty());
        return 0;
    }
    const QString text = parsed.value->text();
    const Parsed<BytePattern> again = BytePattern::parse(text);
    require(again.value && again.value->text() == text);
    require(parsed.value->matches(bytes) == fitsStepByStep(text, bytes));
    return 0;
}
