#include "runner/optionreader.h"

#include <QCommandLineParser>

bool OptionReader::has(const QString &option) const
{
    return m_parser.isSet(option);
}

void OptionReader::read(const QString &option, const QString &expected,
                        const std::function<bool(const QString &value)> &take)
{
    if (has(option) && !take(m_parser.value(option))) {
        fail(QStringLiteral("--%1 needs %2, not \"%3\".")
                 .arg(option, expected, m_parser.value(option)));
    }
}

void OptionReader::readText(const QString &option, QString &text)
{
    read(option, QStringLiteral("a name"), [&text](const QString &value) {
        text = value;
        return !value.isEmpty();
    });
}

void OptionReader::readSwitch(const QString &option, bool on, std::optional<bool> &target) const
{
    if (has(option)) {
        target = on;
    }
}

void OptionReader::atMostOneOf(const QStringList &options)
{
    QStringList given;
    for (const QString &option : options) {
        if (has(option)) {
            given.append(QLatin1String("--") + option);
        }
    }
    if (given.size() > 1) {
        fail(QStringLiteral("%1 don't go together.").arg(given.join(QLatin1String(" and "))));
    }
}

void OptionReader::fail(const QString &error)
{
    if (m_error.isEmpty()) {
        m_error = error;
    }
}
