#pragma once

#include <QByteArray>
#include <QDate>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

/// The text of a date field of the HR export; empty for an invalid date.
QString exportDate(const QDate &date);

/// One line of the HR export, its fields in their order, as text, so that a test can write broken
/// values as well. The defaults describe one valid employee; a test sets only what it is about:
///
///     ExportRow().with(&ExportRow::jmeno, "Ján").with(&ExportRow::stredisko, 130).text()
struct ExportRow {
    QString osobniCislo = QStringLiteral("1234");
    QString poradoveCisloPP = QStringLiteral("1");
    QString titul = QStringLiteral("Ing.");
    QString jmeno = QStringLiteral("Jana");
    QString prijmeni = QStringLiteral("Nováková");
    QString titulZa;
    QString telefon = QStringLiteral("555123456");
    QString datumNastupu = QStringLiteral("2019-04-01 00:00:00.000");
    QString datumVystupu;
    QString stredisko = QStringLiteral("120");
    QString strediskoPopis = QStringLiteral("Sklad");
    QString kalendar = QStringLiteral("3");
    QString kalendarPlatnostOd = QStringLiteral("2019-04-01 00:00:00.000");
    QString typPracovnihoPomeru = QStringLiteral("11");
    QString stavPracovnihoPomeru = QStringLiteral("1");
    QString evidencniStav = QStringLiteral("0");
    QString dovolenaZustatek = QStringLiteral("12.5");
    QString nadrizenyOsobniCislo = QStringLiteral("0");

    ExportRow &with(QString ExportRow::*field, const QString &value);
    ExportRow &with(QString ExportRow::*field, qlonglong value);
    ExportRow &with(QString ExportRow::*field, int value) { return with(field, qlonglong(value)); }
    ExportRow &with(QString ExportRow::*field, const QDate &value);

    QStringList fields() const; ///< All 18.
    QString text() const; ///< Joined by "|", without a line feed.
};

/// An export file in a temporary folder of its own. The file does not exist until it is written.
class ExportFile {
public:
    ExportFile();

    QString path() const;
    bool exists() const;
    void remove();
    /// Replaces the content. Each line ends with a line feed.
    void write(const QStringList &lines);
    void write(const QVector<ExportRow> &lines);
    void writeBytes(const QByteArray &content);

private:
    QTemporaryDir m_dir;
};
