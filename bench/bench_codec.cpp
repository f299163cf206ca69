#include "codec/numbercodec.h"
#include "codec/stringcodec.h"
#include "figures.h"
#include "frames/timeunits.h"

#include <QStringList>
#include <QTextStream>

// How long one keystroke of a long value list costs: each conversion, the median of many runs.

namespace {

constexpr int elements = 4000;
constexpr int codecRuns = 101;

double medianMilliseconds(const std::function<void()> &work)
{
    return msPerSecond * medianSeconds(work, codecRuns);
}

template<typename Encode, typename Decode>
void print(const char *name, const QString &value, Encode encode, Decode decode)
{
    const QString hex = encode(value);
    const double there = medianMilliseconds([&] { return encode(value).size(); });
    const double back = medianMilliseconds([&] { return decode(hex).size(); });
    QTextStream(stdout) << QString("%1 to hex %2 ms, to value %3 ms\n")
                               .arg(name, -9)
                               .arg(there, 7, 'f', 3)
                               .arg(back, 7, 'f', 3);
}

void printNumbers(const NumberKind &kind)
{
    const QString number = QString::number(kind.lowest);
    const QString list = QStringList(QVector<QString>(elements, number).toList()).join(',');
    print(
        kind.caption.data(), list,
        [kind](const QString &value) { return encodeNumbers(value, kind); },
        [kind](const QString &hex) { return decodeNumbers(hex, kind); });
}

void printText(const char *name, StringEncoding encoding)
{
    const QString text = QString::fromUtf8("啊").repeated(elements);
    print(
        name, text, [encoding](const QString &value) { return encodeString(value, encoding).hex; },
        [encoding](const QString &hex) { return decodeString(hex, encoding); });
}

} // namespace

int main()
{
    QTextStream(stdout) << elements << " elements, median of " << codecRuns << " runs\n";
    for (const NumberKind &kind : numberKinds) {
        printNumbers(kind);
    }
    printText("GB2312", StringEncoding::Gb2312);
    printText("GBK", StringEncoding::Gbk);
    printText("Unicode", StringEncoding::Unicode);
    return 0;
}
