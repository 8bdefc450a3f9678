#pragma once

#include <QString>
#include <QStringView>

#include <string>
#include <vector>

/// Texts that occur many times, each kept once.
///
/// Most texts of a large export occur once or twice, such as telephone numbers. A QString in a
/// QHash would take some hundred bytes for each of them, here it is its characters and about
/// sixteen bytes.
class TextPool {
public:
    /// The number of a text: the same for equal texts.
    quint32 add(QStringView text);

    QString at(quint32 number) const { return view(number).toString(); }

private:
    QStringView view(quint32 number) const;
    /// The slot of a text, or the free one where it belongs.
    quint32 &slotOf(QStringView text);
    void makeRoom();

    std::u16string m_characters; ///< of all texts, one after the other
    std::vector<quint32> m_ends; ///< of the texts in there
    std::vector<quint32> m_slots; ///< hash table: the number of a text and 1; 0: free
};
