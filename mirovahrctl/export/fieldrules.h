#pragma once

#include "mirovahrctl/export/linecheck.h"

/// The rules for the fields of one line with the right number of fields.
class FieldRules {
public:
    /// \a record: what the plugin reads from the parts; \a line gets the findings. All references
    /// must outlive the object.
    FieldRules(const ExportLine::Parts &parts, const MirovaRonRecord &record,
               const ColumnWidths &widths, Backslash backslash, CheckedLine &line);

    /// Applies all rules.
    void check();

private:
    void checkIdentity();
    void checkPid();
    void checkTexts();
    void checkText(int field, const char *column);
    void checkHazards(int field, const QString &text);
    void checkWidth(int field, const QString &stored, const char *column);
    void checkDates();
    void checkDate(int field, const QDate &date);
    void checkNumber(int field);
    void checkCode(int field, ushort code);
    void checkBalance();

    QString text(int field) const;
    QString notANumber(int field) const;
    void add(int field, const Rule &rule, const QString &message,
             const QString &advice = QString());

    const ExportLine::Parts &m_parts;
    const MirovaRonRecord &m_record;
    const ColumnWidths &m_widths;
    const Backslash m_backslash;
    CheckedLine &m_line;
};
