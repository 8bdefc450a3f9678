#pragma once

#include <QHash>
#include <QMutex>
#include <QString>
#include <QStringList>
#include <QTranslator>

/// Notes which texts the program takes from its translations, from its construction on.
class TranslatedTexts : public QTranslator {
public:
    TranslatedTexts();
    ~TranslatedTexts() override;

    /// The English phrases in an output that are no part of those texts: nobody has marked them for
    /// translation. \a output: a text, a page or JSON. Values such as names and paths are no
    /// phrases.
    QStringList missingIn(const QString &output) const;

    /// Notes the text, which another translator then translates.
    QString translate(const char *context, const char *source, const char *meaning,
                      int count) const override;
    bool isEmpty() const override { return false; }

private:
    struct Request {
        QByteArray context;
        QByteArray source;
        QByteArray meaning;
        int count;
    };

    QStringList phrasesOfTexts() const;

    mutable QMutex m_mutex; ///< the plugin's threads translate nothing, but Qt's may
    mutable QHash<QByteArray, Request> m_requests; ///< by what tells them apart
};
