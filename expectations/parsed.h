#pragma once

#include <QString>

#include <optional>

/// What is wrong with a line, and where: columns count from 1.
struct LineFault
{
    int column = 1;
    QString words;
};

/// What was read from a text, or what is wrong with it.
template<typename Value>
struct Parsed
{
    std::optional<Value> value;
    LineFault fault;

    static Parsed failed(int column, const QString &words)
    {
        return {std::nullopt, {column, words}};
    }
};
