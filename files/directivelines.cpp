#include "files/directivelines.h"

bool isRunLine(const QByteArray &line)
{
    static const QByteArray name("tarnwick-run");
    if (!line.startsWith("//@")) {
        return false;
    }
    const QByteArray rest = line.mid(3).trimmed();
    const char behind = rest.size() > name.size() ? rest.at(name.size()) : ' ';
    return rest.startsWith(name) && (behind == ' ' || behind == '\t');
}

bool isExpectationLine(const QByteArray &line)
{
    return line.startsWith("//?") || line.startsWith("//+") || line.startsWith("//!");
}
