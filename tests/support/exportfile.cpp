#include "tests/support/exportfile.h"

#include <QFile>

QString exportDate(const QDate &date)
{
    return date.isValid() ? date.toString(QStringLiteral("yyyy-MM-dd")) + " 00:00:00.000"
                          : QString();
}

ExportRow &ExportRow::with(QString ExportRow::*field, const QString &value)
{
    this->*field = value;
    return *this;
}

ExportRow &ExportRow::with(QString ExportRow::*field, qlonglong value)
{
    return with(field, QString::number(value));
}

ExportRow &ExportRow::with(QString ExportRow::*field, const QDate &value)
{
    return with(field, exportDate(value));
}

QStringList ExportRow::fields() const
{
    return {osobniCislo,
            poradoveCisloPP,
            titul,
            jmeno,
            prijmeni,
            titulZa,
            telefon,
            datumNastupu,
            datumVystupu,
            stredisko,
            strediskoPopis,
            kalendar,
            kalendarPlatnostOd,
            typPracovnihoPomeru,
            stavPracovnihoPomeru,
            evidencniStav,
            dovolenaZustatek,
            nadrizenyOsobniCislo};
}

QString ExportRow::text() const
{
    return fields().join('|');
}

ExportFile::ExportFile()
{
    if (!m_dir.isValid())
        qFatal("No folder for an export file: %s", qPrintable(m_dir.errorString()));
}

QString ExportFile::path() const
{
    return m_dir.filePath(QStringLiteral("export.data"));
}

bool ExportFile::exists() const
{
    return QFile::exists(path());
}

void ExportFile::remove()
{
    if (exists() && !QFile::remove(path()))
        qFatal("%s could not be removed", qPrintable(path()));
}

void ExportFile::write(const QStringList &lines)
{
    QByteArray content;
    for (const QString &line : lines)
        content += line.toUtf8() + '\n';
    writeBytes(content);
}

void ExportFile::write(const QVector<ExportRow> &lines)
{
    QStringList texts;
    for (const ExportRow &line : lines)
        texts += line.text();
    write(texts);
}

void ExportFile::writeBytes(const QByteArray &content)
{
    QFile file(path());
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("%s could not be written: %s", qPrintable(path()), qPrintable(file.errorString()));
}
