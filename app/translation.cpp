#include "app/translation.h"

#include <QCoreApplication>
#include <QLocale>

#include <optional>

/// The translations live in a static library, so nothing but this brings them in.
static void initTranslations()
{
    Q_INIT_RESOURCE(translations);
}

namespace {

/// Nothing for a language that the window doesn't speak.
std::optional<QString> translationOf(QString language)
{
    const QLocale locale(language.replace(QLatin1Char('-'), QLatin1Char('_')));
    switch (locale.language()) {
    case QLocale::English:
        return QString();
    case QLocale::German:
        return QStringLiteral("de");
    case QLocale::Chinese:
        return locale.script() == QLocale::SimplifiedHanScript
                   ? std::optional(QStringLiteral("zh_CN"))
                   : std::nullopt;
    default:
        return std::nullopt;
    }
}

bool putInForce(QTranslator &translator, const QString &file)
{
    return translator.load(QStringLiteral(":/translations/%1.qm").arg(file)) &&
           QCoreApplication::installTranslator(&translator);
}

} // namespace

QString translationFor(const QStringList &uiLanguages)
{
    for (const QString &language : uiLanguages) {
        if (const auto translation = translationOf(language)) {
            return *translation;
        }
    }
    return {};
}

QString systemTranslation()
{
    const QLocale system = QLocale::system();
    // Its list may still name languages, which are for other locales.
    return system.language() == QLocale::C ? QString() : translationFor(system.uiLanguages());
}

Translation::Translation(const QString &name)
{
    initTranslations();
    if (!name.isEmpty()) {
        const bool hasQt = putInForce(m_qt, QStringLiteral("qtbase_") + name);
        m_isComplete = putInForce(m_own, QStringLiteral("tarnwick_") + name) && hasQt;
    }
}
