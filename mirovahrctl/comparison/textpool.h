#pragma once

#include <QHash>
#include <QString>
#include <QVector>

/// Texts that occur many times, each kept once.
class TextPool {
public:
    /// The number of a text: the same for equal texts.
    quint32 add(const QString &text);

    const QString &at(quint32 number) const { return m_texts.at(int(number)); }

private:
    QHash<QString, quint32> m_numbers;
    QVector<QString> m_texts;
};
