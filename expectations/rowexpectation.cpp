#include "expectations/rowexpectation.h"

#include <QStringList>

RowExpectation rowExpectationOf(const QString &lines)
{
    RowExpectation row;
    QStringList all = lines.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    if (all.isEmpty()) {
        return row;
    }
    const auto bytesOfLine = [](const QString &line) { return line.trimmed().toUtf8(); };
    if (const auto settings = parseRunLine(bytesOfLine(all.takeFirst())); settings.value) {
        row.settings = *settings.value;
    }
    for (const QString &line : std::as_const(all)) {
        if (const auto directive = parseDirective(bytesOfLine(line)); directive.value) {
            addDirective(*directive.value, row.expectation);
        }
    }
    return row;
}

bool addDirective(const Directive &directive, Expectation &expectation)
{
    if (directive.kind == Directive::Kind::Forbidden) {
        expectation.forbidden.append(directive.frame);
        return true;
    }
    if (directive.kind == Directive::Kind::Further && expectation.replies.isEmpty()) {
        return false;
    }
    if (directive.kind == Directive::Kind::Reply && !expectation.replies.isEmpty()) {
        expectation.replies.last().append(directive.frame);
    } else {
        expectation.replies.append({directive.frame});
    }
    return true;
}
