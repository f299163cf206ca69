#pragma once

#include "expectations/values.h"

#include <QStringList>
#include <QVector>

#include <functional>

class QCommandLineParser;

/// Reads values from a command line. The first fault is remembered, in words.
class OptionReader
{
public:
    /// The parser must have parsed, and must outlive this.
    explicit OptionReader(const QCommandLineParser &parser)
        : m_parser(parser)
    {}

    bool has(const QString &option) const;

    /// Takes the value over where the option is given; `take` tells whether it is `expected`.
    void read(const QString &option, const QString &expected,
              const std::function<bool(const QString &value)> &take);

    /// A text that is not empty.
    void readText(const QString &option, QString &text);

    template<typename Number>
    void readNumber(const QString &option, int least, int most, Number &number)
    {
        read(option, QStringLiteral("a number from %1 to %2").arg(least).arg(most),
             [&](const QString &value) {
                 const std::optional<int> read = numberOf(value, least, most);
                 number = read ? assignable(number, *read) : number;
                 return read.has_value();
             });
    }

    /// One of the words, each of which stands for the choice at its place.
    template<typename Choice>
    void readChoice(const QString &option, const QStringList &words, const QVector<Choice> &choices,
                    Choice &choice)
    {
        read(option, QLatin1String("one of ") + words.join(QLatin1String(", ")),
             [&](const QString &value) {
                 choice = choices.value(words.indexOf(value), choice);
                 return words.contains(value);
             });
    }

    /// Sets the switch where the option is given.
    void readSwitch(const QString &option, bool on, std::optional<bool> &target) const;

    /// Options that contradict each other.
    void atMostOneOf(const QStringList &options);

    /// Empty while nothing is wrong.
    QString error() const { return m_error; }

private:
    template<typename Number>
    static Number assignable(const Number & /*kind*/, int value)
    {
        return static_cast<Number>(value);
    }

    void fail(const QString &error);

    const QCommandLineParser &m_parser;
    QString m_error;
};
