#pragma once

#include <QStringList>
#include <QTranslator>

/// The translation for a system whose user prefers these languages, named like "zh-CN" or "de_AT",
/// the best first: "zh_CN" or "de". Empty where the window speaks English, as it does to all
/// others.
QString translationFor(const QStringList &uiLanguages);

/// That for the system this runs on. A system without a language, such as the locale "C", gets
/// English.
QString systemTranslation();

/// A translation of the window's texts and of Qt's own, such as those of standard buttons. It is in
/// force while this lives, for the texts that are made meanwhile.
class Translation
{
public:
    /// The application must be there. English, which is an empty name, needs no translation.
    explicit Translation(const QString &name);

    /// Whether all of its texts are there.
    bool isComplete() const { return m_isComplete; }

private:
    QTranslator m_qt;
    QTranslator m_own;
    bool m_isComplete = true;
};
