#include "translationfile.h"

#include "testfiles.h"

#include <QXmlStreamReader>

namespace {

TranslatedText readMessage(QXmlStreamReader &xml, const QString &context)
{
    TranslatedText text;
    text.context = context;
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("source")) {
            text.source = xml.readElementText();
        } else if (xml.name() == QLatin1String("translation")) {
            text.isFinished = xml.attributes().isEmpty();
            text.translation = xml.readElementText();
        } else {
            xml.skipCurrentElement();
        }
    }
    return text;
}

} // namespace

QVector<TranslatedText> translatedTexts(const QString &language)
{
    QXmlStreamReader xml(contentOf(inTree("translations/tarnwick_" + language + ".ts")));
    QVector<TranslatedText> texts;
    QString context;
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isStartElement() && xml.name() == QLatin1String("name")) {
            context = xml.readElementText();
        } else if (xml.isStartElement() && xml.name() == QLatin1String("message")) {
            texts.append(readMessage(xml, context));
        }
    }
    return xml.hasError() ? QVector<TranslatedText>() : texts;
}
