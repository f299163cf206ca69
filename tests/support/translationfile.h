#pragma once

#include <QStringList>
#include <QVector>

/// An entry of a translation: a text, where it's used, and its words in the other language.
struct TranslatedText
{
    QString context;
    QString source;
    QString translation;
    bool isFinished = false;
};

/// The languages that the window speaks besides English, as the files of their translations name
/// them.
inline const QStringList translatedLanguages{QStringLiteral("de"), QStringLiteral("zh_CN")};

/// All that is in the tree's translation into that language; nothing if it can't be read.
QVector<TranslatedText> translatedTexts(const QString &language);
