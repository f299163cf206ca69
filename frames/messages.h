#pragma once

#include <QCoreApplication>
#include <QString>

/// Words in English, as files have them, and in the window's language.
struct Wording
{
    QString english;
    QString shown;
};

/// The texts that tell the user something. They are written in English where they arise, and
/// `Messages::tr` gives them in the window's language, or as they stand where no translation is in
/// force. A text with placeholders is looked up by its pattern.
class Messages
{
    Q_DECLARE_TR_FUNCTIONS(Messages)

public:
    /// Words that were kept in English for a file, or are the system's, as the window shows them.
    /// Those that no translation has stay as they are.
    static QString shown(const QString &english)
    {
        return english.isEmpty() ? QString() : tr(english.toUtf8().constData());
    }

    /// A pattern that is marked with QT_TRANSLATE_NOOP, with that in place of its "%1".
    static Wording wording(const char *pattern, const QString &name)
    {
        return {QString::fromUtf8(pattern).arg(name), tr(pattern).arg(name)};
    }
};
