#include "tests/mirovahrctl/translations/translationfile.h"

#include <QFile>
#include <QXmlStreamReader>

namespace {

/// The element <translation>, with one text or with <numerusform> in it.
void readForms(QXmlStreamReader &xml, Translation &translation)
{
    translation.isFinished = !xml.attributes().hasAttribute("type");
    if (!translation.isPlural) {
        translation.forms << xml.readElementText();
        return;
    }
    while (xml.readNextStartElement())
        translation.forms << xml.readElementText();
}

Translation readMessage(QXmlStreamReader &xml)
{
    Translation translation;
    translation.isPlural = xml.attributes().value("numerus") == "yes";
    while (xml.readNextStartElement()) {
        if (xml.name() == "source")
            translation.source = xml.readElementText();
        else if (xml.name() == "comment")
            translation.meaning = xml.readElementText();
        else if (xml.name() == "translation")
            readForms(xml, translation);
        else
            xml.skipCurrentElement();
    }
    return translation;
}

} // namespace

QVector<Translation> readTranslations(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s cannot be read", qPrintable(path));
    QXmlStreamReader xml(&file);
    QVector<Translation> translations;
    while (!xml.atEnd()) {
        xml.readNext();
        if (xml.isStartElement() && xml.name() == "message")
            translations << readMessage(xml);
    }
    if (xml.hasError())
        qFatal("%s: %s", qPrintable(path), qPrintable(xml.errorString()));
    return translations;
}
