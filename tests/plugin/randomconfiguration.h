#pragma once

#include <QByteArray>
#include <QHash>
#include <QMap>
#include <QRandomGenerator>
#include <QString>
#include <QStringList>

/// The value of a key as an INI file holds it: a text, or a list, which is neither a number nor a
/// truth nor a text.
struct IniValue {
    bool isList = false;
    QString text;
};

/// What a configuration says, read straight from the description of its keys.
struct PlainConfiguration {
    QMap<QString, IniValue> keys; ///< at the top level
    QMap<QString, IniValue> messages; ///< in the group MES, in the order of their keys

    bool flag(const QString &key, bool fallback) const;
    quint32 number(const QString &key, quint32 fallback) const;
    QString text(const QString &key) const;
    QHash<ushort, QString> messageTable() const;

    quint32 tickMilliseconds() const; ///< as 32 bits hold them
    int timerPeriod() const; ///< what a timer gets of them

    /// The same of a file, as Qt reads its format.
    static PlainConfiguration ofFile(const QString &path);
};

/// Makes random configurations, valid and invalid.
class RandomConfigurations {
public:
    /// The path is one of those for the key importFile; the others lead to nothing, as do all
    /// commands.
    RandomConfigurations(quint32 seed, const QString &importFile);

    /// A well-formed file and its content: values out of range and of other kinds, lists, repeated
    /// keys, unknown groups.
    QByteArray wellFormed(PlainConfiguration &content);

    /// Such a file with some bytes changed, or random bytes.
    QByteArray damaged();

private:
    bool oneIn(int n) { return below(n) == 0; }
    int below(int limit) { return int(m_random.bounded(limit)); }
    QString pick(const QStringList &texts) { return texts.at(below(texts.size())); }
    QString number();
    IniValue value(const QString &key);
    QByteArray line(const QString &key, QMap<QString, IniValue> &keys);
    QByteArray message(QMap<QString, IniValue> &messages);

    QRandomGenerator m_random;
    QString m_importFile;
};
