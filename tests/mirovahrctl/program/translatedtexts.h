#pragma once

#include <QHash>
#include <QMutex>
#include <QString>
#include <QStringList>
#include <QTranslator>

/// An output (a text, a page or JSON) without its tags and escapes, and without what it quotes as
/// it is: lines of an export and of the plugin's log, messages and version of the database server,
/// and reasons of the gate.
QString withoutQuotations(QString output);

/// Notes which texts the program takes from its translations, from its construction on.
class TranslatedTexts : public QTranslator {
public:
    TranslatedTexts();
    ~TranslatedTexts() override;

    /// The English phrases in an output that are no part of those texts: nobody has marked them for
    /// translation. Values such as names and paths are no phrases.
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

    mutable QMutex m_mutex;
    mutable QHash<QByteArray, Request> m_requests;
};
