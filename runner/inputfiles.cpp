#include "runner/inputfiles.h"

#include "files/commandfile.h"
#include "system/filereader.h"

#include <QFile>

#include <algorithm>
#include <cstdio>

namespace {

/// Up to one byte more than a file may have.
FileContent contentOfInput()
{
    QFile input;
    if (!input.open(stdin, QIODevice::ReadOnly)) {
        return {};
    }
    FileContent content{FileContent::Outcome::Read, {}};
    while (content.bytes.size() <= largestCommandFile) {
        const QByteArray chunk = input.read(qint64(64) * 1024);
        if (chunk.isEmpty()) {
            return content;
        }
        content.bytes += chunk;
    }
    return {FileContent::Outcome::TooLarge, {}};
}

FileContent contentOfNamed(const QString &name)
{
    return name == QLatin1String("-") ? contentOfInput() : readFile(name, largestCommandFile);
}

QString whyUnread(const QString &name, FileContent::Outcome outcome)
{
    return outcome == FileContent::Outcome::TooLarge
               ? QStringLiteral("%1: it is larger than 8 MiB").arg(name)
               : QStringLiteral("%1: it can't be read").arg(name);
}

void addFile(const TestFile &file, const RunOptions &options, ReadPlan &result)
{
    QVector<FileFault> faults = file.faults;
    TestFile completed = file;
    completed.settings = merged(file.settings, options.defaults);
    result.plan.files.append(planFile(completed, options.settings, options.rules.rows, faults));
    for (const FileFault &fault : faults) {
        result.faults.append(faultText(file.name, fault));
    }
    result.rows += file.rows.size();
    result.expectations +=
        static_cast<int>(std::count_if(file.rows.begin(), file.rows.end(), [](const TestRow &row) {
            return !row.expectation.isEmpty();
        }));
}

} // namespace

ReadPlan readPlan(const RunOptions &options)
{
    ReadPlan result;
    result.plan.rules = options.rules;
    int mostRows = 0;
    for (const QString &name : options.files) {
        const FileContent content = contentOfNamed(name);
        if (content.outcome != FileContent::Outcome::Read) {
            result.faults.append(whyUnread(name, content.outcome));
            continue;
        }
        const TestFile file = readTestFile(name, content.bytes);
        mostRows = std::max(mostRows, file.rows.size());
        addFile(file, options, result);
    }
    if (result.faults.isEmpty() && options.rules.rows.highest() > mostRows) {
        result.faults.append(QStringLiteral("--rows: there is no row %1, only %2")
                                 .arg(options.rules.rows.highest())
                                 .arg(mostRows));
    }
    return result;
}
