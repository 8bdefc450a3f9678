#pragma once

#include "mirovahrctl/report/severity.h"

#include <QString>
#include <QtGlobal>

/// One result of a rule.
struct Finding {
    Severity severity = Severity::Warning;
    QString rule; ///< name of the rule, such as "field-count"; part of the JSON report, so it stays
    QString message; ///< what is wrong, in whole sentences
    QString advice; ///< what to do about it, a whole sentence; may be empty
    bool forHr = false; ///< the advice is for HR, not for the administrator
    qint64 line = 0; ///< line of the checked file, counted from 1; 0: the file as a whole
    QString field; ///< field of the export, key of the INI file, column; may be empty
    QString subject; ///< the person or thing, such as "1234.1 Jana Nováková"; may be empty
    bool dropped = false; ///< the plugin leaves this line out
};

/// A finding about the whole, without a line, field or subject.
Finding makeFinding(Severity severity, const char *rule, const QString &message,
                    const QString &advice = QString());
